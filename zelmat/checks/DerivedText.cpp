#include "zelmat/checks/DerivedText.h"

#include <array>
#include <charconv>

#include "zelmat/quantities/NumberText.h"

namespace zelmat {

std::string DerivedText(double number, const std::string& unit) {
    constexpr int kDigits = 4;
    std::array<char, 32> text{};
    const auto written =
        std::to_chars(text.data(), text.data() + text.size(), number, std::chars_format::general, kDigits);
    double rounded = number;
    std::from_chars(text.data(), written.ptr, rounded);
    return WithUnit(rounded, unit);
}

}  // namespace zelmat
