#include "zelmat/commands/reports/FitReport.h"

#include <algorithm>
#include <cmath>

#include "zelmat/text/WordList.h"

namespace zelmat {

namespace {

using mechanics::Correlation;
using mechanics::FittedCoefficient;
using mechanics::HardeningFit;
using mechanics::HyperelasticFit;
using mechanics::ModeStability;

std::string Word(std::string_view keyword) {
    return std::string(keyword);
}

std::string NameOf(mechanics::HyperelasticModel model, int order) {
    return Word(Keyword(model)) + (HasOrder(model) ? " " + std::to_string(order) : "");
}

template <class IsStress>
ResultTable CoefficientTable(const std::vector<FittedCoefficient>& coefficients, const Result& result,
                             IsStress isStress) {
    std::vector<std::string> names, units, states;
    std::vector<MaybeNumber> values, deviations;
    for (const FittedCoefficient& coefficient : coefficients) {
        const Shown shown = result.Of(isStress(coefficient.name) ? "stress" : "number");
        names.push_back(coefficient.name);
        values.emplace_back(shown(coefficient.value));
        deviations.push_back(coefficient.standardDeviation
                                 ? MaybeNumber(shown(*coefficient.standardDeviation))
                                 : std::nullopt);
        units.push_back(shown.Unit());
        states.emplace_back(coefficient.atBound ? "at its bound" : "");
    }
    ResultTable table("coefficients", "Coefficients");
    table.AddWords("coefficient", "coefficient", names);
    table.AddMixed("value", "value", values);
    table.AddMixed("standard_deviation", "standard deviation", deviations);
    table.AddWords("unit", "unit", units);
    const bool bound = std::any_of(states.begin(), states.end(), [](const auto& s) { return !s.empty(); });
    if (bound) table.AddWords("state", "state", states);
    return table;
}

void TellCorrelations(const std::vector<Correlation>& correlations, Result& result) {
    if (correlations.empty()) return;
    std::vector<std::string> first, second;
    std::vector<MaybeNumber> values;
    for (const Correlation& one : correlations) {
        first.push_back(one.first);
        second.push_back(one.second);
        values.emplace_back(one.value);
    }
    ResultTable table("correlations",
                      "Correlations above 0.95: coefficients that the tests hardly tell apart");
    table.AddWords("first", "first", first);
    table.AddWords("second", "second", second);
    table.AddNumbers("correlation", "correlation", values);
    result.Add(std::move(table));
}

std::string InsideWord(const std::optional<bool>& inside) {
    return !inside ? "-" : *inside ? "yes" : "no";
}

void TellStability(const HyperelasticFit& fit, Result& result) {
    std::vector<std::string> modes, criteria, inside;
    std::vector<MaybeNumber> compression, tension;
    for (const ModeStability& one : fit.stability) {
        modes.push_back(Word(Keyword(one.mode)));
        criteria.push_back(Word(Keyword(one.criterion)));
        compression.push_back(one.limits.compression);
        tension.push_back(one.limits.tension);
        inside.push_back(InsideWord(one.dataInside));
    }
    ResultTable table("stability", "Stability: the first stretches at which a criterion fails");
    table.AddWords("mode", "mode", modes);
    table.AddWords("criterion", "criterion", criteria);
    table.AddNumbers("compression", "compression", compression);
    table.AddNumbers("tension", "tension", tension);
    table.AddWords("tests_inside", "tests inside", inside);
    result.Add(std::move(table));
}

void TellAlternatives(const HyperelasticFit& fit, Result& result) {
    if (fit.alternatives.empty()) return;
    ResultTable table("alternatives", "Other coefficients with nearly the same deviation");
    for (std::size_t at = 0; at < fit.coefficients.size(); ++at) {
        std::vector<MaybeNumber> values;
        for (const auto& other : fit.alternatives) values.emplace_back(other[at]);
        const std::string& name = fit.coefficients[at].name;
        table.AddNumbers(name, name, result.Of(mechanics::IsStressCoefficient(name) ? "stress" : "number"),
                         values);
    }
    result.Add(std::move(table));
}

/// The greatest standard deviation relative to its coefficient; nothing where one has none.
MaybeNumber WorstUncertainty(const std::vector<FittedCoefficient>& coefficients) {
    double worst = 0.0;
    for (const FittedCoefficient& coefficient : coefficients) {
        if (!coefficient.standardDeviation || coefficient.value == 0.0) return std::nullopt;
        worst = std::max(worst, std::abs(*coefficient.standardDeviation / coefficient.value));
    }
    return worst;
}

/// Whether all tests lie where one criterion holds.
std::string StableWord(const HyperelasticFit& fit, mechanics::StabilityCriterion criterion) {
    for (const ModeStability& one : fit.stability) {
        if (one.criterion == criterion && one.dataInside && !*one.dataInside) return "no";
    }
    return "yes";
}

std::string Remarks(const std::vector<FittedCoefficient>& coefficients, bool alternatives) {
    std::vector<std::string> remarks;
    for (const FittedCoefficient& coefficient : coefficients) {
        if (coefficient.atBound) remarks.push_back(coefficient.name + " at its bound");
    }
    if (alternatives) remarks.emplace_back("not unique");
    return WordList(remarks);
}

void Warn(const std::vector<std::string>& warnings, const Place& place, Findings& findings) {
    for (const std::string& warning : warnings) {
        findings.Add({FindingKind::WARNING, place, "fit", warning, {}});
    }
}

std::vector<MaybeNumber> Ranks(std::size_t count) {
    std::vector<MaybeNumber> ranks;
    for (std::size_t at = 1; at <= count; ++at) ranks.emplace_back(static_cast<double>(at));
    return ranks;
}

/// What every ranking says.
struct RankedRows {
    std::vector<std::string> names, remarks;
    std::vector<MaybeNumber> counts, relative, absolute, rSquared, uncertainty;

