#pragma once

#include <set>
#include <string>
#include <utility>
#include <vector>

#include "zelmat/findings/Findings.h"
#include "zelmat/text/QuotedText.h"

namespace zelmat {

/// What a deck does not hold as the material has it. Each note becomes a finding and a comment in the deck.
class DeckNotes {
public:
    struct Note {
        FindingKind kind;
        std::string code;
        std::string text;
    };

    /// A behavior that is not in the deck, and why.
    void LostBehavior(const std::string& behavior, const std::string& why) {
        Lost(behavior + ": " + why);
        lost_.insert(behavior);
    }

    /// A part of a behavior, or something else of the material, that is not in the deck.
    void Lost(std::string text) { Add({FindingKind::WARNING, "not-carried", std::move(text)}); }

    /// Numbers or a form that differ from the material's own, by rule.
    void Changed(std::string text) { Add({FindingKind::NOTE, "changed-in-deck", std::move(text)}); }

    /// What the solver does with the deck and nobody expects.
    void Caution(std::string text) { Add({FindingKind::WARNING, "solver-limit", std::move(text)}); }

    const std::vector<Note>& All() const { return all_; }

    /// Whether LostBehavior was said of it.
    bool HasLost(const std::string& behavior) const { return lost_.count(behavior) > 0; }

    /// `subject`: the material or layup.
    void Report(const Place& place, const std::string& subject, Findings& findings) const {
        for (const Note& note : all_) {
            findings.Add({note.kind, place, note.code, QuotedText(subject) + ": " + note.text, {}});
        }
    }

private:
    /// The same is said once.
    void Add(Note note) {
        for (const Note& other : all_) {
            if (other.text == note.text) return;
        }
        all_.push_back(std::move(note));
    }

    std::vector<Note> all_;
    std::set<std::string> lost_;
};

}  // namespace zelmat
