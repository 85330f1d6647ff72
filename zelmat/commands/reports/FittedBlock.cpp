#include "zelmat/commands/reports/FittedBlock.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "zelmat/commands/reports/FitReport.h"
#include "zelmat/properties/HardeningProperty.h"
#include "zelmat/properties/OtherNumbers.h"
#include "zelmat/properties/UsedBlock.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

namespace {

using mechanics::HardeningFit;
using mechanics::HardeningPoint;
using mechanics::HardeningTable;
using mechanics::JohnsonCook;

constexpr double kRoom = 293.15;  ///< K, in the column that a table always has
constexpr int kIntervals = 40;  ///< of a table, shorter towards plastic strain 0, where hardening is steepest

std::string Keyword(const HardeningFit& fit) {
    return std::string(mechanics::Keyword(fit.law));
}

Table TableWith(const Block& block, bool temperatureDependent,
                const std::vector<std::vector<double>>& columns) {
    Table table = EmptyTable(block.kind->tables.front(), block.values, temperatureDependent);
    for (std::size_t at = 0; at < columns.size(); ++at) table.columns.at(at).values = columns[at];
    return table;
}

std::string SourceOf(const HardeningFit& fit, const Result& result) {
    const Shown stress = result.Of("stress");
    std::vector<std::string> coefficients;
    for (const auto& [name, value, deviation, atBound] : fit.coefficients) {
        coefficients.push_back(name + " = " +
                               (mechanics::IsStressOfLaw(name)
                                    ? WithUnit(Rounded(stress(value)), stress.Unit())
                                    : NumberText(Rounded(value))));
    }
    return Keyword(fit) + ": " + mechanics::FormulaOf(fit.law) + ", " + WordList(coefficients) + ", fitted";
}

/// What a material has of plasticity, for the formulas; nothing where it has none or one that they cannot
/// take.
std::optional<HardeningProperty> Present(const Material& material) {
    if (!material.Find("plastic")) return std::nullopt;
    Findings told;  // when the document was read, or in no use to whom the block is replaced
    const auto block = UsedBlock(material, "plastic", told);
    const auto hardening =
        block ? HardeningOf(*block) : mechanics::Outcome<HardeningProperty>(mechanics::Refusal());
    return hardening.Ok() ? std::optional(*hardening) : std::nullopt;
}

/// m and the two temperatures, of the material's own law or among its other numbers.
std::optional<JohnsonCook> RestOfLaw(const Material& material,
                                     const std::optional<HardeningProperty>& present, Findings& findings) {
    if (present) {
        if (const auto* law = std::get_if<JohnsonCook>(&present->law)) return *law;
    }
    constexpr std::array<std::pair<const char*, const char*>, 3> kRest = {
        {{"m", "number"}, {"melting_temperature", "temperature"}, {"transition_temperature", "temperature"}}};
    std::vector<std::string> missing;
    std::array<double, 3> values{};
    for (std::size_t at = 0; at < kRest.size(); ++at) {
        const auto number = OtherNumber(material, {kRest[at].first}, kRest[at].second);
        if (!number) missing.emplace_back(kRest[at].first);
        values[at] = number.value_or(0.0);
    }
    if (missing.empty()) return JohnsonCook{0.0, 0.0, 0.0, values[0], values[1], values[2], {}};
    findings.Add({FindingKind::ERROR,
                  {material.file, 0},
                  "incomplete-law",
                  "a material holds the whole of Johnson and Cook's law, and this one does not give " +
                      WordList(missing),
                  {"its plastic block with hardening johnson-cook does, or values of these names",
                   "the other laws are stored as a table"}});
    return std::nullopt;
}

/// The factor of temperature that the points had; nothing, and a finding, where it leaves no stress.
std::optional<double> FactorOf(const JohnsonCook& rest, const HardeningCurve& curve, const Material& material,
                               Findings& findings, Result& result) {
    if (!curve.temperature) {
        result.Note("the points say no temperature: taken as measured at the transition temperature");
        return 1.0;
    }
    const JohnsonCook unit{1.0, 0.0, 1.0, rest.m, rest.meltingTemperature, rest.transitionTemperature, {}};
    const auto factor = mechanics::FlowStressOf(unit, 0.0, *curve.temperature);
    if (factor.Ok() && factor->stress > 0.0) {
        if (factor->stress != 1.0) {
            result.Note("A and B are stored for the transition temperature: those of the points at " +
                        result.Of("temperature").Text(*curve.temperature) +
                        " divided by 1 - T*^m = " + NumberText(Rounded(factor->stress)));
        }
        return factor->stress;
    }
    findings.Add(
        {FindingKind::ERROR,
         {material.file, 0},
         "incomplete-law",
         factor.Ok() ? "the points are of a temperature at which the law has no stress" : factor.Why(),
         {"melting temperature " + result.Of("temperature").Text(rest.meltingTemperature)}});
    return std::nullopt;
}

std::optional<Block> JohnsonCookBlock(const HardeningFit& fit, const HardeningCurve& curve,
                                      const Material& material, Findings& findings, Result& result) {
    const auto present = Present(material);
    const auto rest = RestOfLaw(material, present, findings);
    const auto factor = rest ? FactorOf(*rest, curve, material, findings, result) : std::nullopt;
    if (!factor) return std::nullopt;
    const auto fitted = fit.Values();
    Block block{.kind = FindBlockKind("plastic")};
    block.values.Set("hardening", std::string("johnson-cook"));
    block.tables.push_back(TableWith(block, false,
                                     {{fitted[0] / *factor},
                                      {fitted[1] / *factor},
                                      {fitted[2]},
                                      {rest->m},
                                      {rest->meltingTemperature},
                                      {rest->transitionTemperature}}));
    block.tables.front().source = SourceOf(fit, result);
    return block;
}

/// The law at the strains of a table, and how far it lies from straight lines between them.
std::vector<HardeningPoint> Tabulated(const HardeningFit& fit, double greatest, double temperature,
                                      Result& result) {
    const auto coefficients = fit.Values();
    const auto stressAt = [&](double strain) {
        return mechanics::StressOf(fit.law, coefficients, strain).stress;
    };
    std::vector<HardeningPoint> points;
    double off = 0.0;
    for (const double strain : mechanics::TabulationStrains(greatest, kIntervals)) {
        if (!points.empty()) {
            constexpr int kBetween = 8;
            const HardeningPoint& last = points.back();
            for (int i = 1; i < kBetween; ++i) {
                const double part = 1.0 * i / kBetween;
                const double law = stressAt(std::lerp(last.plasticStrain, strain, part));
                off = std::max(off, std::abs(std::lerp(last.stress, stressAt(strain), part) / law - 1.0));
            }
        }
        points.push_back({.stress = stressAt(strain), .plasticStrain = strain, .temperature = temperature});
    }
    result.Note("stored as a table of " + std::to_string(points.size()) + " plastic strains from 0 to " +
                NumberText(greatest) + ", which between them comes within " +
                NumberText(Rounded(100.0 * off)) + " % of the law; beyond, its last stress holds");
    return points;
}

/// The curves of other temperatures, which stay, with the new one among them.
std::vector<HardeningPoint> Among(const HardeningTable& table, const std::vector<HardeningPoint>& curve) {
    std::vector<HardeningPoint> rows;
    for (const HardeningPoint& row : table.Rows()) {
        if (row.temperature < curve.front().temperature) rows.push_back(row);
    }
    rows.insert(rows.end(), curve.begin(), curve.end());
    for (const HardeningPoint& row : table.Rows()) {
        if (row.temperature > curve.front().temperature) rows.push_back(row);
    }
    return rows;
}

std::optional<Block> TabulatedBlock(const HardeningFit& fit, const HardeningCurve& curve,
                                    const Material& material, Findings& findings, Result& result) {
    const auto refuse = [&](const char* text, const char* hint) {
        findings.Add({FindingKind::ERROR, {material.file, 0}, "no-table", text, {hint}});
        return std::nullopt;
    };
    const auto present = Present(material);
    const auto* table = present ? std::get_if<HardeningTable>(&present->law) : nullptr;
    const bool depends = table && present->temperatureDependent;
    if (depends && !curve.temperature) {
        return refuse("the material's curves depend on temperature, and the points do not say theirs",
                      "--temperature 20degC");
    }
    const auto longest = std::max_element(curve.points.begin(), curve.points.end(),
                                          [](const auto& a, const auto& b) { return a.strain < b.strain; });
    if (longest->strain <= 0.0)
        return refuse("the points have no plastic strain", "a table needs a greatest one");
    const double temperature = curve.temperature.value_or(table ? table->Temperatures().lowest : kRoom);
    auto points = Tabulated(fit, longest->strain, temperature, result);
    if (depends) points = Among(*table, points);
    if (present && present->hardening != "isotropic") {
        result.Note("the hardening was " + present->hardening + " and is isotropic now");
    }
    Block block{.kind = FindBlockKind("plastic")};
    block.values.Set("hardening", std::string("isotropic"));
    std::vector<std::vector<double>> columns(3);
    for (const HardeningPoint& point : points) {
        columns[0].push_back(point.stress);
        columns[1].push_back(point.plasticStrain);
        columns[2].push_back(point.temperature);
    }
    block.tables.push_back(TableWith(block, depends, columns));
    const std::string before = depends ? material.Find("plastic")->tables.front().source : "";
    block.tables.front().source = before + (before.empty() ? "" : "; ") +
                                  (depends ? "at " + result.Of("temperature").Text(temperature) + " " : "") +
                                  SourceOf(fit, result);
    return block;
}

}  // namespace

