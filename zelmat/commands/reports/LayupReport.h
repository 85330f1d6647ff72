#pragma once

#include <nlohmann/json.hpp>
#include <ostream>

#include "zelmat/findings/Findings.h"
#include "zelmat/layups/LayupCard.h"
#include "zelmat/layups/StoredLayup.h"
#include "zelmat/quantities/UnitChoice.h"

namespace zelmat {

/// What a layup that cannot be used lacks, as findings: which layer, and what. None for a valid one.
void ReportValidity(const LayupCard& card, const StoredLayup& stored, Findings& findings);

/// The layup as an analyst reads it: its layers from the bottom up with the z of their faces, whether it is
/// valid and used, and the constants of its materials. Numbers are in the units chosen.
void PrintLayup(std::ostream& out, const LayupCard& card, const StoredLayup& stored, const UnitChoice& units);

/// A line for each of several, and how many they are.
void PrintLayupList(std::ostream& out, const std::vector<StoredLayup>& layups);

/// The same as PrintLayup for programs, each number with its unit beside it.
nlohmann::ordered_json ToJson(const LayupCard& card, const StoredLayup& stored, const UnitChoice& units);

}  // namespace zelmat
