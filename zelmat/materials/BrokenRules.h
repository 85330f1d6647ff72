#pragma once

#include <string>
#include <vector>

#include "zelmat/findings/Findings.h"
#include "zelmat/materials/Material.h"

namespace zelmat {

/// "row 2 of plastic: plastic strain is 0.002", as findings about a value of a table begin.
std::string RowText(const std::string& tableName, const Column& column, std::size_t row);

/// Why a behavior refused a table or complained about it, in words: each value with its row and its bound,
/// and whether the data were stored. Empty when the table breaks no rule of its kind.
std::vector<Finding> BrokenRules(const BlockKind& block, const Table& table, const std::string& file);

}  // namespace zelmat
