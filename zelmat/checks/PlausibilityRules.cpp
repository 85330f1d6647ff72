#include <algorithm>
#include <cmath>
#include <optional>

#include "zelmat/checks/CheckRules.h"
#include "zelmat/checks/DerivedText.h"
#include "zelmat/checks/HyperelasticFits.h"
#include "zelmat/checks/PlausibleBands.h"
#include "zelmat/checks/RoomRows.h"
#include "zelmat/checks/TableLooks.h"
#include "zelmat/materials/BrokenRules.h"
#include "zelmat/quantities/NumberText.h"
#include "zelmat/quantities/UnitConversion.h"
#include "zelmat/text/NearestName.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

namespace {

/// A value near room temperature with what a finding says of it.
struct Sighting {
    double value;
    const Table* table;
    std::size_t row;
    std::string text;

    int Line() const { return table->origin.Line(row); }
};

using Sightings = std::vector<Sighting>;

Sightings InColumns(const Material& material, const std::vector<ColumnOfBlock>& columns) {
    Sightings seen;
    for (const ColumnOfBlock& each : columns) {
        const Block* block = material.Find(each.block);
        if (!block) continue;
        for (const Table& table : block->tables) {
            const Column* column = table.Find(each.column);
            if (!column) continue;
            for (const std::size_t row : RoomRows(table)) {
                seen.push_back({column->values[row], &table, row,
                                RowText(block->kind->TableName(*table.kind), *column, row)});
            }
        }
    }
    return seen;
}

Sightings InFits(const Material& material) {
    Sightings seen;
    ForEachFit(material, [&](const Block& fit, const Table& table) {
        for (const std::size_t row : RoomRows(table)) {
            const auto energy = EnergyOfRow(fit, table, row);
            if (!energy || !energy->Ok()) continue;
            const double modulus = energy->Value()->ShearModulus();
            seen.push_back({modulus, &table, row,
                            "row " + std::to_string(row + 1) + " of " + fit.kind->TableName(*table.kind) +
                                ": initial shear modulus mu0 is " + DerivedText(modulus, "Pa")});
        }
    });
    return seen;
}

bool IsWithin(double value, double low, double high) {
    return value >= low && value <= high;
}

bool IsPossible(const char* property, double value) {
    const PlausibleProperty& limits = FindPlausibleProperty(property);
    return IsWithin(value, limits.least, limits.most);
}

/// Of a thin rod, from the first modulus and the first density.
Sightings SpeedOfSound(const Material& material) {
    const Sightings modulus = InColumns(material, {{"elastic", "youngs_modulus"}});
    const Sightings density = InColumns(material, {{"density", "density"}});
    if (modulus.empty() || density.empty()) return {};
    const double e = modulus.front().value, rho = density.front().value;
    if (!IsPossible("modulus", e) || !IsPossible("density", rho)) return {};  // said already
    const double speed = std::sqrt(e / rho);
    return {{speed, modulus.front().table, modulus.front().row,
             "the speed of sound sqrt(E/density) is " + DerivedText(speed, "m/s") + " for E " +
                 WithUnit(e, "Pa") + " and density " + WithUnit(rho, "kg/m3")}};
}

/// Of Johnson and Cook's law what its first two constants say of each, and the stress at plastic strain 1.
Sightings YieldStresses(const Material& material) {
    Sightings seen = InColumns(material, {{"plastic", "yield_stress"}, {"plastic", "A"}});
    const Block* plastic = material.Find("plastic");
    if (!plastic) return seen;
    for (const Table& table : plastic->tables) {
        const Column *a = table.Find("A"), *b = table.Find("B");
        if (!a || !b) continue;
        for (std::size_t row = 0; row < table.Rows(); ++row) {
            const double sum = a->values[row] + b->values[row];
            seen.push_back({sum, &table, row,
                            "row " + std::to_string(row + 1) +
                                " of plastic: A + B, the stress at plastic strain 1, is " +
                                DerivedText(sum, "Pa")});
        }
    }
    return seen;
}

/// Where the values of a property are: in columns, or they follow from others.
struct Lookout {
    const char* property;
    std::vector<ColumnOfBlock> columns;
    Sightings (*computed)(const Material&) = nullptr;
};

Sightings SightingsOf(const PlausibleProperty& property, const Material& material) {
    static const std::vector<Lookout> lookouts = {
        {"modulus", {{"elastic", "youngs_modulus"}, {"gasket_membrane", "youngs_modulus"}}},
        {"poissons-ratio", {{"elastic", "poissons_ratio"}, {"gasket_membrane", "poissons_ratio"}}},
        {"yield-stress", {}, YieldStresses},
        {"density", {{"density", "density"}}},
        {"expansion", {{"thermal_expansion", "thermal_expansion"}}},
        {"conductivity", {{"conductivity", "conductivity"}}},
        {"specific-heat", {{"specific_heat", "specific_heat"}}},
        {"initial-shear-modulus", {}, InFits},
        {"speed-of-sound", {}, SpeedOfSound},
    };
    const auto found = std::find_if(lookouts.begin(), lookouts.end(), [&](const Lookout& lookout) {
        return std::string(lookout.property) == property.name;
    });
    return found->computed ? found->computed(material) : InColumns(material, found->columns);
}

/// What other rules say already.
bool IsForOtherRules(const PlausibleProperty& property, double value) {
    if (property.limitsElsewhere) return !(value > property.least && value < property.most);
    return property.least > 0.0 && IsNotPositive(value);
}

/// "in MPa it would be plausible": the usual unit in which the number lies within the band.
std::vector<std::string> UnitHint(const PlausibleProperty& property, const PlausibleBand& band,
                                  double value) {
    const Quantity& quantity = *FindQuantity(property.quantity);
    for (const char* spelling : property.usualUnits) {
        if (!spelling) continue;
        const auto stored = UnitConversion::ToStored(*ReadUnit(spelling, quantity), quantity)(value);
        if (stored && IsWithin(*stored, band.low, band.high)) {
            return {std::string("in ") + spelling + " it would be plausible"};
        }
    }
    return {};
}

std::string Article(const std::string& materialClass) {
    return materialClass.find_first_of("aeiou") == 0 ? "an " : "a ";
}

std::string BandText(const PlausibleBand& band, const std::string& unit) {
    const std::string who = band.materialClass == std::string(kAnyClass)
                                ? std::string("any material")
                                : Article(band.materialClass) + band.materialClass;
    return NumberText(band.low) + " to " + WithUnit(band.high, unit) + " for " + who;
}

CheckRule Impossible(const PlausibleProperty& property) {
    const std::string unit = FindQuantity(property.quantity)->stored.Spelling();
    return {
        .code = std::string("impossible-") + property.name,
        .says = std::string("The ") + property.title + " is one that there can be, whatever the material.",
        .bound = "beyond " + NumberText(property.least) + " to " + WithUnit(property.most, unit) +
                 " there is no solid",
        .source = property.limits,
        .look = [&property](const Material& material, CheckReport& report) {
            const PlausibleBand& band = BandOf(property, material.materialClass);
            for (const Sighting& seen : SightingsOf(property, material)) {
                if (IsForOtherRules(property, seen.value) ||
                    IsWithin(seen.value, property.least, property.most))
                    continue;
                report.Add(seen.Line(), seen.text, UnitHint(property, band, seen.value));
            }
        }};
}

CheckRule Implausible(const PlausibleProperty& property) {
    return {.kind = FindingKind::WARNING,
            .code = std::string("implausible-") + property.name,
            .says = std::string("The ") + property.title +
                    " near room temperature lies in the band of the material's class.",
            .bound = {},
            .source = "the bands below",
            .look = [&property](const Material& material, CheckReport& report) {
                const PlausibleBand& band = BandOf(property, material.materialClass);
                const std::string unit = FindQuantity(property.quantity)->stored.Spelling();
                for (const Sighting& seen : SightingsOf(property, material)) {
                    if (IsForOtherRules(property, seen.value) ||
                        !IsWithin(seen.value, property.least, property.most) ||
                        IsWithin(seen.value, band.low, band.high))
                        continue;
                    std::vector<std::string> details = {"expected " + BandText(band, unit)};
                    for (std::string& hint : UnitHint(property, band, seen.value))
                        details.push_back(std::move(hint));
                    report.Add(seen.Line(), seen.text, std::move(details));
                }
            }};
}

/// The first of a curve's rows alone: the others follow from its unit.
void LookAtPlasticStrain(const Material& material, CheckReport& report) {
    constexpr double kGreatest = 5.0;
    const Block* plastic = material.Find("plastic");
    if (!plastic) return;
    for (const Table& table : plastic->tables) {
        const Column* strain = table.Find("plastic_strain");
        if (!strain) continue;
        const auto found = std::find_if(strain->values.begin(), strain->values.end(),
                                        [](double value) { return value > kGreatest; });
        if (found == strain->values.end()) continue;
        report.AddValue(*plastic, table, *strain, static_cast<std::size_t>(found - strain->values.begin()),
                        {"in % it would be plausible"});
    }
}

bool IsCold(double temperature) {
    constexpr double kColdest = 100.0;  // K
    return temperature > 0.0 && temperature < kColdest;
}

void LookAtReferences(const Material& material, CheckReport& report) {
    const std::string hint = "in degC it would be plausible";
    const Block* expansion = material.Find("thermal_expansion");
    const auto reference = expansion ? expansion->values.Get<double>("reference_temperature") : std::nullopt;
    if (reference && IsCold(*reference)) {
        report.Add(expansion->origin.Line(),
                   "the reference temperature of thermal_expansion is " + WithUnit(*reference, "K"), {hint});
    }
    const Block* plastic = material.Find("plastic");
    if (!plastic) return;
    for (const Table& table : plastic->tables) {
        const Column* transition = table.Find("transition_temperature");
        for (std::size_t row = 0; transition && row < table.Rows(); ++row) {
            if (IsCold(transition->values[row])) report.AddValue(*plastic, table, *transition, row, {hint});
        }
    }
}

void LookAtClass(const Material& material, CheckReport& report) {
    const auto& known = PlausibleClasses();
    if (material.materialClass.empty() ||
        std::find(known.begin(), known.end(), material.materialClass) != known.end())
        return;
    const std::string nearest = NearestName(material.materialClass, known);
    report.Add(0, "there are no bands for the class " + Quoted(material.materialClass),
               {nearest.empty() ? "known: " + WordList(known) : "did you mean " + nearest + "?"});
}

}  // namespace

