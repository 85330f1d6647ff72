#include "zelmat/mechanics/hyperelastic/VolumetricEnergy.h"

#include <cmath>
#include <utility>

namespace zelmat::mechanics {

namespace {

VolumetricState Logarithmic(double j, double d) {
    return {.energy = ((j * j - 1.0) / 2.0 - std::log(j)) / d,
            .slope = (j - 1.0 / j) / d,
            .bend = (1.0 + 1.0 / (j * j)) / d};
}

VolumetricState Powers(double j, const std::vector<double>& compressibilities) {
    VolumetricState sum{};
    int power = 0;
    for (const double d : compressibilities) {
        power += 2;
        if (d == 0.0) continue;
        sum.energy += std::pow(j - 1.0, power) / d;
        sum.slope += power * std::pow(j - 1.0, power - 1) / d;
        sum.bend += power * (power - 1) * std::pow(j - 1.0, power - 2) / d;
    }
    return sum;
}

}  // namespace

VolumetricEnergy::VolumetricEnergy(HyperelasticModel model, std::vector<double> compressibilities)
    : model_(model), compressibilities_(std::move(compressibilities)) {}

Outcome<double> VolumetricEnergy::BulkModulus() const {
    if (IsIncompressible()) return Refusal{"an incompressible material (D1 = 0) has no bulk modulus"};
    return 2.0 / compressibilities_.front();
}

Outcome<VolumetricState> VolumetricEnergy::At(double volumeRatio) const {
    if (IsIncompressible()) return Refusal{"an incompressible material (D1 = 0) keeps its volume"};
    if (!std::isfinite(volumeRatio) || volumeRatio <= 0.0) {
        return Refusal{"a ratio of volumes has to be a finite number above 0"};
    }
    const bool logarithmic =
        model_ == HyperelasticModel::ARRUDA_BOYCE || model_ == HyperelasticModel::VAN_DER_WAALS;
    return logarithmic ? Logarithmic(volumeRatio, compressibilities_.front())
                       : Powers(volumeRatio, compressibilities_);
}

}  // namespace zelmat::mechanics
