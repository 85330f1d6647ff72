#pragma once

#include <vector>

#include "zelmat/mechanics/hyperelastic/InvariantEnergy.h"

namespace zelmat::mechanics {

/// factor (I1 - 3)^first (I2 - 3)^second
struct PolynomialTerm {
    int first, second;
    double factor;
};

/// A sum of products of powers of the invariants: NEO_HOOKE, MOONEY_RIVLIN, YEOH, REDUCED_POLYNOMIAL and
/// POLYNOMIAL. R. S. Rivlin and D. W. Saunders, Phil. Trans. R. Soc. A 243, 1951; O. H. Yeoh, Rubber Chem.
/// Technol. 66, 1993.
class PolynomialEnergy final : public InvariantEnergy {
public:
    explicit PolynomialEnergy(std::vector<PolynomialTerm> terms) : terms_(std::move(terms)) {}

private:
    InvariantState Derivatives(double x, double y) const override;
    std::vector<InvariantForce> CoefficientDerivatives(double x, double y) const override;

    std::vector<PolynomialTerm> terms_;
};

}  // namespace zelmat::mechanics
