#include "zelmat/commands/ComparedPairs.h"

#include "zelmat/layups/WholeLayup.h"

namespace zelmat {

namespace {

std::string SideText(const DifferenceSide& side) {
    if (side.text.empty()) return "-";
    return side.unit.empty() ? side.text : side.text + " " + side.unit;
}

template <class Each, class Differ>
std::vector<ComparedPair<Each>> With(std::vector<ComparedPair<Each>> pairs, Differ differ,
                                     const UnitChoice& units) {
    for (ComparedPair<Each>& pair : pairs) {
        if (pair.before && pair.after) pair.differences = differ(*pair.before, *pair.after, units);
    }
    return pairs;
}

}  // namespace

std::vector<ComparedPair<Material>> Compared(const std::vector<Material>& before,
                                             const std::vector<Material>& after, const UnitChoice& units) {
    return With(PairsOf(before, after), Differences, units);
}

std::vector<ComparedPair<LayupCard>> Compared(const std::vector<LayupCard>& before,
                                              const std::vector<LayupCard>& after, const UnitChoice& units) {
    return With(PairsOf(before, after), LayupDifferences, units);
}

std::vector<LayupCard> ComparedLayupsOf(DocumentToRead& document, Findings& findings) {
    std::vector<LayupCard> cards;
    for (WholeLayup& layup : ReadWholeLayups(document.Document(), document.Name(), findings)) {
        cards.push_back(std::move(layup.card));
    }
    return cards;
}

std::string DifferenceText(const Difference& difference) {
    std::string text = difference.key;
    if (difference.row > 0) text += " row " + std::to_string(difference.row);
    return text + ": " + SideText(difference.before) + " -> " + SideText(difference.after);
}

}  // namespace zelmat
