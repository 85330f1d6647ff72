#pragma once

#include <optional>
#include <string>
#include <vector>

namespace zelmat {

class CardValues;

/// A quantity of a table, as the card and the report name it.
struct CardColumn {
    std::string name;   ///< on the card: "youngs_modulus"
    std::string title;  ///< in the report: "Young's modulus"
    std::string
        unit;  ///< SI, of the card and of the store; "-" for pure numbers, empty when it has none here
    /// What the store gets when the card leaves the column out; without it the column is required.
    std::optional<double> whenAbsent = std::nullopt;
};

/// Whether a table carries a temperature column, which then is its last one.
enum class TemperatureRule {
    AS_FLAGGED,  ///< exactly when the table is temperature dependent
    ALWAYS,      ///< also when it is not, as a plain fact about the rows
    NEVER,
};

/// The shape that the rows of a table have.
struct CardTableForm {
    std::vector<CardColumn> columns;
    TemperatureRule temperature = TemperatureRule::AS_FLAGGED;
    std::string with = {};   ///< what selected the form, for messages: "isotropic hardening"; may be empty
    bool singleRow = false;  ///< the store has room for one row only

    /// The columns of a table of this form, the temperature column included.
    std::vector<CardColumn> ColumnsOf(bool temperatureDependent) const;
};

/// The column that closes every table with temperatures.
const CardColumn& TemperatureColumn();

/// A bound that a behavior holds a column against when it is given a table.
struct CardRule {
    std::string code;      ///< of the finding: "poissons-ratio"
    std::string column;    ///< by its name on the card
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
struct CardTableKind {
    std::string name = {};   ///< key inside the block; empty when the block itself is the table
    std::string title = {};  ///< in the report, after the block's own; empty for the block's only table
    /// Nothing when the block's values do not say which form it is.
    std::optional<CardTableForm> (*form)(const CardValues& values) = nullptr;
    bool required = true;
    bool flagged = true;  ///< has the key `temperature_dependent`
    bool list = false;    ///< is a plain list of numbers; each is a row of one column
    std::vector<CardRule> rules = {};
    int leastRows = 1;  ///< a shorter table breaks a rule, too
    BrokenRule whenBroken = BrokenRule::STORED;
};

}  // namespace zelmat
