#pragma once

#include <optional>
#include <string>
#include <vector>

#include "zelmat/materials/BlockKind.h"

namespace zelmat {

/// Whether a table of the block that is not inside it has a column of this name, in whichever form.
bool HasColumn(const BlockKind& block, const std::string& column);

/// A table and the block that has it.
struct FoundTable {
    const BlockKind* block;
    const TableKind* table;
};

/// The first table of a behavior that takes exactly these columns, whatever the field calls them: those of
/// `youngs_modulus`, `poissons_ratio` are an `elastic` table. Nothing when there is none.
std::optional<FoundTable> FindTableByColumns(const std::vector<std::string>& names);

}  // namespace zelmat
