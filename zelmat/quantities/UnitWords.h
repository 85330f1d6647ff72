#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "zelmat/quantities/Dimension.h"
#include "zelmat/quantities/UnitFactor.h"

namespace zelmat {

/// What one word of a unit means: "MPa", "ft", "degC", without powers and without an operator.
struct UnitWord {
    Dimension dimension;
    UnitFactor factor;  ///< to the coherent SI unit: m, kg, s, K, A, mol, cd, rad
    long double offset =
        0.0L;  ///< kelvins from 0 K to the scale's zero; 0 for whatever is no temperature scale
};

/// A word that means two things to two readers and is therefore refused.
struct AmbiguousWord {
    std::string_view word;
    std::string_view advice;  ///< what to write instead: "'degC' (temperature) or 'coulomb'"
};

/// The house's own table of the words that the field uses, with SI prefixes where they are usual. Letters
/// count as written: "mPa" is not "MPa". Factors are the exact ones of NIST Special Publication 811, appendix
/// B, where one is defined to be exact; "Btu" is the International Table one.
std::optional<UnitWord> FindUnitWord(std::string_view word);

/// The words that are refused, and why. Asked before any meaning is looked for.
const AmbiguousWord* FindAmbiguousWord(std::string_view word);

/// A word of the table, with its prefix, that differs from `word` in capitals only ("MPa" for "Mpa"), or is
/// its singular ("lb" for "lbs"). Empty when there is none.
std::string NearUnitWord(std::string_view word);

}  // namespace zelmat
