#include "zelmat/exchange/DeckForm.h"
#include "zelmat/materials/OverTemperature.h"
#include "zelmat/properties/ExpansionProperty.h"

namespace zelmat {

namespace {

/// A number, or rows of temperature and number.
std::string Entry(const std::string& keyword, const DeckTable& table, std::size_t column) {
    if (table.temperatures.empty()) {
        return "  " + keyword + " = Real " + RealDeckNumber(table.columns[column].front()) + "\n";
    }
    std::string text = "  " + keyword + " = Variable Temperature\n    Real\n";
    for (std::size_t row = 0; row < table.Rows(); ++row) {
        text += "      " + RealDeckNumber(table.temperatures[row]) + " " +
                RealDeckNumber(table.columns[column][row]) + "\n";
    }
    return text + "    End\n";
}

std::string EntriesOf(const Block& block, const DeckUnits& units, DeckNotes& notes) {
    std::string why;
    auto table = DeckTableOf(block, units, why);
    const auto readable = OverTemperature(block.tables.front());
    if (!table || !readable.Ok()) {
        notes.LostBehavior(BehaviorOf(block), (table ? readable.Why() : why));
        return {};
    }
    const std::string& name = block.kind->name;
    if (name == "elastic") return Entry("Youngs Modulus", *table, 0) + Entry("Poisson Ratio", *table, 1);
    if (name == "density") return Entry("Density", *table, 0);
    if (name == "conductivity") return Entry("Heat Conductivity", *table, 0);
    if (name == "specific_heat") return Entry("Heat Capacity", *table, 0);
    const auto reference = block.values.Get<double>("reference_temperature");
    const auto zero = reference ? units.FromStored(*reference, "temperature") : std::nullopt;
    if (IsInstantaneous(block) || !zero) {
        notes.LostBehavior("thermal_expansion", "it needs mean coefficients with a reference temperature");
        return {};
    }
    return Entry("Heat Expansion Coefficient", *table, 0) + "  Reference Temperature = Real " +
           RealDeckNumber(*zero) + "\n";
}

std::vector<DeckFile> Write(const DeckMaterial& material, const DeckUnits& units, DeckNotes& notes) {
    std::string entries;
    for (const Block& block : material.blocks) entries += EntriesOf(block, units, notes);
    if (entries.empty()) return {};
    return {{"", "Material " + std::to_string(material.number) + "\n  Name = \"" + material.name + "\"\n" +
                     entries + "End\n"}};
}

}  // namespace

DeckForm ElmerForm() {
    return {.name = "elmer",
            .title = "Elmer",
            .comment = "! ",
            .names = {80, "-. ", false, "MATERIAL"},
            .outside = "the straight line through the two nearest rows",
            .rules = WithTheRestLost(
                {{"elastic", Carry::CARRIED, "Youngs Modulus, Poisson Ratio", ""},
                 {"density", Carry::CARRIED, "Density", ""},
                 {"thermal_expansion", Carry::CARRIED, "Heat Expansion Coefficient, Reference Temperature",
                  "mean coefficients alone"},
                 {"conductivity", Carry::CARRIED, "Heat Conductivity", ""},
                 {"specific_heat", Carry::CARRIED, "Heat Capacity", ""}},
                "its Material section has no keyword for it that this program writes"),
            .write = &Write};
}

}  // namespace zelmat
