#include "zelmat/materials/WrittenNumbers.h"

#include "zelmat/materials/Material.h"
#include "zelmat/materials/QuantityOf.h"
#include "zelmat/quantities/UnitConversion.h"

namespace zelmat {

namespace {

std::optional<UnitConversion> ConversionOf(std::string_view name, std::string_view storedUnit,
                                           std::string_view written) {
    const Quantity* quantity = QuantityOf(name, storedUnit);
    if (!quantity) return std::nullopt;
    const auto unit = ReadUnit(written, *quantity);
    return unit ? std::optional(UnitConversion::ToStored(*unit, *quantity)) : std::nullopt;
}

}  // namespace

std::optional<double> StoredNumber(const Setting& setting, const WrittenNumber& written) {
    const auto conversion = ConversionOf(setting.name, setting.unit, written.unit);
    return conversion ? (*conversion)(written.number) : std::nullopt;
}

std::optional<std::vector<double>> StoredNumbers(const ColumnKind& column, const WrittenNumbers& written,
                                                 const std::vector<double>& values) {
    const auto conversion = ConversionOf(column.name, column.unit, written.unit);
    if (!conversion) return std::nullopt;
    if (written.numbers.empty()) return conversion->IsIdentity() ? std::optional(values) : std::nullopt;
    std::vector<double> numbers = written.numbers;
    if (conversion->Convert(numbers)) return std::nullopt;
    return numbers;
}

}  // namespace zelmat
