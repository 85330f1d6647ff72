#include "zelmat/exchange/calculix/ReadCalculix.h"

#include <map>
#include <set>

#include "zelmat/exchange/DeckText.h"
#include "zelmat/exchange/calculix/DeckCards.h"
#include "zelmat/exchange/calculix/MaterialCardReader.h"
#include "zelmat/exchange/calculix/MaterialKeywords.h"
#include "zelmat/files/ReadText.h"
#include "zelmat/text/CountText.h"
#include "zelmat/text/QuotedText.h"

namespace zelmat {

namespace {

/// Decks have some dozens of different keywords; a file of other bytes may have any number.
constexpr std::size_t kMostSkipped = 200;

/// Goes over the keywords of a deck.
class CalculixReader {
public:
    CalculixReader(const std::string& path, const DeckUnits& units, Findings& findings)
        : path_(path), findings_(findings), cards_(path, findings), reader_(path, units, findings) {}

    std::vector<Material> Read() {
        while (const auto card = cards_.NextKeyword()) {
            if (!Take(*card)) return {};
        }
        reader_.End();
        TellSkipped();
        if (findings_.HasErrors()) return {};
        if (materials_.empty()) Error({}, "no-materials", "there is no *MATERIAL card in it");
        return std::move(materials_);
    }

private:
    bool Take(const DeckKeyword& card) {
        if (card.keyword == "*MATERIAL") return Begin(card);
        if (!MaterialCardReader::Reads(card.keyword)) {
            Skip(card);
            return true;
        }
        if (materials_.empty()) {
            return Error(card, "no-material", card.keyword + " stands before any *MATERIAL card");
        }
        return reader_.Read(card, cards_, materials_.back());
    }

    bool Begin(const DeckKeyword& card) {
        reader_.End();
        if (card.name.empty()) return Error(card, "no-name", "*MATERIAL has no NAME");
        if (!names_.insert(InCapitals(card.name)).second) {
            Warn(card, "name-twice", QuotedText(card.name) + " is the name of two materials");
        }
        materials_.push_back({.file = ShownPath(path_), .name = card.name});
        materials_.back().notes.emplace_back(
            "from a CalculiX deck, which names no units; they were given when it was read");
        return true;
    }

    void Skip(const DeckKeyword& card) {
        if (IsMaterialKeyword(card.keyword) && !materials_.empty()) {
            Warn(card, "not-imported", card.keyword + ": a material has no place for it");
        } else if (card.keyword == "*SHELLSECTION" && card.Find("COMPOSITE") && !card.set.empty()) {
            findings_.Add({FindingKind::NOTE,
                           {ShownPath(path_), card.line},
                           "composite-section",
                           "a composite shell section of " + QuotedText(card.set),
                           {"import --layup " + card.set + " makes a layup card of it"}});
        } else if (card.keyword == "*INCLUDE") {
            Warn(card, "not-included", "*INCLUDE is not followed: import that file by itself");
        } else if (skipped_.size() < kMostSkipped || skipped_.count(card.keyword) > 0) {
            auto& [line, count] = skipped_[card.keyword];
            if (count++ == 0) line = card.line;
        }
    }

    void TellSkipped() {
        for (const auto& [keyword, where] : skipped_) {
            findings_.Add({FindingKind::NOTE,
                           {ShownPath(path_), where.first},
                           "skipped-keyword",
                           QuotedText(keyword) + " describes no material and is skipped",
                           {CountText(where.second, "time")}});
        }
    }

    bool Error(const DeckKeyword& card, const char* code, const std::string& text) {
        findings_.Add({FindingKind::ERROR, {ShownPath(path_), card.line}, code, text, {}});
        return false;
    }
    void Warn(const DeckKeyword& card, const char* code, const std::string& text) {
        findings_.Add({FindingKind::WARNING, {ShownPath(path_), card.line}, code, text, {}});
    }

    const std::string path_;
    Findings& findings_;
    DeckCards cards_;
    MaterialCardReader reader_;
    std::vector<Material> materials_;
    std::set<std::string> names_;  // in capital letters, as the solver compares them
    std::map<std::string, std::pair<int, std::size_t>> skipped_;  // keyword to its first line and how often
};

}  // namespace

std::vector<Material> ReadCalculix(const std::string& path, const DeckUnits& units, Findings& findings) {
    return CalculixReader(path, units, findings).Read();
}

}  // namespace zelmat
