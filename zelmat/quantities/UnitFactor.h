#pragma once

#include <limits>

namespace zelmat {

/// How many coherent SI units one unit is, kept as a fraction of two exactly known numbers: psi is
/// 4.4482216152605 / 0.00064516. In extended precision every step errs by less than a thousandth of a
/// double's last place, so that a factor of many words is still right where a double ends.
struct UnitFactor {
    static_assert(std::numeric_limits<long double>::digits >= 64, "needs more digits than a double has");

    long double numerator = 1.0L;
    long double denominator = 1.0L;

    constexpr UnitFactor operator*(const UnitFactor& other) const {
        return {numerator * other.numerator, denominator * other.denominator};
    }

    constexpr UnitFactor Inverse() const { return {denominator, numerator}; }

    constexpr UnitFactor ToThe(int power) const {
        const UnitFactor base = power < 0 ? Inverse() : *this;
        UnitFactor result;
        for (int i = 0; i < (power < 0 ? -power : power); ++i) result = result * base;
        return result;
    }

    constexpr long double Quotient() const { return numerator / denominator; }
};

}  // namespace zelmat
