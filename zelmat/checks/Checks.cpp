#include "zelmat/checks/Checks.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include "zelmat/checks/CheckRules.h"
#include "zelmat/materials/StoredMeaning.h"

namespace zelmat {

namespace {

Findings Sorted(const Findings& found) {
    Findings sorted;
    for (const Finding& finding : found.ByLine()) sorted.Add(finding);
    return sorted;
}

/// What blocks say of themselves once they are converted.
constexpr std::array<std::pair<const char*, const char*>, 2> kStoredWords = {
    {{"stress", "true"}, {"strain", "plastic"}}};

/// Nothing when all blocks have the meaning that documents have. Otherwise the same material with those
/// converted that can be, so that rules judge what would be stored; that it was converted is told when it is.
std::optional<Material> InStoredMeaning(const Material& material) {
    const auto isThere = [](const std::vector<Block>& blocks) {
        return std::ranges::all_of(blocks, IsInStoredMeaning);
    };
    if (isThere(material.blocks) && isThere(material.fits)) return std::nullopt;
    Material converted = material;
    Findings told;
    for (auto* blocks : {&converted.blocks, &converted.fits}) {
        for (Block& block : *blocks) {
            if (IsInStoredMeaning(block)) continue;
            auto stored = ToStoredMeaning(block, material, told);
            if (!stored) continue;
            for (const auto& [name, word] : kStoredWords) {
                if (stored->values.Find(name)) stored->values.Set(name, std::string(word));
            }
            if (stored->kind->alternatives)
                stored->values.Set("ogden_convention", std::string("2mu/alpha^2"));
            block = std::move(*stored);
        }
    }
    return converted;
}

}  // namespace

Findings CheckMaterial(const Material& given) {
    const auto converted = InStoredMeaning(given);
    const Material& material = converted ? *converted : given;
    Findings found;
    for (const CheckTopic& topic : CheckRules()) {
        for (const CheckRule& rule : topic.rules) {
            if (!rule.look) continue;
            CheckReport report(rule, material.file, found);
            rule.look(material, report);
        }
    }
    return Sorted(found);
}

Findings CheckLayup(const LayupCard& layup) {
    Findings found;
    for (const CheckTopic& topic : CheckRules()) {
        for (const CheckRule& rule : topic.rules) {
            if (!rule.lookAtLayup) continue;
            CheckReport report(rule, layup.file, found);
            rule.lookAtLayup(layup, report);
        }
    }
    return Sorted(found);
}

}  // namespace zelmat
