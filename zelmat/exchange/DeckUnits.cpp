#include "zelmat/exchange/DeckUnits.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "zelmat/materials/QuantityOf.h"
#include "zelmat/materials/TableKind.h"
#include "zelmat/quantities/UnitConversion.h"

namespace zelmat {

namespace {

/// What materials in decks are made of, in the order in which a deck names their units.
constexpr std::array<const char*, 8> kNamed = {"stress",       "density",        "expansion",
                                               "conductivity", "specific_heat",  "temperature",
                                               "length",       "compressibility"};

long double Size(const DeckUnits& units, const char* quantity) {
    return units.For(quantity).Factor().Quotient();
}

/// Whether a number column of an unknown unit, or the unit that somebody wrote.
std::optional<Unit> UnitOf(const Column& column) {
    auto unit = Unit::Read(column.written ? column.written->unit : column.kind.unit);
    return unit ? std::optional(*unit) : std::nullopt;
}

}  // namespace

std::optional<DeckUnits> DeckUnits::Read(const std::string& units, Findings& findings) {
    if (units.empty()) return Si();
    const auto chosen = UnitChoice::Read(units, UnitChoice::Si());
    if (chosen) return DeckUnits(*chosen);
    findings.Add({FindingKind::USAGE, {"--units", 0}, "wrong-units", chosen.Error().text, {}});
    return std::nullopt;
}

const Unit& DeckUnits::For(const char* quantity) const {
    return units_.For(*FindQuantity(quantity));
}

std::optional<double> DeckUnits::FromStored(double stored, const char* quantity) const {
    return UnitConversion::FromStored(*FindQuantity(quantity), For(quantity))(stored);
}

std::optional<double> DeckUnits::ToStored(double number, const char* quantity) const {
    return UnitConversion::ToStored(For(quantity), *FindQuantity(quantity))(number);
}

std::optional<std::vector<double>> DeckUnits::Values(const Column& column) const {
    const Quantity* quantity = QuantityOf(column.kind.name, column.kind.unit);
    if (!quantity) return column.values;
    const auto from = UnitOf(column);
    if (!from) return std::nullopt;
    std::vector<double> values =
        column.written && !column.written->numbers.empty() ? column.written->numbers : column.values;
    const UnitConversion conversion(*from, units_.For(*quantity), quantity->isPoint);
    if (conversion.Convert(values)) return std::nullopt;
    return values;
}

std::string DeckUnits::Text() const {
    std::string text;
    for (const char* quantity : kNamed) {
        text += (text.empty() ? "" : ", ") + std::string(FindQuantity(quantity)->title) + " in " +
                For(quantity).Spelling();
    }
    return text;
}

double DeckUnits::AbsoluteZero() const {
    return FromStored(0.0, "temperature").value_or(0.0);
}

std::vector<std::string> DeckUnits::Inconsistent() const {
    const long double stress = Size(*this, "stress"), length = Size(*this, "length");
    const long double time = 1.0L / Size(*this, "rate"), kelvin = Size(*this, "temperature");
    const struct {
        const char* quantity;
        long double size;
    } wanted[] = {
        {"density", stress * time * time / (length * length)},
        {"conductivity", stress * length * length / (time * kelvin)},
        {"specific_heat", length * length / (time * time * kelvin)},
        {"expansion", 1.0L / kelvin},
        {"compressibility", 1.0L / stress},
    };
    std::vector<std::string> inconsistent;
    for (const auto& [quantity, size] : wanted) {
        const bool agrees = std::fabs(Size(*this, quantity) / size - 1.0L) < 1e-9L;
        if (!agrees) inconsistent.push_back(std::string(quantity) + " in " + For(quantity).Spelling());
    }
    return inconsistent;
}

std::vector<double> DeckTable::Row(std::size_t row) const {
    std::vector<double> numbers;
    for (const auto& column : columns) numbers.push_back(column[row]);
    if (!temperatures.empty()) numbers.push_back(temperatures[row]);
    return numbers;
}

std::optional<DeckTable> DeckTableOf(const Block& block, const DeckUnits& units, std::string& why) {
    if (block.tables.empty() || block.tables.front().Rows() == 0) {
        why = "it has no table";
        return std::nullopt;
    }
    const Table& table = block.tables.front();
    DeckTable deck;
    for (const Column& column : table.columns) {
        const bool isTemperature = column.kind.name == TemperatureColumn().name;
        if (isTemperature && !table.temperatureDependent) continue;
        auto values = units.Values(column);
        if (!values ||
            !std::all_of(values->begin(), values->end(), [](double value) { return std::isfinite(value); })) {
            why = "a number of " + column.kind.name + " is missing, not finite, or too large for the unit";
            return std::nullopt;
        }
        (isTemperature ? deck.temperatures : deck.columns.emplace_back()) = std::move(*values);
    }
    return deck;
}

}  // namespace zelmat
