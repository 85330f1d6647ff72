#pragma once

#include <string>

#include "zelmat/quantities/UnitChoice.h"
#include "zelmat/report/HtmlWriter.h"
#include "zelmat/report/ReportContent.h"

namespace zelmat {

/// The data sheet of a layup: sources, stack, layers, ply materials, stiffness and findings. `id`: of its
/// section, for links.
void WriteLayupSheet(HtmlWriter& html, const ReportLayup& layup, const std::string& id,
                     const UnitChoice& units);

}  // namespace zelmat
