#pragma once

#include <optional>
#include <string>
#include <vector>

#include "zelmat/materials/BlockKind.h"

namespace zelmat {

/// Whether a table of the block, its own or the one of that name inside it, has a column of this name, in
/// whichever form.
bool HasColumn(const BlockKind& block, const std::string& column, const std::string& table = {});

/// The block that a property beside the blocks belongs to, such as `youngs_modulus`: one with a table of its
/// own that has such a column. Null when there is none; null for the temperature, which every table has.
const BlockKind* BlockOfProperty(const std::string& property);

/// A table and the block that has it.
struct FoundTable {
    const BlockKind* block;
    const TableKind* table;
};

/// The first table of a behavior that takes exactly these columns, whatever the field calls them: those of
/// `youngs_modulus`, `poissons_ratio` are an `elastic` table. Nothing when there is none.
std::optional<FoundTable> FindTableByColumns(const std::vector<std::string>& names);

}  // namespace zelmat
