#pragma once

#include <optional>
#include <string>
#include <vector>

#include "zelmat/mechanics/Outcome.h"
#include "zelmat/mechanics/hyperelastic/LoadingMode.h"

namespace zelmat::mechanics {

/// Whether a point counts by its deviation relative to the measured stress, or by the deviation itself.
enum class DeviationMeasure : int { RELATIVE, ABSOLUTE };

/// One measured point.
struct TestPoint {
    double stretch;        ///< in SIMPLE_SHEAR the amount of shear
    double nominalStress;  ///< force by undeformed area; any one unit of stress for all tests together
};

/// The nominal stress of a measured true one, by the mode: true stress over stretch; in SIMPLE_SHEAR both are
/// the same.
double NominalStressOf(LoadingMode mode, double stretch, double trueStress);

/// The curve of one specimen. A mode may have several.
struct TestCurve {
    LoadingMode mode;
    std::vector<TestPoint> points;
    double weight = 1.0;          ///< of every point's squared deviation
    std::optional<double> lower;  ///< points at smaller stretches are left out
    std::optional<double> upper;  ///< points at greater stretches are left out
};

/// A point as a fit takes it.
struct FitPoint {
    LoadingMode mode;
    double stretch;
    double nominalStress;
    double weight;
};

/// All points of all curves that count, and what was noticed about them.
struct FitData {
    std::vector<FitPoint> points;
    std::vector<std::string> notes;     ///< which were left out, as it was asked for
    std::vector<std::string> warnings;  ///< what is hardly meant
};

/// Leaves out the points outside a curve's limits and for RELATIVE those of zero stress. Refuses stretches
/// that cannot be, numbers that are not finite, weights that are not above 0, and data without a point that
/// counts.
Outcome<FitData> TakeTestData(const std::vector<TestCurve>& curves, DeviationMeasure measure);

}  // namespace zelmat::mechanics
