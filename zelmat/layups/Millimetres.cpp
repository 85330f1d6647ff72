#include "zelmat/layups/Millimetres.h"

#include <cmath>

#include "zelmat/quantities/NumberText.h"

namespace zelmat {

std::string Millimetres(double metres) {
    constexpr double kPerMetre = 1000.0;
    constexpr double kSteps = 1e9;  // a millimetre has that many
    const double steps = std::round(metres * kPerMetre * kSteps);
    return NumberText(steps == 0.0 ? 0.0 : steps / kSteps);
}

}  // namespace zelmat
