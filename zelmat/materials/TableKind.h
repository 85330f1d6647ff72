#pragma once

#include <optional>
#include <string>
#include <vector>

namespace zelmat {

class Values;

/// What the numbers of a column are.
struct ColumnKind {
    std::string name;   ///< "youngs_modulus"
    std::string title;  ///< for a reader: "Young's modulus"
    std::string unit;   ///< SI, as stored; "-" for pure numbers, empty when it has none of its own
    /// What the store gets when the column is left out; without it the column is required.
    std::optional<double> whenAbsent = std::nullopt;
};

/// The column whose numbers a list attribute holds: title and unit as the catalog has them.
ColumnKind StoredColumn(const char* name, const char* lateType, const char* attribute);

/// The column that closes every table with temperatures.
const ColumnKind& TemperatureColumn();

/// Whether a table carries a temperature column, which then is its last one.
enum class TemperatureRule {
    AS_FLAGGED,  ///< exactly when the table is temperature dependent
    ALWAYS,      ///< also when it is not, as a plain fact about the rows
    NEVER,
};

/// The shape that the rows of a table have.
struct TableForm {
    std::vector<ColumnKind> columns;
    TemperatureRule temperature = TemperatureRule::AS_FLAGGED;
    std::string with = {};   ///< what selected the form, for messages: "isotropic hardening"; may be empty
    bool singleRow = false;  ///< the store has room for one row only

    /// The columns of a table of this form, the temperature column included.
    std::vector<ColumnKind> ColumnsOf(bool temperatureDependent) const;
};

/// A bound that a behavior holds a column against when it is given a table.
struct TableRule {
    std::string code;      ///< of the finding: "poissons-ratio"
    std::string column;    ///< by its name
    bool everyRow = true;  ///< false: the first row only
    bool (*broken)(double value) = nullptr;
    std::string bound;  ///< "has to be above 0"
};

/// What becomes of a table that breaks a rule.
enum class BrokenRule {
    STORED,   ///< the behavior looks after it wrote: the data are stored
    REFUSED,  ///< it looks before: what was stored stays as it was
};

/// All that tells one table of a block from the next.
struct TableKind {
    std::string name = {};   ///< inside the block; empty for the block's only table
    std::string title = {};  ///< for a reader, after the block's own; empty for the block's only table
    /// Nothing when the block's values do not say which form it is.
    std::optional<TableForm> (*form)(const Values& values) = nullptr;
    bool required = true;
    bool flagged = true;  ///< says whether it is temperature dependent
    bool list = false;    ///< is a plain list of numbers; each is a row of one column
    std::vector<TableRule> rules = {};
    int leastRows = 1;  ///< a shorter table breaks a rule, too
    BrokenRule whenBroken = BrokenRule::STORED;
};

}  // namespace zelmat
