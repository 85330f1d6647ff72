#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace zelmat {

/// How wide a text is when it is drawn, in the unit of the font's size: an upper estimate for sans-serif
/// fonts, since what draws a picture chooses the font.
double TextWidth(std::string_view utf8, double fontSize);

/// A text in lines that are no wider than that, broken at blanks, and within a word that is wider than a
/// line. What more than `mostLines` would take ends in "…". One empty line for an empty text. UTF-8.
std::vector<std::string> WrappedText(std::string_view utf8, double width, double fontSize,
                                     std::size_t mostLines);

/// A text on one line, its end given up for "…" where it is wider than that. UTF-8.
std::string ShortenedText(std::string_view utf8, double width, double fontSize);

}  // namespace zelmat
