#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "zelmat/quantities/Dimension.h"
#include "zelmat/quantities/QuantityResult.h"
#include "zelmat/quantities/UnitFactor.h"

namespace zelmat {

/// A unit as somebody wrote it, and what it means. It keeps its spelling, so that what was read as "kg/m^3"
/// is written as "kg/m^3". It is no quantity: "psi" does not know whether it measures a modulus or a
/// pressure.
///
/// Read takes words with powers, joined by blanks, "*", "·", "." or "-" for products and by "/" for
/// quotients: "W/(m K)", "W/m/K", "W m-1 K-1", "kg/m3", "1e-6/K", "µm/m/K", "N·m". Numbers in a unit are 1
/// and powers of ten. "-", "1" and "%" are pure. Refused with advice is what two readers understand
/// differently: "C", "F", "ton", a product after a quotient ("W/m K"). Not more than kLongest bytes, so that
/// no text takes long.
class Unit {
public:
    static constexpr std::size_t kLongest = 200;

    static QuantityResult<Unit> Read(std::string_view text);

    /// As it was read, without blanks around it.
    const std::string& Spelling() const { return spelling_; }

    const zelmat::Dimension& Dimension() const { return dimension_; }

    /// How many coherent SI units (m, kg, s, K, A, mol, cd, rad) one of it is.
    const UnitFactor& Factor() const { return factor_; }

    /// A scale with its own zero, all by itself: "degC", "degF".
    bool IsScale() const { return offset_ != 0.0L; }

    /// Kelvins from 0 K to the scale's zero: 273.15 for "degC", 0 for what is no scale.
    long double Offset() const { return offset_; }

    /// Such a scale within a compound ("W/(m degC)"), where it means a difference.
    bool HasScaleWithin() const { return scaleWithin_; }

    bool operator==(const Unit& other) const { return spelling_ == other.spelling_; }

private:
    friend class UnitReader;
    Unit() = default;

    std::string spelling_;
    zelmat::Dimension dimension_;
    UnitFactor factor_;
    long double offset_ = 0.0L;
    bool scaleWithin_ = false;
};

}  // namespace zelmat
