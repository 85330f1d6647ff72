#pragma once

#include <cstdint>
#include <vector>

#include "zelmat/documents/DocumentToRead.h"
#include "zelmat/quantities/UnitChoice.h"
#include "zelmat/report/ReportContent.h"

namespace zelmat {

/// `report --since N`: adds the steps that a document was changed in after its step N, and in what materials
/// and layups it differs now from what it was then, value for value. Materials of an older release are
/// compared as they are brought up to date. `document` was opened with its steps and goes to that one;
/// `now`: its materials before. False, and findings, when it has no such step.
[[nodiscard]] bool AddChangesSince(std::uint32_t step, DocumentToRead& document,
                                   const std::vector<Material>& now, const UnitChoice& units,
                                   ReportContent& content, Findings& findings);

}  // namespace zelmat
