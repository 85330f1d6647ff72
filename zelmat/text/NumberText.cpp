#include "zelmat/text/NumberText.h"

namespace zelmat {

std::string WithUnit(double number, const std::string& unit) {
    const bool pure = unit.empty() || unit == "-";
    return pure ? NumberText(number) : NumberText(number) + " " + unit;
}

std::string CountText(std::size_t count, const std::string& noun) {
    return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

}  // namespace zelmat
