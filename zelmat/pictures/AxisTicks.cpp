#include "zelmat/pictures/AxisTicks.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace zelmat {

namespace {

/// Below and above these, zeros are harder to count than an exponent is to read.
constexpr double kLeastPlain = 1e-3, kGreatestPlain = 1e6;

int ExponentOf(const PictureRange& range) {
    const double greatest = std::max(std::abs(range.lower), std::abs(range.upper));
    if (greatest == 0.0 || (greatest >= kLeastPlain && greatest < kGreatestPlain)) return 0;
    constexpr double kGroup = 3.0;
    return 3 * static_cast<int>(std::floor(std::log10(greatest) / kGroup));
}

std::string FixedText(double number, int decimals) {
    std::array<char, 64> text{};
    const auto [end, error] = std::to_chars(text.data(), text.data() + text.size(), number,
                                            std::chars_format::fixed, std::max(0, decimals));
    return error == std::errc() ? std::string(text.data(), end) : std::string();
}

}  // namespace

double RoundStep(double step) {
    constexpr double kRounding = 1.0 - 1e-9;
    const double power = std::pow(10.0, std::floor(std::log10(step)));
    for (const double factor : {1.0, 2.0, 5.0}) {
        if (factor * power >= step * kRounding) return factor * power;
    }
    return 10.0 * power;
}

AxisTicks TicksOf(const PictureRange& range, int most) {
    constexpr double kRounding = 1e-6;  // of a step
    AxisTicks axis{.ticks = {}, .exponent = ExponentOf(range)};
    const double unit = std::pow(10.0, axis.exponent);
    const double lower = range.lower / unit, upper = range.upper / unit;
    // Halves first: the difference of the greatest numbers is none.
    const double step = RoundStep(2.0 * (upper / 2.0 - lower / 2.0) / most);
    if (!std::isnormal(step) || !std::isnormal(unit)) return axis;
    const int decimals = -static_cast<int>(std::floor(std::log10(step) + kRounding));
    const double first = std::ceil(lower / step - kRounding), last = std::floor(upper / step + kRounding);
    for (double count = first; count <= last; ++count) {
        const double number = count == 0.0 ? 0.0 : count * step;
        axis.ticks.push_back({number * unit, FixedText(number, decimals)});
        if (count + 1.0 == count) break;  // nothing between numbers so far apart
    }
    return axis;
}

std::string UnitWithExponent(const std::string& unit, int exponent) {
    if (exponent == 0) return unit;
    constexpr std::array<const char*, 10> kDigits = {"⁰", "¹", "²", "³", "⁴", "⁵", "⁶", "⁷", "⁸", "⁹"};
    std::string power = exponent < 0 ? "10⁻" : "10";
    for (const char digit : std::to_string(std::abs(exponent)))
        power += kDigits.at(static_cast<std::size_t>(digit - '0'));
    if (unit.empty() || unit == "-") return power;
    return unit.starts_with("1/") ? power + unit.substr(1) : power + " " + unit;
}

}  // namespace zelmat
