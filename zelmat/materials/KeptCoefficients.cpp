#include "zelmat/materials/KeptCoefficients.h"

#include <map>

#include "zelmat/materials/OlderCoefficients.h"

namespace zelmat {

KeptCoefficients::KeptCoefficients(const KORMemoryDocument& document, const KORName* materialType) {
    document.ForEachFeature(materialType, [this](KORFeature& material) {
        const OlderCoefficients read = ReadOlderCoefficients(material);
        if (!read.enabled || read.rows.empty()) return;
        before_.push_back({material.Number(), KORUpgradeNameOf(material).c_str(), read.rows.size()});
    });
}

bool KeptCoefficients::AreKept(KORMemoryDocument& document, const KORUpgradeReport& run,
                               const std::string& file, Findings& findings) const {
    std::map<std::uint32_t, std::uint32_t> replacements;
    for (const KORUpgradedFeature& material : run.upgraded) {
        if (material.replacement != 0) replacements[material.feature] = material.replacement;
    }
    bool kept = true;
    for (const auto& [number, name, rows] : before_) {
        const auto replaced = replacements.find(number);
        KORFeature* const now =
            document.Features().Find(replaced == replacements.end() ? number : replaced->second);
        const std::size_t left = now ? ReadOlderCoefficients(*now).rows.size() : 0;
        if (left >= rows) continue;
        findings.Add({FindingKind::ERROR,
                      {file, 0},
                      "coefficients-lost",
                      "of the " + std::to_string(rows) + " rows of coefficients of " + name +
                          " the upgrade would leave " + std::to_string(left),
                      {"give it a model of its own if another material has the same"}});
        kept = false;
    }
    return kept;
}

}  // namespace zelmat
