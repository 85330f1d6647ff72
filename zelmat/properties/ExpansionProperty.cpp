#include "zelmat/properties/ExpansionProperty.h"

#include <algorithm>
#include <cctype>
#include <initializer_list>

#include "zelmat/materials/OverTemperature.h"

namespace zelmat {

using mechanics::Outcome;
using mechanics::Refusal;
using mechanics::ThermalExpansion;

bool IsInstantaneous(const Block& expansion) {
    std::string kind = expansion.values.Get<std::string>("kind").value_or("");
    for (char& letter : kind) letter = static_cast<char>(std::tolower(static_cast<unsigned char>(letter)));
    const auto says = [&kind](std::initializer_list<const char*> words) {
        return std::any_of(words.begin(), words.end(),
                           [&](const char* word) { return kind.find(word) != std::string::npos; });
    };
    // "mean, not instantaneous" names both.
    return says({"instantaneous", "tangent", "differential", "true"}) && !says({"mean", "secant", "average"});
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
