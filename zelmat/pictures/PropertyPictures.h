#pragma once

#include <vector>

#include "zelmat/materials/Material.h"
#include "zelmat/pictures/Picture.h"
#include "zelmat/quantities/UnitChoice.h"

namespace zelmat {

/// The properties of a block over temperature, one picture a column: the rows as points with lines between
/// them, as properties are interpolated. None of tables that do not depend on temperature or have one row.
/// For blocks whose every column is a property: elastic, density, thermal expansion and their like.
std::vector<Picture> PropertyPictures(const Material& material, const Block& block, const UnitChoice& units);

/// Whether its columns are properties over temperature.
bool IsOfProperties(const Block& block);

/// "Elastic: Young's modulus"; "Density" where the block is called like its only property.
std::string PropertyTitle(const BlockKind& block, const ColumnKind& column);

/// Where a table's numbers come from: its own source, else those of its material; empty where neither has
/// one.
std::string SourceText(const Material& material, const Table& table);

/// The same as a note below a picture; none where it is empty.
void AddSourceNote(const Material& material, const Table& table, Picture& picture);

/// "thermal_expansion" as part of a file's name: letters, digits, `-` and `_`.
std::string PlainName(std::string_view text);

}  // namespace zelmat
