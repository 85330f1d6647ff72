#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace zelmat {

/// Where published values of a property lie, for one class of material near room temperature. Rounded
/// outwards: what lies outside is hardly meant.
struct PlausibleBand {
    const char* property;       ///< "modulus", as in PlausibleProperty
    const char* materialClass;  ///< "metal"; kAnyClass: for materials that do not say theirs
    double low, high;           ///< SI; both included
    const char* source;
};

inline constexpr const char* kAnyClass = "any";

/// Something that has bands: a column of a block, or what follows from several.
struct PlausibleProperty {
    const char* name;      ///< "modulus"; the codes are "implausible-modulus", "impossible-modulus"
    const char* title;     ///< "Young's modulus"
    const char* quantity;  ///< of zelmat/quantities
    std::array<const char*, 4> usualUnits;  ///< tried on a value outside; null where there are fewer
    double least, most;            ///< SI; what lies outside cannot be, whatever the material; both included
    const char* limits;            ///< the source of `least` and `most`
    bool limitsElsewhere = false;  ///< a rule of its own holds values against `least` and `most`
};

std::span<const PlausibleProperty> PlausibleProperties();
const PlausibleProperty& FindPlausibleProperty(std::string_view name);  ///< of those that there are

std::span<const PlausibleBand> PlausibleBands();

/// The band of a class, or the wide one where the class has none of its own or is not known.
const PlausibleBand& BandOf(const PlausibleProperty& property, std::string_view materialClass);

/// "metal", "polymer", ...: those that have bands.
const std::vector<std::string>& PlausibleClasses();

}  // namespace zelmat
