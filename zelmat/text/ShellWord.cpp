#include "zelmat/text/ShellWord.h"

#include <algorithm>
#include <cctype>
#include <string_view>

namespace zelmat {

std::string ShellWord(const std::string& word) {
    constexpr std::string_view kHarmless = "-_./=:,+@%";
    const bool plain = !word.empty() && std::all_of(word.begin(), word.end(), [&](unsigned char c) {
        return std::isalnum(c) != 0 || kHarmless.find(static_cast<char>(c)) != std::string_view::npos;
    });
    if (plain) return word;
    std::string quoted = "'";
    for (const char c : word) quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return quoted + "'";
}

}  // namespace zelmat
