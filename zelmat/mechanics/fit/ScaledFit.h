#pragma once

#include <optional>
#include <vector>

#include "zelmat/mechanics/fit/FitParameters.h"
#include "zelmat/mechanics/fit/LeastSquares.h"
#include "zelmat/mechanics/fit/TestCurve.h"
#include "zelmat/mechanics/fit/Uncertainty.h"
#include "zelmat/mechanics/hyperelastic/HyperelasticModel.h"

namespace zelmat::mechanics {

/// A potential and the points that it is fitted to, in a unit in which the stresses are of the order of 1; so
/// that a fit does not depend on the unit of the tests. Parameters are those of FitParameters. Immutable.
class ScaledFit {
public:
    /// At least one point; for RELATIVE none of zero stress.
    ScaledFit(HyperelasticModel model, int order, std::vector<FitPoint> points, DeviationMeasure measure);

    /// The minima that the most promising starts lead to, the smallest sum first. Of very many points they
    /// are looked for among some, and followed in all of them. None where no start has a finite response at
    /// all points.
    std::vector<LeastSquaresResult> Minima() const;

    /// Of a minimum, in the unit of the tests.
    std::vector<double> Coefficients(const LeastSquaresResult& minimum) const;

    /// Of the coefficients in the unit of the tests.
    Uncertainty UncertaintyAt(const LeastSquaresResult& minimum) const;

private:
    LeastSquaresProblem Problem() const;
    std::vector<LeastSquaresResult> Searched() const;
    std::vector<LeastSquaresResult> Followed(const ScaledFit& some) const;
    std::optional<Residuals> Evaluate(const std::vector<double>& parameters) const;

    HyperelasticModel model_;
    int order_;
    DeviationMeasure measure_;
    std::vector<FitPoint> points_;  ///< scaled
    FitParameters parameters_;
    double unit_ = 0.0;            ///< of stress, in the unit of the tests
    std::vector<double> units_;    ///< by coefficient
    std::vector<double> weights_;  ///< what turns a deviation of stress into what is squared
};

}  // namespace zelmat::mechanics
