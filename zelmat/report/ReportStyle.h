#pragma once

#include <string>
#include <string_view>

namespace zelmat {

/// The style sheet of reports: light and dark as the reader's system is, light on A4 paper, where every data
/// sheet begins a page and no picture is cut. Text stands out from its ground by at least 7 to 1.
std::string_view ReportStyle();

/// What has the pages of one sheet say on paper whose they are. `id`: the sheet's; `name`: may hold anything.
std::string SheetPageStyle(const std::string& id, const std::string& name);

}  // namespace zelmat
