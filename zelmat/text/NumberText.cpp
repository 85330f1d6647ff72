#include "zelmat/text/NumberText.h"

#include <array>
#include <charconv>

namespace zelmat {

std::string NumberText(double number) {
    // The longest shortest form is "-2.2250738585072014e-308".
    std::array<char, 32> text;
    const auto end = std::to_chars(text.data(), text.data() + text.size(), number).ptr;
    return {text.data(), end};
}

std::string WithUnit(double number, const std::string& unit) {
    const bool pure = unit.empty() || unit == "-";
    return pure ? NumberText(number) : NumberText(number) + " " + unit;
}

std::string CountText(std::size_t count, const std::string& noun) {
    return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

}  // namespace zelmat
