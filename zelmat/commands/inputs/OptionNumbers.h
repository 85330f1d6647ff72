#pragma once

#include <optional>
#include <string>
#include <vector>

#include "zelmat/commands/frame/Arguments.h"
#include "zelmat/findings/Findings.h"

namespace zelmat {

/// Declares an option that holds a number with its unit; an empty text is none and refused.
Argument AddNumberOption(Arguments& line, const std::string& name, std::string& text,
                         const std::string& help);

/// A finding about the command line: `place` is the option or argument.
Finding UsageFinding(const std::string& place, const char* code, std::string text,
                     std::vector<std::string> details = {});

/// A number of a quantity with its unit, as an option gives it, in the unit in which documents hold it. Only
/// pure numbers can go without a unit. Nothing, and a finding, when it is none.
std::optional<double> OptionNumber(const std::string& option, const std::string& text, const char* quantity,
                                   Findings& findings);

/// The same where the option may have been left out: then nothing, and no finding.
std::optional<double> OptionNumberIfGiven(const std::string& option, const std::string& text,
                                          const char* quantity, Findings& findings);

/// "KEY=VALUE,KEY=VALUE", taken apart; a piece without "=" has no value.
struct NamedText {
    std::string name, text;
};
std::vector<NamedText> NamedTexts(const std::vector<std::string>& pieces);

/// A text at its commas, without blanks around the pieces.
std::vector<std::string> AtCommas(const std::string& text);

}  // namespace zelmat
