#include "zelmat/mechanics/fit/FitParameters.h"

#include <cmath>

#include "zelmat/mechanics/fit/LeastSquares.h"

namespace zelmat::mechanics {

namespace {

using enum HyperelasticModel;

constexpr double kLeastModulus = 1e-9;
constexpr double kGreatestExponent = 50.0;
constexpr double kGreatestLocking = 1000.0;

double InverseLocking(HyperelasticModel model, double locking) {
    return model == ARRUDA_BOYCE ? 1.0 / (locking * locking) : 1.0 / std::sqrt(locking * locking - 3.0);
}

double LockingOf(HyperelasticModel model, double inverse) {
    return model == ARRUDA_BOYCE ? 1.0 / std::sqrt(inverse) : std::sqrt(3.0 + 1.0 / (inverse * inverse));
}

double LockingSlope(HyperelasticModel model, double inverse) {
    const double locking = LockingOf(model, inverse);
    return model == ARRUDA_BOYCE ? -0.5 * locking / inverse : -1.0 / (inverse * inverse * inverse * locking);
}

bool Locks(HyperelasticModel model) {
    return model == ARRUDA_BOYCE || model == VAN_DER_WAALS;
}

}  // namespace

FitParameters::FitParameters(HyperelasticModel model, int order) : model_(model) {
    const std::size_t count = CoefficientNames(model, order).size();
    lower_.assign(count, -kUnbounded);
    upper_.assign(count, kUnbounded);
    lower_[0] = kLeastModulus;
    if (model == MOONEY_RIVLIN || model == POLYNOMIAL) summands_ = {1};
    if (model == OGDEN) {
        for (std::size_t i = 0; i < count; i += 2) {
            if (i > 0) summands_.push_back(i);
            lower_[i + 1] = -kGreatestExponent;
            upper_[i + 1] = kGreatestExponent;
        }
    }
    if (Locks(model)) {
        lower_[1] = InverseLocking(model, kGreatestLocking);
        upper_[1] = model == ARRUDA_BOYCE ? 1.0 : kUnbounded;
    }
    if (model == VAN_DER_WAALS) {
        lower_[2] = 0.0;
        lower_[3] = 0.0;
        upper_[3] = 1.0;
    }
}

std::vector<double> FitParameters::Coefficients(const std::vector<double>& parameters) const {
    auto coefficients = parameters;
    for (const std::size_t i : summands_) coefficients[0] -= parameters[i];
    if (Locks(model_)) coefficients[1] = LockingOf(model_, parameters[1]);
    return coefficients;
}

std::vector<double> FitParameters::Parameters(const std::vector<double>& coefficients) const {
    auto parameters = coefficients;
    for (const std::size_t i : summands_) parameters[0] += coefficients[i];
    if (Locks(model_)) parameters[1] = InverseLocking(model_, coefficients[1]);
    return parameters;
}

std::vector<double> FitParameters::Slopes(const std::vector<double>& parameters) const {
    const std::size_t count = parameters.size();
    std::vector<double> slopes(count * count, 0.0);
    for (std::size_t i = 0; i < count; ++i) slopes[i * count + i] = 1.0;
    for (const std::size_t i : summands_) slopes[i] = -1.0;
    if (Locks(model_)) slopes[count + 1] = LockingSlope(model_, parameters[1]);
    return slopes;
}

}  // namespace zelmat::mechanics
