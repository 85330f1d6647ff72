#pragma once

#include <cstdint>
#include <string>

#include "zelmat/commands/Command.h"
#include "zelmat/report/ReportContent.h"

namespace zelmat {

/// `report --since N`: adds the steps that a document was changed in after its step N, and in what materials
/// and layups it differs now from what it was then, value for value. Materials of an older release are
/// compared as they are brought up to date. Findings when the document has no such step.
void AddChangesSince(std::uint32_t step, const std::string& path, const CommandContext& context,
                     const UnitChoice& units, ReportContent& content);

}  // namespace zelmat
