#include "zelmat/layups/Millimetres.h"

#include <cmath>

#include "zelmat/quantities/NumberText.h"

namespace zelmat {

namespace {

constexpr double kSteps = 1e12;  // in a metre

/// No minus zero.
double Steps(double metres) {
    const double steps = std::round(metres * kSteps);
    return steps == 0.0 ? 0.0 : steps;
}

}  // namespace

double WithoutNoiseOfSums(double metres) {
    return Steps(metres) / kSteps;
}

std::string Millimetres(double metres) {
    constexpr double kStepsOfAMillimetre = kSteps / 1000.0;
    return NumberText(Steps(metres) / kStepsOfAMillimetre);
}

}  // namespace zelmat
