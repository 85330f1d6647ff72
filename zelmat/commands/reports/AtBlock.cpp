#include "zelmat/commands/reports/AtBlock.h"

#include <algorithm>

#include "zelmat/commands/inputs/OptionNumbers.h"
#include "zelmat/commands/reports/AtGasket.h"
#include "zelmat/materials/InUnits.h"
#include "zelmat/materials/OverTemperature.h"
#include "zelmat/materials/QuantityOf.h"
#include "zelmat/mechanics/hyperelastic/HyperelasticModel.h"
#include "zelmat/properties/ElasticProperty.h"
#include "zelmat/properties/ExpansionProperty.h"
#include "zelmat/properties/HardeningProperty.h"
#include "zelmat/properties/HyperelasticProperty.h"
#include "zelmat/properties/ValueAt.h"
#include "zelmat/quantities/NumberText.h"
#include "zelmat/text/NearestName.h"
#include "zelmat/text/QuotedText.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

namespace {

using mechanics::OutsidePolicy;
using MaybeProblem = std::optional<AtProblem>;

/// The range of a table, said with every answer and every refusal.
std::vector<std::string> RangeText(const std::optional<mechanics::TemperatureRange>& range,
                                   const Result& result) {
    if (!range) return {};
    const Shown shown = result.Of("temperature");
    return {"the table goes from " + shown.Text(range->lowest) + " to " + shown.Text(range->highest)};
}

void TellRange(const std::optional<mechanics::TemperatureRange>& range, Result& result) {
    if (!range) return;
    result.Add("table_from", "table from", "temperature", range->lowest);
    result.Add("table_to", "table to", "temperature", range->highest);
}

void TellPolicy(const AtQuestion& question, mechanics::TablePosition position, Result& result) {
    using enum mechanics::TablePosition;
    if (position != BELOW && position != ABOVE) return;
    result.Say("outside", "outside the table", std::string(Keyword(question.Policy())));
}

/// A block of one table: each of its columns at the temperature.
MaybeProblem ReadTable(const Block& block, const AtQuestion& question, Result& result) {
    if (block.tables.empty()) return AtProblem{"the block has no table"};
    const Table& table = block.tables.front();
    const auto over = OverTemperature(table);
    if (!over.Ok()) return AtProblem{over.Why()};
    const auto value = ValueAt(*over, question.temperature, question.Policy());
    if (!value.Ok()) return AtProblem{value.Why(), RangeText(over->Range(), result)};
    TellRange(over->Range(), result);
    TellPolicy(question, value->position, result);
    std::size_t at = 0;
    for (const Column& column : table.columns) {
        if (column.kind.name == TemperatureColumn().name) continue;
        const Quantity* quantity = QuantityOf(column.kind.name, column.kind.unit);
        const std::string name(quantity ? quantity->name : "number");
        result.Add(column.kind.name, column.kind.title, name.c_str(), value->values[at++]);
    }
    result.Note(value->notes);
    return std::nullopt;
}

MaybeProblem ReadElastic(const Block& block, const AtQuestion& question, Result& result) {
    if (auto problem = ReadTable(block, question, result)) return problem;
    const auto elastic = ElasticityAt(block, question.temperature, question.Policy());
    if (!elastic.Ok()) return AtProblem{elastic.Why()};
    result.Add("shear_modulus", "shear modulus G", "modulus", elastic->constants.shearModulus);
    result.Add("bulk_modulus", "bulk modulus K", "modulus", elastic->constants.bulkModulus);
    return std::nullopt;
}

MaybeProblem ReadPlastic(const Block& block, const AtQuestion& question, Result& result) {
    if (!question.plasticStrain) {
        return AtProblem{"the stress depends on the plastic strain, and none is given",
                         {"--plastic-strain 0.1"}};
    }
    const auto hardening = HardeningOf(block);
    if (!hardening.Ok()) return AtProblem{hardening.Why()};
    std::optional<mechanics::TemperatureRange> range;
    const auto* curves = std::get_if<mechanics::HardeningTable>(&hardening->law);
    if (curves && hardening->temperatureDependent) range = curves->Temperatures();
    MaybeNumber strainTo;
    if (curves) {
        strainTo =
            curves->GreatestPlasticStrain(question.temperature.value_or(curves->Temperatures().lowest));
    }
    if (!curves && question.outside) {
        return AtProblem{"Johnson and Cook's law has no end that --outside could mean"};
    }
    constexpr int kDigits = 7;  // as results show it
    auto ranges = RangeText(range, result);
    if (strainTo) ranges.push_back("plastic strains up to " + RoundedText(*strainTo, kDigits));
    const auto stress = FlowStressAt(*hardening, *question.plasticStrain, question.temperature,
                                     question.strainRate, question.outside.value_or(OutsidePolicy::CONSTANT));
    if (!stress.Ok()) return AtProblem{stress.Why(), ranges};
    TellRange(range, result);
    if (strainTo) result.Add("plastic_strain_to", "plastic strains to", "strain", strainTo);
    result.Say("hardening", "hardening", hardening->hardening);
    result.Add("plastic_strain", "plastic strain", "strain", question.plasticStrain);
    if (question.strainRate) result.Add("strain_rate", "strain rate", "rate", question.strainRate);
    result.Add("stress", "true stress", "stress", stress->stress);
    result.Note(stress->notes);
    if (question.temperature && !hardening->temperatureDependent)
        result.Note("does not depend on temperature");
    return std::nullopt;
}

/// The mean coefficient from another reference temperature, in both ways.
MaybeProblem TellReferred(const mechanics::ThermalExpansion& expansion, const AtQuestion& question,
                          Result& result) {
    using mechanics::ReferenceChange;
    const double reference = *question.referenceTemperature;
    result.Add("new_reference_temperature", "other reference temperature", "temperature", reference);
    for (const auto change : {ReferenceChange::EXACT, ReferenceChange::LINEARISED}) {
        const auto value = expansion.MeanFrom(reference, *question.temperature, change, question.Policy());
        if (!value.Ok()) return AtProblem{value.Why(), RangeText(expansion.Mean().Range(), result)};
        const bool exact = change == ReferenceChange::EXACT;
        result.Add(exact ? "mean_expansion_exact" : "mean_expansion_linearised",
                   exact ? "mean coefficient from there, exact" : "mean coefficient from there, linearised",
                   "expansion", value->value);
    }
    return std::nullopt;
}

MaybeProblem ReadExpansion(const Block& block, const AtQuestion& question, Result& result) {
    if (!question.temperature) {
        if (question.referenceTemperature || question.instantaneous) {
            return AtProblem{"these need a temperature", {"--temperature 100degC"}};
        }
        return ReadTable(block, question, result);
    }
    const auto expansion = ExpansionOf(block, question.Policy());
    if (!expansion.Ok()) {
        if (question.referenceTemperature || question.instantaneous) return AtProblem{expansion.Why()};
        result.Note("no thermal strain: " + expansion.Why());
        return ReadTable(block, question, result);
    }
    const auto range = expansion->Mean().Range();
    const auto mean = expansion->MeanAt(*question.temperature, question.Policy());
    if (!mean.Ok()) return AtProblem{mean.Why(), RangeText(range, result)};
    const auto strain = expansion->StrainAt(*question.temperature, question.Policy());
    TellRange(range, result);
    TellPolicy(question, mean->position, result);
    result.Add("reference_temperature", "reference temperature", "temperature",
               expansion->ReferenceTemperature());
    result.Add("mean_expansion", "mean coefficient from there", "expansion", mean->values.front());
    if (strain.Ok()) result.Add("thermal_strain", "thermal strain", "strain", strain->values.front());
    if (IsInstantaneous(block)) {
        result.Note("the card's coefficients are instantaneous: integrated from the reference temperature");
    }
    result.Note(mean->notes);
    if (question.instantaneous) {
        const auto value = expansion->InstantaneousAt(*question.temperature, question.Policy());
        if (!value.Ok()) return AtProblem{value.Why(), RangeText(range, result)};
        result.Add("instantaneous_expansion", "instantaneous coefficient", "expansion", value->value);
        result.Add("instantaneous_expansion_below", "instantaneous coefficient just below", "expansion",
                   value->below);
        result.Note(value->notes);
    }
    return question.referenceTemperature ? TellReferred(*expansion, question, result) : std::nullopt;
}

MaybeProblem ReadHyperelastic(const Block& block, const AtQuestion& question, Result& result) {
    const auto property = HyperelasticProperty::Of(block);
    if (!property.Ok()) return AtProblem{property.Why()};
    const auto range = property->Coefficients().Range();
    const auto at = property->At(question.temperature, question.Policy());
    if (!at.Ok()) return AtProblem{at.Why(), RangeText(range, result)};
    result.Say("model", "model", std::string(Keyword(property->Model())));
    if (auto problem = ReadTable(block, question, result)) return problem;
    result.Add("initial_shear_modulus", "initial shear modulus mu0", "modulus", at->energy->ShearModulus());
    const auto bulk = at->volumetric.BulkModulus();
    result.Add("initial_bulk_modulus", "initial bulk modulus K0", "modulus",
               bulk.Ok() ? MaybeNumber(*bulk) : std::nullopt);
    return std::nullopt;
}

const std::vector<AtReader>& Readers() {
    const std::vector<std::string> table = {"--temperature", "--outside"};
    static const std::vector<AtReader> readers = {
        {"elastic", table, &ReadElastic},
        {"plastic", {"--temperature", "--plastic-strain", "--strain-rate", "--outside"}, &ReadPlastic},
        {"density", table, &ReadTable},
        {"thermal_expansion",
         {"--temperature", "--outside", "--reference-temperature", "--instantaneous"},
         &ReadExpansion},
        {"conductivity", table, &ReadTable},
        {"specific_heat", table, &ReadTable},
        {"hyperelastic", {"--temperature", "--outside", "--model or --variant"}, &ReadHyperelastic},
        {"gasket", {"--closure", "--temperature", "--outside"}, &ReadGasketAt},
        {"gasket_membrane", table, &ReadElastic},
        {"gasket_transverse_shear", table, &ReadTable},
    };
    return readers;
}

}  // namespace

const AtReader* FindAtReader(const std::string& block, Findings& findings) {
    std::vector<std::string> names;
    for (const AtReader& reader : Readers()) {
        if (reader.block == block) return &reader;
        names.push_back(reader.block);
    }
    const std::string nearest = NearestName(block, names);
    const std::string text = block.empty() ? "the block is missing"
                                           : QuotedText(block) + " is no block with values over temperature";
    findings.Add(
        UsageFinding("BLOCK", block.empty() ? "missing-block" : "no-such-block", text,
                     {nearest.empty() ? "known: " + WordList(names) : "did you mean " + nearest + "?"}));
    return nullptr;
}

}  // namespace zelmat
