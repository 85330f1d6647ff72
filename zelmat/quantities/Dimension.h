#pragma once

#include <array>
#include <cstddef>

namespace zelmat {

/// The powers of the base units that a unit is made of: "N/mm^2" is mass 1, length -1, time -2. It knows no
/// factor: psi and Pa have the same dimension. The plane angle counts as a base of its own, so that an angle
/// is no pure number and a percentage no angle.
class Dimension {
public:
    enum Base : std::size_t {
        LENGTH,
        MASS,
        TIME,
        TEMPERATURE,
        CURRENT,
        AMOUNT,
        LUMINOUS_INTENSITY,
        ANGLE,
        COUNT
    };

    /// Of a pure number.
    constexpr Dimension() = default;

    /// Of one base unit.
    constexpr explicit Dimension(Base base) { powers_[base] = 1; }

    constexpr Dimension& operator*=(const Dimension& other) {
        for (std::size_t base = 0; base < COUNT; ++base) powers_[base] += other.powers_[base];
        return *this;
    }

    constexpr Dimension ToThe(int power) const {
        Dimension result;
        for (std::size_t base = 0; base < COUNT; ++base) result.powers_[base] = powers_[base] * power;
        return result;
    }

    constexpr Dimension operator*(const Dimension& other) const { return Dimension(*this) *= other; }
    constexpr Dimension operator/(const Dimension& other) const { return *this * other.ToThe(-1); }
    constexpr bool operator==(const Dimension&) const = default;

    /// The largest power without its sign.
    constexpr int Largest() const {
        int largest = 0;
        for (const int power : powers_)
            largest = power > largest ? power : -power > largest ? -power : largest;
        return largest;
    }

private:
    std::array<int, COUNT> powers_{};
};

}  // namespace zelmat
