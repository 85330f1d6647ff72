#include "zelmat/layups/WholeLayup.h"

#include <utility>

#include "zelmat/layups/KeptLayupCard.h"

namespace zelmat {

std::optional<WholeLayup> ReadWholeLayup(KORMemoryDocument& document, const DocumentLayup& layup,
                                         const std::string& file, Findings& findings) {
    auto stored = ReadLayup(layup.feature);
    if (!stored) {
        findings.Add({FindingKind::ERROR, {file, 0}, "not-read", layup.name + " could not be read", {}});
        return std::nullopt;
    }
    LayupCard card = ReadKeptLayupCard(document, layup.feature, *stored, file);
    return WholeLayup{std::move(*stored), std::move(card)};
}

std::vector<WholeLayup> ReadWholeLayups(KORMemoryDocument& document, const std::string& file,
                                        Findings& findings) {
    std::vector<WholeLayup> layups;
    for (const DocumentLayup& layup : LayupsOf(document)) {
        if (auto whole = ReadWholeLayup(document, layup, file, findings)) layups.push_back(std::move(*whole));
    }
    return layups;
}

}  // namespace zelmat
