#include "zelmat/mechanics/hyperelastic/ArrudaBoyceEnergy.h"

#include <array>
#include <cmath>

namespace zelmat::mechanics {

namespace {

constexpr std::array<double, 5> kSeries = {1.0 / 2.0, 1.0 / 20.0, 11.0 / 1050.0, 19.0 / 7000.0,
                                           519.0 / 673750.0};

/// (I1^i - 3^i) / (I1 - 3) as the sum it is, so that small strains keep their digits.
double Quotient(double invariant, int i) {
    double sum = 0.0;
    for (int k = 0; k < i; ++k) sum += std::pow(invariant, k) * std::pow(3.0, i - 1 - k);
    return sum;
}

}  // namespace

std::optional<Locking> ArrudaBoyceEnergy::LockingLimit() const {
    return Locking{.limit = 3.0 * lockingStretch_ * lockingStretch_ - 3.0, .beta = 0.0, .ends = false};
}

InvariantState ArrudaBoyceEnergy::Derivatives(double x, double) const {
    const double invariant = 3.0 + x;
    InvariantState sum{};
    for (int i = 1; i <= 5; ++i) {
        const double factor =
            mu_ * kSeries[static_cast<std::size_t>(i - 1)] / std::pow(lockingStretch_, 2 * i - 2);
        sum.w += factor * x * Quotient(invariant, i);
        sum.wx += factor * i * std::pow(invariant, i - 1);
        if (i > 1) sum.wxx += factor * i * (i - 1) * std::pow(invariant, i - 2);
    }
    return sum;
}

std::vector<InvariantForce> ArrudaBoyceEnergy::CoefficientDerivatives(double x, double) const {
    double byMu = 0.0, byLocking = 0.0;
    for (int i = 1; i <= 5; ++i) {
        const double slope = kSeries[static_cast<std::size_t>(i - 1)] * i * std::pow(3.0 + x, i - 1) /
                             std::pow(lockingStretch_, 2 * i - 2);
        byMu += slope;
        byLocking -= mu_ * slope * (2 * i - 2) / lockingStretch_;
    }
    return {{.wx = byMu, .wy = 0.0}, {.wx = byLocking, .wy = 0.0}};
}

}  // namespace zelmat::mechanics
