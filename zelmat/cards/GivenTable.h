#pragma once

#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <vector>

#include "zelmat/cards/ReadCard.h"
#include "zelmat/findings/Findings.h"
#include "zelmat/materials/TableKind.h"

namespace zelmat {

/// The only table of a file in any form of card, with a header line that names the columns: an object with
/// `columns`, `rows` and, where the file says it, `temperature_dependent`. `wanted`: the columns that it is
/// to have; each that measures something has to name its unit, since no card around the file says it.
/// Nothing, and findings, for a file that cannot be read, that holds another number of tables, or a column
/// without its unit. Whether the columns are those that are wanted, whoever puts the table on a card finds.
std::optional<nlohmann::ordered_json> ReadGivenTable(const std::string& path,
                                                     const std::vector<ColumnKind>& wanted,
                                                     const CardReading& how, Findings& findings);

}  // namespace zelmat
