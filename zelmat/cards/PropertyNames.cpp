#include "zelmat/cards/PropertyNames.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <utility>
#include <vector>

#include "zelmat/materials/BlockKind.h"
#include "zelmat/quantities/PlainUnitText.h"

namespace zelmat {

namespace {

struct Alias {
    std::string_view alias;
    std::string_view name;
};

/// Symbols, letter by letter.
constexpr std::array<Alias, 16> kSymbols = {{
    {"E", "youngs_modulus"},
    {"nu", "poissons_ratio"},
    {"NU", "poissons_ratio"},
    {"ν", "poissons_ratio"},
    {"rho", "density"},
    {"RHO", "density"},
    {"ρ", "density"},
    {"alpha", "thermal_expansion"},
    {"α", "thermal_expansion"},
    {"cte", "thermal_expansion"},
    {"CTE", "thermal_expansion"},
    {"k", "conductivity"},
    {"cp", "specific_heat"},
    {"c_p", "specific_heat"},
    {"CP", "specific_heat"},
    {"T", "temperature"},
}};

/// Names in small letters, without what stands between their words.
constexpr std::array<Alias, 41> kNames = {{
    {"youngsmodulus", "youngs_modulus"},
    {"youngmodulus", "youngs_modulus"},
    {"emodulus", "youngs_modulus"},
    {"elasticmodulus", "youngs_modulus"},
    {"modulusofelasticity", "youngs_modulus"},
    {"poissonsratio", "poissons_ratio"},
    {"poissonratio", "poissons_ratio"},
    {"density", "density"},
    {"massdensity", "density"},
    {"thermalexpansion", "thermal_expansion"},
    {"thermalexpansioncoefficient", "thermal_expansion"},
    {"coefficientofthermalexpansion", "thermal_expansion"},
    {"conductivity", "conductivity"},
    {"thermalconductivity", "conductivity"},
    {"specificheat", "specific_heat"},
    {"specificheatcapacity", "specific_heat"},
    {"temperature", "temperature"},
    {"temp", "temperature"},
    {"yieldstress", "yield_stress"},
    {"plasticstrain", "plastic_strain"},
    {"equivalentplasticstrain", "plastic_strain"},
    {"referencetemperature", "reference_temperature"},
    {"thermalexpansionreferencetemperature", "reference_temperature"},
    {"tref", "reference_temperature"},
    {"stressfreetemperature", "reference_temperature"},
    {"zeroexpansiontemperature", "reference_temperature"},
    {"meltingtemperature", "melting_temperature"},
    {"tmelt", "melting_temperature"},
    {"transitiontemperature", "transition_temperature"},
    {"pressure", "pressure"},
    {"closure", "closure"},
    {"plasticclosure", "plastic_closure"},
    {"maxclosure", "max_closure"},
    {"maximumclosure", "max_closure"},
    {"shearstiffness", "shear_stiffness"},
    {"shearmodulus", "shear_modulus"},
    {"modulusofshare", "shear_modulus"},
    {"bulkmodulus", "bulk_modulus"},
    {"stretch", "stretch"},
    {"nominalstress", "nominal_stress"},
    {"engineeringstress", "nominal_stress"},
}};

/// Blocks, as the names above.
constexpr std::array<Alias, 9> kBlocks = {{
    {"elasticity", "elastic"},
    {"linearelastic", "elastic"},
    {"isotropicelastic", "elastic"},
    {"isotropicelasticity", "elastic"},
    {"plasticity", "plastic"},
    {"expansion", "thermal_expansion"},
    {"heatcapacity", "specific_heat"},
    {"hyperelasticity", "hyperelastic"},
    {"usermaterials", "user_material"},
}};

template <std::size_t kCount>
std::string_view Find(const std::array<Alias, kCount>& aliases, std::string_view text) {
    const auto found =
        std::find_if(aliases.begin(), aliases.end(), [&](const Alias& one) { return one.alias == text; });
    return found == aliases.end() ? std::string_view() : found->name;
}

constexpr std::string_view kBetween = " _-'";

/// A long name's letters, large or small, with anything of kBetween around them.
std::string LettersPattern(std::string_view letters) {
    const std::string between = "[ _'-]*";
    std::string pattern = between;
    for (const char letter : letters) {
        const char large = static_cast<char>(std::toupper(static_cast<unsigned char>(letter)));
        pattern += std::string("[") + letter + large + "]" + between;
    }
    return pattern;
}

std::string Letters(std::string_view name) {
    std::string letters;
    for (const char c : name) {
        if (kBetween.find(c) != std::string_view::npos) continue;
        letters += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    }
    return letters;
}

}  // namespace

std::string PropertyName(std::string_view name) {
    if (const auto symbol = Find(kSymbols, name); !symbol.empty()) return std::string(symbol);
    const auto known = Find(kNames, Letters(name));
    return std::string(known.empty() ? name : known);
}

std::string BlockName(std::string_view name) {
    const std::string letters = Letters(name);
    if (const auto known = Find(kBlocks, letters); !known.empty()) return std::string(known);
    static const auto blocks = [] {
        std::vector<std::pair<std::string, std::string>> known;
        for (const BlockKind& block : BlockKinds()) known.emplace_back(Letters(block.name), block.name);
        return known;
    }();
    for (const auto& [its, block] : blocks) {
        if (its == letters) return block;
    }
    const std::string property = PropertyName(name);
    return FindBlockKind(property) ? property : std::string(name);
}

std::string SpellingsPattern(const std::string& name) {
    std::string pattern = name;
    for (const Alias& one : kSymbols) {
        if (one.name == name) pattern += "|" + std::string(one.alias);
    }
    for (const Alias& one : kNames) {
        if (one.name == name) pattern += "|" + LettersPattern(one.alias);
    }
    return pattern;
}

ColumnHeader ReadColumnHeader(std::string_view text) {
    text = WithoutBlanksAround(text);
    const auto open = text.ends_with(']') ? text.find('[') : std::string_view::npos;
    if (open == std::string_view::npos) return {std::string(text), {}, false};
    const auto unit = text.substr(open + 1, text.size() - open - 2);
    return {std::string(WithoutBlanksAround(text.substr(0, open))), std::string(WithoutBlanksAround(unit)),
            true};
}

}  // namespace zelmat
