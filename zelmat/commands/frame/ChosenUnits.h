#pragma once

#include <optional>

#include "zelmat/commands/frame/Command.h"
#include "zelmat/quantities/UnitChoice.h"

namespace zelmat {

/// The units in which a command shows numbers. Text for readers: what --units says, else the user's
/// configuration, else MPa and degC. What programs read (--json, --csv) depends on nothing but the command
/// line: SI, unless --units says otherwise. Nothing, and findings, when the option or the configuration
/// cannot be understood.
std::optional<UnitChoice> ChosenUnits(const CommonOptions& options, Findings& findings);

/// The units of what is drawn, which is for readers whatever else a command prints.
std::optional<UnitChoice> DrawnUnits(CommonOptions options, Findings& findings);

}  // namespace zelmat
