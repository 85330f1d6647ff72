#pragma once

#include <string>

#include "zelmat/quantities/UnitChoice.h"
#include "zelmat/report/HtmlWriter.h"
#include "zelmat/report/ReportContent.h"

namespace zelmat {

/// The data sheet of a material: identity, sources, every behavior with its values, tables, pictures and what
/// follows from it, and the findings. `id`: of its section, for links.
void WriteMaterialSheet(HtmlWriter& html, const ReportMaterial& material, const std::string& id,
                        const UnitChoice& units);

}  // namespace zelmat
