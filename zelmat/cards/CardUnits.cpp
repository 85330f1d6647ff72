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

/// A card may name a quantity as the block that holds it.
constexpr std::array<Names, 1> kOtherNames = {{{"thermal_expansion", "expansion"}}};

const Quantity* FindNamed(const std::string& name) {
    const auto other = std::find_if(kOtherNames.begin(), kOtherNames.end(),
                                    [&](const Names& pair) { return pair[0] == name; });
    return FindQuantity(other == kOtherNames.end() ? name : (*other)[1]);
}

}  // namespace

CardUnits::CardUnits(const JsonNode& units, BareColumns bare) : bare_(bare) {
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

/// For it or for its family; null when the card names neither.
const Unit* CardUnits::Named(const Quantity& quantity) const {
    if (const Unit* own = Find(quantity)) return own;
    const Quantity* family = quantity.family.empty() ? nullptr : FindQuantity(quantity.family);
    return family ? Find(*family) : nullptr;
}

const Unit& CardUnits::For(const Quantity& quantity) const {
    const Unit* named = Named(quantity);
    return named ? *named : quantity.stored;
}

bool CardUnits::HasToBeNamed(const Quantity& quantity) const {
    return bare_ == BareColumns::REFUSED && quantity.stored.Spelling() != "-" && !Named(quantity);
}

}  // namespace zelmat
