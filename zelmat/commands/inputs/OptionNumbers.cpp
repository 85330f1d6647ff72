#include "zelmat/commands/inputs/OptionNumbers.h"

#include "zelmat/commands/frame/Arguments.h"
#include "zelmat/quantities/Measured.h"
#include "zelmat/quantities/PlainUnitText.h"

namespace zelmat {

Argument AddNumberOption(Arguments& line, const std::string& name, std::string& text,
                         const std::string& help) {
    return line.Add(name, text, help).NotEmpty("a number is missing");
}

Finding UsageFinding(const std::string& place, const char* code, std::string text,
                     std::vector<std::string> details) {
    return {FindingKind::USAGE, {place, 0}, code, std::move(text), std::move(details)};
}

std::optional<double> OptionNumber(const std::string& option, const std::string& text, const char* quantity,
                                   Findings& findings) {
    const Quantity& kind = *FindQuantity(quantity);
    const auto measured = ReadMeasured(text, kind);
    const auto stored = measured ? measured->Stored(kind) : measured.Error();
    if (!stored) {
        findings.Add(UsageFinding(option, "wrong-number", stored.Error().text));
        return std::nullopt;
    }
    if (kind.isPoint && *stored < 0.0) {
        findings.Add(UsageFinding(option, "out-of-range", measured->Text() + " is below absolute zero"));
        return std::nullopt;
    }
    return *stored;
}

std::optional<double> OptionNumberIfGiven(const std::string& option, const std::string& text,
                                          const char* quantity, Findings& findings) {
    return text.empty() ? std::nullopt : OptionNumber(option, text, quantity, findings);
}

std::vector<NamedText> NamedTexts(const std::vector<std::string>& pieces) {
    std::vector<NamedText> named;
    for (const std::string& piece : pieces) {
        const std::size_t equals = std::min(piece.find('='), piece.size());
        const std::size_t behind = std::min(equals + 1, piece.size());
        named.push_back({std::string(WithoutBlanksAround(std::string_view(piece).substr(0, equals))),
                         std::string(WithoutBlanksAround(std::string_view(piece).substr(behind)))});
    }
    return named;
}

std::vector<std::string> AtCommas(const std::string& text) {
    std::vector<std::string> pieces;
    for (std::size_t from = 0; from <= text.size();) {
        const std::size_t comma = std::min(text.find(',', from), text.size());
        pieces.emplace_back(WithoutBlanksAround(std::string_view(text).substr(from, comma - from)));
        from = comma + 1;
    }
    return pieces;
}

}  // namespace zelmat
