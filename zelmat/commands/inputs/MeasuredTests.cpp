#include "zelmat/commands/inputs/MeasuredTests.h"

#include <cmath>
#include <map>
#include <tuple>

#include "zelmat/quantities/NumberText.h"
#include "zelmat/text/QuotedText.h"

namespace zelmat {

namespace {

using mechanics::LoadingMode;
using mechanics::TestCurve;

/// The stretch (amount of shear) of each row; nothing for columns that do not say it in this mode.
std::optional<double> StretchOf(const MeasuredCsv& points, std::size_t row, LoadingMode mode) {
    const auto at = [&](MeasuredColumn column) -> std::optional<double> {
        const auto* numbers = points.Numbers(column);
        return numbers ? std::optional((*numbers)[row]) : std::nullopt;
    };
    if (mode == LoadingMode::SIMPLE_SHEAR) return at(MeasuredColumn::SHEAR);
    if (const auto stretch = at(MeasuredColumn::STRETCH)) return stretch;
    if (const auto strain = at(MeasuredColumn::ENGINEERING_STRAIN)) return 1.0 + *strain;
    if (const auto strain = at(MeasuredColumn::TRUE_STRAIN)) return std::exp(*strain);
    return std::nullopt;
}

/// A row as a test has it.
struct ModePoint {
    LoadingMode mode;
    mechanics::TestPoint point;
};

/// `given`: the mode of a row that has no word for it. Nothing, and a finding, for what is none.
std::optional<ModePoint> PointOf(const MeasuredCsv& points, std::size_t row, LoadingMode given,
                                 const std::string& file, Findings& findings) {
    const Place place{file, points.Line(row)};
    const auto refuse = [&](const char* code, std::string text, std::vector<std::string> details) {
        findings.Add({FindingKind::ERROR, place, code, std::move(text), std::move(details)});
        return std::nullopt;
    };
    const auto* modes = points.Words(MeasuredColumn::MODE);
    const auto mode = modes ? mechanics::LoadingModeOf((*modes)[row]) : std::optional(given);
    if (!mode) {
        return refuse("no-such-mode", QuotedText((*modes)[row]) + " is no mode",
                      {std::string("expected ") + kTestModes});
    }
    const auto stretch = StretchOf(points, row, *mode);
    if (!stretch && *mode == LoadingMode::SIMPLE_SHEAR) {
        return refuse("no-stretch", "a shear test needs a column AmountOfShear", {});
    }
    if (!stretch) {
        return refuse("no-stretch", "the points have no stretch and no strain",
                      {"Stretch, EngineeringStrain or TrueStrain"});
    }
    if (!mechanics::IsReachable(*mode, *stretch)) {
        return refuse("impossible-stretch", "the stretch is " + NumberText(*stretch), {"has to be above 0"});
    }
    const auto* nominal = points.Numbers(MeasuredColumn::NOMINAL_STRESS);
    const auto* trueStress = points.Numbers(MeasuredColumn::TRUE_STRESS);
    return ModePoint{*mode,
                     {*stretch, nominal ? (*nominal)[row]
                                        : mechanics::NominalStressOf(*mode, *stretch, (*trueStress)[row])}};
}

}  // namespace

std::vector<TestCurve> MeasuredTests(const MeasuredCsv& points, const std::string& file,
                                     std::optional<LoadingMode> given, Findings& findings) {
    if ((points.Numbers(MeasuredColumn::NOMINAL_STRESS) != nullptr) ==
        (points.Numbers(MeasuredColumn::TRUE_STRESS) != nullptr)) {
        findings.Add({FindingKind::ERROR,
                      {file, 0},
                      "one-stress",
                      "the points need one stress, nominal or true",
                      {"NominalStress [MPa] or TrueStress [MPa]"}});
        return {};
    }
    const bool sheared = points.Numbers(MeasuredColumn::SHEAR) && !points.Numbers(MeasuredColumn::STRETCH);
    if (!given && sheared) given = LoadingMode::SIMPLE_SHEAR;  // nothing else has an amount of shear
    if (!points.Words(MeasuredColumn::MODE) && !given) {
        findings.Add({FindingKind::WARNING,
                      {file, 0},
                      "mode-not-said",
                      "the tests are taken as uniaxial",
                      {"--mode or a column Mode says it"}});
    }
    const auto* specimens = points.Words(MeasuredColumn::SPECIMEN);
    const auto* weights = points.Numbers(MeasuredColumn::WEIGHT);
    std::map<std::tuple<LoadingMode, std::string, double>, TestCurve> specimensOf;
    for (std::size_t row = 0; row < points.Rows(); ++row) {
        const auto point = PointOf(points, row, given.value_or(LoadingMode::UNIAXIAL), file, findings);
        if (!point) return {};
        const double weight = weights ? (*weights)[row] : 1.0;
        TestCurve& curve =
            specimensOf
                .try_emplace(
                    {point->mode, specimens ? (*specimens)[row] : "", weight},
                    TestCurve{.mode = point->mode, .points = {}, .weight = weight, .lower = {}, .upper = {}})
                .first->second;
        curve.points.push_back(point->point);
    }
    std::vector<TestCurve> curves;
    for (auto& [key, curve] : specimensOf) curves.push_back(std::move(curve));
    return curves;
}

}  // namespace zelmat
