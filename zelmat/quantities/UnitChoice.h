#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "zelmat/quantities/Quantity.h"
#include "zelmat/quantities/QuantityResult.h"
#include "zelmat/quantities/Unit.h"

namespace zelmat {

/// The units in which numbers are shown: one for every quantity. Systems of units, each with its temperature:
///
///   si         Pa, kg/m3, m, K                  what documents hold
///   mm-t-s     MPa, t/mm3, mm, degC             consistent, force in N
///   mm-kg-ms   GPa, kg/mm3, mm, degC            consistent, force in kN
///   us         psi, lb/in^3, in, degF           customary, not consistent
///
/// Text for readers is in none of them by default, but in MPa, kg/m3, mm and degC.
class UnitChoice {
public:
    static UnitChoice Si();
    static UnitChoice ForText();

    /// What "--units" takes: a system, units of quantities, or a system and then units that differ from it,
    /// with commas: "us", "stress=MPa,temperature=degC", "si,stress=ksi". Without a system, what is not named
    /// stays as in `base`. A quantity without a unit of its own follows its family: "stress=ksi" shows moduli
    /// in ksi, too.
    static QuantityResult<UnitChoice> Read(std::string_view text, const UnitChoice& base);

    /// "si, mm-t-s, mm-kg-ms and us"
    static std::string Systems();

    const Unit& For(const Quantity& quantity) const;

private:
    explicit UnitChoice(const struct UnitSystem& system);
    QuantityResult<bool> Set(std::string_view piece, std::vector<bool>& own);

    std::vector<Unit> units_;  // in the order of Quantities()
};

}  // namespace zelmat
