#include "zelmat/text/Printable.h"

#include <utf8.h>

#include <array>
#include <cstdint>
#include <cstdio>
#include <iterator>

namespace zelmat {

namespace {

bool IsControl(std::uint32_t point) {
    return point < 0x20 || (point >= 0x7f && point < 0xa0);
}

/// Line and paragraph separators, and the marks that change the direction in which what follows is shown.
bool ChangesTheLine(std::uint32_t point) {
    return (point >= 0x200e && point <= 0x200f) || (point >= 0x2028 && point <= 0x202e) ||
           (point >= 0x2066 && point <= 0x2069) || point == 0x061c;
}

std::string Hexadecimal(const char* format, std::uint32_t point) {
    std::array<char, 12> text{};  // two signs, eight digits, and the end
    std::snprintf(text.data(), text.size(), format, point);
    return text.data();
}

std::string Escape(std::uint32_t point) {
    if (point == '\n') return "\\n";
    if (point == '\r') return "\\r";
    if (point == '\t') return "\\t";
    return Hexadecimal(point < 0x100 ? "\\x%02x" : "\\u%04x", point);
}

/// UTF-8 with some of its characters written as escapes.
template <class IsEscaped, class ToEscape>
std::string Escaped(std::string_view text, IsEscaped isEscaped, ToEscape escape) {
    std::string escaped;
    escaped.reserve(text.size());
    for (auto at = text.begin(); at != text.end();) {
        const auto start = at;
        const std::uint32_t point = utf8::unchecked::next(at);
        if (isEscaped(point)) {
            escaped += escape(point);
        } else {
            escaped.append(start, at);
        }
    }
    return escaped;
}

}  // namespace

std::optional<std::size_t> FirstBadByte(std::string_view text) {
    const auto bad = utf8::find_invalid(text.begin(), text.end());
    if (bad == text.end()) return std::nullopt;
    return static_cast<std::size_t>(bad - text.begin());
}

std::string ValidUtf8(std::string_view text) {
    std::string valid;
    valid.reserve(text.size());
    utf8::replace_invalid(text.begin(), text.end(), std::back_inserter(valid), 0xfffd);
    return valid;
}

std::string Printable(std::string_view text) {
    return Escaped(
        ValidUtf8(text), [](std::uint32_t point) { return IsControl(point) || ChangesTheLine(point); },
        Escape);
}

std::string PrintableJson(std::string_view json) {
    constexpr std::uint32_t kFirstThatJsonLetsThrough = 0x7f;  // JSON escapes what is below ' ' by itself
    return Escaped(
        json,
        [](std::uint32_t point) {
            return point >= kFirstThatJsonLetsThrough && (IsControl(point) || ChangesTheLine(point));
        },
        [](std::uint32_t point) { return Hexadecimal("\\u%04x", point); });
}

}  // namespace zelmat
