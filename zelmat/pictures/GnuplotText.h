#pragma once

#include <string>
#include <string_view>

namespace zelmat {

/// Foreign text as a string of a gnuplot script: single-quoted, where nothing but the quote has a meaning (in
/// double quotes `...` would be a command for the shell). The quote itself becomes ’, since gnuplot 5.4
/// misreads some doubled ones; what is no printable character is shown as an escape, ends of lines as blanks;
/// `]]>` gets a blank, because gnuplot writes texts of an SVG as they are.
std::string GnuplotText(std::string_view text);

/// A unit as a reader writes it: "°C" for "degC", "kg/m³" for "kg/m3".
std::string WrittenUnit(std::string_view spelling);

/// "Young's modulus [GPa]"
std::string TitleWithUnit(const std::string& title, const std::string& unit);

}  // namespace zelmat
