#include "zelmat/text/QuotedText.h"

#include <cstddef>

#include "zelmat/text/Printable.h"

namespace zelmat {

std::string QuotedText(std::string_view text) {
    constexpr std::size_t kLongest = 60;
    constexpr std::size_t kBytesOfACharacter = 4;
    if (text.size() <= kLongest) return "'" + Printable(text) + "'";
    std::size_t end = kLongest;  // or where the character begins that lies across
    while (end > kLongest - kBytesOfACharacter && (static_cast<unsigned char>(text[end]) & 0xc0u) == 0x80u) {
        --end;
    }
    return "'" + Printable(text.substr(0, end)) + "...'";
}

}  // namespace zelmat
