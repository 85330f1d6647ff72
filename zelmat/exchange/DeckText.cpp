#include "zelmat/exchange/DeckText.h"

#include <array>
#include <cctype>
#include <charconv>

#include "zelmat/quantities/NumberText.h"

namespace zelmat {

namespace {

constexpr std::size_t kLineLength = 100;

std::string WithDigits(double number, int digits) {
    std::array<char, 40> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number,
                                   std::chars_format::scientific, digits - 1);
    return {buffer.data(), end.ptr};
}

/// Significant digits beside which sign, point and the longest exponent have room.
constexpr int kDigitsThatFit = 13;

/// With as many digits as leave it that short. Where rounding up would leave the range of numbers, the last
/// digits are cut off instead.
std::string ShortNumber(double number, std::size_t longest) {
    std::string text = NumberText(number);
    for (int digits = 17; text.size() > longest; --digits) {
        double rounded = 0.0;
        std::string fewer = WithDigits(number, digits);
        const auto read = std::from_chars(fewer.data(), fewer.data() + fewer.size(), rounded);
        if (read.ec != std::errc()) {
            fewer = WithDigits(number, 17);
            fewer.erase(fewer.find('e') - static_cast<std::size_t>(17 - digits),
                        static_cast<std::size_t>(17 - digits));
            std::from_chars(fewer.data(), fewer.data() + fewer.size(), rounded);
        }
        text = NumberText(rounded);
    }
    return text;
}

bool IsPlain(char character, const DeckNameRule& rule) {
    const auto code = static_cast<unsigned char>(character);
    return code < 0x80 && (std::isalnum(code) != 0 || character == '_' ||
                           rule.further.find(character) != std::string_view::npos);
}

/// The bytes of the character that begins at `at`.
std::size_t CharacterLength(std::string_view text, std::size_t at) {
    std::size_t length = 1;
    while (at + length < text.size() && (static_cast<unsigned char>(text[at + length]) & 0xC0U) == 0x80U) {
        ++length;
    }
    return length;
}

}  // namespace

std::string DeckNumber(double number) {
    return ShortNumber(number, kLongestDeckNumber);
}

std::string RealDeckNumber(double number) {
    const auto isReal = [](const std::string& text) { return text.find_first_of(".e") != std::string::npos; };
    std::string text = DeckNumber(number);
    if (isReal(text)) return text;
    // Where the point would be one too many, an exponent takes the place of the last digits.
    return text.size() < kLongestDeckNumber ? text + "." : WithDigits(number, kDigitsThatFit);
}

std::string InCapitals(std::string text) {
    for (char& letter : text) letter = static_cast<char>(std::toupper(static_cast<unsigned char>(letter)));
    return text;
}

std::string DeckName(std::string_view name, const DeckNameRule& rule, std::set<std::string>& taken) {
    std::string plain;
    for (const char character : name) {
        if (IsPlain(character, rule)) {
            plain += character;
        } else if (!plain.empty() && plain.back() != '_') {
            plain += '_';
        }
    }
    while (!plain.empty() && plain.back() == '_') plain.pop_back();
    if (plain.empty()) plain = rule.otherwise;
    if (rule.letterFirst && std::isalpha(static_cast<unsigned char>(plain.front())) == 0) plain = "M" + plain;
    plain.resize(std::min(plain.size(), rule.longest));
    if (taken.insert(InCapitals(plain)).second) return plain;
    const auto numbered = [&](std::size_t number) {
        std::string ending = "_" + std::to_string(number);
        if (ending.size() >= rule.longest) ending.erase(0, 1);
        return plain.substr(0, rule.longest - ending.size()) + ending;
    };
    const auto isTaken = [&](std::size_t number) { return taken.count(InCapitals(numbered(number))) > 0; };
    // A free number behind a taken one: many names may become the same, and are not tried one by one.
    std::size_t used = 1, free = 2;
    for (; isTaken(free); free *= 2) used = free;
    while (free - used > 1) {
        const std::size_t middle = used + (free - used) / 2;
        (isTaken(middle) ? used : free) = middle;
    }
    taken.insert(InCapitals(numbered(free)));
    return numbered(free);
}

std::string AsciiLine(std::string_view text) {
    std::string line;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t length = CharacterLength(text, at);
        const std::string_view character = text.substr(at, length);
        const auto code = static_cast<unsigned char>(character.front());
        at += length;
        if (code < 0x20 || code == 0x7F) {
            line += ' ';
        } else if (code < 0x80) {
            line += character.front();
        } else if (character == "\xc2\xb0") {
            line += "deg ";
        } else if (character == "\xc2\xb5" || character == "\xce\xbc") {
            line += 'u';
        } else {
            line += '?';
        }
    }
    return line;
}

std::string CommentLines(std::string_view lead, std::string_view text) {
    std::string rest = AsciiLine(text), lines;
    do {
        std::size_t length = rest.size();
        if (length > kLineLength) {
            const std::size_t blank = rest.rfind(' ', kLineLength);
            length = blank == std::string::npos || blank == 0 ? kLineLength : blank;
        }
        std::string line = rest.substr(0, length);
        if (line.ends_with('\\')) line.back() = '/';  // some would take the next line for comment, too
        lines += std::string(lead) + line + "\n";
        rest.erase(0, length);
        rest.erase(0, rest.find_first_not_of(' '));
    } while (!rest.empty());
    return lines;
}

}  // namespace zelmat