Block BlockOf(const mechanics::HyperelasticFit& fit) {
    Block block{.kind = FindBlockKind("hyperelastic")};
    block.values.Set("model", std::string(mechanics::Keyword(fit.model)));
    block.values.Set("order", fit.order);
    block.values.Set("status", std::string("computed"));
    block.values.Set("variant", "fitted to the tests by " + MeasureWord(fit.measure) + " deviations");
    if (fit.deviation.rmsRelative) block.values.Set("rms_relative_deviation", *fit.deviation.rmsRelative);
    Table table = EmptyTable(block.kind->tables.front(), block.values, false);
    for (Column& column : table.columns) {
        const auto found = std::find_if(fit.coefficients.begin(), fit.coefficients.end(),
                                        [&](const auto& each) { return each.name == column.kind.name; });
        column.values = {found != fit.coefficients.end() ? found->value
                                                         : column.kind.whenAbsent.value_or(0.0)};
    }
    block.tables.push_back(std::move(table));
    return block;
}

std::optional<Block> BlockOf(const HardeningFit& fit, const HardeningCurve& curve, const Material& material,
                             Findings& findings, Result& result) {
    auto block = fit.law == mechanics::HardeningLaw::JOHNSON_COOK
                     ? JohnsonCookBlock(fit, curve, material, findings, result)
                     : TabulatedBlock(fit, curve, material, findings, result);
    // C and the reference rate, and what else the block kept.
    if (const Block* before = material.Find("plastic"); block && before) block->kept = before->kept;
    return block;
}

}  // namespace zelmat
