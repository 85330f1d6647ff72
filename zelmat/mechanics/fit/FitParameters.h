#pragma once

#include <vector>

#include "zelmat/mechanics/hyperelastic/HyperelasticModel.h"

namespace zelmat::mechanics {

/// The numbers that a fit of a potential moves, chosen so that mu0 > 0 is a bound of one of them. As many as
/// coefficients, and in their places:
/// - polynomials: C10 + C01 instead of C10; OGDEN: the sum of all mu_i instead of mu_1;
/// - ARRUDA_BOYCE: 1/lambda_m^2, VAN_DER_WAALS: 1/sqrt(lambda_m^2 - 3) instead of lambda_m.
/// Stresses are in a unit in which the data are of the order of 1.
class FitParameters {
public:
    FitParameters(HyperelasticModel model, int order);

    /// mu0 >= 1e-9, lambda_m <= 1000, ARRUDA_BOYCE lambda_m >= 1, alpha_i within -50 to 50, a >= 0, 0 <= beta
    /// <= 1.
    const std::vector<double>& Lower() const { return lower_; }
    const std::vector<double>& Upper() const { return upper_; }

    std::vector<double> Coefficients(const std::vector<double>& parameters) const;
    std::vector<double> Parameters(const std::vector<double>& coefficients) const;

    /// d coefficient_i / d parameter_k, row-major.
    std::vector<double> Slopes(const std::vector<double>& parameters) const;

private:
    HyperelasticModel model_;
    std::vector<std::size_t>
        summands_;  ///< the coefficients that are added to the first one for the first parameter
    std::vector<double> lower_, upper_;
};

}  // namespace zelmat::mechanics
