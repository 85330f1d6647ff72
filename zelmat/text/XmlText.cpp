#include "zelmat/text/XmlText.h"

#include <utf8.h>

#include <cstdint>

#include "zelmat/text/Printable.h"

namespace zelmat {

namespace {

/// U+FDD0 to U+FDEF and the last two of every plane: valid in UTF-8, refused by XML and HTML.
bool IsNoCharacter(std::uint32_t point) {
    return (point >= 0xfdd0 && point <= 0xfdef) || (point & 0xfffe) == 0xfffe;
}

}  // namespace

std::string XmlText(std::string_view text) {
    const std::string printable = Printable(text);
    std::string xml;
    xml.reserve(printable.size());
    for (auto at = printable.begin(); at != printable.end();) {
        const auto start = at;
        const std::uint32_t point = utf8::unchecked::next(at);
        if (point == '&') {
            xml += "&amp;";
        } else if (point == '<') {
            xml += "&lt;";
        } else if (point == '>') {
            xml += "&gt;";
        } else if (point == '"') {
            xml += "&quot;";
        } else if (point == '\'') {
            xml += "&#39;";
        } else if (IsNoCharacter(point)) {
            xml += "\xef\xbf\xbd";
        } else {
            xml.append(start, at);
        }
    }
    return xml;
}

}  // namespace zelmat
