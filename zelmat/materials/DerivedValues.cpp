#include "zelmat/materials/DerivedValues.h"
#include <algorithm>

#include "zelmat/materials/HyperelasticForms.h"
#include "zelmat/mechanics/hyperelastic/OgdenConvention.h"
#include "zelmat/mechanics/hyperelastic/StrainEnergy.h"
#include "zelmat/mechanics/hyperelastic/VolumetricEnergy.h"

namespace zelmat {

namespace {

using mechanics::HyperelasticModel;

/// The coefficients of one row, and its compressibilities behind them.
struct Coefficients {
    std::vector<double> deviatoric;
    std::vector<double> compressibilities;
};

Coefficients CoefficientsOf(const Table& table, std::size_t row, std::size_t deviatoric) {
    Coefficients found;
    for (std::size_t at = 0; at < table.columns.size(); ++at) {
        const Column& column = table.columns[at];
        if (column.kind.name == TemperatureColumn().name) continue;
        (at < deviatoric ? found.deviatoric : found.compressibilities).push_back(column.values[row]);
    }
    return found;
}

Value ValueOf(const mechanics::Outcome<double>& outcome) {
    return outcome.Ok() ? Value(*outcome) : Value(outcome.Why());
}

mechanics::Outcome<double> ShearModulus(HyperelasticModel model, int order, const Coefficients& row) {
    const auto energy = mechanics::MakeStrainEnergy(model, order, row.deviatoric);
    if (!energy.Ok()) return energy.Refused();
    return (*energy)->ShearModulus();
}

Value BulkModulus(HyperelasticModel model, const Coefficients& row) {
    const mechanics::VolumetricEnergy energy(model, row.compressibilities);
    return energy.IsIncompressible() ? Value(std::string("none, incompressible"))
                                     : ValueOf(energy.BulkModulus());
}

/// A text in the place of a number has no unit.
DerivedValue Modulus(const char* name, const char* title, Value value, std::optional<double> temperature) {
    const bool number = std::holds_alternative<double>(value);
    return {name, title, std::move(value), number ? "Pa" : "", temperature};
}

/// The energy of a change of volume, J its ratio; nothing of an incompressible material, whose first D is 0.
std::optional<std::string> VolumetricFormula(HyperelasticModel model, const Table& table) {
    std::size_t terms = 0, used = 0;
    for (const Column& column : table.columns) {
        if (!column.kind.name.starts_with("D")) continue;
        ++terms;
        const bool zero = std::ranges::all_of(column.values, [](double value) { return value == 0.0; });
        if (terms == 1 && zero) return std::nullopt;
        if (!zero) used = terms;
    }
    if (used == 0) return std::nullopt;
    if (model == HyperelasticModel::ARRUDA_BOYCE || model == HyperelasticModel::VAN_DER_WAALS) {
        return "U = ((J^2-1)/2 - ln J)/D";
    }
    return used == 1 ? "U = (J-1)^2/D1" : "U = sum (J-1)^(2i)/D_i, i = 1 to " + std::to_string(used);
}

std::vector<DerivedValue> OfHyperelastic(const Block& stored) {
    std::vector<DerivedValue> values;
    const std::string keyword = stored.values.Get<std::string>("model").value_or("");
    const int order = stored.values.Get<int>("order").value_or(0);
    const auto model = mechanics::HyperelasticModelOf(keyword);
    if (!model || stored.tables.empty() || !HyperelasticForm(keyword, order)) return values;
    values.push_back({"strain_energy", "strain energy", StrainEnergyFormula(keyword)});
    if (const auto volumetric = VolumetricFormula(*model, stored.tables.front())) {
        values.push_back({"volumetric_energy", "energy of volume", *volumetric});
    }
    if (*model == HyperelasticModel::OGDEN) {
        values.push_back({"ogden_convention", "convention of mu",
                          std::string(Keyword(mechanics::OgdenConvention::TWO_MU_BY_ALPHA_SQUARED))});
    }
    const Table& table = stored.tables.front();
    const std::size_t deviatoric = mechanics::CoefficientNames(*model, order).size();
    const Column* temperature = table.Find(TemperatureColumn().name);
    for (std::size_t row = 0; row < table.Rows(); ++row) {
        const Coefficients coefficients = CoefficientsOf(table, row, deviatoric);
        std::optional<double> kelvin;
        if (temperature) kelvin = temperature->values[row];
        values.push_back(Modulus("initial_shear_modulus", "initial shear modulus mu0",
                                 ValueOf(ShearModulus(*model, order, coefficients)), kelvin));
        values.push_back(Modulus("initial_bulk_modulus", "initial bulk modulus K0",
                                 BulkModulus(*model, coefficients), kelvin));
    }
    return values;
}

std::vector<DerivedValue> OfPlastic(const Block& stored) {
    if (stored.tables.empty() || !stored.tables.front().Find("plastic_strain")) return {};
    return {{"measures", "curve", std::string("true stress over plastic strain")}};
}

}  // namespace

ShownValue DerivedValue::In(const UnitChoice& units) const {
    return InUnits(Setting{.name = name, .title = title, .unit = unit}, value, units);
}

std::optional<ShownValue> DerivedValue::TemperatureIn(const UnitChoice& units) const {
    if (!temperature) return std::nullopt;
    return InUnits(Setting{.name = "temperature", .title = "temperature", .unit = "K"}, *temperature, units);
}

std::vector<DerivedValue> DerivedValues(const Block& stored) {
    if (stored.kind->name == "hyperelastic") return OfHyperelastic(stored);
    if (stored.kind->name == "plastic") return OfPlastic(stored);
    return {};
}

}  // namespace zelmat
