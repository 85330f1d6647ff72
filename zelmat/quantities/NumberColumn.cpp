#include "zelmat/quantities/NumberColumn.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>

namespace zelmat {

namespace {

/// A number apart at its decimal point: "-12", "5", "" or "2", "5", "e-05".
struct Pieces {
    std::string whole;
    std::string decimals;
    std::string exponent;
};

/// The longest plain number has 309 digits and the longest small one 324 and 17 more.
using Buffer = std::array<char, 400>;

Pieces Apart(double number, std::chars_format format) {
    Buffer buffer;
    const char* const end =
        std::isfinite(number)
            ? std::to_chars(buffer.data(), buffer.data() + buffer.size(), number, format).ptr
            : std::to_chars(buffer.data(), buffer.data() + buffer.size(), number).ptr;
    const std::string text(static_cast<const char*>(buffer.data()), end);
    if (!std::isfinite(number)) return {text, "", ""};
    const std::size_t exponent = std::min(text.find('e'), text.size());
    const std::size_t point = std::min(text.find('.'), exponent);
    return {text.substr(0, point),
            point < exponent ? text.substr(point + 1, exponent - point - 1) : std::string(),
            text.substr(exponent)};
}

std::vector<std::string> Column(std::span<const double> numbers, std::chars_format format) {
    std::vector<Pieces> all;
    all.reserve(numbers.size());
    std::size_t decimals = 0;
    for (const double number : numbers) {
        all.push_back(Apart(number, format));
        decimals = std::max(decimals, all.back().decimals.size());
    }
    std::vector<std::string> texts;
    texts.reserve(numbers.size());
    std::size_t width = 0;
    for (std::size_t i = 0; i < all.size(); ++i) {
        Pieces& pieces = all[i];
        if (decimals > 0 && std::isfinite(numbers[i])) {
            pieces.decimals.resize(decimals, '0');
            pieces.whole += '.';
        }
        texts.push_back(pieces.whole + pieces.decimals + pieces.exponent);
        width = std::max(width, texts.back().size());
    }
    for (std::string& text : texts) text.insert(0, width - text.size(), ' ');
    return texts;
}

}  // namespace

std::vector<std::string> NumberColumn(std::span<const double> numbers) {
    constexpr std::size_t kWidePlain = 10;
    constexpr double kSmall = 1e-3;
    double largest = 0.0;
    for (const double number : numbers) {
        if (std::isfinite(number)) largest = std::max(largest, std::abs(number));
    }
    auto plain = Column(numbers, std::chars_format::fixed);
    const bool small = largest > 0.0 && largest < kSmall;
    if (numbers.empty() || (!small && plain.front().size() <= kWidePlain)) return plain;
    auto scientific = Column(numbers, std::chars_format::scientific);
    return small || scientific.front().size() < plain.front().size() ? scientific : plain;
}

}  // namespace zelmat
