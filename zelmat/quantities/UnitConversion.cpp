#include "zelmat/quantities/UnitConversion.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <limits>

namespace zelmat {

namespace {

/// Half of the last place of a double of that size.
long double HalfLastPlace(long double size) {
    int exponent = 0;
    std::frexp(size, &exponent);
    return std::ldexp(1.0L, exponent - std::numeric_limits<double>::digits - 1);
}

/// 10 to the power of `places`, which lies between 0 and what the range of doubles asks for.
long double PowerOfTen(int places) {
    static const auto powers = [] {
        std::array<long double, 340> all{};
        for (std::size_t i = 0; i < all.size(); ++i) all[i] = std::pow(10.0L, static_cast<long double>(i));
        return all;
    }();
    return powers[std::min(static_cast<std::size_t>(places), powers.size() - 1)];
}

/// The double for a result that is known to `doubt`: the decimal number with at least two digits less than
/// that would allow, when there is one so near, else the nearest double. Whoever wrote 0.127 meant a decimal
/// number, of which the double is only the neighbor.
double Rounded(long double result, long double doubt) {
    constexpr double kLog2 = 0.30102999566398120;    // decimal logarithms
    constexpr double kMargin = 2.30102999566398120;  // of 200: two digits, and the doubt on either side
    int exponent = 0;
    std::frexp(doubt, &exponent);
    const int places = static_cast<int>(std::floor(-kLog2 * exponent - kMargin));
    const long double scale = PowerOfTen(std::abs(places));
    const long double decimal =
        places >= 0 ? std::rint(result * scale) / scale : std::rint(result / scale) * scale;
    return static_cast<double>(std::abs(decimal - result) <= doubt ? decimal : result);
}

}  // namespace

UnitConversion::UnitConversion(const Unit& from, const Unit& to, bool isPoint)
    : factor_((from.Factor() * to.Factor().Inverse()).Quotient()),
      shift_(isPoint ? (from.Offset() - to.Offset()) / to.Factor().Quotient() : 0.0L) {
    assert(from.Dimension() == to.Dimension());
}

std::optional<double> UnitConversion::operator()(double value) const {
    if (IsIdentity() || !std::isfinite(value)) return value;
    if (value == 0.0 && shift_ == 0.0L) return value;
    const long double scaled = static_cast<long double>(value) * factor_;
    const long double exact = scaled + shift_;
    const long double doubt = shift_ == 0.0L ? HalfLastPlace(value) * factor_
                                             : HalfLastPlace(std::max(std::abs(scaled), std::abs(shift_)));
    const double result = Rounded(exact, doubt) + 0.0;  // an offset that leaves nothing may leave -0
    const bool tooSmall = shift_ == 0.0L && std::abs(result) < std::numeric_limits<double>::min();
    if (!std::isfinite(result) || tooSmall) return std::nullopt;
    return result;
}

std::optional<std::size_t> UnitConversion::Convert(std::span<double> values) const {
    if (IsIdentity()) return std::nullopt;
    for (std::size_t i = 0; i < values.size(); ++i) {
        const auto converted = (*this)(values[i]);
        if (!converted) return i;
        values[i] = *converted;
    }
    return std::nullopt;
}

}  // namespace zelmat
