#include "zelmat/mechanics/hyperelastic/OgdenEnergy.h"

#include <cmath>

namespace zelmat::mechanics {

namespace {

/// (exp(t) - 1 - t) / t^2, by its series where the differences would lose their digits.
double SecondRemainder(double t) {
    if (std::abs(t) > 0.1) return (std::expm1(t) - t) / (t * t);
    double term = 0.5, sum = 0.5;
    for (int k = 3; k <= 12; ++k) sum += (term *= t / k);
    return sum;
}

}  // namespace

/// The strains add up to 0, so that l^alpha - 1 - alpha e may stand for l^alpha - 1, and a constant may be
/// taken from all three forces: both keep the digits at small strains and small alpha.
EnergyState OgdenEnergy::At(const PrincipalStretches& stretches) const {
    EnergyState state{};
    for (const auto& [mu, alpha] : terms_) {
        for (std::size_t i = 0; i < 3; ++i) {
            const double strain = stretches.strain[i];
            state.energy += 2.0 * mu * strain * strain * SecondRemainder(alpha * strain);
            state.force[i] += 2.0 * mu / alpha * std::expm1(alpha * strain);
            state.stiffness[i][i] += 2.0 * mu * std::exp(alpha * strain);
        }
    }
    return state;
}

std::vector<std::array<double, 3>> OgdenEnergy::CoefficientForces(const PrincipalStretches& stretches) const {
    std::vector<std::array<double, 3>> forces;
    for (const auto& [mu, alpha] : terms_) {
        std::array<double, 3> byMu{}, byAlpha{};
        for (std::size_t i = 0; i < 3; ++i) {
            const double strain = stretches.strain[i], t = alpha * strain;
            byMu[i] = 2.0 / alpha * std::expm1(t);
            // (exp(t) t - expm1(t)) / t^2 = 1 + (t - 1) R(t), R the second remainder
            byAlpha[i] = 2.0 * mu * strain * strain * (1.0 + (t - 1.0) * SecondRemainder(t));
        }
        forces.push_back(byMu);
        forces.push_back(byAlpha);
    }
    return forces;
}

double OgdenEnergy::ShearModulus() const {
    double sum = 0.0;
    for (const OgdenTerm& term : terms_) sum += term.mu;
    return sum;
}

}  // namespace zelmat::mechanics
