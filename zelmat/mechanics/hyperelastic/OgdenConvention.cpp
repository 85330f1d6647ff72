#include "zelmat/mechanics/hyperelastic/OgdenConvention.h"

namespace zelmat::mechanics {

using enum OgdenConvention;

std::string_view Keyword(OgdenConvention convention) {
    switch (convention) {
        case TWO_MU_BY_ALPHA_SQUARED:
            return "2mu/alpha^2";
        case MU_BY_ALPHA:
            return "mu/alpha";
    }
    return {};
}

std::optional<OgdenConvention> OgdenConventionOf(std::string_view keyword) {
    for (const OgdenConvention convention : {TWO_MU_BY_ALPHA_SQUARED, MU_BY_ALPHA}) {
        if (Keyword(convention) == keyword) return convention;
    }
    return std::nullopt;
}

std::vector<double> ConvertOgden(std::vector<double> coefficients, OgdenConvention from, OgdenConvention to) {
    if (from == to) return coefficients;
    for (std::size_t i = 0; i + 1 < coefficients.size(); i += 2) {
        const double factor = 0.5 * coefficients[i + 1];
        coefficients[i] = from == MU_BY_ALPHA ? coefficients[i] * factor : coefficients[i] / factor;
    }
    return coefficients;
}

}  // namespace zelmat::mechanics
