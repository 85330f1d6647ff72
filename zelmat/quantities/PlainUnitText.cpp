#include "zelmat/quantities/PlainUnitText.h"

#include <algorithm>
#include <array>

namespace zelmat {

namespace {

struct Spelling {
    std::string_view found;
    std::string_view plain;
};

constexpr Spelling kSpellings[] = {
    {"\u00b0", "deg"},       // degree sign
    {"\u2103", "degC"},      // degree Celsius
    {"\u2109", "degF"},      // degree Fahrenheit
    {"\u00b5", "u"},         // micro sign
    {"\u03bc", "u"},         // Greek mu
    {"\u03b5", "strain"},    // Greek epsilon, as in microstrain
    {"\u03a9", "Ohm"},       // Greek Omega
    {"\u2126", "Ohm"},       // ohm sign
    {"\u00c5", "angstrom"},  // A with ring
    {"\u212b", "angstrom"},  // angstrom sign
    {"\u2030", "permille"},  // per mille sign
    {"%", "percent"},
    {"\u00b7", "*"},  // middle dot
    {"\u22c5", "*"},  // dot operator
    {"\u2219", "*"},  // bullet operator
    {"\u00d7", "*"},  // multiplication sign
    {"\u2212", "-"},  // minus sign
    {"\u2215", "/"},  // division slash
    {"\u2044", "/"},  // fraction slash
    {"\u00a0", " "},  // no-break space
    {"\u202f", " "},  // narrow no-break space
    {"\u2009", " "},  // thin space
    {"\t", " "},
};

constexpr Spelling kPowers[] = {
    {"\u2070", "0"}, {"\u00b9", "1"}, {"\u00b2", "2"}, {"\u00b3", "3"}, {"\u2074", "4"}, {"\u2075", "5"},
    {"\u2076", "6"}, {"\u2077", "7"}, {"\u2078", "8"}, {"\u2079", "9"}, {"\u207b", "-"},
};

const Spelling* FindAt(const auto& table, std::string_view text) {
    const auto* found = std::find_if(std::begin(table), std::end(table),
                                     [&](const Spelling& one) { return text.starts_with(one.found); });
    return found == std::end(table) ? nullptr : found;
}

}  // namespace

std::optional<std::string> PlainUnitText(std::string_view text) {
    std::string plain;
    bool inPower = false;
    while (!text.empty()) {
        const Spelling* power = FindAt(kPowers, text);
        if (power && !inPower) plain += '^';
        inPower = power != nullptr;
        if (const Spelling* spelling = power ? power : FindAt(kSpellings, text)) {
            plain += spelling->plain;
            text.remove_prefix(spelling->found.size());
        } else if (text.front() >= ' ' && text.front() <= '~') {
            plain += text.front();
            text.remove_prefix(1);
        } else {
            return std::nullopt;
        }
    }
    return plain;
}

std::string_view WithoutBlanksAround(std::string_view text) {
    constexpr std::string_view kBlanks = " \t";
    constexpr std::array<std::string_view, 3> kNoBreaks = {"\u00a0", "\u202f", "\u2009"};
    for (bool again = true; again;) {
        text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
        text = text.substr(0, text.find_last_not_of(kBlanks) + 1);
        again = false;
        for (const std::string_view blank : kNoBreaks) {
            if (text.starts_with(blank)) text.remove_prefix(blank.size()), again = true;
            if (text.ends_with(blank)) text.remove_suffix(blank.size()), again = true;
        }
    }
    return text;
}

}  // namespace zelmat
