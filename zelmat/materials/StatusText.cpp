#include "zelmat/materials/StatusText.h"

#include <array>
#include <cstdio>

namespace zelmat {

std::string StatusText(HRESULT status) {
    std::array<char, 24> text;
    std::snprintf(text.data(), text.size(), "status 0x%08X", static_cast<unsigned>(status));
    return text.data();
}

}  // namespace zelmat
