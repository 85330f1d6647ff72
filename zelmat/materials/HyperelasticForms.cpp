#include "zelmat/materials/HyperelasticForms.h"

#include <algorithm>
#include <array>

namespace zelmat {

namespace {

using Columns = std::vector<ColumnKind>;

ColumnKind Modulus(const std::string& name) {
    return {name, name, "Pa"};
}

ColumnKind Number(const std::string& name) {
    return {name, name, "-"};
}

ColumnKind Compressibility(const std::string& name) {
    return {name, name, "1/Pa", 0.0};
}

void AddCompressibilities(Columns& columns, int count) {
    for (int i = 1; i <= count; ++i) columns.push_back(Compressibility("D" + std::to_string(i)));
}

Columns ArrudaBoyce(int) {
    return {Modulus("mu"), Number("lambda_m"), Compressibility("D")};
}

Columns MooneyRivlin(int) {
    return {Modulus("C10"), Modulus("C01"), Compressibility("D1")};
}

Columns NeoHooke(int) {
    return {Modulus("C10"), Compressibility("D1")};
}

Columns Ogden(int order) {
    Columns columns;
    for (int i = 1; i <= order; ++i) {
        columns.push_back(Modulus("mu_" + std::to_string(i)));
        columns.push_back(Number("alpha_" + std::to_string(i)));
    }
    AddCompressibilities(columns, order);
    return columns;
}

/// C10, C01, C20, C11, C02, C30, ...: by the power of both invariants together, then by that of the second.
Columns Polynomial(int order) {
    Columns columns;
    for (int power = 1; power <= order; ++power) {
        for (int second = 0; second <= power; ++second) {
            columns.push_back(Modulus("C" + std::to_string(power - second) + std::to_string(second)));
        }
    }
    AddCompressibilities(columns, order);
    return columns;
}

Columns ReducedPolynomial(int order) {
    Columns columns;
    for (int i = 1; i <= order; ++i) columns.push_back(Modulus("C" + std::to_string(i) + "0"));
    AddCompressibilities(columns, order);
    return columns;
}

Columns VanDerWaals(int) {
    return {Modulus("mu"), Number("lambda_m"), Number("a"), Number("beta"), Compressibility("D")};
}

/// The reduced polynomial of order 3 under a name of its own.
Columns Yeoh(int) {
    return ReducedPolynomial(3);
}

struct Potential {
    const char* model;
    Columns (*columns)(int order);
    std::optional<int> fixedOrder;  ///< of a potential without terms, as it is kept
    const char* formula;            ///< of the part without change of volume
};

constexpr std::array<Potential, 8> kPotentials = {{
    {"ARRUDA_BOYCE", ArrudaBoyce, 1,
     "W = mu [1/2 (I1-3) + 1/(20 lambda_m^2) (I1^2-9) + 11/(1050 lambda_m^4) (I1^3-27) + 19/(7000 "
     "lambda_m^6) "
     "(I1^4-81) + 519/(673750 lambda_m^8) (I1^5-243)]"},
    {"MOONEY_RIVLIN", MooneyRivlin, 1, "W = C10 (I1-3) + C01 (I2-3)"},
    {"NEO_HOOKE", NeoHooke, 1, "W = C10 (I1-3)"},
    {"OGDEN", Ogden, {}, "W = sum (2 mu_i/alpha_i^2) (l1^alpha_i + l2^alpha_i + l3^alpha_i - 3)"},
    {"POLYNOMIAL", Polynomial, {}, "W = sum Cij (I1-3)^i (I2-3)^j, 1 <= i+j <= order"},
    {"REDUCED_POLYNOMIAL", ReducedPolynomial, {}, "W = sum Ci0 (I1-3)^i, i = 1 to order"},
    {"VAN_DER_WAALS", VanDerWaals, 1,
     "W = mu {-(lambda_m^2-3) [ln(1-eta) + eta] - (2/3) a ((I-3)/2)^(3/2)}, I = (1-beta) I1 + beta I2, "
     "eta = sqrt((I-3)/(lambda_m^2-3))"},
    {"YEOH", Yeoh, 3, "W = C10 (I1-3) + C20 (I1-3)^2 + C30 (I1-3)^3"},
}};

}  // namespace

const std::vector<std::string>& HyperelasticModels() {
    static const std::vector<std::string> models = [] {
        std::vector<std::string> names;
        for (const Potential& potential : kPotentials) names.push_back(potential.model);
        return names;
    }();
    return models;
}

std::optional<TableForm> HyperelasticForm(const std::string& model, int order) {
    for (const Potential& potential : kPotentials) {
        if (model != potential.model) continue;
        return TableForm{.columns = potential.columns(order),
                         .with = model + " of order " + std::to_string(order)};
    }
    return std::nullopt;
}

std::optional<int> OrderOfColumns(const std::string& model, const std::vector<std::string>& columns,
                                  int most) {
    const auto* const potential = std::find_if(kPotentials.begin(), kPotentials.end(),
                                               [&](const Potential& each) { return model == each.model; });
    if (potential == kPotentials.end()) return std::nullopt;
    if (potential->fixedOrder) return potential->fixedOrder;
    const auto among = [&](const Columns& known) {
        return std::count_if(known.begin(), known.end(), [&](const ColumnKind& column) {
            return std::find(columns.begin(), columns.end(), column.name) != columns.end();
        });
    };
    const auto given = among(potential->columns(most));
    if (given == 0) return std::nullopt;
    int order = 1;
    while (among(potential->columns(order)) < given) ++order;
    return order;
}

std::string StrainEnergyFormula(const std::string& model) {
    for (const Potential& potential : kPotentials) {
        if (model == potential.model) return potential.formula;
    }
    return {};
}

}  // namespace zelmat
