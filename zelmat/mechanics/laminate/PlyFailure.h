#pragma once

#include <optional>
#include <string_view>

#include "zelmat/mechanics/laminate/LaminateResponse.h"

namespace zelmat::mechanics {

enum class FailureCriterion : int {
    MAXIMUM_STRESS,  ///< the greatest of stress over strength
    TSAI_HILL,       ///< (s1/X)^2 - s1 s2/X^2 + (s2/Y)^2 + (t/S)^2, X and Y by the sign of their stress
    TSAI_WU,         ///< F1 s1 + F2 s2 + F11 s1^2 + F22 s2^2 + F66 t^2 + 2 F12 s1 s2
};

/// "maximum-stress", "tsai-hill", "tsai-wu"
std::string_view Keyword(FailureCriterion criterion);

/// The coefficients of Tsai and Wu's criterion.
struct TsaiWu {
    double f1, f2, f11, f22, f66, f12;
};
TsaiWu TsaiWuOf(const PlyStrength& strength);

/// How near a stress is to failure.
struct FailureMeasure {
    double
        index;  ///< the criterion's expression: failure at 1. Not linear in the load but for MAXIMUM_STRESS
    std::optional<double>
        loadFactor;  ///< by which the whole stress may grow until failure; nothing without stress
};

/// For a stress in the ply's axes, in the unit of the strengths.
FailureMeasure MeasureOf(FailureCriterion criterion, const PlyStrength& strength, const Vector3& plyStress);

/// Where a laminate first fails.
struct PlyFailure {
    FailureCriterion criterion;
    std::size_t layer;  ///< from 0, the bottom one first
    bool atTop;         ///< of the layer; else at its bottom
    FailureMeasure measure;
};

/// The place with the smallest load factor, the lowest one among equals; the factor acts on forces, moments
/// and the change of temperature together. Nothing without load. Refused as RespondTo refuses, and where a
/// layer's material has no strengths.
Outcome<std::optional<PlyFailure>> FirstPlyFailure(const Laminate& laminate, const LaminateLoad& load,
                                                   FailureCriterion criterion);

}  // namespace zelmat::mechanics
