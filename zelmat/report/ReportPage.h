#pragma once

#include <string>

#include "zelmat/quantities/UnitChoice.h"
#include "zelmat/report/ReportContent.h"

namespace zelmat {

/// A report as one HTML page that needs nothing besides, and that a browser lets load nothing: contents, a
/// data sheet for every material and layup, and the changes of a document. The same content gives the same
/// bytes.
std::string ReportPage(const ReportContent& content, const UnitChoice& units);

}  // namespace zelmat
