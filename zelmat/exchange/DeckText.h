#pragma once

#include <cstddef>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace zelmat {

/// The most characters of a number that every solver reads; some cut longer ones off without a word, with
/// their exponent.
constexpr std::size_t kLongestDeckNumber = 20;

/// A number for a deck: the shortest text that reads back as the same double, where that has no more than
/// kLongestDeckNumber characters; else with as many digits as leave room for sign, point and exponent. That
/// changes it by less than 1e-12 of itself, which is not worth telling. The number is finite.
std::string DeckNumber(double number);

/// The same with a decimal point or an exponent, for those to whom "1" is no real number.
std::string RealDeckNumber(double number);

/// What may stand in the names of a form.
struct DeckNameRule {
    std::size_t longest;
    std::string_view further;  ///< beside letters, digits and "_"
    bool letterFirst;
    std::string_view otherwise;  ///< where nothing is left of a name: "MATERIAL"
};

/// A name as a form takes it: every run of other characters becomes "_". Not one of `taken`, whichever the
/// case, into which it is put: such a name gets a number at its end.
std::string DeckName(std::string_view name, const DeckNameRule& rule, std::set<std::string>& taken);

/// The letters of ASCII as capital ones, as solvers compare names.
std::string InCapitals(std::string text);

/// Text as ASCII on one line: control characters become blanks, every other character that is not ASCII "?",
/// but for degrees and micro, which are spelled.
std::string AsciiLine(std::string_view text);

/// A text as lines of comment of at most about 100 characters, each beginning with `lead`, which no text can
/// leave.
std::string CommentLines(std::string_view lead, std::string_view text);

}  // namespace zelmat
