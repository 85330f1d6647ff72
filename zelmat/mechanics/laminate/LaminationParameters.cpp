#include "zelmat/mechanics/laminate/LaminationParameters.h"

#include <cmath>

#include "zelmat/mechanics/laminate/PlyStiffness.h"

namespace zelmat::mechanics {

namespace {

/// Sums of terms of up to 1 that come out below this are rounding.
constexpr double kRounding = 1e-14;

}  // namespace

Outcome<LaminationParameters> LaminationParametersOf(const Laminate& laminate) {
    if (const auto fault = LaminateFault(laminate)) return *fault;
    for (const Layer& layer : laminate.layers) {
        if (layer.material != laminate.layers.front().material) {
            return Refusal{"lamination parameters exist for one ply material only"};
        }
    }
    const auto z = Interfaces(laminate);
    const double h = z.back() - z.front();
    LaminationParameters parameters{};
    for (std::size_t k = 0; k < laminate.layers.size(); ++k) {
        const auto twice = DirectionOf(2.0 * laminate.layers[k].angle);
        const auto fourTimes = DirectionOf(4.0 * laminate.layers[k].angle);
        const std::array<double, 4> terms = {twice.cosine, twice.sine, fourTimes.cosine, fourTimes.sine};
        const double t = (z[k + 1] - z[k]) / h, middle = 0.5 * (z[k] + z[k + 1]) / h;
        for (std::size_t i = 0; i < 4; ++i) {
            parameters.membrane[i] += terms[i] * t;
            parameters.coupling[i] += terms[i] * 4.0 * t * middle;
            parameters.bending[i] += terms[i] * 12.0 * t * (middle * middle + t * t / 12.0);
        }
    }
    for (auto* four : {&parameters.membrane, &parameters.coupling, &parameters.bending}) {
        for (double& value : *four) {
            if (std::abs(value) < kRounding) value = 0.0;
        }
    }
    return parameters;
}

}  // namespace zelmat::mechanics
