#include "zelmat/mechanics/hyperelastic/InvariantEnergy.h"

namespace zelmat::mechanics {

namespace {

/// dI1/de_i and dI2/de_i. The second derivatives are 2 dI1/de_i and -2 dI2/de_i on the diagonal, else 0.
struct InvariantSlopes {
    std::array<double, 3> first, second;
};

InvariantSlopes SlopesAt(const PrincipalStretches& stretches) {
    InvariantSlopes slopes{};
    for (std::size_t i = 0; i < 3; ++i) {
        const double square = stretches.stretch[i] * stretches.stretch[i];
        slopes.first[i] = 2.0 * square;
        slopes.second[i] = -2.0 / square;
    }
    return slopes;
}

}  // namespace

EnergyState InvariantEnergy::At(const PrincipalStretches& stretches) const {
    const InvariantState state = Derivatives(stretches.first, stretches.second);
    const auto [p, q] = SlopesAt(stretches);
    EnergyState result{.energy = state.w, .force = {}, .stiffness = {}};
    for (std::size_t i = 0; i < 3; ++i) {
        result.force[i] = state.wx * p[i] + state.wy * q[i];
        for (std::size_t j = 0; j < 3; ++j) {
            result.stiffness[i][j] =
                state.wxx * p[i] * p[j] + state.wxy * (p[i] * q[j] + q[i] * p[j]) + state.wyy * q[i] * q[j];
        }
        result.stiffness[i][i] += 2.0 * state.wx * p[i] - 2.0 * state.wy * q[i];
    }
    return result;
}

std::vector<std::array<double, 3>> InvariantEnergy::CoefficientForces(
    const PrincipalStretches& stretches) const {
    const auto [p, q] = SlopesAt(stretches);
    std::vector<std::array<double, 3>> forces;
    for (const auto& [wx, wy] : CoefficientDerivatives(stretches.first, stretches.second)) {
        std::array<double, 3> force{};
        for (std::size_t i = 0; i < 3; ++i) force[i] = wx * p[i] + wy * q[i];
        forces.push_back(force);
    }
    return forces;
}

double InvariantEnergy::ShearModulus() const {
    const InvariantState rest = Derivatives(0.0, 0.0);
    return 2.0 * (rest.wx + rest.wy);
}

}  // namespace zelmat::mechanics
