#pragma once

#include <string>
#include <string_view>

namespace zelmat {

/// Foreign text as it may stand in XML and HTML, between tags and in quoted attributes, on one line: the five
/// characters of markup as references, whatever is not UTF-8 or no character of XML as U+FFFD, control
/// characters and turns of the direction of writing as `Printable` shows them.
std::string XmlText(std::string_view text);

/// Printable text with what XML has no character for as U+FFFD, and markup as it is.
std::string XmlCharacters(std::string_view printable);

}  // namespace zelmat
