#pragma once

#include <optional>
#include <string>
#include <vector>

#include "zelmat/commands/frame/Result.h"
#include "zelmat/findings/Findings.h"
#include "zelmat/materials/Material.h"
#include "zelmat/mechanics/tables/TemperatureTable.h"

namespace zelmat {

/// Where a block is asked for its value; SI, and nothing where it was not said.
struct AtQuestion {
    std::optional<double> temperature;
    std::optional<double> plasticStrain;
    std::optional<double> strainRate;
    std::optional<double> closure;
    std::optional<mechanics::OutsidePolicy> outside;
    std::optional<double> referenceTemperature;
    bool instantaneous = false;

    mechanics::OutsidePolicy Policy() const { return outside.value_or(mechanics::OutsidePolicy::REFUSE); }
};

/// Why a block has no value there, and what would do.
struct AtProblem {
    std::string text;
    std::vector<std::string> details = {};
};

/// How one kind of block is asked. A new kind of block that can be is a row of the table in AtBlock.cpp.
struct AtReader {
    std::string block;
    std::vector<std::string> options;  ///< that mean something for it
    /// Puts the answer into the result. `block` is in the stored meaning.
    std::optional<AtProblem> (*read)(const Block& block, const AtQuestion& question, Result& result);
};

/// Null, and a finding with the nearest name, for a block that cannot be asked.
const AtReader* FindAtReader(const std::string& block, Findings& findings);

}  // namespace zelmat
