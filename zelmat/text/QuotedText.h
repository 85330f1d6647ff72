#pragma once

#include <string>
#include <string_view>

namespace zelmat {

/// A text of a user between single quotes, as a message may show it: Printable, at most 60 bytes of it.
std::string QuotedText(std::string_view text);

}  // namespace zelmat
