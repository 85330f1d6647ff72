#pragma once

#include <string>
#include <vector>

namespace zelmat {

/// "a, b, c", each word as `text` makes it.
template <class Range, class ToText>
std::string WordList(const Range& range, ToText text) {
    std::string list;
    for (const auto& element : range) {
        if (!list.empty()) list += ", ";
        list += text(element);
    }
    return list;
}

inline std::string WordList(const std::vector<std::string>& words) {
    return WordList(words, [](const std::string& word) { return word; });
}

inline std::string Quoted(const std::string& text) {
    return "\"" + text + "\"";
}

}  // namespace zelmat
