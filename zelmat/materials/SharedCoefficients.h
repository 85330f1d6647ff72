#pragma once

#include <set>

#include "zelmat/materials/OlderCoefficients.h"

namespace zelmat {

/// What the materials of a document have in common: several may lead to one model with its coefficients, or
/// share a whole hyperelastic behavior. The module upgrades material by material and knows nothing of that.
/// Features are told by their numbers.
class SharedCoefficients {
public:
    /// Looks at all materials that lie in the document of this one, as they are now.
    explicit SharedCoefficients(const KORFeature& material);

    /// Are a model's coefficients in the stored unit, for one material at least?
    bool AreConverted(std::uint32_t model) const { return converted_.contains(model); }
    void MarkConverted(std::uint32_t model) { converted_.insert(model); }

    /// Has a material with this hyperelastic feature its behavior switched on?
    bool AreSwitchedOn(std::uint32_t hyperelasticity) const { return switchedOn_.contains(hyperelasticity); }

private:
    std::set<std::uint32_t> converted_;   ///< models
    std::set<std::uint32_t> switchedOn_;  ///< hyperelastic features
};

}  // namespace zelmat
