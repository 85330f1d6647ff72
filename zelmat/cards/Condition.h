#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "zelmat/materials/Material.h"
#include "zelmat/quantities/QuantityResult.h"

namespace zelmat {

/// A bound that a value of a material is held against: "elastic.youngs_modulus@20degC > 60GPa".
///
/// The value is named as a card names it: a block with one column ("density"), a column of a table
/// ("elastic.youngs_modulus", "gasket.loading.pressure"), or a number beside the tables; or in any of the
/// other ways that CardKey knows ("E", "rho"). Without "@" every
/// row of the table has to keep the bound. With a temperature it is the value there, linear between the rows;
/// of several rows of one temperature, each. Outside the temperatures of the table there is none; a table
/// that is not temperature dependent holds at every temperature.
class Condition {
public:
    /// The error is one sentence.
    static QuantityResult<Condition> Read(std::string_view text);

    /// Whether the material has the value and keeps the bound.
    bool IsMet(const Material& material) const;

private:
    bool Keeps(double value) const;
    bool TableKeeps(const Table& table) const;
    bool KeepsAt(const Column& column, const Column& temperatures) const;

    const BlockKind* block_ = nullptr;
    const TableKind* table_ = nullptr;   ///< null: a number beside the tables
    std::string name_;                   ///< of the column or setting
    std::optional<double> temperature_;  ///< K
    std::string operator_;
    double bound_ = 0.0;  ///< as stored
};

/// Conditions with "and" between them, in small letters or capitals, all of which have to be met.
QuantityResult<std::vector<Condition>> ReadConditions(std::string_view text);

}  // namespace zelmat