    template <class Fit>
    void Add(std::string name, const Fit& fit, bool alternatives) {
        names.push_back(std::move(name));
        counts.emplace_back(static_cast<double>(fit.coefficients.size()));
        relative.push_back(fit.deviation.rmsRelative);
        absolute.emplace_back(fit.deviation.rmsAbsolute);
        rSquared.push_back(fit.deviation.rSquared);
        uncertainty.push_back(WorstUncertainty(fit.coefficients));
        remarks.push_back(Remarks(fit.coefficients, alternatives));
    }
    ResultTable Table(const Result& result) const {
        ResultTable table("ranking", "Ranking; more coefficients always come nearer");
        table.AddNumbers("rank", "rank", Ranks(names.size()));
        table.AddWords("model", "model", names);
        table.AddNumbers("coefficients", "coefficients", counts);
        table.AddNumbers("rms_relative", "RMS relative", relative);
        table.AddNumbers("rms_absolute", "RMS absolute", result.Of("stress"), absolute);
        table.AddNumbers("r_squared", "R^2", rSquared);
        table.AddNumbers("greatest_relative_standard_deviation", "greatest rel. std. dev.", uncertainty);
        return table;
    }
};

}  // namespace

std::string MeasureWord(mechanics::DeviationMeasure measure) {
    return measure == mechanics::DeviationMeasure::RELATIVE ? "relative" : "absolute";
}

void DeviationTable::Add(const std::string& what, const mechanics::FitDeviation& deviation, MaybeNumber from,
                         MaybeNumber to) {
    what_.push_back(what);
    points_.emplace_back(static_cast<double>(deviation.points));
    from_.push_back(from);
    to_.push_back(to);
    relative_.push_back(deviation.rmsRelative);
    absolute_.emplace_back(deviation.rmsAbsolute);
    rSquared_.push_back(deviation.rSquared);
}

ResultTable DeviationTable::Table(const Result& result, const char* title) const {
    ResultTable table("deviation", title);
    table.AddWords("mode", "tests", what_);
    table.AddNumbers("points", "points", points_);
    table.AddNumbers("from", "from", from_);
    table.AddNumbers("to", "to", to_);
    table.AddNumbers("rms_relative", "RMS relative", relative_);
    table.AddNumbers("rms_absolute", "RMS absolute", result.Of("stress"), absolute_);
    table.AddNumbers("r_squared", "R^2", rSquared_);
    return table;
}

void TellFit(const HyperelasticFit& fit, const Place& place, Findings& findings, Result& result) {
    result.Say("model", "model", Word(Keyword(fit.model)));
    if (HasOrder(fit.model)) result.Say("order", "order", std::to_string(fit.order));
    result.Say("measure", "deviations", MeasureWord(fit.measure));
    result.Add("initial_shear_modulus", "initial shear modulus mu0", "modulus", fit.shearModulus);
    result.Note(fit.notes);
    result.Add(CoefficientTable(fit.coefficients, result, [](const std::string& name) {
        return mechanics::IsStressCoefficient(name);
    }));
    DeviationTable deviations;
    for (const auto& mode : fit.modes) {
        deviations.Add(Word(Keyword(mode.mode)), mode.deviation, mode.lower, mode.upper);
    }
    deviations.Add("all", fit.deviation);
    result.Add(deviations.Table(result, "Deviation from the tests"));
    TellStability(fit, result);
    TellCorrelations(fit.correlations, result);
    TellAlternatives(fit, result);
    Warn(fit.warnings, place, findings);
}

void TellRanking(const mechanics::FitRanking& ranking, const Place& place, Findings& findings,
                 Result& result) {
    RankedRows rows;
    std::vector<std::string> drucker, deadLoad;
    for (const HyperelasticFit& fit : ranking.fits) {
        rows.Add(NameOf(fit.model, fit.order), fit, !fit.alternatives.empty());
        drucker.push_back(StableWord(fit, mechanics::StabilityCriterion::DRUCKER));
        deadLoad.push_back(StableWord(fit, mechanics::StabilityCriterion::DEAD_LOAD));
        result.Note(fit.notes);
    }
    ResultTable table = rows.Table(result);
    table.AddWords("stable_drucker", "stable: drucker", drucker);
    table.AddWords("stable_dead_load", "dead-load", deadLoad);
    table.AddWords("remarks", "remarks", rows.remarks);
    result.Add(std::move(table));
    for (const auto& failed : ranking.failed) {
        findings.Add({FindingKind::WARNING,
                      place,
                      "not-fitted",
                      NameOf(failed.model, failed.order) + ": " + failed.why,
                      {}});
    }
}

void TellFit(const HardeningFit& fit, const Place& place, Findings& findings, Result& result) {
    result.Say("model", "law", Word(Keyword(fit.law)));
    result.Say("formula", "formula", mechanics::FormulaOf(fit.law));
    result.Note(fit.notes);
    result.Add(CoefficientTable(fit.coefficients, result, &mechanics::IsStressOfLaw));
    DeviationTable deviations;
    deviations.Add("curve", fit.deviation);
    result.Add(deviations.Table(result, "Deviation from the curve"));
    TellCorrelations(fit.correlations, result);
    Warn(fit.warnings, place, findings);
}

void TellRanking(std::vector<HardeningFit> fits, mechanics::DeviationMeasure measure, Result& result) {
    const auto ranked = [measure](const HardeningFit& fit) {
        return measure == mechanics::DeviationMeasure::RELATIVE ? fit.deviation.rmsRelative.value_or(0.0)
                                                                : fit.deviation.rmsAbsolute;
    };
    std::stable_sort(fits.begin(), fits.end(),
                     [&](const auto& a, const auto& b) { return ranked(a) < ranked(b); });
    RankedRows rows;
    for (const HardeningFit& fit : fits) rows.Add(Word(Keyword(fit.law)), fit, false);
    ResultTable table = rows.Table(result);
    table.AddWords("remarks", "remarks", rows.remarks);
    result.Add(std::move(table));
}

}  // namespace zelmat
