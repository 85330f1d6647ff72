#pragma once

#include <optional>
#include <string_view>

#include "zelmat/quantities/UnitWords.h"

namespace zelmat {

/// What the unit database of UDUNITS-2 says a single word means: rarer units, and long names with their
/// prefix
/// ("furlong", "kilonewton", "poise"). Nothing for a word that it lacks, for scales with an offset or a
/// logarithm, and for every word when no database is installed. It is read at the first question, whatever
/// the locale; messages of the library never reach standard error.
///
/// Only words are looked up, and never through the library's own parser: that one depends on the locale,
/// reads "W/m K" as W K/m, and takes "mpa" to be a unit.
std::optional<UnitWord> FindDatabaseWord(std::string_view word);

}  // namespace zelmat
