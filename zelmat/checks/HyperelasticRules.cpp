#include <algorithm>
#include <cmath>

#include "zelmat/checks/CheckRules.h"
#include "zelmat/checks/DerivedText.h"
#include "zelmat/checks/HyperelasticFits.h"
#include "zelmat/checks/TableLooks.h"
#include "zelmat/materials/HyperelasticForms.h"
#include "zelmat/text/CountText.h"

namespace zelmat {

namespace {

bool HasWholeColumn(const Table& table, const std::string& name) {
    const Column* column = table.Find(name);
    return column && std::none_of(column->values.begin(), column->values.end(),
                                  [](double value) { return std::isnan(value); });
}

void LookAtCount(const Material& material, CheckReport& report) {
    ForEachFit(material, [&](const Block& fit, const Table& table) {
        const auto model = fit.values.Get<std::string>("model");
        const auto order = fit.values.Get<int>("order");
        const auto form = model && order ? HyperelasticForm(*model, *order) : std::nullopt;
        if (!form) return;
        const auto wanted = form->ColumnsOf(table.temperatureDependent);
        const bool whole = std::all_of(wanted.begin(), wanted.end(), [&](const ColumnKind& column) {
            return HasWholeColumn(table, column.name);
        });
        if (whole && table.columns.size() == wanted.size()) return;
        report.Add(table.origin.Line(), form->with + " has " + CountText(table.columns.size(), "column"),
                   {std::to_string(wanted.size()) + " expected"});
    });
}

void LookAtCoefficients(const Material& material, CheckReport& report) {
    ForEachFit(material, [&](const Block& fit, const Table& table) {
        for (std::size_t row = 0; row < table.Rows(); ++row) {
            const auto energy = EnergyOfRow(fit, table, row);
            if (!energy || energy->Ok()) continue;
            report.Add(table.origin.Line(row), "row " + std::to_string(row + 1) + " of " +
                                                   fit.kind->TableName(*table.kind) +
                                                   " gives no strain energy: " + energy->Why());
        }
    });
}

void LookAtShearModulus(const Material& material, CheckReport& report) {
    ForEachFit(material, [&](const Block& fit, const Table& table) {
        for (std::size_t row = 0; row < table.Rows(); ++row) {
            const auto energy = EnergyOfRow(fit, table, row);
            if (!energy || !energy->Ok() || !IsNotPositive(energy->Value()->ShearModulus())) continue;
            report.Add(table.origin.Line(row), "row " + std::to_string(row + 1) + " of " +
                                                   fit.kind->TableName(*table.kind) +
                                                   ": the initial shear modulus mu0 is " +
                                                   DerivedText(energy->Value()->ShearModulus(), "Pa"));
        }
    });
}

/// K0 = 2/D1 of a row; nothing for an incompressible one.
std::optional<double> BulkModulusOf(const Table& table, std::size_t row) {
    const Column* first = table.Find("D1");
    if (!first) first = table.Find("D");
    if (!first || !(first->values[row] > 0.0)) return std::nullopt;
    return 2.0 / first->values[row];
}

void LookAtBulkModulus(const Material& material, CheckReport& report) {
    ForEachFit(material, [&](const Block& fit, const Table& table) {
        for (std::size_t row = 0; row < table.Rows(); ++row) {
            const auto energy = EnergyOfRow(fit, table, row);
            const auto bulk = BulkModulusOf(table, row);
            if (!bulk || !energy || !energy->Ok() || *bulk >= energy->Value()->ShearModulus()) continue;
            report.Add(table.origin.Line(row),
                       "row " + std::to_string(row + 1) + " of " + fit.kind->TableName(*table.kind) +
                           ": the initial bulk modulus K0 is " + DerivedText(*bulk, "Pa") + ", mu0 " +
                           DerivedText(energy->Value()->ShearModulus(), "Pa"),
                       {"a D whose unit nobody says is in 1/Pa"});
        }
    });
}

void LookAtCompressibility(const Material& material, CheckReport& report) {
    ForEachFit(material, [&](const Block& fit, const Table& table) {
        for (const Column& column : table.columns) {
            if (column.kind.unit != "1/Pa") continue;
            for (std::size_t row = 0; row < column.values.size(); ++row) {
                if (column.values[row] < 0.0) report.AddValue(fit, table, column, row);
            }
        }
    });
}

}  // namespace

CheckTopic HyperelasticRules() {
    constexpr const char* kHolzapfel =
        "G. A. Holzapfel, Nonlinear Solid Mechanics, Wiley, 2000, chapter 6: strain energy functions";
    return {
        .title = "Hyperelasticity",
        .rules = {
            {.code = "coefficient-count",
             .says = "A fit has the coefficients of its model and order, all of them and no others.",
             .bound = "has to have the columns of its model and order",
             .source = kHolzapfel,
             .look = LookAtCount},
            {.code = "coefficients",
             .says = "The coefficients give a strain energy: lambda_m and alpha_i within the bounds of the "
                     "model.",
             .bound = "a strain energy has to come out",
             .source = kHolzapfel,
             .look = LookAtCoefficients},
            {.code = "initial-shear-modulus",
             .says = "The initial shear modulus mu0 that follows from the coefficients is positive.",
             .bound = "has to be above 0",
             .source = "stability at small strain; R. W. Ogden, Non-linear Elastic Deformations, 1984",
             .look = LookAtShearModulus},
            {.code = "compressibility",
             .says = "The compressibilities D are 0 (incompressible) or positive.",
             .bound = "has to be 0 or above",
             .source = "K0 = 2/D1 is a bulk modulus",
             .look = LookAtCompressibility},
            {.kind = FindingKind::WARNING,
             .code = "initial-bulk-modulus",
             .says = "The initial bulk modulus K0 = 2/D1 of a fit is not below its initial shear modulus.",
             .bound = "is hardly below mu0",
             .source = "K0 < mu0 is a Poisson's ratio below 1/8; that of rubber is near 1/2, and its K0 a "
                       "thousand times mu0: L. R. G. Treloar, The Physics of Rubber Elasticity, 1975",
             .look = LookAtBulkModulus},
        }};
}

}  // namespace zelmat
