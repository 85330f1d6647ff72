#pragma once

#include <string>
#include <string_view>

namespace zelmat {

/// Bytes as text of 64 letters, as in `data:` addresses (RFC 4648, with padding).
std::string Base64(std::string_view bytes);

}  // namespace zelmat
