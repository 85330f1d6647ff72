#pragma once

#include <string>
#include <vector>

#include "zelmat/documents/DocumentToRead.h"
#include "zelmat/layups/LayupDifferences.h"
#include "zelmat/materials/Differences.h"

namespace zelmat {

/// A material or layup of both sides of a comparison, or of one.
template <class Each>
struct ComparedPair {
    ComparedPair(const Each* one, const Each* other) : before(one), after(other) {}

    const Each* before;  ///< null: on the other side alone
    const Each* after;
    std::vector<Difference> differences;  ///< where there are both

    bool IsSame() const { return before && after && differences.empty(); }
    const std::string& Name() const { return (before ? before : after)->name; }
};

/// Pairs by name, of equal names the first with the first; one alone with one alone whatever their names. The
/// pairs point to what is given.
template <class Each>
std::vector<ComparedPair<Each>> PairsOf(const std::vector<Each>& before, const std::vector<Each>& after) {
    if (before.size() == 1 && after.size() == 1) return {ComparedPair<Each>(&before.front(), &after.front())};
    std::vector<ComparedPair<Each>> pairs;
    std::vector<bool> taken(after.size(), false);
    for (const Each& each : before) {
        ComparedPair<Each> pair(&each, nullptr);
        for (std::size_t at = 0; at < after.size() && !pair.after; ++at) {
            if (taken[at] || after[at].name != each.name) continue;
            taken[at] = true;
            pair.after = &after[at];
        }
        pairs.push_back(std::move(pair));
    }
    for (std::size_t at = 0; at < after.size(); ++at) {
        if (!taken[at]) pairs.emplace_back(nullptr, &after[at]);
    }
    return pairs;
}

/// The pairs, and the values in which those of both sides differ.
std::vector<ComparedPair<Material>> Compared(const std::vector<Material>& before,
                                             const std::vector<Material>& after, const UnitChoice& units);
std::vector<ComparedPair<LayupCard>> Compared(const std::vector<LayupCard>& before,
                                              const std::vector<LayupCard>& after, const UnitChoice& units);

/// The layups of a document as their own cards have them, without what the document's materials say: a layup
/// has not changed because a material has.
std::vector<LayupCard> ComparedLayupsOf(DocumentToRead& document, Findings& findings);

/// "elastic.youngs_modulus row 2: 210 GPa -> 205 GPa", text of the materials as it is.
std::string DifferenceText(const Difference& difference);

}  // namespace zelmat
