#include <algorithm>
#include <cmath>

#include "zelmat/checks/CheckRules.h"
#include "zelmat/checks/DerivedText.h"
#include "zelmat/checks/TableLooks.h"
#include "zelmat/mechanics/gasket/PressureCurve.h"
#include "zelmat/quantities/NumberText.h"
#include "zelmat/text/CountText.h"

namespace zelmat {

namespace {

constexpr const char* kBehavior = "what the gasket behavior itself asks of the curve";
constexpr const char* kLookUp = "curves are interpolated from row to row";

bool IsLoading(const Table& table) {
    return table.kind->name == "loading";
}

/// Every curve of a gasket's tables. An unloading table has one for each temperature and plastic or maximum
/// closure.
template <class Visit>
void ForEachGasketCurve(const Material& material, Visit visit) {
    const Block* block = material.Find("gasket");
    if (!block) return;
    for (const Table& table : block->tables) {
        if (!table.Find("pressure") || !table.Find("closure")) continue;
        for (const Curve& curve : CurvesOf(table, {"temperature", "plastic_closure", "max_closure"})) {
            visit(*block, table, curve);
        }
    }
}

MaterialLook FirstOfLoading(const TableRule& rule) {
    return [&rule](const Material& material, CheckReport& report) {
        ForEachGasketCurve(material, [&](const Block& block, const Table& table, const Curve& curve) {
            if (!IsLoading(table)) return;
            const Column& column = *table.Find(rule.column);
            if (rule.broken(column.values[curve.first])) report.AddValue(block, table, column, curve.first);
        });
    };
}

void LookAtRows(const Material& material, CheckReport& report) {
    constexpr std::size_t kLeastOfUnloading = 2;  // a line
    ForEachGasketCurve(material, [&](const Block& block, const Table& table, const Curve& curve) {
        const std::size_t least =
            IsLoading(table) ? static_cast<std::size_t>(table.kind->leastRows) : kLeastOfUnloading;
        if (curve.Rows() >= least) return;
        report.Add(table.origin.Line(curve.first),
                   "the curve from row " + std::to_string(curve.first + 1) + " of " +
                       block.kind->TableName(*table.kind) + " has " + CountText(curve.Rows(), "row"),
                   {std::to_string(least) + " or more expected"});
    });
}

void LookAtRise(const Material& material, CheckReport& report) {
    ForEachGasketCurve(material, [&](const Block& block, const Table& table, const Curve& curve) {
        const Column& pressure = *table.Find("pressure");
        const Column& closure = *table.Find("closure");
        for (std::size_t row = curve.first + 1; row < curve.end; ++row) {
            if (!(closure.values[row] > closure.values[row - 1])) {
                report.AddValue(block, table, closure, row,
                                {"the row before has " + WithUnit(closure.values[row - 1], "m")});
            }
            if (!(pressure.values[row] >= pressure.values[row - 1])) {
                report.AddValue(block, table, pressure, row,
                                {"the row before has " + WithUnit(pressure.values[row - 1], "Pa")});
            }
        }
    });
}

std::optional<mechanics::PressureCurve> CurveThrough(const Table& table, const Curve& curve) {
    std::vector<mechanics::PressurePoint> points;
    for (std::size_t row = curve.first; row < curve.end; ++row) {
        points.push_back({table.Find("closure")->values[row], table.Find("pressure")->values[row]});
    }
    const auto through = mechanics::PressureCurve::Through(std::move(points));
    return through.Ok() ? std::optional(*through) : std::nullopt;
}

/// The loading curve of a temperature; nothing when there is none, or none that can be read.
std::optional<mechanics::PressureCurve> LoadingAt(const Table& loading, double kelvin) {
    const Column* temperature = loading.Find("temperature");
    for (const Curve& curve : CurvesOf(loading, {"temperature"})) {
        if (!temperature || temperature->values[curve.first] == kelvin) return CurveThrough(loading, curve);
    }
    return std::nullopt;
}

void LookAtUnloading(const Material& material, CheckReport& report) {
    constexpr double kRounding = 1e-6;  // where both curves meet, each is rounded for itself
    const Block* gasket = material.Find("gasket");
    const Table* loading = gasket ? gasket->Find("loading") : nullptr;
    if (!loading) return;
    ForEachGasketCurve(material, [&](const Block& block, const Table& table, const Curve& curve) {
        if (IsLoading(table)) return;
        const Column* temperature = table.Find("temperature");
        const auto above = LoadingAt(*loading, temperature ? temperature->values[curve.first] : 0.0);
        if (!above) return;
        const Column& pressure = *table.Find("pressure");
        for (std::size_t row = curve.first; row < curve.end; ++row) {
            const double bound = above->At(table.Find("closure")->values[row]).pressure;
            const double slack = kRounding * std::max(above->Back().pressure, bound);
            if (pressure.values[row] <= bound + slack) continue;
            report.AddValue(block, table, pressure, row,
                            {"loading has " + DerivedText(bound, "Pa") + " at this closure"});
        }
    });
}

/// The closure that a curve is given for stands in each of its rows, and once more in its own first or last
/// one.
void LookAtEnds(const Material& material, CheckReport& report) {
    constexpr double kRounding = 1e-6;
    ForEachGasketCurve(material, [&](const Block& block, const Table& table, const Curve& curve) {
        const Column &closure = *table.Find("closure"), &pressure = *table.Find("pressure");
        const std::size_t last = curve.end - 1;
        const auto hold = [&](const Column& column, std::size_t row, double expected, double size,
                              const std::string& detail) {
            if (!(std::abs(column.values[row] - expected) > kRounding * size)) return;
            report.AddValue(block, table, column, row, {detail});
        };
        if (const Column* plastic = table.Find("plastic_closure")) {
            const double stays = plastic->values[curve.first];
            hold(closure, curve.first, stays, closure.values[last],
                 "its plastic closure is " + WithUnit(stays, "m"));
            hold(pressure, curve.first, 0.0, pressure.values[last], "it begins without pressure");
        }
        if (const Column* greatest = table.Find("max_closure")) {
            const double reached = greatest->values[last];
            hold(closure, last, reached, reached, "its greatest closure is " + WithUnit(reached, "m"));
        }
    });
}

bool HasUnloading(const Block& gasket) {
    return gasket.Find("unloading_elastic_plastic") || gasket.Find("unloading_damage");
}

void LookAtMissingUnloading(const Material& material, CheckReport& report) {
    const Block* gasket = material.Find("gasket");
    if (!gasket || !gasket->values.Get<bool>("unloading").value_or(false) || HasUnloading(*gasket)) return;
    report.Add(gasket->origin.Line(), "gasket has unloading switched on and no unloading table");
}

void LookAtUnusedUnloading(const Material& material, CheckReport& report) {
    const Block* gasket = material.Find("gasket");
    if (!gasket || gasket->values.Get<bool>("unloading").value_or(true) || !HasUnloading(*gasket)) return;
    report.Add(gasket->origin.Line(), "gasket has an unloading table and unloading switched off");
}

}  // namespace

CheckTopic GasketRules() {
    const TableRule& pressure = RuleOfBehavior("gasket", "loading", "first-pressure");
    const TableRule& closure = RuleOfBehavior("gasket", "loading", "first-closure");
    return {
        .title = "Gaskets",
        .rules = {
            {.code = pressure.code,
             .says = "The loading curve of each temperature starts at pressure 0.",
             .bound = pressure.bound,
             .source = kBehavior,
             .look = FirstOfLoading(pressure)},
            {.code = closure.code,
             .says = "The loading curve of each temperature starts at closure 0.",
             .bound = closure.bound,
             .source = kBehavior,
             .look = FirstOfLoading(closure)},
            {.code = "too-few-rows",
             .says = "The loading curve of each temperature has three rows or more, an unloading curve two.",
             .bound = "too few for a curve",
             .source = kBehavior,
             .look = LookAtRows},
            {.code = "gasket-curve",
             .says =
                 "Along each loading and unloading curve the closure rises and the pressure does not fall.",
             .bound = "has to rise along the curve",
             .source = kLookUp,
             .look = LookAtRise},
            {.kind = FindingKind::WARNING,
             .code = "unloading-above-loading",
             .says = "At no closure does an unloading curve lie above the loading curve of its temperature.",
             .bound = "expected at or below the loading curve",
             .source = "a gasket that was flattened or damaged pushes back less than it did",
             .look = LookAtUnloading},
            {.kind = FindingKind::WARNING,
             .code = "unloading-ends",
             .says =
                 "An elastic-plastic unloading curve begins without pressure at its plastic closure, one of "
                 "damage ends at its greatest closure.",
             .bound = "the curve and the closure that it is given for do not agree",
             .source = "definition of both closures: what stays without pressure, and where unloading began",
             .look = LookAtEnds},
            {.code = "unloading-without-table",
             .says = "Where unloading is switched on there is an unloading table.",
             .bound = "needs unloading_elastic_plastic or unloading_damage",
             .source = kBehavior,
             .look = LookAtMissingUnloading},
            {.kind = FindingKind::WARNING,
             .code = "unused-unloading",
             .says = "Where there is an unloading table, unloading is switched on.",
             .bound = "the table does not count",
             .source = kBehavior,
             .look = LookAtUnusedUnloading},
        }};
}

}  // namespace zelmat