CheckTopic PlausibilityRules() {
    CheckTopic topic{.title = "Plausibility", .rules = {}};
    for (const PlausibleProperty& property : PlausibleProperties()) {
        if (!property.limitsElsewhere) topic.rules.push_back(Impossible(property));
        topic.rules.push_back(Implausible(property));
    }
    topic.rules.push_back({.kind = FindingKind::WARNING,
                           .code = "implausible-plastic-strain",
                           .says = "Plastic strains are at most 5, and not given in percent.",
                           .bound = "hardly above 5",
                           .source =
                               "set here: at a true strain of 5 a bar is 148 times as long; torsion and "
                               "drawing of wires end below it",
                           .look = LookAtPlasticStrain});
    topic.rules.push_back({.kind = FindingKind::WARNING,
                           .code = "implausible-reference-temperature",
                           .says = "The reference temperature of a thermal expansion and the transition "
                                   "temperature of Johnson-Cook's law are not below 100 K.",
                           .bound = "hardly below 100 K",
                           .source = "set here: both are near room temperature in the literature; 20 K is 20 "
                                     "degC whose unit nobody said",
                           .look = LookAtReferences});
    topic.rules.push_back({.kind = FindingKind::WARNING,
                           .code = "unknown-class",
                           .says = "The class of the material is one that has bands.",
                           .bound = "the bands of any material are used",
                           .source = "the bands below",
                           .look = LookAtClass});
    return topic;
}

}  // namespace zelmat
