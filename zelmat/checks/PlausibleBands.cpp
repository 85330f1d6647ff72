#include "zelmat/checks/PlausibleBands.h"

#include <algorithm>
#include <array>
#include <cassert>

namespace zelmat {

namespace {

constexpr const char* kAshby =
    "M. F. Ashby, Materials Selection in Mechanical Design, 4th ed., 2011, property charts and appendix A";
constexpr const char* kAshbyMary =
    "M. F. Ashby, as above; T. A. Mary and others, Science 272, 1996: -8.7e-6 1/K of ZrW2O8";
constexpr const char* kCallister =
    "W. D. Callister, D. G. Rethwisch, Materials Science and Engineering, 8th ed., 2010, appendix B";
constexpr const char* kAsm = "ASM Ready Reference: Thermal Properties of Metals, 2002";
constexpr const char* kEc2 = "EN 1992-1-1:2004, Table 3.1, 3.1.3 and section 11";
constexpr const char* kEc2Fire = "EN 1992-1-2:2004, 3.3";
constexpr const char* kEn206 = "EN 206:2013, densities of light, normal and heavy concrete";
constexpr const char* kBrandrup = "J. Brandrup and others, Polymer Handbook, 4th ed., 1999";
constexpr const char* kGibsonAshby = "L. J. Gibson, M. F. Ashby, Cellular Solids, 2nd ed., 1997";
constexpr const char* kWide = "the classes together, and what lies between and beside them";
constexpr const char* kFromModulus = "from the bands of modulus and density";

constexpr std::array<PlausibleProperty, 9> kProperties = {{
    {"modulus",
     "Young's modulus",
     "modulus",
     {"MPa", "GPa", "ksi", "psi"},
     1e3,
     1.5e12,
     "softest gels to diamond, the stiffest of solids in bulk (1.2e12 Pa)"},
    {"poissons-ratio", "Poisson's ratio", "number", {}, -1.0, 0.5, "bounds of stability", true},
    {"yield-stress",
     "yield stress",
     "stress",
     {"MPa", "GPa", "ksi", "psi"},
     1.0,
     1e11,
     "ideal strength, a tenth of the stiffest solid's modulus"},
    {"density",
     "density",
     "density",
     {"g/cm^3", "t/mm3", "kg/mm3", "lb/in^3"},
     0.1,
     2.3e4,
     "lightest aerogels to osmium (2.259e4 kg/m3)"},
    {"expansion",
     "thermal expansion",
     "expansion",
     {"1e-6/K", "1/degF"},
     -1e-3,
     1e-3,
     "liquids expand by 1e-3 1/K and less"},
    {"conductivity",
     "conductivity",
     "conductivity",
     {"W/(cm K)", "W/(mm K)", "kW/(mm K)"},
     1e-3,
     5e3,
     "evacuated powders to diamond of one isotope (3.3e3 W/(m K))"},
    {"specific-heat",
     "specific heat",
     "specific_heat",
     {"kJ/(kg K)", "mJ/(t K)", "Btu/(lb degF)"},
     20.0,
     2e4,
     "3 R a mole (Dulong and Petit) for the heaviest atoms; hydrogen gas (1.43e4 J/(kg K))"},
    {"initial-shear-modulus",
     "initial shear modulus mu0",
     "modulus",
     {"MPa", "GPa", "ksi", "psi"},
     1e2,
     5e11,
     "softest gels to diamond"},
    {"speed-of-sound",
     "speed of sound sqrt(E/density)",
     "velocity",
     {},
     0.3,
     3.61e4,
     "K. Trachenko and others, Science Advances 6, 2020: upper bound of the speed of sound, 36.1 km/s"},
}};

constexpr PlausibleBand kBands[] = {
    {"modulus", "metal", 1e10, 5.6e11, kAshby},
    {"modulus", "polymer", 2e7, 1.5e10, kAshby},
    {"modulus", "ceramic", 5e9, 1.25e12, kAshby},
    {"modulus", "elastomer", 1e5, 1e8, kAshby},
    {"modulus", "composite", 1e9, 6e11, kAshby},
    {"modulus", "concrete", 3e9, 6e10, kEc2},
    {"modulus", "foam", 1e4, 5e9, kGibsonAshby},
    {"modulus", kAnyClass, 5e5, 1.25e12, kWide},

    {"poissons-ratio", "metal", 0.0, 0.47, kCallister},
    {"poissons-ratio", "polymer", 0.2, 0.5, kCallister},
    {"poissons-ratio", "ceramic", 0.0, 0.4, kCallister},
    {"poissons-ratio", "elastomer", 0.4, 0.5, kAshby},
    {"poissons-ratio", "concrete", 0.0, 0.3, kEc2},
    {"poissons-ratio", "foam", -0.8, 0.5, "R. Lakes, Science 235, 1987: -0.7 for a re-entrant foam"},
    {"poissons-ratio", kAnyClass, 0.0, 0.5,
     "R. Lakes, Science 235, 1987: a negative one takes a re-entrant foam"},

    {"yield-stress", "metal", 5e6, 4e9, kAshby},
    {"yield-stress", "polymer", 1e6, 3e8, kAshby},
    {"yield-stress", "ceramic", 1e6, 2e10, kAshby},
    {"yield-stress", "composite", 1e6, 4e9, kAshby},
    {"yield-stress", "concrete", 1e5, 2e8, kEc2},
    {"yield-stress", "foam", 1e3, 1e8, kGibsonAshby},
    {"yield-stress", kAnyClass, 1e4, 2e10, kWide},

    {"density", "metal", 5e2, 2.27e4, kCallister},
    {"density", "polymer", 8e2, 2.5e3, kCallister},
    {"density", "ceramic", 1.5e3, 1.6e4, kAshby},
    {"density", "elastomer", 8e2, 2.5e3, kAshby},
    {"density", "composite", 9e2, 9e3, kAshby},
    {"density", "concrete", 8e2, 6e3, kEn206},
    {"density", "foam", 10.0, 1.5e3, kGibsonAshby},
    {"density", kAnyClass, 10.0, 2.27e4, kWide},

    {"expansion", "metal", 1e-7, 1e-4, kAsm},
    {"expansion", "polymer", 5e-6, 5e-4, kAshby},
    {"expansion", "ceramic", -1e-5, 5e-5, kAshbyMary},
    {"expansion", "elastomer", 2e-5, 7e-4, kBrandrup},
    {"expansion", "composite", -2e-6, 1e-4, kAshby},
    {"expansion", "concrete", 4e-6, 2e-5, kEc2},
    {"expansion", "foam", 5e-7, 5e-4, kGibsonAshby},
    {"expansion", kAnyClass, -1e-5, 7e-4, kWide},

    {"conductivity", "metal", 4.0, 4.5e2, kAsm},
    {"conductivity", "polymer", 0.05, 5.0, kAshby},
    {"conductivity", "ceramic", 0.1, 2.5e3, kAshby},
    {"conductivity", "elastomer", 0.05, 5.0, kAshby},
    {"conductivity", "composite", 0.1, 1e3, kAshby},
    {"conductivity", "concrete", 0.1, 4.0, kEc2Fire},
    {"conductivity", "foam", 0.01, 50.0, kGibsonAshby},
    {"conductivity", kAnyClass, 0.01, 2.5e3, kWide},

    {"specific-heat", "metal", 1e2, 3.7e3, kAsm},
    {"specific-heat", "polymer", 7e2, 3e3, kAshby},
    {"specific-heat", "ceramic", 1.5e2, 2e3, kAshby},
    {"specific-heat", "elastomer", 8e2, 3e3, kAshby},
    {"specific-heat", "composite", 3e2, 2.5e3, kAshby},
    {"specific-heat", "concrete", 7e2, 6e3, kEc2Fire},
    {"specific-heat", "foam", 3e2, 3e3, kGibsonAshby},
    {"specific-heat", kAnyClass, 1e2, 6e3, kWide},

    {"initial-shear-modulus", "elastomer", 3e4, 5e7, kAshby},
    {"initial-shear-modulus", kAnyClass, 1e3, 1e9, kWide},

    {"speed-of-sound", "metal", 8e2, 1.3e4, kFromModulus},
    {"speed-of-sound", "polymer", 1e2, 5e3, kFromModulus},
    {"speed-of-sound", "ceramic", 8e2, 1.9e4, kFromModulus},
    {"speed-of-sound", "elastomer", 5.0, 4e2, kFromModulus},
    {"speed-of-sound", "composite", 4e2, 2e4, kFromModulus},
    {"speed-of-sound", "concrete", 1e3, 6e3, kFromModulus},
    {"speed-of-sound", "foam", 5.0, 6e3, kFromModulus},
    {"speed-of-sound", kAnyClass, 15.0, 2e4, kFromModulus},
};

const PlausibleBand* Find(std::string_view property, std::string_view materialClass) {
    for (const PlausibleBand& band : kBands) {
        if (property == band.property && materialClass == band.materialClass) return &band;
    }
    return nullptr;
}

}  // namespace

std::span<const PlausibleProperty> PlausibleProperties() {
    return kProperties;
}

const PlausibleProperty& FindPlausibleProperty(std::string_view name) {
    const auto* found = std::find_if(kProperties.begin(), kProperties.end(),
                                     [&](const auto& property) { return property.name == name; });
    assert(found != kProperties.end());
    return *found;
}

std::span<const PlausibleBand> PlausibleBands() {
    return kBands;
}

const PlausibleBand& BandOf(const PlausibleProperty& property, std::string_view materialClass) {
    const PlausibleBand* own = Find(property.name, materialClass);
    return own ? *own : *Find(property.name, kAnyClass);
}

const std::vector<std::string>& PlausibleClasses() {
    static const std::vector<std::string> classes = [] {
        std::vector<std::string> found;
        for (const PlausibleBand& band : kBands) {
            const std::string name = band.materialClass;
            if (name != kAnyClass && std::find(found.begin(), found.end(), name) == found.end()) {
                found.push_back(name);
            }
        }
        return found;
    }();
    return classes;
}

}  // namespace zelmat
