#include "zelmat/properties/ExpansionProperty.h"

#include <algorithm>
#include <array>
#include <cctype>

#include "zelmat/materials/OverTemperature.h"

namespace zelmat {

using mechanics::Outcome;
using mechanics::Refusal;
using mechanics::ThermalExpansion;

bool IsInstantaneous(const Block& expansion) {
    constexpr std::array<const char*, 4> kWords = {"instantaneous", "tangent", "differential", "true"};
    std::string kind = expansion.values.Get<std::string>("kind").value_or("");
    for (char& letter : kind) letter = static_cast<char>(std::tolower(static_cast<unsigned char>(letter)));
    return std::any_of(kWords.begin(), kWords.end(),
                       [&](const char* word) { return kind.find(word) != std::string::npos; });
}

Outcome<ThermalExpansion> ExpansionOf(const Block& expansion, mechanics::OutsidePolicy policy) {
    const auto reference = expansion.values.Get<double>("reference_temperature");
    if (!reference) return Refusal{"thermal_expansion has no reference_temperature"};
    if (expansion.tables.empty()) return Refusal{"the block has no table"};
    const auto table = OverTemperature(expansion.tables.front());
    if (!table.Ok()) return table.Refused();
    if (IsInstantaneous(expansion)) return ThermalExpansion::FromInstantaneous(*table, *reference, policy);
    return ThermalExpansion(*table, *reference);
}

}  // namespace zelmat
