#include "zelmat/cards/CardUnits.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "zelmat/cards/CommentKey.h"
#include "zelmat/text/NearestName.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

namespace {

using Names = std::array<std::string_view, 2>;

/// Columns that measure a member of a family; the others measure what is stored in their unit.
constexpr std::array<Names, 4> kOwnQuantities = {{
    {"youngs_modulus", "modulus"},
    {"pressure", "pressure"},
    {"plastic_strain", "strain"},
    {"rms_relative_deviation", "number"},
}};

/// A card may name a quantity as the block that holds it.
constexpr std::array<Names, 1> kOtherNames = {{{"thermal_expansion", "expansion"}}};

template <std::size_t kCount>
std::string_view Second(const std::array<Names, kCount>& pairs, std::string_view first) {
    const auto found =
        std::find_if(pairs.begin(), pairs.end(), [&](const Names& pair) { return pair[0] == first; });
    return found == pairs.end() ? std::string_view() : (*found)[1];
}

const Quantity* FindNamed(const std::string& name) {
    const std::string_view other = Second(kOtherNames, name);
    return FindQuantity(other.empty() ? name : other);
}

}  // namespace

const Quantity* QuantityOf(const std::string& name, const std::string& storedUnit) {
    if (storedUnit.empty()) return nullptr;
    const std::string_view own = Second(kOwnQuantities, name);
    return own.empty() ? FindQuantityStoredIn(storedUnit) : FindQuantity(own);
}

CardUnits::CardUnits(const JsonNode& units) {
    if (!units.ExpectObject()) return;
    for (const std::string& name : units.Keys()) {
        if (IsComment(name)) continue;
        const JsonNode node = units.At(name);
        const Quantity* quantity = FindNamed(name);
        if (!quantity) {
            const auto known = QuantityNames();
            const std::string nearest = NearestName(name, known);
            node.Report("unknown-unit", "there is no quantity " + Quoted(name),
                        {nearest.empty() ? "known: " + WordList(known) : "did you mean " + nearest + "?"});
            continue;
        }
        const auto text = node.Text();
        if (!text) continue;
        const auto unit = ReadUnit(*text, *quantity);
        if (unit) {
            units_.emplace_back(quantity, *unit);
        } else {
            node.Report("wrong-unit", unit.Error().text);
        }
    }
}

std::vector<std::string> CardUnits::QuantityNames() {
    std::vector<std::string> names;
    for (const Quantity& quantity : Quantities()) names.emplace_back(quantity.name);
    for (const Names& pair : kOtherNames) names.emplace_back(pair[0]);
    return names;
}

const Unit* CardUnits::Find(const Quantity& quantity) const {
    const auto found = std::find_if(units_.begin(), units_.end(),
                                    [&](const auto& entry) { return entry.first == &quantity; });
    return found == units_.end() ? nullptr : &found->second;
}

const Unit& CardUnits::For(const Quantity& quantity) const {
    if (const Unit* own = Find(quantity)) return *own;
    const Quantity* family = quantity.family.empty() ? nullptr : FindQuantity(quantity.family);
    const Unit* shared = family ? Find(*family) : nullptr;
    return shared ? *shared : quantity.stored;
}

}  // namespace zelmat
