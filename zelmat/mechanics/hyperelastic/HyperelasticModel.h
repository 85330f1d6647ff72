#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zelmat::mechanics {

/// The strain-energy potentials of rubber.
enum class HyperelasticModel : int {
    ARRUDA_BOYCE,
    MOONEY_RIVLIN,
    NEO_HOOKE,
    OGDEN,
    POLYNOMIAL,
    REDUCED_POLYNOMIAL,
    VAN_DER_WAALS,
    YEOH,
};

/// All of them, by the alphabet.
const std::vector<HyperelasticModel>& AllHyperelasticModels();

/// "ARRUDA_BOYCE", as on a card and in a document.
std::string_view Keyword(HyperelasticModel model);

std::optional<HyperelasticModel> HyperelasticModelOf(std::string_view keyword);

/// Whether the number of terms is free: OGDEN, POLYNOMIAL and REDUCED_POLYNOMIAL. The others ignore an order.
bool HasOrder(HyperelasticModel model);

/// The names of the coefficients of the part without change of volume, in the order in which they are stored:
/// "mu_1", "alpha_1", "mu_2", ... The compressibilities D1, D2, ... come after them and are not counted here.
/// `order` from 1 on.
std::vector<std::string> CoefficientNames(HyperelasticModel model, int order);

/// Whether a coefficient of this name has the unit of stress: C10, mu_1, mu. The others have no unit.
bool IsStressCoefficient(std::string_view name);

}  // namespace zelmat::mechanics
