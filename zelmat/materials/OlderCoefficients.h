#pragma once

#include <string>
#include <vector>

#include "platform/store/KORFeature.h"

namespace zelmat {

/// The hyperelastic coefficients of a material as a document of whatever release holds them, read attribute
/// by attribute. It asks for no interface of the module's: the first query for one upgrades the material.
struct OlderCoefficients {
    bool unconverted = false;  ///< not yet converted to the stored unit of pressure
    bool enabled = false;      ///< the behavior is switched on
    bool temperatureDependent = false;
    std::string model;  ///< keyword of the strain-energy potential, unchecked
    int order = 0;      ///< of the potential, unchecked
    std::vector<std::vector<double>> rows;
    std::uint32_t hyperelasticFeature = 0;  ///< the number of the behavior's feature; 0 without one
    std::uint32_t modelFeature = 0;         ///< of the feature that lists the rows

    std::size_t Width() const;  ///< of the longest row
};

/// Those of the model under the old key while there is one, as the upgrade takes them. A material without
/// hyperelasticity has no rows and nothing to convert.
OlderCoefficients ReadOlderCoefficients(KORFeature& material);

}  // namespace zelmat
