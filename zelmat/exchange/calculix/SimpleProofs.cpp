#include <algorithm>
#include <cmath>

#include "zelmat/exchange/calculix/ProofModel.h"
#include "zelmat/materials/OverTemperature.h"
#include "zelmat/properties/ElasticProperty.h"
#include "zelmat/properties/ExpansionProperty.h"
#include "zelmat/properties/HardeningProperty.h"
#include "zelmat/quantities/NumberText.h"

namespace zelmat {

namespace {

using mechanics::OutsidePolicy;
using mechanics::TemperatureTable;

/// CalculiX prints 7 digits.
constexpr double kExact = 1e-6;
constexpr double kStrain = 1e-3;

/// A strain that stays elastic at the temperature.
double ElasticStrain(const ProofSubject& subject, double youngsModulus, double temperature) {
    const Block* plastic = subject.Find("plastic");
    const auto hardening = plastic ? std::optional(HardeningOf(*plastic)) : std::nullopt;
    if (!hardening || !hardening->Ok()) return kStrain;
    const auto yield = FlowStressAt(**hardening, 0.0, temperature);
    if (!yield.Ok()) return kStrain;
    return std::min(kStrain, 0.4 * yield->stress / youngsModulus);
}

constexpr const char* kStressAndDisplacement =
    "*EL PRINT, ELSET=E%, FREQUENCY=100000\nS\n*NODE PRINT, NSET=N%, FREQUENCY=100000\nU\n";

void AddElastic(ProofModel& model, const ProofSubject& subject, const mechanics::IsotropicElasticity& elastic,
                double kelvin) {
    const double strain = RoundedTo(ElasticStrain(subject, elastic.youngsModulus, kelvin), 4);
    const double modulus = subject.units.FromStored(elastic.youngsModulus, "modulus").value_or(0.0);
    const double shear = subject.units.FromStored(elastic.shearModulus, "modulus").value_or(0.0);
    const std::string unit = subject.units.For("stress").Spelling();
    const std::string at = NumberText(strain) + ", " + subject.TemperatureText(kelvin);
    const int tension = model.bars.Add(subject.Temperature(kelvin));
    model.bars.HoldAtOrigin(tension);
    model.bars.Prescribe(tension, BarModel::X1, 1, strain);
    const int sheared = model.bars.Add(subject.Temperature(kelvin));
    model.bars.Shear(sheared, strain);
    model.expected.push_back({{"elastic", "tension, strain " + at, "stress", unit, modulus * strain, 0.0,
                               modulus * strain, kExact},
                              model.Stress(tension, 0)});
    model.expected.push_back({{"elastic", "tension, strain " + at, "lateral strain", "-",
                               -elastic.poissonsRatio * strain, 0.0, strain, kExact},
                              model.FarDisplacement(tension, 1)});
    model.expected.push_back({{"elastic", "shear, strain " + at, "shear stress", unit, shear * strain, 0.0,
                               shear * strain, kExact},
                              model.Stress(sheared, 4)});
}

}  // namespace

std::optional<ProofModel> ElasticProof(const ProofSubject& subject) {
    const Block* block = subject.Find("elastic");
    const auto table = ProofTable(block);
    if (!table) return std::nullopt;
    ProofModel model = subject.Model("elastic");
    for (const double kelvin : subject.Temperatures(*table)) {
        const auto elastic = ElasticityAt(*block, kelvin, OutsidePolicy::CONSTANT);
        if (elastic.Ok()) AddElastic(model, subject, elastic->constants, kelvin);
    }
    model.bars.EndStep("*STEP\n*STATIC\n", kStressAndDisplacement);
    return model;
}

std::optional<ProofModel> ExpansionProof(const ProofSubject& subject) {
    const Block* block = subject.Find("thermal_expansion");
    const auto table = ProofTable(block);
    if (!table) return std::nullopt;
    const auto given = ExpansionOf(*block, OutsidePolicy::CONSTANT);
    if (!given.Ok()) return std::nullopt;
    ProofModel model = subject.Model("thermal_expansion", false);
    const double reference = given->ReferenceTemperature();
    // A deck holds mean coefficients, linear between its rows, also of a card with instantaneous ones.
    const mechanics::ThermalExpansion expansion(given->Mean(), reference);
    auto temperatures = subject.Temperatures(*table);
    if (!table->Range()) temperatures = {reference - 100.0, reference + 100.0, reference + 500.0};
    for (const double kelvin : temperatures) {
        const auto strain = expansion.StrainAt(kelvin, OutsidePolicy::CONSTANT);
        if (!strain.Ok() || kelvin <= 0.0 || kelvin == reference) continue;
        const int bar = model.bars.Add(subject.Temperature(reference));
        model.bars.HoldAtOrigin(bar);
        model.bars.SetTemperature(bar, subject.Temperature(kelvin));
        const double ours = strain->values.front();
        model.expected.push_back(
            {{"thermal_expansion",
              "free, " + subject.TemperatureText(reference) + " to " + subject.TemperatureText(kelvin),
              "strain", "-", ours, 0.0, ours, kExact},
             model.FarDisplacement(bar, 0)});
    }
    model.bars.EndStep("*STEP\n*STATIC\n", "*NODE PRINT, NSET=N%, FREQUENCY=100000\nU\n");
    return model;
}

std::optional<ProofModel> DensityProof(const ProofSubject& subject) {
    const auto table = ProofTable(subject.Find("density"));
    if (!table) return std::nullopt;
    ProofModel model = subject.Model("density", false);
    for (const double kelvin : subject.Temperatures(*table)) {
        const int bar = model.bars.Add(subject.Temperature(kelvin));
        model.bars.HoldAtOrigin(bar);
        const double ours = subject.units.FromStored(ProofValue(*table, kelvin), "density").value_or(0.0);
        model.expected.push_back(
            {{"density", "mass of a volume of 1, " + subject.TemperatureText(kelvin), "density",
              subject.units.For("density").Spelling(), ours, 0.0, ours, kExact},
             {"mass", model.bars.ElementSet(bar), model.bars.Element(bar), 0}});
    }
    model.bars.EndStep("*STEP\n*STATIC\n", "*EL PRINT, ELSET=E%, FREQUENCY=100000\nEMAS\n");
    return model;
}

std::optional<ProofModel> ConductionProof(const ProofSubject& subject) {
    // So little that a bend of the table within it does not matter, and enough for the digits of a double.
    constexpr double kDifference = 2e-4;
    const auto table = ProofTable(subject.Find("conductivity"));
    if (!table) return std::nullopt;
    ProofModel model = subject.Model("conductivity", false);
    for (const double kelvin : subject.Temperatures(*table)) {
        const double middle = subject.Temperature(kelvin);
        const int bar = model.bars.Add(middle, 2);
        model.bars.Prescribe(bar, BarModel::X0, 11, middle + kDifference / 2.0);
        model.bars.Prescribe(bar, BarModel::X1, 11, middle - kDifference / 2.0);
        const double ours =
            subject.units.FromStored(ProofValue(*table, kelvin), "conductivity").value_or(0.0);
        model.expected.push_back(
            {{"conductivity", "one-dimensional, " + subject.TemperatureText(kelvin), "conductivity",
              subject.units.For("conductivity").Spelling(), ours, 0.0, ours, kExact},
             {"heat flux", model.bars.ElementSet(bar), model.bars.Element(bar), 1, 1.0, 2.0 / kDifference}});
    }
    model.bars.EndStep("*STEP\n*HEAT TRANSFER, STEADY STATE\n",
                       "*EL PRINT, ELSET=E%, FREQUENCY=100000\nHFL\n");
    return model;
}

}  // namespace zelmat
