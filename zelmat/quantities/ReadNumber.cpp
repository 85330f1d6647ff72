#include "zelmat/quantities/ReadNumber.h"

#include <algorithm>
#include <charconv>
#include <string>
#include <system_error>

#include "zelmat/quantities/PlainUnitText.h"
#include "zelmat/text/QuotedText.h"

namespace zelmat {

namespace {

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

/// Digits other than 0 before the exponent.
bool HasDigits(std::string_view number) {
    const std::string_view digits = number.substr(0, number.find_first_of("eE"));
    return std::any_of(digits.begin(), digits.end(), [](char c) { return IsDigit(c) && c != '0'; });
}

bool BeginsNumber(std::string_view text) {
    if (text.starts_with('-') || text.starts_with('+')) text.remove_prefix(1);
    if (text.starts_with('.')) text.remove_prefix(1);
    return !text.empty() && IsDigit(text.front());
}

QuantityError Error(std::string_view text, const char* what) {
    return {QuotedText(text) + " " + what};
}

}  // namespace

QuantityResult<NumberAndRest> ReadLeadingNumber(std::string_view text) {
    text = WithoutBlanksAround(text);
    if (!BeginsNumber(text)) return Error(text, "does not begin with a number");
    const std::size_t sign = text.starts_with('+') ? 1 : 0;  // which from_chars does not take
    const char* const begin = text.data() + sign;
    const char* const end = text.data() + text.size();
    double number = 0.0;
    const auto read = std::from_chars(begin, end, number);
    const std::string_view digits(begin, static_cast<std::size_t>(read.ptr - begin));
    if (read.ec == std::errc::result_out_of_range || (number == 0.0 && HasDigits(digits))) {
        return Error(text, "is beyond what a number can hold, about 5e-324 to 1.8e308");
    }
    const std::string_view rest(read.ptr, static_cast<std::size_t>(end - read.ptr));
    if (rest.size() > 1 && rest.front() == ',' && IsDigit(rest[1])) {
        return Error(text, "has a comma in its number; the decimal sign is a point");
    }
    if (!rest.empty() && (rest.front() == 'x' || rest.front() == 'X')) {
        return Error(text, "is not a decimal number");
    }
    if (!rest.empty() && (rest.front() == '.' || IsDigit(rest.front()))) {
        return Error(text, "has more than one decimal point in its number");
    }
    return NumberAndRest{number, rest};
}

QuantityResult<double> ReadNumber(std::string_view text) {
    const auto read = ReadLeadingNumber(text);
    if (!read) return read.Error();
    if (!read->rest.empty()) return Error(WithoutBlanksAround(text), "is not a number alone");
    return read->number;
}

}  // namespace zelmat
