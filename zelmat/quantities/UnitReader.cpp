#include "zelmat/quantities/UnitReader.h"

#include <cctype>
#include <cmath>
#include <utility>

#include "zelmat/quantities/PlainUnitText.h"
#include "zelmat/quantities/UnitDatabase.h"
#include "zelmat/text/QuotedText.h"

namespace zelmat {

namespace {

constexpr int kDeepest = 20;        // nested parentheses
constexpr int kLargestPower = 30;   // in the text
constexpr int kLargestPowers = 99;  // of a base unit, all in all
constexpr long double kLargestFactor = 1e300L;

bool IsLetter(char c) {
    return std::isalpha(static_cast<unsigned char>(c)) != 0 || c == '_';
}

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

bool IsBeyond(const UnitWord& meaning) {
    const long double factor = meaning.factor.Quotient();
    return meaning.dimension.Largest() > kLargestPowers || !std::isfinite(meaning.factor.numerator) ||
           !std::isfinite(meaning.factor.denominator) || !(factor > 1.0L / kLargestFactor) ||
           !(factor < kLargestFactor);
}

}  // namespace

std::nullopt_t UnitReader::Refuse(const std::string& reason) {
    if (reason_.empty()) reason_ = reason;
    return std::nullopt;
}

void UnitReader::SkipBlanks() {
    while (Here() == ' ') ++at_;
}

QuantityResult<Unit> UnitReader::Read() {
    written_ = WithoutBlanksAround(written_);
    const auto error = [&](const std::string& reason) {
        return QuantityError{"the unit " + QuotedText(written_) + " " + reason};
    };
    if (written_.empty()) return QuantityError{"a unit is missing ('-' stands for a pure number)"};
    if (written_.size() > Unit::kLongest) {
        return error("is too long: " + std::to_string(written_.size()) + " bytes, at most " +
                     std::to_string(Unit::kLongest));
    }
    auto plain = PlainUnitText(written_);
    if (!plain) return error("has a character that stands in no unit");
    plain_ = std::move(*plain);

    Unit unit;
    unit.spelling_ = written_;
    if (plain_ == "-") return unit;
    const auto whole = ReadProduct(0);
    if (whole && !AtEnd()) Refuse("has a ')' without its '('");
    if (!whole || !reason_.empty()) return error(reason_);
    unit.dimension_ = whole->meaning.dimension;
    unit.factor_ = whole->meaning.factor;
    const bool alone = whole->factors == 1 && !whole->power;
    unit.offset_ = alone ? whole->meaning.offset : 0.0L;
    unit.scaleWithin_ = whole->scaleWithin && !alone;
    return unit;
}

std::optional<UnitReader::Part> UnitReader::ReadProduct(int depth) {
    if (depth > kDeepest) return Refuse("has too many parentheses within parentheses");
    SkipBlanks();
    Part product;
    product.factors = 0;
    bool divided = false;
    while (true) {
        bool divides = false;
        if (product.factors > 0 || Here() == '/') {
            if (AtEnd() || Here() == ')') return product;
            divides = TakeOperator();
        }
        if (divided && !divides) return RefuseProductAfterQuotient();
        const auto factor = ReadFactor(depth);
        if (!factor) return std::nullopt;
        if (product.factors == 0 && !divides) {
            product = *factor;
        } else if (!Multiply(product, *factor, divides)) {
            return Refuse("is larger or smaller than anything that is measured");
        }
        divided = divided || divides;
        SkipBlanks();
    }
}

/// The sign between two factors; without one they are multiplied. True for a division.
bool UnitReader::TakeOperator() {
    const bool divides = Here() == '/';
    const bool sign = divides || Here() == '*' || Here() == '.' || (Here() == '-' && IsLetter(After(1)));
    if (sign) ++at_;
    SkipBlanks();
    return divides;
}

bool UnitReader::Multiply(Part& product, const Part& factor, bool divides) {
    const int power = divides ? -1 : 1;
    product.meaning.dimension *= factor.meaning.dimension.ToThe(power);
    product.meaning.factor = product.meaning.factor * factor.meaning.factor.ToThe(power);
    product.factors += factor.factors + (divides ? 1 : 0);
    product.scaleWithin = product.scaleWithin || factor.scaleWithin;
    return !IsBeyond(product.meaning);
}

std::optional<UnitReader::Part> UnitReader::ReadFactor(int depth) {
    std::optional<Part> factor;
    if (Here() == '(') {
        ++at_;
        factor = ReadProduct(depth + 1);
        if (factor && Here() != ')') return Refuse("has a '(' without its ')'");
        ++at_;
    } else if (IsDigit(Here())) {
        factor = ReadNumber();
    } else if (IsLetter(Here())) {
        factor = ReadWord();
    } else if (AtEnd() || Here() == ')') {
        return Refuse("ends where a unit is expected");
    } else {
        return Refuse("has a " + QuotedText(std::string_view(plain_).substr(at_, 1)) +
                      " where a unit is expected");
    }
    if (!factor || !ReadPower(*factor)) return std::nullopt;
    return factor;
}

std::optional<UnitReader::Part> UnitReader::ReadWord() {
    const std::size_t begin = at_;
    while (IsLetter(Here())) ++at_;
    const std::string_view word = std::string_view(plain_).substr(begin, at_ - begin);
    if (const AmbiguousWord* ambiguous = FindAmbiguousWord(word)) {
        return Refuse("is ambiguous: for " + QuotedText(word) + " write " + std::string(ambiguous->advice));
    }
    auto meaning = FindUnitWord(word);
    if (!meaning) meaning = FindDatabaseWord(word);
    if (!meaning) {
        const std::string near = NearUnitWord(word);
        const std::string who = word == plain_ ? "is not known" : "is not known: no " + QuotedText(word);
        return Refuse(near.empty() ? who : who + "; is " + QuotedText(near) + " meant?");
    }
    return Part{.meaning = *meaning, .scaleWithin = meaning->offset != 0.0L};
}

/// Whole numbers beside 1 are refused: in "1 200 MPa" they are thousands that somebody set apart.
std::optional<UnitReader::Part> UnitReader::ReadNumber() {
    const std::size_t begin = at_;
    while (IsDigit(Here()) || (Here() == '.' && IsDigit(After(1)))) ++at_;
    const std::string_view digits = std::string_view(plain_).substr(begin, at_ - begin);
    const bool sign = After(1) == '-' || After(1) == '+';
    int power = 0;
    if (digits == "1" && (Here() == 'e' || Here() == 'E') && IsDigit(After(sign ? 2u : 1u))) {
        ++at_;
        if (!ReadInteger(power)) return std::nullopt;
    } else if (digits == "10" && (Here() == '^' || (Here() == '*' && After(1) == '*'))) {
        at_ += Here() == '^' ? 1u : 2u;
        if (!ReadInteger(power)) return std::nullopt;
    } else if (digits != "1" || IsLetter(Here())) {
        return Refuse("has a number that is neither 1 nor a power of ten such as 1e-6");
    }
    return Part{.meaning = {Dimension(), UnitFactor{10.0L, 1.0L}.ToThe(power)}};
}

bool UnitReader::ReadPower(Part& part) {
    const bool hat = Here() == '^';
    const bool stars = Here() == '*' && After(1) == '*';
    const bool bare = IsDigit(Here()) || ((Here() == '-' || Here() == '+') && IsDigit(After(1)));
    if (!hat && !stars && !bare) return true;
    at_ += hat ? 1u : stars ? 2u : 0u;
    int power = 0;
    if (!ReadInteger(power)) return false;
    part.meaning = {part.meaning.dimension.ToThe(power), part.meaning.factor.ToThe(power)};
    part.power = true;
    if (IsBeyond(part.meaning)) Refuse("is larger or smaller than anything that is measured");
    return reason_.empty();
}

bool UnitReader::ReadInteger(int& integer) {
    const bool negative = Here() == '-';
    if (negative || Here() == '+') ++at_;
    if (!IsDigit(Here())) {
        Refuse("has a power that is no whole number");
        return false;
    }
    int value = 0;
    for (; IsDigit(Here()) && value <= kLargestPower; ++at_) value = 10 * value + (Here() - '0');
    if (value > kLargestPower) {
        Refuse("has a power beyond " + std::to_string(kLargestPower));
        return false;
    }
    integer = negative ? -value : value;
    return true;
}

/// Half of the world reads "W/m K" as W/(m K), every parser as W K/m.
std::nullopt_t UnitReader::RefuseProductAfterQuotient() {
    const std::size_t slash = plain_.find('/');
    std::string above = plain_.substr(0, slash);
    std::string below = plain_.substr(slash + 1);
    if (below.find_first_of("()") != std::string::npos || above.find('(') != std::string::npos) {
        return Refuse("is ambiguous, a product after '/': put what divides in parentheses, as in 'W/(m K)'");
    }
    for (std::size_t i = 0; i < below.size(); ++i) {
        const bool hyphen = below[i] == '-' && i + 1 < below.size() && IsLetter(below[i + 1]);
        if (below[i] == '/' || below[i] == '*' || below[i] == '.' || hyphen) below[i] = ' ';
    }
    const std::string_view numerator = WithoutBlanksAround(above);
    return Refuse("is ambiguous, a product after '/': write " +
                  QuotedText((numerator.empty() ? "1" : std::string(numerator)) + "/(" +
                             std::string(WithoutBlanksAround(below)) + ")") +
                  " if all of it divides");
}

QuantityResult<Unit> Unit::Read(std::string_view text) {
    return UnitReader(text).Read();
}

}  // namespace zelmat
