#include "zelmat/checks/DerivedText.h"

#include "zelmat/quantities/NumberText.h"

namespace zelmat {

std::string DerivedText(double number, const std::string& unit) {
    constexpr int kDigits = 4;
    return WithUnit(RoundedTo(number, kDigits), unit);
}

}  // namespace zelmat
