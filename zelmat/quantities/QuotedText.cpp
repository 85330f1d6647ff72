#include "zelmat/quantities/QuotedText.h"

#include <cstddef>

namespace zelmat {

namespace {

constexpr std::size_t kLongest = 60;

/// Bytes of the character of UTF-8 at the beginning of `text`, 0 when there is none that can be printed.
std::size_t PrintableBytes(std::string_view text) {
    const auto byte = [&](std::size_t at) { return static_cast<unsigned char>(text[at]); };
    if (byte(0) < 0x80) return byte(0) >= 0x20 && byte(0) != 0x7f ? 1 : 0;
    const std::size_t bytes = byte(0) >= 0xf0 ? 4 : byte(0) >= 0xe0 ? 3 : 2;
    if (byte(0) < 0xc2 || byte(0) > 0xf4 || text.size() < bytes) return 0;
    for (std::size_t at = 1; at < bytes; ++at) {
        if ((byte(at) & 0xc0u) != 0x80u) return 0;
    }
    const bool control = byte(0) == 0xc2 && byte(1) < 0xa0;
    const bool overlong = (byte(0) == 0xe0 && byte(1) < 0xa0) || (byte(0) == 0xf0 && byte(1) < 0x90);
    const bool surrogate = byte(0) == 0xed && byte(1) >= 0xa0;
    const bool beyond = byte(0) == 0xf4 && byte(1) >= 0x90;
    // The marks that turn the direction of writing (U+202A to U+202E, U+2066 to U+2069), line separators.
    const bool layout = byte(0) == 0xe2 && ((byte(1) == 0x80 && byte(2) >= 0xa8 && byte(2) <= 0xae) ||
                                            (byte(1) == 0x81 && byte(2) >= 0xa6 && byte(2) <= 0xa9));
    return control || overlong || surrogate || beyond || layout ? 0 : bytes;
}

}  // namespace

std::string QuotedText(std::string_view text) {
    static constexpr char kDigits[] = "0123456789abcdef";
    std::string quoted = "'";
    std::size_t at = 0;
    while (at < text.size() && at < kLongest) {
        if (const std::size_t bytes = PrintableBytes(text.substr(at)); bytes > 0) {
            quoted += text.substr(at, bytes);
            at += bytes;
        } else {
            const auto byte = static_cast<unsigned char>(text[at++]);
            quoted += {'\\', 'x', kDigits[byte >> 4], kDigits[byte & 15u]};
        }
    }
    return quoted + (at < text.size() ? "...'" : "'");
}

}  // namespace zelmat
