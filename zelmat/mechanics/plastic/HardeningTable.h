#pragma once

#include <string>
#include <vector>

#include "zelmat/mechanics/Outcome.h"
#include "zelmat/mechanics/tables/TemperatureTable.h"

namespace zelmat::mechanics {

/// A row of a hardening table.
struct HardeningPoint {
    double stress;  ///< yield stress, any one unit
    double plasticStrain;
    double temperature;
};

/// What a hardening table answers.
struct HardeningValue {
    double stress;
    bool outsideStrain;              ///< beyond the last point of a curve that was read: its last stress
    bool outsideTemperature;         ///< outside the curves: that of the nearest one
    std::vector<std::string> notes;  ///< the same in words
};

/// Yield stress over plastic strain, one curve a temperature. Linear between points and between temperatures,
/// constant outside, and every read outside says so. Immutable.
class HardeningTable {
public:
    /// Rows sorted by temperature, then by plastic strain. Refused without rows, for numbers that are not
    /// finite, temperatures that fall, curves that do not start at plastic strain 0, and strains that do not
    /// rise within a curve.
    static Outcome<HardeningTable> Over(std::vector<HardeningPoint> rows);

    /// Refused for a negative plastic strain and numbers that are not finite.
    Outcome<HardeningValue> At(double plasticStrain, double temperature) const;

    const std::vector<HardeningPoint>& Rows() const { return rows_; }
    /// How far the curves that are read at a temperature go, all of them.
    double GreatestPlasticStrain(double temperature) const;
    TemperatureRange Temperatures() const { return {rows_.front().temperature, rows_.back().temperature}; }

private:
    /// The rows [begin, end) of one temperature.
    struct Curve {
        std::size_t begin, end;
    };

    HardeningTable(std::vector<HardeningPoint> rows, std::vector<Curve> curves)
        : rows_(std::move(rows)), curves_(std::move(curves)) {}

    /// The curves on both sides of a temperature; twice the same one on a curve and outside.
    struct Between {
        Curve below, above;
    };
    Between CurvesAt(double temperature) const;

    double TemperatureOf(const Curve& curve) const { return rows_[curve.begin].temperature; }
    double StressOn(const Curve& curve, double plasticStrain) const;

    std::vector<HardeningPoint> rows_;
    std::vector<Curve> curves_;
};

}  // namespace zelmat::mechanics
