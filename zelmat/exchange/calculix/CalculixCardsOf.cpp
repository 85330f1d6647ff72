#include "zelmat/exchange/calculix/CalculixCardsOf.h"

#include "zelmat/exchange/calculix/DeckCards.h"
#include "zelmat/exchange/calculix/MaterialKeywords.h"
#include "zelmat/files/ReadText.h"
#include "zelmat/quantities/PlainUnitText.h"

namespace zelmat {

namespace {

std::nullopt_t Refuse(const std::string& path, int line, const char* code, const std::string& text,
                      Findings& findings) {
    findings.Add({FindingKind::ERROR, {ShownPath(path), line}, code, text, {}});
    return std::nullopt;
}

}  // namespace

std::optional<std::string> CalculixCardsOf(const std::string& path, Findings& findings) {
    DeckLines lines(path, findings);
    std::string cards;
    bool within = false;
    while (lines.Next()) {
        const std::string_view line = WithoutBlanksAround(lines.Line());
        if (line.empty() || line.starts_with("**")) continue;
        if (line.starts_with('*')) {
            const DeckKeyword keyword = ReadKeyword(std::string(line), lines.Number());
            within = keyword.keyword == "*MATERIAL" || (within && IsMaterialKeyword(keyword.keyword));
            if (keyword.keyword == "*MATERIAL") {
                if (!cards.empty())
                    return Refuse(path, keyword.line, "several-materials", "a second *MATERIAL", findings);
                if (keyword.name.empty()) {
                    return Refuse(path, keyword.line, "no-name", "*MATERIAL has no NAME on its line",
                                  findings);
                }
                cards = "*MATERIAL, NAME=" + keyword.name + "\n";
                continue;
            }
        }
        if (within) cards += std::string(line) + "\n";
    }
    if (findings.HasErrors()) return std::nullopt;
    if (cards.empty()) return Refuse(path, 0, "no-materials", "there is no *MATERIAL card in it", findings);
    return cards;
}

}  // namespace zelmat
