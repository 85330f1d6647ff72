#include "zelmat/exchange/DeckForm.h"
#include "zelmat/materials/OverTemperature.h"
#include "zelmat/properties/ExpansionProperty.h"

namespace zelmat {

namespace {

/// A property as the glossary of TFEL calls it.
struct LawKind {
    const char* block;
    std::size_t column;
    const char* glossary;
    const char* output;
};

constexpr LawKind kLaws[] = {
    {"elastic", 0, "YoungModulus", "E"},
    {"elastic", 1, "PoissonRatio", "nu"},
    {"density", 0, "MassDensity", "rho"},
    {"thermal_expansion", 0, "ThermalExpansion", "alpha"},
    {"conductivity", 0, "ThermalConductivity", "k"},
    {"specific_heat", 0, "SpecificHeatCapacity", "cp"},
};

/// Linear between rows, constant outside.
std::string Body(const LawKind& law, const DeckTable& table) {
    const auto& values = table.columns[law.column];
    const std::string set = std::string("    ") + law.output + " = ";
    if (table.temperatures.empty()) return set.substr(2) + RealDeckNumber(values.front()) + ";\n";
    const auto& t = table.temperatures;
    std::string body =
        "  if (T <= " + RealDeckNumber(t[0]) + ") {\n" + set + RealDeckNumber(values[0]) + ";\n";
    for (std::size_t row = 1; row < values.size(); ++row) {
        const std::string low = RealDeckNumber(t[row - 1]), high = RealDeckNumber(t[row]);
        const std::string from = RealDeckNumber(values[row - 1]), to = RealDeckNumber(values[row]);
        body += "  } else if (T <= " + high + ") {\n" + set + from + " + (" + to + " - (" + from +
                ")) * (T - (" + low + ")) / (" + high + " - (" + low + "));\n";
    }
    return body + "  } else {\n" + set + RealDeckNumber(values.back()) + ";\n  }\n";
}

std::string Source(const LawKind& law, const DeckMaterial& material, const DeckTable& table) {
    std::string text = "@DSL MaterialLaw;\n@Law " + material.name + "_" + law.glossary + ";\n@Material " +
                       material.name + ";\n@Output " + law.output + ";\n" + law.output +
                       ".setGlossaryName(\"" + law.glossary + "\");\n";
    if (!table.temperatures.empty()) text += "@Input T;\nT.setGlossaryName(\"Temperature\");\n";
    return text + "@Function {\n" + Body(law, table) + "}\n";
}

std::vector<DeckFile> Write(const DeckMaterial& material, const DeckUnits& units, DeckNotes& notes) {
    std::vector<DeckFile> files;
    for (const Block& block : material.blocks) {
        std::string why;
        const auto table = DeckTableOf(block, units, why);
        const auto readable = OverTemperature(block.tables.front());
        if (!table || !readable.Ok()) {
            notes.LostBehavior(BehaviorOf(block), (table ? readable.Why() : why));
            continue;
        }
        if (block.kind->name == "thermal_expansion") {
            if (IsInstantaneous(block)) {
                notes.LostBehavior("thermal_expansion", "coefficients that are no mean ones");
                continue;
            }
            const auto reference = block.values.Get<double>("reference_temperature");
            const auto zero = reference ? units.FromStored(*reference, "temperature") : std::nullopt;
            notes.Caution(
                "thermal_expansion: the law has no place for the reference temperature of its mean "
                "coefficients, " +
                (zero ? DeckNumber(*zero) : std::string("which is not given")));
        }
        for (const LawKind& law : kLaws) {
            if (block.kind->name != law.block) continue;
            files.push_back({material.name + "_" + law.glossary + ".mfront", Source(law, material, *table)});
        }
    }
    return files;
}

}  // namespace

DeckForm MfrontForm() {
    return {.name = "mfront",
            .title = "MFront",
            .folder = true,
            .comment = "// ",
            .names = {60, "", true, "Material"},
            .reserved = {"AND",     "ASM",       "AUTO",      "BOOL",     "BREAK",    "CASE",     "CATCH",
                         "CHAR",    "CLASS",     "CONST",     "CONTINUE", "DEFAULT",  "DELETE",   "DO",
                         "DOUBLE",  "ELSE",      "ENUM",      "EXPLICIT", "EXPORT",   "EXTERN",   "FALSE",
                         "FLOAT",   "FOR",       "FRIEND",    "GOTO",     "IF",       "INLINE",   "INT",
                         "LONG",    "MUTABLE",   "NAMESPACE", "NEW",      "NOT",      "OPERATOR", "OR",
                         "PRIVATE", "PROTECTED", "PUBLIC",    "REGISTER", "RETURN",   "SHORT",    "SIGNED",
                         "SIZEOF",  "STATIC",    "STRUCT",    "SWITCH",   "TEMPLATE", "THIS",     "THROW",
                         "TRUE",    "TRY",       "TYPEDEF",   "TYPENAME", "UNION",    "UNSIGNED", "USING",
                         "VIRTUAL", "VOID",      "VOLATILE",  "WHILE",    "XOR"},
            .outside = "the nearest row's value",
            .rules = WithTheRestLost({{"elastic", Carry::CARRIED, "YoungModulus, PoissonRatio", ""},
                                      {"density", Carry::CARRIED, "MassDensity", ""},
                                      {"thermal_expansion", Carry::CARRIED, "ThermalExpansion",
                                       "mean coefficients; their reference temperature stands in a comment"},
                                      {"conductivity", Carry::CARRIED, "ThermalConductivity", ""},
                                      {"specific_heat", Carry::CARRIED, "SpecificHeatCapacity", ""}},
                                     "a material law is a property over temperature, not a behavior"),
            .write = &Write};
}

}  // namespace zelmat
