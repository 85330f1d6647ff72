#include "zelmat/mechanics/laminate/PlyFailure.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace zelmat::mechanics {

namespace {

using enum FailureCriterion;

double AlongStrength(const PlyStrength& strength, double stress) {
    return stress >= 0.0 ? strength.xt : strength.xc;
}

double AcrossStrength(const PlyStrength& strength, double stress) {
    return stress >= 0.0 ? strength.yt : strength.yc;
}

/// The load factor of an index that grows with this power of the load.
FailureMeasure Homogeneous(double index, double power) {
    FailureMeasure measure{.index = index, .loadFactor = {}};
    if (index > 0.0) measure.loadFactor = std::pow(index, -1.0 / power);
    return measure;
}

FailureMeasure MaximumStress(const PlyStrength& strength, const Vector3& stress) {
    return Homogeneous(std::max({std::abs(stress[0]) / AlongStrength(strength, stress[0]),
                                 std::abs(stress[1]) / AcrossStrength(strength, stress[1]),
                                 std::abs(stress[2]) / strength.s}),
                       1.0);
}

FailureMeasure TsaiHill(const PlyStrength& strength, const Vector3& stress) {
    const double x = AlongStrength(strength, stress[0]);
    const double along = stress[0] / x, across = stress[1] / AcrossStrength(strength, stress[1]);
    const double shear = stress[2] / strength.s;
    return Homogeneous(along * along - along * (stress[1] / x) + across * across + shear * shear, 2.0);
}

/// quadratic f^2 + linear f = 1 for the load factor f > 0, in the form that does not subtract equal numbers.
FailureMeasure TsaiWuMeasure(const PlyStrength& strength, const Vector3& stress) {
    const TsaiWu wu = TsaiWuOf(strength);
    const double linear = wu.f1 * stress[0] + wu.f2 * stress[1];
    const double quadratic = wu.f11 * stress[0] * stress[0] + wu.f22 * stress[1] * stress[1] +
                             wu.f66 * stress[2] * stress[2] + 2.0 * wu.f12 * stress[0] * stress[1];
    FailureMeasure measure{.index = linear + quadratic, .loadFactor = {}};
    if (quadratic > 0.0) {
        const double root = std::sqrt(linear * linear + 4.0 * quadratic);
        measure.loadFactor = linear >= 0.0 ? 2.0 / (linear + root) : (root - linear) / (2.0 * quadratic);
    }
    return measure;
}

}  // namespace

std::string_view Keyword(FailureCriterion criterion) {
    switch (criterion) {
        case MAXIMUM_STRESS:
            return "maximum-stress";
        case TSAI_HILL:
            return "tsai-hill";
        case TSAI_WU:
            return "tsai-wu";
    }
    return {};
}

TsaiWu TsaiWuOf(const PlyStrength& strength) {
    TsaiWu wu{.f1 = 1.0 / strength.xt - 1.0 / strength.xc,
              .f2 = 1.0 / strength.yt - 1.0 / strength.yc,
              .f11 = 1.0 / (strength.xt * strength.xc),
              .f22 = 1.0 / (strength.yt * strength.yc),
              .f66 = 1.0 / (strength.s * strength.s),
              .f12 = 0.0};
    wu.f12 = strength.f12.value_or(-0.5 * std::sqrt(wu.f11 * wu.f22));
    return wu;
}

FailureMeasure MeasureOf(FailureCriterion criterion, const PlyStrength& strength, const Vector3& plyStress) {
    switch (criterion) {
        case MAXIMUM_STRESS:
            return MaximumStress(strength, plyStress);
        case TSAI_HILL:
            return TsaiHill(strength, plyStress);
        case TSAI_WU:
            return TsaiWuMeasure(strength, plyStress);
    }
    return {};
}

Outcome<std::optional<PlyFailure>> FirstPlyFailure(const Laminate& laminate, const LaminateLoad& load,
                                                   FailureCriterion criterion) {
    const auto response = RespondTo(laminate, load);
    if (!response.Ok()) return response.Refused();
    std::optional<PlyFailure> first;
    for (const PlyResponse& ply : response->plies) {
        const auto& strength = laminate.materials[laminate.layers[ply.layer].material].strength;
        if (!strength)
            return Refusal{"layer " + std::to_string(ply.layer + 1) + ": its material has no strengths"};
        for (const bool top : {false, true}) {
            const auto measure = MeasureOf(criterion, *strength, (top ? ply.top : ply.bottom).plyStress);
            if (!measure.loadFactor) continue;
            if (first && *measure.loadFactor >= *first->measure.loadFactor) continue;
            first = PlyFailure{.criterion = criterion, .layer = ply.layer, .atTop = top, .measure = measure};
        }
    }
    return first;
}

}  // namespace zelmat::mechanics
