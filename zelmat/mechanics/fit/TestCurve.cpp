#include "zelmat/mechanics/fit/TestCurve.h"

#include <algorithm>
#include <cmath>

namespace zelmat::mechanics {

namespace {

std::string PointName(const TestCurve& curve, std::size_t index) {
    return "point " + std::to_string(index + 1) + " of the " + std::string(Keyword(curve.mode)) + " test";
}

std::optional<Refusal> Fault(const TestCurve& curve) {
    if (!std::isfinite(curve.weight) || curve.weight <= 0.0) {
        return Refusal{"the weight of a " + std::string(Keyword(curve.mode)) + " test has to be above 0"};
    }
    for (std::size_t i = 0; i < curve.points.size(); ++i) {
        if (!IsReachable(curve.mode, curve.points[i].stretch)) {
            return Refusal{PointName(curve, i) + ": a stretch has to be a finite number above 0"};
        }
        if (!std::isfinite(curve.points[i].nominalStress)) {
            return Refusal{PointName(curve, i) + ": the stress is not a finite number"};
        }
    }
    return std::nullopt;
}

bool Rises(const std::vector<TestPoint>& points) {
    return std::is_sorted(points.begin(), points.end(),
                          [](const TestPoint& a, const TestPoint& b) { return a.stretch < b.stretch; });
}

std::string Count(std::size_t count, const std::string& what) {
    return std::to_string(count) + (count == 1 ? " point " : " points ") + what;
}

}  // namespace

double NominalStressOf(LoadingMode mode, double stretch, double trueStress) {
    return mode == LoadingMode::SIMPLE_SHEAR ? trueStress : trueStress / stretch;
}

Outcome<FitData> TakeTestData(const std::vector<TestCurve>& curves, DeviationMeasure measure) {
    FitData data;
    std::size_t outside = 0, unstressed = 0, wrongSide = 0, atRest = 0;
    for (const TestCurve& curve : curves) {
        if (const auto fault = Fault(curve)) return *fault;
        if (!Rises(curve.points)) {
            data.warnings.push_back("the stretches of a " + std::string(Keyword(curve.mode)) +
                                    " test do not rise from point to point: taken as they stand");
        }
        for (const auto& [stretch, stress] : curve.points) {
            const double fromRest = stretch - AtRest(curve.mode);
            if (stretch < curve.lower.value_or(stretch) || stretch > curve.upper.value_or(stretch)) {
                ++outside;
            } else if (measure == DeviationMeasure::RELATIVE && stress == 0.0) {
                ++unstressed;
            } else {
                if (fromRest * stress < 0.0) ++wrongSide;
                if (fromRest == 0.0 && stress != 0.0) ++atRest;
                data.points.push_back({curve.mode, stretch, stress, curve.weight});
            }
        }
    }
    if (outside > 0) data.notes.push_back(Count(outside, "outside the given range left out"));
    if (unstressed > 0) data.notes.push_back(Count(unstressed, "of zero stress left out"));
    if (wrongSide > 0) data.warnings.push_back(Count(wrongSide, "with a stress against the strain"));
    if (atRest > 0)
        data.warnings.push_back(Count(atRest, "with a stress and no strain: no potential meets that"));
    if (data.points.empty()) return Refusal{"there is no test point to fit to"};
    return data;
}

}  // namespace zelmat::mechanics
