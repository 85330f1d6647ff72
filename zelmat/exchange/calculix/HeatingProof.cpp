#include <algorithm>

#include "zelmat/exchange/DeckText.h"
#include "zelmat/exchange/calculix/ProofModel.h"

namespace zelmat {

namespace {

/// Ten times what the bends of a table add, see below.
constexpr double kBound = 1e-5;

/// What the numbers of the table are at one temperature, in the units of the deck.
struct ThermalNumbers {
    double kelvin;
    double density, conductivity, specificHeat;

    /// Within this time a temperature evens out over the length of 1.
    double Time() const { return density * specificHeat / conductivity; }
};

std::vector<ThermalNumbers> NumbersOf(const ProofSubject& subject, const mechanics::TemperatureTable& table) {
    const auto number = [&](const char* block, double kelvin) {
        const auto other = ProofTable(subject.Find(block));
        return other ? subject.units.FromStored(ProofValue(*other, kelvin), block).value_or(0.0) : 1.0;
    };
    std::vector<ThermalNumbers> all;
    for (const double kelvin : subject.Temperatures(table)) {
        const ThermalNumbers one{
            kelvin, number("density", kelvin), number("conductivity", kelvin),
            subject.units.FromStored(ProofValue(table, kelvin), "specific_heat").value_or(0.0)};
        if (one.density > 0.0 && one.conductivity > 0.0 && one.specificHeat > 0.0) all.push_back(one);
    }
    return all;
}

/// What the solver needs beside a specific heat.
std::string FurtherCards(const ProofSubject& subject) {
    std::string cards;
    if (!subject.Find("density")) cards += "*DENSITY\n1.\n";
    if (!subject.Find("conductivity")) cards += "*CONDUCTIVITY\n1.\n";
    return cards;
}

}  // namespace

/// A bar of the length 2 whose one end gets warmer at a constant rate and whose other end is insulated: once
/// the beginning is forgotten all of it gets warmer at that rate, and the heat that flows through the middle
/// of its second half is what the last quarter takes up: density times specific heat times rate times 1/2.
/// That holds for linear elements and steps of any size, without an error of either; the conductivity is of
/// no consequence. (In the first element it does not hold in CalculiX 2.20, which leaves out the part of the
/// capacity that belongs to prescribed temperatures.)
///
/// Steps of 10 times the time in which temperatures even out leave 1e-9 of the beginning after 12. The bar is
/// some millionths of a degree colder at its end, which a double holds to 1e-7 of that; the heat flow is
/// printed to 7 digits. Where the specific heat changes with temperature by s per degree, the temperature in
/// the last element, 3.5 drops below that of the heated end, and the change of the drops themselves, about as
/// much again, add up to 7 drops, by which the heated end is warmer than the temperature that is meant; what
/// is left is what a bend of the table makes of a drop: below 1e-6 even where it peaks as that of steel at
/// 735 degC.
std::optional<ProofModel> HeatingProof(const ProofSubject& subject) {
    constexpr double kDrop = 1e-6;  // of temperature over half of the last element
    constexpr int kSteps = 12;
    const auto table = ProofTable(subject.Find("specific_heat"));
    if (!table) return std::nullopt;
    const auto all = NumbersOf(subject, *table);
    double longest = 0.0;
    for (const ThermalNumbers& one : all) longest = std::max(longest, one.Time());
    const double step = 10.0 * longest, time = kSteps * step;
    ProofModel model{"specific_heat", BarModel(subject.thermal + FurtherCards(subject), subject.name), {}};
    for (const ThermalNumbers& one : all) {
        const double rate = 2.0 * kDrop / one.Time();
        const double end = subject.Temperature(one.kelvin) + 7.0 * kDrop, beginning = end - rate * time;
        const int bar = model.bars.Add(beginning, 2);
        model.bars.Ramp(bar, BarModel::X0, 11, beginning, end, time);
        model.expected.push_back(
            {{"specific_heat", "heated bar, " + subject.TemperatureText(one.kelvin), "specific heat",
              subject.units.For("specific_heat").Spelling(), one.specificHeat, 0.0, one.specificHeat, kBound},
             {"heat flux", model.bars.ElementSet(bar), model.bars.LastElement(bar), 1, time,
              2.0 / (one.density * rate)}});
    }
    model.bars.EndStep("*STEP, INC=1000\n*HEAT TRANSFER, DIRECT\n" + DeckNumber(step) + ", " +
                           DeckNumber(time) + "\n*CONTROLS, PARAMETERS=FIELD\n1e-9, 1e-8, , , , , ,\n",
                       "*EL PRINT, ELSET=E%, FREQUENCY=100000\nHFL\n");
    return model;
}

}  // namespace zelmat
