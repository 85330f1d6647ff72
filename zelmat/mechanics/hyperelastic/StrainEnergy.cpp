#include "zelmat/mechanics/hyperelastic/StrainEnergy.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "zelmat/mechanics/hyperelastic/ArrudaBoyceEnergy.h"
#include "zelmat/mechanics/hyperelastic/OgdenEnergy.h"
#include "zelmat/mechanics/hyperelastic/PolynomialEnergy.h"
#include "zelmat/mechanics/hyperelastic/VanDerWaalsEnergy.h"

namespace zelmat::mechanics {

namespace {

using enum HyperelasticModel;
using Energy = std::shared_ptr<const StrainEnergy>;

Outcome<Energy> MakeArrudaBoyce(const std::vector<double>& c) {
    if (c[1] <= 0.0) return Refusal{"lambda_m of ARRUDA_BOYCE has to be above 0"};
    return Energy(std::make_shared<ArrudaBoyceEnergy>(c[0], c[1]));
}

Outcome<Energy> MakeVanDerWaals(const std::vector<double>& c) {
    if (c[1] <= std::sqrt(3.0)) return Refusal{"lambda_m of VAN_DER_WAALS has to be above sqrt(3)"};
    if (c[3] < 0.0 || c[3] > 1.0) return Refusal{"beta of VAN_DER_WAALS has to lie between 0 and 1"};
    return Energy(std::make_shared<VanDerWaalsEnergy>(c[0], c[1], c[2], c[3]));
}

Outcome<Energy> MakeOgden(const std::vector<double>& c) {
    std::vector<OgdenTerm> terms;
    for (std::size_t i = 0; i < c.size(); i += 2) {
        if (c[i + 1] == 0.0) {
            return Refusal{"alpha_" + std::to_string(i / 2 + 1) + " of OGDEN may not be 0"};
        }
        terms.push_back({.mu = c[i], .alpha = c[i + 1]});
    }
    return Energy(std::make_shared<OgdenEnergy>(std::move(terms)));
}

Outcome<Energy> MakePolynomial(int order, const std::vector<double>& c) {
    std::vector<PolynomialTerm> terms;
    for (int power = 1; power <= order; ++power) {
        for (int second = 0; second <= power; ++second) {
            terms.push_back({.first = power - second, .second = second, .factor = c[terms.size()]});
        }
    }
    return Energy(std::make_shared<PolynomialEnergy>(std::move(terms)));
}

Outcome<Energy> MakeReducedPolynomial(const std::vector<double>& c) {
    std::vector<PolynomialTerm> terms;
    for (const double factor : c) {
        terms.push_back({.first = static_cast<int>(terms.size()) + 1, .second = 0, .factor = factor});
    }
    return Energy(std::make_shared<PolynomialEnergy>(std::move(terms)));
}

}  // namespace

bool StrainEnergy::IsDefinedAt(const PrincipalStretches& stretches) const {
    const auto locking = LockingLimit();
    if (!locking || !locking->ends) return true;
    return (1.0 - locking->beta) * stretches.first + locking->beta * stretches.second < locking->limit;
}

Outcome<Energy> MakeStrainEnergy(HyperelasticModel model, int order, const std::vector<double>& c) {
    const std::string name(Keyword(model));
    if (HasOrder(model) && order < 1) return Refusal{"the order of " + name + " starts at 1"};
    const auto expected = CoefficientNames(model, order).size();
    if (c.size() != expected) {
        return Refusal{name + " has " + std::to_string(expected) +
                       " coefficients without the compressibilities, not " + std::to_string(c.size())};
    }
    if (!std::all_of(c.begin(), c.end(), [](double number) { return std::isfinite(number); })) {
        return Refusal{"a coefficient of " + name + " is not a finite number"};
    }
    switch (model) {
        case ARRUDA_BOYCE:
            return MakeArrudaBoyce(c);
        case MOONEY_RIVLIN:
            return MakePolynomial(1, c);
        case NEO_HOOKE:
        case REDUCED_POLYNOMIAL:
        case YEOH:
            return MakeReducedPolynomial(c);
        case OGDEN:
            return MakeOgden(c);
        case POLYNOMIAL:
            return MakePolynomial(order, c);
        case VAN_DER_WAALS:
            return MakeVanDerWaals(c);
    }
    return Refusal{"unknown potential"};
}

}  // namespace zelmat::mechanics
