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

/// "Source: ..." of a table; empty where it names none.
std::string SourceNote(const Table& table);

/// "thermal_expansion" as part of a file's name: letters, digits, `-` and `_`.
std::string PlainName(std::string_view text);

}  // namespace zelmat
