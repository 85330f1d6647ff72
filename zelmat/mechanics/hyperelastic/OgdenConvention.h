#pragma once

#include <optional>
#include <string_view>
#include <vector>

namespace zelmat::mechanics {

/// What stands before the sum of powers in a term of Ogden's potential. Both are in use; a coefficient
/// without its convention is ambiguous by the factor alpha/2.
enum class OgdenConvention : int {
    TWO_MU_BY_ALPHA_SQUARED,  ///< mu0 = sum mu_i; the form that is stored and in which everything is computed
    MU_BY_ALPHA,              ///< mu0 = 1/2 sum mu_i alpha_i; Ogden's own, and that of most of the literature
};

/// "2mu/alpha^2" and "mu/alpha"
std::string_view Keyword(OgdenConvention convention);
std::optional<OgdenConvention> OgdenConventionOf(std::string_view keyword);

/// mu_1, alpha_1, mu_2, ... from one convention to the other: mu' = mu alpha / 2 and back. mu in any unit of
/// stress. A last mu without its alpha is left as it is.
std::vector<double> ConvertOgden(std::vector<double> coefficients, OgdenConvention from, OgdenConvention to);

}  // namespace zelmat::mechanics
