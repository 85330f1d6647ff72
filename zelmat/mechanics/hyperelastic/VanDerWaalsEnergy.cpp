#include "zelmat/mechanics/hyperelastic/VanDerWaalsEnergy.h"

#include <cmath>

namespace zelmat::mechanics {

namespace {

/// -ln(1 - eta) - eta, by its series where the difference would lose its digits.
double Drawn(double eta) {
    if (eta > 0.05) return -std::log1p(-eta) - eta;
    double power = eta, sum = 0.0;
    for (int k = 2; k <= 14; ++k) sum += (power *= eta) / k;
    return sum;
}

}  // namespace

std::optional<Locking> VanDerWaalsEnergy::LockingLimit() const {
    return Locking{.limit = Limit(), .beta = beta_, .ends = true};
}

VanDerWaalsEnergy::Chain VanDerWaalsEnergy::ChainAt(double x, double y) const {
    const double mixed = (1.0 - beta_) * x + beta_ * y;
    const double eta = std::sqrt(mixed / Limit());
    const double root = std::sqrt(mixed / 2.0);
    const double slope = 0.5 * (1.0 / (1.0 - eta) - attraction_ * root);
    // The second derivative grows as 1/eta towards rest, but only ever acts on squares of the invariant's own
    // slope, which vanish as eta squared: at rest it adds nothing.
    double bend = 0.0;
    if (mixed > 0.0) {
        bend = 0.25 * (1.0 / (Limit() * eta * (1.0 - eta) * (1.0 - eta)) - attraction_ / (2.0 * root));
    }
    return {.mixed = mixed, .eta = eta, .root = root, .slope = slope, .bend = bend};
}

InvariantState VanDerWaalsEnergy::Derivatives(double x, double y) const {
    const Chain chain = ChainAt(x, y);
    const double slope = mu_ * chain.slope, bend = mu_ * chain.bend;
    const double p = 1.0 - beta_, q = beta_;
    return {.w = mu_ * (Limit() * Drawn(chain.eta) - attraction_ * chain.root * chain.mixed / 3.0),
            .wx = p * slope,
            .wy = q * slope,
            .wxx = p * p * bend,
            .wxy = p * q * bend,
            .wyy = q * q * bend};
}

std::vector<InvariantForce> VanDerWaalsEnergy::CoefficientDerivatives(double x, double y) const {
    const Chain chain = ChainAt(x, y);
    const double gap = 1.0 - chain.eta;
    const double byLocking = -0.5 * mu_ * chain.eta * lockingStretch_ / (Limit() * gap * gap);
    const double byAttraction = -0.5 * mu_ * chain.root;
    const double byBeta = mu_ * chain.bend * (y - x);
    const double slope = mu_ * chain.slope;
    const double p = 1.0 - beta_, q = beta_;
    return {{.wx = p * chain.slope, .wy = q * chain.slope},
            {.wx = p * byLocking, .wy = q * byLocking},
            {.wx = p * byAttraction, .wy = q * byAttraction},
            {.wx = p * byBeta - slope, .wy = q * byBeta + slope}};
}

}  // namespace zelmat::mechanics
