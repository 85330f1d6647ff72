#pragma once

#include <string>
#include <string_view>

namespace zelmat {

/// Puts a text in the place of another wherever that stands; what was put is not looked at again. `what` is
/// not empty.
inline void ReplaceAll(std::string& text, std::string_view what, std::string_view with) {
    for (std::size_t at = text.find(what); at != std::string::npos; at = text.find(what, at + with.size())) {
        text.replace(at, what.size(), with);
    }
}

}  // namespace zelmat
