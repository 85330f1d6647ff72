#include "zelmat/NumberText.h"

#include <array>
#include <charconv>

namespace zelmat {

std::string NumberText(double number) {
    // The longest shortest form is "-2.2250738585072014e-308".
    std::array<char, 32> text;
    const auto end = std::to_chars(text.data(), text.data() + text.size(), number).ptr;
    return {text.data(), end};
}

}  // namespace zelmat
