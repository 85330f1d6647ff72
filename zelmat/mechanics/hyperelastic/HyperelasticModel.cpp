#include "zelmat/mechanics/hyperelastic/HyperelasticModel.h"

#include <array>
#include <utility>

namespace zelmat::mechanics {

namespace {

using enum HyperelasticModel;

constexpr std::array<std::pair<HyperelasticModel, std::string_view>, 8> kKeywords = {{
    {ARRUDA_BOYCE, "ARRUDA_BOYCE"},
    {MOONEY_RIVLIN, "MOONEY_RIVLIN"},
    {NEO_HOOKE, "NEO_HOOKE"},
    {OGDEN, "OGDEN"},
    {POLYNOMIAL, "POLYNOMIAL"},
    {REDUCED_POLYNOMIAL, "REDUCED_POLYNOMIAL"},
    {VAN_DER_WAALS, "VAN_DER_WAALS"},
    {YEOH, "YEOH"},
}};

std::vector<std::string> OgdenNames(int order) {
    std::vector<std::string> names;
    for (int i = 1; i <= order; ++i) {
        names.push_back("mu_" + std::to_string(i));
        names.push_back("alpha_" + std::to_string(i));
    }
    return names;
}

std::vector<std::string> PolynomialNames(int order) {
    std::vector<std::string> names;
    for (int power = 1; power <= order; ++power) {
        for (int second = 0; second <= power; ++second) {
            names.push_back("C" + std::to_string(power - second) + std::to_string(second));
        }
    }
    return names;
}

std::vector<std::string> ReducedPolynomialNames(int order) {
    std::vector<std::string> names;
    for (int i = 1; i <= order; ++i) names.push_back("C" + std::to_string(i) + "0");
    return names;
}

}  // namespace

const std::vector<HyperelasticModel>& AllHyperelasticModels() {
    static const std::vector<HyperelasticModel> models = [] {
        std::vector<HyperelasticModel> all;
        for (const auto& [model, keyword] : kKeywords) all.push_back(model);
        return all;
    }();
    return models;
}

std::string_view Keyword(HyperelasticModel model) {
    for (const auto& [known, keyword] : kKeywords) {
        if (known == model) return keyword;
    }
    return {};
}

std::optional<HyperelasticModel> HyperelasticModelOf(std::string_view keyword) {
    for (const auto& [model, known] : kKeywords) {
        if (known == keyword) return model;
    }
    return std::nullopt;
}

bool HasOrder(HyperelasticModel model) {
    return model == OGDEN || model == POLYNOMIAL || model == REDUCED_POLYNOMIAL;
}

std::vector<std::string> CoefficientNames(HyperelasticModel model, int order) {
    switch (model) {
        case ARRUDA_BOYCE:
            return {"mu", "lambda_m"};
        case MOONEY_RIVLIN:
            return {"C10", "C01"};
        case NEO_HOOKE:
            return {"C10"};
        case OGDEN:
            return OgdenNames(order);
        case POLYNOMIAL:
            return PolynomialNames(order);
        case REDUCED_POLYNOMIAL:
            return ReducedPolynomialNames(order);
        case VAN_DER_WAALS:
            return {"mu", "lambda_m", "a", "beta"};
        case YEOH:
            return ReducedPolynomialNames(3);
    }
    return {};
}

bool IsStressCoefficient(std::string_view name) {
    return name.starts_with("C") || name.starts_with("mu");
}

}  // namespace zelmat::mechanics
