#include "zelmat/mechanics/plastic/TensileCurve.h"

#include <algorithm>
#include <cmath>

namespace zelmat::mechanics {

namespace {

std::optional<Refusal> Fault(const std::vector<StressStrain>& curve, double youngsModulus, double offset) {
    if (!std::isfinite(youngsModulus) || youngsModulus <= 0.0)
        return Refusal{"Young's modulus has to be above 0"};
    if (!std::isfinite(offset) || offset <= 0.0) return Refusal{"the offset has to be a strain above 0"};
    if (curve.size() < 2) return Refusal{"a curve needs two points"};
    for (std::size_t i = 0; i < curve.size(); ++i) {
        const std::string name = "point " + std::to_string(i + 1);
        if (!std::isfinite(curve[i].strain) || !std::isfinite(curve[i].stress)) {
            return Refusal{name + " holds a number that is not finite"};
        }
        if (curve[i].strain <= -1.0) return Refusal{name + ": an engineering strain has to be above -1"};
        if (i > 0 && curve[i].strain <= curve[i - 1].strain)
            return Refusal{name + ": the strain does not rise"};
    }
    return std::nullopt;
}

/// How far the curve lies above the line of slope E through the offset; negative from the yield point on.
double AboveOffsetLine(const StressStrain& point, double youngsModulus, double offset) {
    return point.stress - youngsModulus * (point.strain - offset);
}

std::optional<StressStrain> OffsetYield(const std::vector<StressStrain>& curve, double youngsModulus,
                                        double offset) {
    for (std::size_t i = 1; i < curve.size(); ++i) {
        const double before = AboveOffsetLine(curve[i - 1], youngsModulus, offset);
        const double after = AboveOffsetLine(curve[i], youngsModulus, offset);
        if (before <= 0.0 || after > 0.0) continue;
        const double part = before / (before - after);
        return StressStrain{.strain = std::lerp(curve[i - 1].strain, curve[i].strain, part),
                            .stress = std::lerp(curve[i - 1].stress, curve[i].stress, part)};
    }
    return std::nullopt;
}

std::vector<StressStrain> HardeningFrom(const StressStrain& yield, const std::vector<TrueCurvePoint>& curve,
                                        double youngsModulus) {
    const StressStrain start = TrueFromEngineering(yield);
    const double plasticStart = PlasticStrain(start, youngsModulus);
    std::vector<StressStrain> hardening = {{.strain = 0.0, .stress = start.stress}};
    for (const TrueCurvePoint& point : curve) {
        const double plastic = point.plasticStrain - plasticStart;
        if (point.strain <= start.strain || plastic <= hardening.back().strain) continue;
        hardening.push_back({.strain = plastic, .stress = point.stress});
    }
    return hardening;
}

}  // namespace

Outcome<TensileCurve> ConvertTensileCurve(const std::vector<StressStrain>& engineering, double youngsModulus,
                                          double offset) {
    if (const auto fault = Fault(engineering, youngsModulus, offset)) return *fault;
    const auto greatest =
        std::max_element(engineering.begin(), engineering.end(),
                         [](const StressStrain& a, const StressStrain& b) { return a.stress < b.stress; });
    TensileCurve curve{};
    curve.pointsAfterNecking = static_cast<std::size_t>(engineering.end() - greatest) - 1;
    if (curve.pointsAfterNecking > 0) {
        curve.necking = *greatest;
        curve.notes.push_back(
            "necking by Considere's criterion at the greatest engineering stress; the points after it are "
            "left out");
    } else {
        curve.notes.push_back("no necking: the curve rises to its end");
    }
    for (auto point = engineering.begin(); point <= greatest; ++point) {
        const StressStrain converted = TrueFromEngineering(*point);
        curve.trueCurve.push_back({.strain = converted.strain,
                                   .stress = converted.stress,
                                   .plasticStrain = PlasticStrain(converted, youngsModulus)});
    }
    curve.offsetYield = OffsetYield({engineering.begin(), greatest + 1}, youngsModulus, offset);
    if (curve.offsetYield) {
        curve.hardening = HardeningFrom(*curve.offsetYield, curve.trueCurve, youngsModulus);
    } else {
        curve.notes.push_back("the curve does not cross the offset line: no offset yield point");
    }
    return curve;
}

}  // namespace zelmat::mechanics
