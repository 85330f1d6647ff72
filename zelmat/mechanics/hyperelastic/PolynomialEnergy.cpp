#include "zelmat/mechanics/hyperelastic/PolynomialEnergy.h"

namespace zelmat::mechanics {

namespace {

/// x^power, also 0^0 = 1; 0 below power 0, which only a factor 0 in front of it asks for.
double Power(double x, int power) {
    if (power < 0) return 0.0;
    double result = 1.0;
    for (int i = 0; i < power; ++i) result *= x;
    return result;
}

}  // namespace

InvariantState PolynomialEnergy::Derivatives(double x, double y) const {
    InvariantState sum{};
    for (const auto& [i, j, factor] : terms_) {
        const double xi = Power(x, i), xi1 = i * Power(x, i - 1), xi2 = i * (i - 1) * Power(x, i - 2);
        const double yj = Power(y, j), yj1 = j * Power(y, j - 1), yj2 = j * (j - 1) * Power(y, j - 2);
        sum.w += factor * xi * yj;
        sum.wx += factor * xi1 * yj;
        sum.wy += factor * xi * yj1;
        sum.wxx += factor * xi2 * yj;
        sum.wxy += factor * xi1 * yj1;
        sum.wyy += factor * xi * yj2;
    }
    return sum;
}

std::vector<InvariantForce> PolynomialEnergy::CoefficientDerivatives(double x, double y) const {
    std::vector<InvariantForce> forces;
    for (const auto& [i, j, factor] : terms_) {
        forces.push_back({.wx = i * Power(x, i - 1) * Power(y, j), .wy = Power(x, i) * j * Power(y, j - 1)});
    }
    return forces;
}

}  // namespace zelmat::mechanics
