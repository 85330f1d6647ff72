#include "zelmat/commands/reports/AtGasket.h"

#include "zelmat/properties/GasketProperty.h"

namespace zelmat {

namespace {

using mechanics::GasketAtTemperature;
using mechanics::GasketThickness;
using mechanics::GasketValue;
using mechanics::Outcome;

using Gaskets = std::vector<GasketAtTemperature>;

/// A branch of the curves, read at the closure.
struct Branch {
    std::string name;
    MaybeNumber greatestClosure;  ///< from which it unloads
    GasketValue value;
};

/// At the temperature asked for; a gasket of one temperature does not depend on it.
Outcome<GasketValue> Read(const Gaskets& gaskets, bool dependent, const AtQuestion& question,
                          const mechanics::GasketReading& reading) {
    if (!dependent && gaskets.size() == 1) return reading(gaskets.front().thickness);
    if (!question.temperature)
        return mechanics::Refusal{"the curves depend on temperature, and none is given"};
    return mechanics::ReadAt(gaskets, *question.temperature, question.Policy(), reading);
}

ResultTable TableOf(const std::vector<Branch>& branches, const Result& result) {
    std::vector<std::string> names;
    std::vector<MaybeNumber> greatest, pressure, secant, below, above;
    for (const Branch& branch : branches) {
        names.push_back(branch.name);
        greatest.push_back(branch.greatestClosure);
        pressure.emplace_back(branch.value.pressure);
        secant.push_back(branch.value.secantStiffness);
        below.emplace_back(branch.value.tangentStiffnessBelow);
        above.emplace_back(branch.value.tangentStiffness);
    }
    ResultTable table("branches", "");
    table.AddWords("branch", "branch", names);
    table.AddNumbers("greatest_closure", "from closure", result.Of("length"), greatest);
    table.AddNumbers("pressure", "pressure", result.Of("pressure"), pressure);
    table.AddNumbers("secant_stiffness", "secant stiffness", result.Of("stiffness_per_area"), secant);
    table.AddNumbers("tangent_stiffness_below", "tangent below", result.Of("stiffness_per_area"), below);
    table.AddNumbers("tangent_stiffness", "tangent above", result.Of("stiffness_per_area"), above);
    return table;
}

}  // namespace

std::optional<AtProblem> ReadGasketAt(const Block& gasket, const AtQuestion& question, Result& result) {
    if (!question.closure) {
        return AtProblem{"the pressure depends on the closure, and none is given", {"--closure 0.1mm"}};
    }
    const double closure = *question.closure;
    const Table* loading = gasket.Find("loading");
    const bool dependent = loading && loading->temperatureDependent;
    const auto loaded = GasketOf(gasket, GasketUnloading::NONE);
    if (!loaded.Ok()) return AtProblem{loaded.Why()};
    const auto value = Read(*loaded, dependent, question, [&](const GasketThickness& thickness) {
        return thickness.Loading(closure, question.Policy());
    });
    if (!value.Ok()) return AtProblem{value.Why()};
    result.Add("closure", "closure", "length", closure);
    result.Note(value->notes);
    if (question.temperature && !dependent) result.Note("does not depend on temperature");

    std::vector<Branch> branches = {{"loading", {}, *value}};
    for (const auto unloading : UnloadingsOf(gasket)) {
        const std::string word(Keyword(unloading));
        const auto curves = GasketOf(gasket, unloading);
        if (!curves.Ok()) return AtProblem{word + ": " + curves.Why()};
        for (const double greatest : UnloadingEnds(gasket, unloading)) {
            if (greatest < closure) continue;
            const auto back = Read(*curves, dependent, question, [&](const GasketThickness& thickness) {
                return thickness.Unloading(closure, greatest);
            });
            if (back.Ok()) branches.push_back({"unloading, " + word, greatest, *back});
            if (back.Ok()) result.Note(back->notes);
        }
        const auto cycle = curves->front().thickness.EnergyLoss(closure);
        if (!cycle.Ok() || curves->size() > 1) continue;
        result.Add("energy_loss_" + word, "energy loss of a cycle to this closure, " + word,
                   "energy_per_area", cycle->energyLoss);
        result.Note(cycle->notes);
    }
    result.Add(TableOf(branches, result));
    return std::nullopt;
}

}  // namespace zelmat
