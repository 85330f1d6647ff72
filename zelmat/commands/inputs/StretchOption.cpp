#include "zelmat/commands/inputs/StretchOption.h"

#include <cmath>

#include "zelmat/commands/frame/Arguments.h"
#include "zelmat/commands/inputs/OptionNumbers.h"
#include "zelmat/quantities/ReadNumber.h"
#include "zelmat/text/QuotedText.h"

namespace zelmat {

namespace {

constexpr const char* kOption = "--stretch";
constexpr double kMost = 100'000;

std::vector<std::string_view> AtColons(std::string_view text) {
    std::vector<std::string_view> pieces;
    for (std::size_t from = 0; from <= text.size();) {
        const std::size_t colon = std::min(text.find(':', from), text.size());
        pieces.push_back(text.substr(from, colon - from));
        from = colon + 1;
    }
    return pieces;
}

/// FROM:TO:COUNT, the ends included exactly.
void AddRange(const std::string& text, const std::vector<double>& parts, std::vector<double>& stretches,
              Findings& findings) {
    const double from = parts[0], to = parts[1], count = parts[2];
    if (count != std::floor(count) || count < 2 || count > kMost) {
        findings.Add(UsageFinding(kOption, "wrong-range", QuotedText(text) + " has no count from 2 to 100000",
                                  {"FROM:TO:COUNT, as in 0.5:3:11"}));
        return;
    }
    const auto points = static_cast<int>(count);
    for (int i = 0; i < points; ++i) stretches.push_back(std::lerp(from, to, i / (count - 1.0)));
}

}  // namespace

void StretchOption::Declare(Arguments& line) {
    line.Add(kOption, texts_, "Stretches (amounts of shear): 1.5 2, or FROM:TO:COUNT");
}

std::vector<double> StretchOption::Read(Findings& findings) const {
    std::vector<double> stretches;
    for (const std::string& text : texts_) {
        std::vector<double> parts;
        const auto pieces = AtColons(text);
        for (const std::string_view piece : pieces) {
            const auto number = ReadNumber(piece);
            if (!number) findings.Add(UsageFinding(kOption, "wrong-number", number.Error().text));
            if (number) parts.push_back(*number);
        }
        if (parts.size() != pieces.size()) continue;
        if (parts.size() == 1) {
            stretches.push_back(parts.front());
        } else if (parts.size() == 3) {
            AddRange(text, parts, stretches, findings);
        } else {
            findings.Add(UsageFinding(kOption, "wrong-range", QuotedText(text) + " is no range",
                                      {"FROM:TO:COUNT, as in 0.5:3:11"}));
        }
    }
    return stretches;
}

}  // namespace zelmat
