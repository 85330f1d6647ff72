#include "zelmat/exchange/calculix/DeckCards.h"

#include <algorithm>
#include <cctype>

#include "zelmat/exchange/DeckText.h"
#include "zelmat/quantities/PlainUnitText.h"
#include "zelmat/quantities/ReadNumber.h"
#include "zelmat/text/QuotedText.h"

namespace zelmat {

namespace {

std::string Upper(std::string_view text) {
    std::string upper = InCapitals(std::string(text));
    std::erase_if(upper, [](char letter) { return std::isspace(static_cast<unsigned char>(letter)) != 0; });
    return upper;
}

/// Names may stand between quotes, which are no part of them.
std::string_view WithoutQuotes(std::string_view word) {
    const bool quoted = word.size() >= 2 && word.front() == '"' && word.back() == '"';
    return quoted ? word.substr(1, word.size() - 2) : word;
}

std::vector<std::string_view> Words(std::string_view line) {
    std::vector<std::string_view> words;
    for (bool more = true; more;) {
        const std::size_t comma = line.find(',');
        words.push_back(WithoutBlanksAround(line.substr(0, comma)));
        more = comma != std::string_view::npos;
        if (more) line.remove_prefix(comma + 1);
    }
    return words;
}

/// Fortran's exponent becomes the common one: "1.5D3", and "1.5+3".
std::string CommonNumber(std::string_view word) {
    std::string number(word);
    std::replace(number.begin(), number.end(), 'D', 'e');
    std::replace(number.begin(), number.end(), 'd', 'e');
    const std::size_t sign = number.find_last_of("+-");
    const bool bare =
        sign != std::string::npos && sign > 0 &&
        (number[sign - 1] == '.' || std::isdigit(static_cast<unsigned char>(number[sign - 1])) != 0);
    if (bare) number.insert(sign, "e");
    return number;
}

}  // namespace

const std::string* DeckKeyword::Find(const std::string& parameter) const {
    const auto found = parameters.find(parameter);
    return found == parameters.end() ? nullptr : &found->second;
}

DeckKeyword ReadKeyword(const std::string& line, int number) {
    const auto words = Words(line);
    DeckKeyword keyword{.line = number, .keyword = {}, .parameters = {}, .name = {}, .set = {}};
    keyword.keyword = Upper(words.front());
    for (std::size_t at = 1; at < words.size(); ++at) {
        const std::size_t equals = words[at].find('=');
        const std::string name = Upper(words[at].substr(0, equals));
        if (name.empty()) continue;
        const auto value = equals == std::string_view::npos
                               ? std::string_view()
                               : WithoutBlanksAround(words[at].substr(equals + 1));
        keyword.parameters[name] = Upper(WithoutQuotes(value));
        if (name == "NAME") keyword.name = WithoutQuotes(value);
        if (name == "ELSET") keyword.set = WithoutQuotes(value);
    }
    return keyword;
}

bool DeckCards::NextLine() {
    while (lines_.Next()) {
        const std::string_view line = WithoutBlanksAround(lines_.Line());
        if (line.empty() || line.starts_with("**")) continue;
        held_ = line;
        hasHeld_ = true;
        return true;
    }
    hasHeld_ = false;
    return false;
}

std::optional<DeckKeyword> DeckCards::NextKeyword() {
    for (; hasHeld_ || NextLine(); hasHeld_ = false) {
        if (held_.starts_with('*')) break;
    }
    if (!hasHeld_) return std::nullopt;
    const int number = lines_.Number();
    std::string line = held_;
    hasHeld_ = false;
    while (line.ends_with(',') && line.size() < DeckLines::kLongest && NextLine()) {
        if (held_.starts_with('*')) break;
        line += held_;
        hasHeld_ = false;
    }
    return ReadKeyword(line, number);
}

std::optional<DeckNumbers> DeckCards::NumbersOf(const std::string& line) {
    DeckNumbers numbers{lines_.Number(), {}};
    for (const std::string_view word : Words(line)) {
        if (word.empty()) {
            numbers.numbers.emplace_back();
            continue;
        }
        const auto number = ReadNumber(CommonNumber(word));
        if (!number) {
            findings_.Add({FindingKind::ERROR,
                           {path_, lines_.Number()},
                           "no-number",
                           QuotedText(word) + " is no number",
                           {number.Error().text}});
            return std::nullopt;
        }
        if (word.size() > kLongestDeckNumber) {
            findings_.Add(
                {FindingKind::WARNING,
                 {path_, lines_.Number()},
                 "long-number",
                 QuotedText(word) + " has more than 20 characters: CalculiX drops those behind them",
                 {"read as a whole here"}});
        }
        numbers.numbers.emplace_back(*number);
    }
    while (!numbers.numbers.empty() && !numbers.numbers.back()) numbers.numbers.pop_back();
    return numbers;
}

std::vector<DeckWords> DeckCards::Lines() {
    std::vector<DeckWords> all;
    while (hasHeld_ ? !held_.starts_with('*') : NextLine() && !held_.starts_with('*')) {
        DeckWords& line = all.emplace_back(DeckWords{lines_.Number(), {}});
        for (const std::string_view word : Words(held_)) line.words.emplace_back(WithoutQuotes(word));
        hasHeld_ = false;
    }
    return all;
}

std::optional<std::vector<DeckNumbers>> DeckCards::Numbers() {
    std::vector<DeckNumbers> all;
    while (hasHeld_ ? !held_.starts_with('*') : NextLine() && !held_.starts_with('*')) {
        auto numbers = NumbersOf(held_);
        hasHeld_ = false;
        if (!numbers) return std::nullopt;
        all.push_back(std::move(*numbers));
    }
    return all;
}

}  // namespace zelmat
