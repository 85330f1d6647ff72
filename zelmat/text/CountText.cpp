#include "zelmat/text/CountText.h"

namespace zelmat {

std::string CountText(std::size_t count, const std::string& noun) {
    return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

}  // namespace zelmat
