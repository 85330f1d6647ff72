#include "zelmat/quantities/Measured.h"

#include "zelmat/quantities/NumberText.h"
#include "zelmat/quantities/ReadNumber.h"
#include "zelmat/quantities/UnitConversion.h"
#include "zelmat/text/QuotedText.h"

namespace zelmat {

QuantityResult<double> Measured::Stored(const Quantity& quantity) const {
    const auto stored = UnitConversion::ToStored(unit, quantity)(number);
    if (stored) return *stored;
    return QuantityError{std::string(quantity.title) + ": " + Text() + " is beyond what a number in " +
                         quantity.stored.Spelling() + " can hold"};
}

std::string Measured::Text() const {
    const std::string digits = NumberText(number);
    return unit.Spelling() == "-" ? digits : digits + " " + unit.Spelling();
}

QuantityResult<Measured> ReadMeasured(std::string_view text) {
    const auto number = ReadLeadingNumber(text);
    if (!number) return number.Error();
    if (number->rest.empty()) return QuantityError{QuotedText(text) + " has no unit"};
    const auto unit = Unit::Read(number->rest);
    if (!unit) return unit.Error();
    return Measured{number->number, *unit};
}

QuantityResult<Measured> ReadMeasured(std::string_view text, const Quantity& quantity) {
    const auto number = ReadLeadingNumber(text);
    const std::string title(quantity.title);
    if (!number) return QuantityError{title + ": " + number.Error().text};
    if (number->rest.empty()) {
        if (quantity.stored.Spelling() == "-") return Measured{number->number, quantity.stored};
        return QuantityError{title + ": " + QuotedText(text) + " has no unit; expected " +
                             UnitsThatDo(quantity)};
    }
    const auto unit = ReadUnit(number->rest, quantity);
    if (!unit) return unit.Error();
    return Measured{number->number, *unit};
}

}  // namespace zelmat
