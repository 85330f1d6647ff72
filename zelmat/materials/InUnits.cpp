#include "zelmat/materials/InUnits.h"

#include <optional>
#include <utility>

#include "zelmat/materials/QuantityOf.h"
#include "zelmat/quantities/UnitConversion.h"

namespace zelmat {

namespace {

struct Shown {
    std::vector<double> numbers;
    std::string unit;
};

/// Nothing when there is nothing to convert, or a number that the unit cannot hold.
std::optional<Shown> Converted(std::string_view name, std::string_view unit, std::vector<double> numbers,
                               const UnitChoice& units) {
    const Quantity* quantity = QuantityOf(name, unit);
    if (!quantity) return std::nullopt;
    const Unit& chosen = units.For(*quantity);
    if (UnitConversion::FromStored(*quantity, chosen).Convert(numbers)) return std::nullopt;
    return Shown{std::move(numbers), chosen.Spelling()};
}

}  // namespace

Table InUnits(const Table& table, const UnitChoice& units) {
    Table shown = table;
    for (Column& column : shown.columns) {
        auto converted = Converted(column.kind.name, column.kind.unit, column.values, units);
        if (!converted) continue;
        column.values = std::move(converted->numbers);
        column.kind.unit = std::move(converted->unit);
    }
    return shown;
}

ShownValue InUnits(const Setting& setting, const Value& value, const UnitChoice& units) {
    const auto* number = std::get_if<double>(&value);
    auto converted = number ? Converted(setting.name, setting.unit, {*number}, units) : std::nullopt;
    if (!converted) return {value, setting.unit};
    return {converted->numbers.front(), std::move(converted->unit)};
}

}  // namespace zelmat
