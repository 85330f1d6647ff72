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

/// What a character of markup is written as; empty for every other one.
std::string_view Reference(char symbol) {
    switch (symbol) {
        case '&':
            return "&amp;";
        case '<':
            return "&lt;";
        case '>':
            return "&gt;";
        case '"':
            return "&quot;";
        case '\'':
            return "&#39;";
        default:
            return {};
    }
}

}  // namespace

std::string XmlCharacters(std::string_view printable) {
    std::string characters;
    characters.reserve(printable.size());
    for (auto at = printable.begin(); at != printable.end();) {
        const auto start = at;
        if (IsNoCharacter(utf8::unchecked::next(at))) {
            characters += "\xef\xbf\xbd";
        } else {
            characters.append(start, at);
        }
    }
    return characters;
}

std::string XmlText(std::string_view text) {
    std::string xml;
    for (const char symbol : XmlCharacters(Printable(text))) {
        const std::string_view reference = Reference(symbol);
        if (reference.empty()) {
            xml += symbol;
        } else {
            xml += reference;
        }
    }
    return xml;
}

}  // namespace zelmat
