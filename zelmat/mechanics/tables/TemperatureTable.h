#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "zelmat/mechanics/Outcome.h"

namespace zelmat::mechanics {

/// What is answered outside the temperatures of a table.
enum class OutsidePolicy : int {
    REFUSE,    ///< nothing: the default of a careful reader
    CONSTANT,  ///< the values of the nearest row: what solvers do
    LINEAR,    ///< along the line through the two nearest rows
};

/// "error", "constant", "linear"
std::string_view Keyword(OutsidePolicy policy);
std::optional<OutsidePolicy> OutsidePolicyOf(std::string_view keyword);

/// Where an answer lies in its table.
enum class TablePosition : int { INDEPENDENT, ON_ROW, BETWEEN_ROWS, BELOW, ABOVE };

/// The values of a table at one temperature.
struct TableValue {
    std::vector<double> values;
    TablePosition position;
    OutsidePolicy policy;  ///< the one asked for; it was used where the position is BELOW or ABOVE
    std::vector<std::string>
        notes;  ///< "interpolated between rows", "below the table: value of its first row", ...
};

struct TemperatureRange {
    double lowest, highest;
};

/// Values over temperature, linear between rows: one value a row (a density), or several that belong together
/// (the coefficients of a potential). Any units; kelvin or degrees Celsius alike. Immutable.
class TemperatureTable {
public:
    struct Row {
        double temperature;
        std::vector<double> values;
    };

    /// Refuses no rows, temperatures that do not rise from row to row, rows of different length, numbers that
    /// are not finite.
    static Outcome<TemperatureTable> Over(std::vector<Row> rows);

    /// The same values at every temperature.
    static TemperatureTable Independent(std::vector<double> values);

    /// Refused outside with REFUSE, with LINEAR for a table of one row, and for a temperature that is no
    /// finite number.
    Outcome<TableValue> At(double temperature, OutsidePolicy policy) const;

    /// d values / d temperature on both sides; they differ on a row. Outside, and for one row: 0 with
    /// CONSTANT, else of the nearest two rows.
    struct Slopes {
        std::vector<double> below, above;
    };
    Outcome<Slopes> SlopesAt(double temperature, OutsidePolicy policy) const;

    /// Nothing for a table that does not depend on temperature.
    std::optional<TemperatureRange> Range() const;

    const std::vector<Row>& Rows() const { return rows_; }

private:
    TemperatureTable(std::vector<Row> rows, bool independent)
        : rows_(std::move(rows)), independent_(independent) {}

    TablePosition PositionOf(double temperature) const;
    std::vector<double> Slope(std::size_t upperRow) const;

    std::vector<Row> rows_;
    bool independent_;
};

}  // namespace zelmat::mechanics
