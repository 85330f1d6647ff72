#pragma once

#include <string_view>

namespace zelmat {

/// JSON has no comments: a card has them under keys such as "//" and "// elastic", which mean nothing.
inline bool IsComment(std::string_view key) {
    return key.starts_with("//");
}

}  // namespace zelmat
