#pragma once

namespace zelmat {

/// What a ply may be thick, in metres: what lies outside is a slip of the unit.
inline bool IsPlyThickness(double metres) {
    constexpr double kThinnest = 1e-9;
    constexpr double kThickest = 10.0;
    return metres >= kThinnest && metres <= kThickest;
}

/// The same for messages.
constexpr const char* kPlyThicknesses = "expected 1 nm to 10 m";

}  // namespace zelmat
