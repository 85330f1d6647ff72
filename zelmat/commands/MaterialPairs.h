#pragma once

#include <string>
#include <vector>

#include "zelmat/materials/Differences.h"

namespace zelmat {

/// A material of both sides of a comparison, or of one.
struct MaterialPair {
    const Material* before = nullptr;
    const Material* after = nullptr;
    std::vector<Difference> differences = {};  ///< where there are both

    bool IsSame() const { return before && after && differences.empty(); }
    const std::string& Name() const { return (before ? before : after)->name; }
};

/// Pairs them by name, of equal names the first with the first; two materials alone whatever their names. The
/// pairs point to the materials.
std::vector<MaterialPair> PairMaterials(const std::vector<Material>& before,
                                        const std::vector<Material>& after, const UnitChoice& units);

/// "elastic.youngs_modulus row 2: 210 GPa -> 205 GPa", text of the materials as it is.
std::string DifferenceText(const Difference& difference);

}  // namespace zelmat
