#include "zelmat/commands/MaterialPairs.h"

namespace zelmat {

namespace {

std::string SideText(const DifferenceSide& side) {
    if (side.text.empty()) return "-";
    return side.unit.empty() ? side.text : side.text + " " + side.unit;
}

std::vector<MaterialPair> ByName(const std::vector<Material>& before, const std::vector<Material>& after) {
    if (before.size() == 1 && after.size() == 1) return {{&before.front(), &after.front()}};
    std::vector<MaterialPair> pairs;
    std::vector<bool> taken(after.size(), false);
    for (const Material& material : before) {
        MaterialPair pair{&material, nullptr};
        for (std::size_t at = 0; at < after.size() && !pair.after; ++at) {
            if (taken[at] || after[at].name != material.name) continue;
            taken[at] = true;
            pair.after = &after[at];
        }
        pairs.push_back(std::move(pair));
    }
    for (std::size_t at = 0; at < after.size(); ++at) {
        if (!taken[at]) pairs.push_back({nullptr, &after[at]});
    }
    return pairs;
}

}  // namespace

std::vector<MaterialPair> PairMaterials(const std::vector<Material>& before,
                                        const std::vector<Material>& after, const UnitChoice& units) {
    std::vector<MaterialPair> pairs = ByName(before, after);
    for (MaterialPair& pair : pairs) {
        if (pair.before && pair.after) pair.differences = Differences(*pair.before, *pair.after, units);
    }
    return pairs;
}

std::string DifferenceText(const Difference& difference) {
    std::string text = difference.key;
    if (difference.row > 0) text += " row " + std::to_string(difference.row);
    return text + ": " + SideText(difference.before) + " -> " + SideText(difference.after);
}

}  // namespace zelmat
