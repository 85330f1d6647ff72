#include "zelmat/quantities/NumberText.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace zelmat {

std::string NumberText(double number) {
    std::array<char, 32> text;  // the longest is "-2.2250738585072014e-308"
    const auto end = std::to_chars(text.data(), text.data() + text.size(), number).ptr;
    return {text.data(), end};
}

double RoundedTo(double number, int digits) {
    std::array<char, 32> text;
    const auto written =
        std::to_chars(text.data(), text.data() + text.size(), number, std::chars_format::general, digits);
    double rounded = number;
    std::from_chars(text.data(), written.ptr, rounded);
    return rounded == 0.0 ? 0.0 : rounded;
}

std::string RoundedText(double number, int digits) {
    const double rounded = RoundedTo(number, digits);
    std::array<char, 32> text;
    const auto end = std::to_chars(text.data(), text.data() + text.size(), rounded,
                                   std::chars_format::general, std::max(digits, 6))
                         .ptr;
    return {text.data(), end};
}

std::string WithUnit(double number, const std::string& unit) {
    const bool pure = unit.empty() || unit == "-";
    return pure ? NumberText(number) : NumberText(number) + " " + unit;
}

}  // namespace zelmat
