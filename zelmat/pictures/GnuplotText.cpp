#include "zelmat/pictures/GnuplotText.h"

#include <algorithm>
#include <array>
#include <utility>

#include "zelmat/text/Printable.h"
#include "zelmat/text/ReplaceAll.h"
#include "zelmat/text/XmlText.h"

namespace zelmat {

std::string GnuplotText(std::string_view text) {
    std::string line(text);
    std::replace_if(
        line.begin(), line.end(), [](char c) { return c == '\n' || c == '\r' || c == '\t'; }, ' ');
    std::string quoted = XmlCharacters(Printable(line));
    ReplaceAll(quoted, "'", "’");
    ReplaceAll(quoted, "]]>", "]] >");
    return "'" + quoted + "'";
}

std::string WrittenUnit(std::string_view spelling) {
    constexpr std::array<std::pair<std::string_view, std::string_view>, 5> kWritten = {
        {{"degC", "°C"}, {"degF", "°F"}, {"degR", "°R"}, {"m3", "m³"}, {"m2", "m²"}}};
    std::string unit(spelling);
    for (const auto& [plain, written] : kWritten) ReplaceAll(unit, plain, written);
    return unit;
}

std::string TitleWithUnit(const std::string& title, const std::string& unit) {
    return unit.empty() || unit == "-" ? title : title + " [" + WrittenUnit(unit) + "]";
}

}  // namespace zelmat
