#include "zelmat/mechanics/hyperelastic/PrincipalStretches.h"

#include <cmath>

namespace zelmat::mechanics {

namespace {

/// p + q + 1/(pq) - 3 from a = p - 1 and b = q - 1, without taking the difference of nearly equal numbers.
double Excess(double a, double b) {
    return (a * a + a * b + b * b + a * b * (a + b)) / ((1.0 + a) * (1.0 + b));
}

}  // namespace

PrincipalStretches StretchesOf(double firstStrain, double secondStrain) {
    const double third = -firstStrain - secondStrain;
    return {.stretch = {std::exp(firstStrain), std::exp(secondStrain), std::exp(third)},
            .strain = {firstStrain, secondStrain, third},
            .first = Excess(std::expm1(2.0 * firstStrain), std::expm1(2.0 * secondStrain)),
            .second = Excess(std::expm1(-2.0 * firstStrain), std::expm1(-2.0 * secondStrain))};
}

}  // namespace zelmat::mechanics
