#pragma once

#include <span>
#include <string_view>

/// One unit of a unit type: a value in it, times the factor and plus the offset, is the value in the stored
/// unit.
struct KORUnit {
    std::string_view symbol;
    double factor;
    double offset = 0.0;
};

/// A unit type and its units. The first one is the stored one, of the SI.
struct KORUnitType {
    std::string_view keyword;
    std::span<const KORUnit> units;
};

/// The unit types that the platform knows.
std::span<const KORUnitType> KORUnitTypes();

const KORUnitType* KORFindUnitType(std::string_view keyword);                  ///< null: unknown
const KORUnit* KORFindUnit(const KORUnitType& type, std::string_view symbol);  ///< null: unknown
