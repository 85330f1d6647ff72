#include "zelmat/mechanics/hyperelastic/Stability.h"

#include <algorithm>
#include <cmath>

#include "zelmat/mechanics/hyperelastic/HyperelasticResponse.h"

namespace zelmat::mechanics {

namespace {

constexpr int kSteps = 1000;  ///< on each side of rest

/// How far before the locking stretch the search ends, as a part of its path strain: nearer to it the
/// greatest eigenvalue is so great that the smallest one loses its digits.
constexpr double kGap = 1e-9;

/// The smallest eigenvalue along one side of a path, as a function of the path strain.
class Side {
public:
    Side(const StrainEnergy& energy, StabilityCriterion criterion, LoadingMode mode)
        : energy_(energy), criterion_(criterion), mode_(mode) {}

    /// Nothing where the potential ends or its numbers grow out of a double.
    std::optional<double> At(double strain) const {
        return SmallestEigenvalue(energy_, criterion_, mode_, LoadAt(mode_, strain));
    }

    bool Stable(double strain) const { return At(strain).value_or(-1.0) > 0.0; }

    /// Where it turns, between a stable and an unstable strain.
    double Crossing(double stable, double unstable) const {
        for (int i = 0; i < 100; ++i) {
            const double middle = 0.5 * (stable + unstable);
            if (middle == stable || middle == unstable) break;
            (Stable(middle) ? stable : unstable) = middle;
        }
        return unstable;
    }

    /// An unstable strain within a dip of the eigenvalue between two strains, by golden section.
    std::optional<double> UnstableWithin(double a, double b) const {
        constexpr double kGolden = 0.6180339887498949;
        for (int i = 0; i < 60; ++i) {
            const double left = b - kGolden * (b - a), right = a + kGolden * (b - a);
            const double atLeft = At(left).value_or(0.0), atRight = At(right).value_or(0.0);
            if (atLeft <= 0.0) return left;
            if (atRight <= 0.0) return right;
            (atLeft < atRight ? b : a) = atLeft < atRight ? right : left;
        }
        return std::nullopt;
    }

private:
    const StrainEnergy& energy_;
    StabilityCriterion criterion_;
    LoadingMode mode_;
};

/// What one side of rest has, as path strains.
struct Found {
    std::optional<double> unstable;
    std::optional<double>
        reached;  ///< where the potential has no number any more, the last strain that has one
};

Found FirstUnstable(const Side& side, double end) {
    double before = 0.0, last = 0.0;
    double atBefore = *side.At(0.0), atLast = atBefore;
    for (int i = 1; i <= kSteps; ++i) {
        const double strain = end * i / kSteps;
        const auto value = side.At(strain);
        if (!value) return {.unstable = {}, .reached = last};
        if (atLast < atBefore && atLast < *value) {
            if (const auto unstable = side.UnstableWithin(before, strain)) {
                return {.unstable = side.Crossing(before, *unstable), .reached = {}};
            }
        }
        if (*value <= 0.0) return {.unstable = side.Crossing(last, strain), .reached = {}};
        before = last;
        atBefore = atLast;
        last = strain;
        atLast = *value;
    }
    return {};
}

/// The bounds in an order and a range that can be searched.
StabilityRange Searchable(const StrainEnergy& energy, LoadingMode mode, StabilityRange range) {
    const auto fallback = DefaultStabilityRange(mode);
    if (!IsReachable(mode, range.lower)) range.lower = fallback.lower;
    if (!IsReachable(mode, range.upper)) range.upper = fallback.upper;
    range = {std::min(range.lower, AtRest(mode)), std::max(range.upper, AtRest(mode))};
    const auto locking = LockingStretchOf(energy, mode);
    if (!locking || !locking->ends) return range;
    const auto inside = [mode](double stretch) {
        return LoadAt(mode, (1.0 - kGap) * PathStrain(mode, stretch));
    };
    return {std::max(range.lower, inside(locking->lower)), std::min(range.upper, inside(locking->upper))};
}

}  // namespace

std::string_view Keyword(StabilityCriterion criterion) {
    switch (criterion) {
        case StabilityCriterion::DRUCKER:
            return "drucker";
        case StabilityCriterion::DEAD_LOAD:
            return "dead-load";
    }
    return {};
}

std::optional<double> SmallestEigenvalue(const StrainEnergy& energy, StabilityCriterion criterion,
                                         LoadingMode mode, double x) {
    if (!IsReachable(mode, x)) return std::nullopt;
    const auto stretches = PointOn(mode, x).stretches;
    if (!energy.IsDefinedAt(stretches)) return std::nullopt;
    const EnergyState state = energy.At(stretches);
    const auto& h = state.stiffness;

    double a = h[0][0] - 2.0 * h[0][2] + h[2][2];
    double b = h[0][1] - h[0][2] - h[1][2] + h[2][2];
    double c = h[1][1] - 2.0 * h[1][2] + h[2][2];
    if (criterion == StabilityCriterion::DEAD_LOAD) {
        const double first = stretches.stretch[0], second = stretches.stretch[1];
        a = (a - (state.force[0] - state.force[2])) / (first * first);
        b = b / (first * second);
        c = (c - (state.force[1] - state.force[2])) / (second * second);
    }
    const double smallest = 0.5 * (a + c) - std::hypot(0.5 * (a - c), b);
    return std::isfinite(smallest) ? std::optional(smallest) : std::nullopt;
}

StabilityRange DefaultStabilityRange(LoadingMode mode) {
    return mode == LoadingMode::SIMPLE_SHEAR ? StabilityRange{-9.9, 9.9} : StabilityRange{0.1, 10.0};
}

StabilityLimits FindStabilityLimits(const StrainEnergy& energy, StabilityCriterion criterion,
                                    LoadingMode mode, const StabilityRange& range) {
    StabilityLimits limits;
    limits.searched = Searchable(energy, mode, range);
    const Side side(energy, criterion, mode);
    limits.stableAtRest = side.Stable(0.0);
    if (!limits.stableAtRest) return limits;
    const auto below = FirstUnstable(side, PathStrain(mode, limits.searched.lower));
    const auto above = FirstUnstable(side, PathStrain(mode, limits.searched.upper));
    if (below.unstable) limits.compression = LoadAt(mode, *below.unstable);
    if (above.unstable) limits.tension = LoadAt(mode, *above.unstable);
    if (below.reached) limits.searched.lower = LoadAt(mode, *below.reached);
    if (above.reached) limits.searched.upper = LoadAt(mode, *above.reached);
    return limits;
}

}  // namespace zelmat::mechanics
