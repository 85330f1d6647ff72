#include <algorithm>
#include <cmath>

#include "zelmat/checks/CheckRules.h"
#include "zelmat/checks/DerivedText.h"
#include "zelmat/checks/RoomRows.h"
#include "zelmat/checks/TableLooks.h"
#include "zelmat/mechanics/elastic/IsotropicElasticity.h"
#include "zelmat/properties/OtherNumbers.h"
#include "zelmat/quantities/NumberText.h"

namespace zelmat {

namespace {

/// The first value of a column near room temperature.
std::optional<double> RoomValue(const Material& material, const char* block, const char* name) {
    const Block* found = material.Find(block);
    const Table* table = found && !found->tables.empty() ? &found->tables.front() : nullptr;
    const Column* column = table ? table->Find(name) : nullptr;
    return column && table->Rows() > 0 ? std::optional(column->values[RoomRows(*table).front()])
                                       : std::nullopt;
}

int LineOf(const Material& material, const char* block) {
    const Block* found = material.Find(block);
    return found ? found->origin.Line() : 0;
}

void Compare(const Material& material, const char* symbol, std::optional<double> given, double follows,
             CheckReport& report) {
    constexpr double kAgreement = 0.05;  // relative; handbooks round each constant for itself
    if (!given || std::abs(*given - follows) <= kAgreement * follows) return;
    report.Add(LineOf(material, "elastic"), std::string(symbol) + " is " + WithUnit(*given, "Pa") +
                                                ", from E and nu follow " + DerivedText(follows, "Pa"));
}

void LookAtConstants(const Material& material, CheckReport& report) {
    const auto e = RoomValue(material, "elastic", "youngs_modulus");
    const auto nu = RoomValue(material, "elastic", "poissons_ratio");
    if (!e || !nu) return;
    const auto all = mechanics::IsotropicFrom({mechanics::ElasticConstant::YOUNGS_MODULUS, *e},
                                              {mechanics::ElasticConstant::POISSONS_RATIO, *nu});
    if (!all.Ok()) return;  // said by the rules of E and nu
    Compare(
        material, "G",
        OtherNumber(material, {"shear_modulus", "G", "modulus_of_rigidity", "modulus_of_share"}, "modulus"),
        all->shearModulus, report);
    Compare(material, "K", OtherNumber(material, {"bulk_modulus", "K", "compression_modulus"}, "modulus"),
            all->bulkModulus, report);
}

std::optional<double> Resistivity(const Material& material) {
    const std::vector<std::string> names = {"electrical_resistivity", "resistivity", "electric_resistivity",
                                            "specific_resistance", "rho_el"};
    if (const auto given = OtherNumber(material, names, "resistivity")) return given;
    const auto conductivity =
        OtherNumber(material, {"electrical_conductivity", "electric_conductivity", "sigma_el"},
                    "electrical_conductivity");
    return conductivity ? std::optional(1.0 / *conductivity) : std::nullopt;
}

void LookAtWiedemannFranz(const Material& material, CheckReport& report) {
    constexpr double kRoom = 293.15;                 // K
    constexpr double kLow = 1.2e-8, kHigh = 7.5e-8;  // W Ohm/K^2
    if (material.materialClass != "metal") return;
    const auto conductivity = RoomValue(material, "conductivity", "conductivity");
    const auto resistivity = Resistivity(material);
    if (!conductivity || !resistivity) return;
    const double lorenz = *conductivity * *resistivity / kRoom;
    if (lorenz >= kLow && lorenz <= kHigh) return;
    report.Add(
        LineOf(material, "conductivity"),
        "conductivity times electrical resistivity over temperature is " + DerivedText(lorenz, "W Ohm/K2"),
        {"conductivity " + WithUnit(*conductivity, "W/(m K)"),
         "resistivity " + DerivedText(*resistivity, "Ohm m")});
}

std::optional<double> MeltingTemperature(const Material& material) {
    const auto hardening = RoomValue(material, "plastic", "melting_temperature");
    return hardening ? hardening
                     : OtherNumber(material,
                                   {"melting_temperature", "melting_point", "solidus_temperature", "solidus",
                                    "T_melt", "Tm"},
                                   "temperature");
}

void LookAtMelting(const Material& material, CheckReport& report) {
    const auto melting = MeltingTemperature(material);
    if (!melting) return;
    ForEachTable(material, [&](const Block& block, const Table& table) {
        const Column* temperature = table.Find("temperature");
        if (!temperature) return;
        for (std::size_t row = 0; row < table.Rows(); ++row) {
            if (!(temperature->values[row] > *melting)) continue;
            report.AddValue(block, table, *temperature, row,
                            {"the material melts at " + WithUnit(*melting, "K")});
            return;  // the rows above it are no news
        }
    });
}

void LookAtJumps(const Material& material, CheckReport& report) {
    constexpr double kJump = 20.0;
    for (const Block& block : material.blocks) {
        for (const Table& table : block.tables) {
            if (!table.temperatureDependent || HoldsCurves(block, table) || table.columns.empty()) continue;
            const Column& column = table.columns.front();
            for (std::size_t row = 1; row < column.values.size(); ++row) {
                const double before = column.values[row - 1], value = column.values[row];
                if (!(before > 0.0 && value > 0.0)) continue;
                if (std::max(value / before, before / value) < kJump) continue;
                report.AddValue(block, table, column, row,
                                {"the row before has " + WithUnit(before, column.kind.unit)});
            }
        }
    }
}

}  // namespace

CheckTopic AgreementRules() {
    return {
        .title = "Agreement between properties",
        .rules = {
            {.kind = FindingKind::WARNING,
             .code = "elastic-constants",
             .says = "A shear modulus G and a bulk modulus K that the card gives beside E and nu agree with "
                     "them within 5 %.",
             .bound = "G = E/(2(1+nu)), K = E/(3(1-2nu)) within 5 %",
             .source = "L. D. Landau, E. M. Lifshitz, Theory of Elasticity, section 5",
             .look = LookAtConstants},
            {.kind = FindingKind::WARNING,
             .code = "wiedemann-franz",
             .says = "Of a metal, thermal conductivity times electrical resistivity over temperature is near "
                     "2.44e-8 W Ohm/K2.",
             .bound = "1.2e-8 to 7.5e-8 W Ohm/K2",
             .source =
                 "law of Wiedemann and Franz, A. Sommerfeld's value; half of it to three times as much, "
                 "for alloys in which the lattice conducts, too",
             .look = LookAtWiedemannFranz},
            {.kind = FindingKind::WARNING,
             .code = "above-melting",
             .says = "No table goes on above the melting temperature.",
             .bound = "the properties of a solid end there",
             .source = "definition of melting",
             .look = LookAtMelting},
            {.kind = FindingKind::WARNING,
             .code = "sudden-change",
             .says = "From one temperature to the next a property changes by less than a factor of 20.",
             .bound = "a power of ten too many?",
             .source =
                 "set here; the steepest in EN 1993-1-2:2005, the peak of the specific heat at 735 degC, "
                 "changes by 7",
             .look = LookAtJumps},
        }};
}

}  // namespace zelmat
