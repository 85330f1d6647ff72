#include <algorithm>

#include "zelmat/checks/CheckRules.h"
#include "zelmat/properties/ExpansionProperty.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

namespace {

bool HasAny(const Material& material, std::initializer_list<const char*> blocks) {
    const bool fit = std::any_of(blocks.begin(), blocks.end(), [&](const std::string& name) {
        return !material.fits.empty() && material.fits.front().kind->name == name;
    });
    return fit || std::any_of(blocks.begin(), blocks.end(),
                              [&](const char* name) { return material.Find(name) != nullptr; });
}

void LookAtExpansion(const Material& material, CheckReport& report) {
    const Block* expansion = material.Find("thermal_expansion");
    if (!expansion || HasAny(material, {"elastic", "hyperelastic", "user_material", "gasket"})) return;
    report.Add(expansion->origin.Line(), "thermal_expansion is there and no elasticity");
}

void LookAtPlasticity(const Material& material, CheckReport& report) {
    const Block* plastic = material.Find("plastic");
    if (!plastic || HasAny(material, {"elastic", "user_material"})) return;
    report.Add(plastic->origin.Line(), "plastic is there and no elastic");
}

void LookAtReference(const Material& material, CheckReport& report) {
    const Block* expansion = material.Find("thermal_expansion");
    if (!expansion || expansion->values.Find("reference_temperature")) return;
    report.Add(expansion->origin.Line(), "thermal_expansion has no reference_temperature");
}

void LookAtKind(const Material& material, CheckReport& report) {
    const Block* expansion = material.Find("thermal_expansion");
    if (!expansion || !IsInstantaneous(*expansion)) return;
    report.Add(expansion->origin.Line(),
               "thermal_expansion is given as " + Quoted(*expansion->values.Get<std::string>("kind")));
}

}  // namespace

CheckTopic CompletenessRules() {
    constexpr const char* kSecant =
        "thermal strain is alpha (T - Tref) with the mean coefficient; Y. S. Touloukian and others, "
        "Thermophysical Properties of Matter 12, 1975";
    return {.title = "Completeness",
            .rules = {
                {.kind = FindingKind::WARNING,
                 .code = "expansion-without-elasticity",
                 .says = "A material with thermal expansion has an elasticity (elastic, hyperelastic, user "
                         "material or gasket).",
                 .bound = "a thermal strain without stiffness gives no stress",
                 .source = "an analysis needs both",
                 .look = LookAtExpansion},
                {.kind = FindingKind::WARNING,
                 .code = "plasticity-without-elasticity",
                 .says = "A material with plasticity has an elasticity (elastic or user material).",
                 .bound = "plastic strain is what elastic strain leaves of the total",
                 .source = "an analysis needs both",
                 .look = LookAtPlasticity},
                {.kind = FindingKind::WARNING,
                 .code = "expansion-reference",
                 .says = "A thermal expansion says from which reference temperature its mean coefficient is.",
                 .bound = "the mean coefficient has no meaning without it",
                 .source = kSecant,
                 .look = LookAtReference},
                {.kind = FindingKind::WARNING,
                 .code = "expansion-kind",
                 .says = "A thermal expansion is the mean (secant) coefficient, not the instantaneous one.",
                 .bound = "the mean coefficient from the reference temperature is expected",
                 .source = kSecant,
                 .look = LookAtKind},
            }};
}

}  // namespace zelmat
