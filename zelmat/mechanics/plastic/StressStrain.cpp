#include "zelmat/mechanics/plastic/StressStrain.h"

#include <cmath>

namespace zelmat::mechanics {

StressStrain TrueFromEngineering(const StressStrain& engineering) {
    return {.strain = std::log1p(engineering.strain),
            .stress = engineering.stress * (1.0 + engineering.strain)};
}

StressStrain EngineeringFromTrue(const StressStrain& trueValues) {
    return {.strain = std::expm1(trueValues.strain),
            .stress = trueValues.stress * std::exp(-trueValues.strain)};
}

double PlasticStrain(const StressStrain& trueValues, double youngsModulus) {
    return trueValues.strain - trueValues.stress / youngsModulus;
}

}  // namespace zelmat::mechanics
