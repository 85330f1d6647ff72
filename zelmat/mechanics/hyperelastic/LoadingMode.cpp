#include "zelmat/mechanics/hyperelastic/LoadingMode.h"

#include <cmath>
#include <utility>

namespace zelmat::mechanics {

namespace {

using enum LoadingMode;

constexpr std::array<std::pair<LoadingMode, std::string_view>, 4> kKeywords = {
    {{UNIAXIAL, "uniaxial"}, {EQUIBIAXIAL, "equibiaxial"}, {PLANAR, "planar"}, {SIMPLE_SHEAR, "shear"}}};

std::array<double, 3> Direction(LoadingMode mode) {
    switch (mode) {
        case UNIAXIAL:
            return {1.0, -0.5, -0.5};
        case EQUIBIAXIAL:
            return {1.0, 1.0, -2.0};
        case PLANAR:
            return {1.0, 0.0, -1.0};
        case SIMPLE_SHEAR:
            return {1.0, -1.0, 0.0};
    }
    return {};
}

}  // namespace

std::string_view Keyword(LoadingMode mode) {
    for (const auto& [known, keyword] : kKeywords) {
        if (known == mode) return keyword;
    }
    return {};
}

std::optional<LoadingMode> LoadingModeOf(std::string_view keyword) {
    for (const auto& [mode, known] : kKeywords) {
        if (known == keyword) return mode;
    }
    return std::nullopt;
}

double AtRest(LoadingMode mode) {
    return mode == SIMPLE_SHEAR ? 0.0 : 1.0;
}

bool IsReachable(LoadingMode mode, double x) {
    return std::isfinite(x) && (mode == SIMPLE_SHEAR || x > 0.0);
}

PathPoint PointOn(LoadingMode mode, double x) {
    const double strain = PathStrain(mode, x);
    const auto direction = Direction(mode);
    return {.stretches = StretchesOf(strain * direction[0], strain * direction[1]), .direction = direction};
}

double PathStrain(LoadingMode mode, double x) {
    return mode == SIMPLE_SHEAR ? std::asinh(0.5 * x) : std::log(x);
}

double LoadAt(LoadingMode mode, double pathStrain) {
    return mode == SIMPLE_SHEAR ? 2.0 * std::sinh(pathStrain) : std::exp(pathStrain);
}

}  // namespace zelmat::mechanics
