#include "zelmat/mechanics/hyperelastic/HyperelasticResponse.h"

#include <cmath>
#include <string>

namespace zelmat::mechanics {

namespace {

double Dot(const std::array<double, 3>& a, const std::array<double, 3>& b) {
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

/// dx/ds along the path, s its strain; twice that where two directions work.
double WorkingSlope(LoadingMode mode, double x) {
    switch (mode) {
        case LoadingMode::UNIAXIAL:
        case LoadingMode::PLANAR:
            return x;
        case LoadingMode::EQUIBIAXIAL:
            return 2.0 * x;
        case LoadingMode::SIMPLE_SHEAR:
            return std::sqrt(4.0 + x * x);  // x = 2 sinh s
    }
    return 0.0;
}

/// d P/dx from P = w / slope, w = dW/ds: for the stretches P' = (w' - w) / (slope x), for shear by the chain
/// rule.
double Tangent(LoadingMode mode, double x, double work, double bend) {
    const double slope = WorkingSlope(mode, x);
    if (mode == LoadingMode::SIMPLE_SHEAR) return (bend - work * x / slope) / (slope * slope);
    return (bend - work) / (slope * x);
}

/// (1 - beta)(I1 - 3) + beta (I2 - 3) along a path, over the limit.
double Drawn(const Locking& locking, LoadingMode mode, double pathStrain) {
    const auto stretches = PointOn(mode, LoadAt(mode, pathStrain)).stretches;
    return ((1.0 - locking.beta) * stretches.first + locking.beta * stretches.second) / locking.limit;
}

/// The path strain of this sign at which the chains are drawn, by bisection: `Drawn` grows with the distance
/// from rest.
double LockingStrain(const Locking& locking, LoadingMode mode, double sign) {
    double inside = 0.0, outside = sign;
    while (Drawn(locking, mode, outside) < 1.0) outside *= 2.0;
    for (int i = 0; i < 200 && inside != outside; ++i) {
        const double middle = 0.5 * (inside + outside);
        if (middle == inside || middle == outside) break;
        (Drawn(locking, mode, middle) < 1.0 ? inside : outside) = middle;
    }
    return inside;
}

}  // namespace

Outcome<HyperelasticResponse> Respond(const StrainEnergy& energy, LoadingMode mode, double x) {
    if (!IsReachable(mode, x)) {
        return Refusal{mode == LoadingMode::SIMPLE_SHEAR ? "an amount of shear has to be a finite number"
                                                         : "a stretch has to be a finite number above 0"};
    }
    const PathPoint point = PointOn(mode, x);
    if (!energy.IsDefinedAt(point.stretches)) {
        return Refusal{"at and beyond the locking stretch the potential has no energy"};
    }
    const EnergyState state = energy.At(point.stretches);
    const double work = Dot(point.direction, state.force);
    double bend = 0.0;
    for (std::size_t i = 0; i < 3; ++i) bend += point.direction[i] * Dot(state.stiffness[i], point.direction);

    const double nominal = work / WorkingSlope(mode, x);
    const auto locking = energy.LockingLimit();
    const HyperelasticResponse response{
        .energy = state.energy,
        .nominalStress = nominal,
        .trueStress = mode == LoadingMode::SIMPLE_SHEAR ? nominal : x * nominal,
        .tangent = Tangent(mode, x, work, bend),
        .beyondLocking = locking && !locking->ends && point.stretches.first >= locking->limit};
    if (!std::isfinite(response.energy) || !std::isfinite(response.nominalStress) ||
        !std::isfinite(response.trueStress) || !std::isfinite(response.tangent)) {
        return Refusal{"the response is too great for a number"};
    }
    return response;
}

std::vector<double> NominalStressByCoefficient(const StrainEnergy& energy, LoadingMode mode, double x) {
    if (!IsReachable(mode, x)) return {};
    const PathPoint point = PointOn(mode, x);
    if (!energy.IsDefinedAt(point.stretches)) return {};
    std::vector<double> slopes;
    for (const auto& force : energy.CoefficientForces(point.stretches)) {
        slopes.push_back(Dot(point.direction, force) / WorkingSlope(mode, x));
    }
    return slopes;
}

std::optional<LockingStretch> LockingStretchOf(const StrainEnergy& energy, LoadingMode mode) {
    const auto locking = energy.LockingLimit();
    if (!locking || locking->limit <= 0.0) return std::nullopt;
    return LockingStretch{.lower = LoadAt(mode, LockingStrain(*locking, mode, -1.0)),
                          .upper = LoadAt(mode, LockingStrain(*locking, mode, 1.0)),
                          .ends = locking->ends};
}

}  // namespace zelmat::mechanics
