
#include "zelmat/commands/frame/Arguments.h"
#include "zelmat/commands/frame/Command.h"
#include "zelmat/commands/reports/HistoryOrigin.h"
#include "zelmat/documents/DocumentToChange.h"
#include "zelmat/text/CountText.h"
#include "zelmat/text/Printable.h"

namespace zelmat {

namespace {

/// All that tells undo from redo.
struct Direction {
    const char* verb;                   ///< "undo"
    const char* done;                   ///< "undone"
    const char* nothing;                ///< code of the finding
    bool (KORMemoryDocument::*move)();  // in memory, one step
};

constexpr Direction kUndo = {"undo", "undone", "nothing-to-undo", &KORMemoryDocument::Undo};
constexpr Direction kRedo = {"redo", "redone", "nothing-to-redo", &KORMemoryDocument::Redo};

/// Goes back or forth in the history that a document keeps. Upgrades nothing.
template <const Direction& kDirection>
class Move final : public Command {
public:
    void Declare(Arguments& line) override {
        line.Add("DOC", document_, "Document").Required();
        line.Add("N", count_, "How many steps").Within(1, 1'000'000'000).ShowsDefault();
    }

    void Work(CommandContext& context) override {
        Findings& findings = context.findings;
        const auto document = DocumentToChange::Open(document_, context.options.catalogs, findings,
                                                     DocumentToChange::Older::LEFT);
        if (!document) return;
        const auto before = document->File().Steps();
        std::size_t moved = 0;
        while (moved < count_ && (document->Document().*kDirection.move)()) ++moved;
        if (moved == 0) {
            findings.Add({FindingKind::ERROR,
                          {document_, 0},
                          kDirection.nothing,
                          std::string("there is nothing to ") + kDirection.verb,
                          {}});
            return;
        }
        auto told = Moved(before, document->File().Steps());
        if (!document->Save(OriginOf(context), findings)) return;
        moved_ = std::move(told);
        if (moved == count_) return;
        findings.Add(
            {FindingKind::NOTE,
             {document_, 0},
             "fewer-steps",
             "there were no more steps to " + std::string(kDirection.verb),
             {std::to_string(count_) + " asked for", std::to_string(moved) + " " + kDirection.done}});
    }

    void Print(std::ostream& out) const override {
        for (const KORHistoryStep& step : moved_) {
            out << kDirection.done << ": step " << step.number << ": " << Printable(step.name) << '\n';
        }
    }

    nlohmann::ordered_json Json() const override {
        nlohmann::ordered_json steps = nlohmann::ordered_json::array();
        for (const KORHistoryStep& step : moved_) {
            steps.push_back({{"number", step.number}, {"name", step.name}});
        }
        return {{"document", document_}, {kDirection.done, std::move(steps)}};
    }

private:
    /// The steps that are done before or after, not both, in the order in which they were moved.
    static std::vector<KORHistoryStep> Moved(const std::vector<KORHistoryStep>& before,
                                             const std::vector<KORHistoryStep>& after) {
        std::vector<KORHistoryStep> moved;
        for (std::size_t at = 0; at < before.size(); ++at) {
            if (before[at].done != after[at].done) moved.push_back(after[at]);
        }
        if (&kDirection == &kUndo) std::reverse(moved.begin(), moved.end());
        return moved;
    }

    std::string document_;
    std::size_t count_ = 1;
    std::vector<KORHistoryStep> moved_;
};

}  // namespace

CommandKind UndoCommand() {
    return {.name = "undo",
            .brief = "take back the last steps of a document",
            .text =
                "Take back the last step of a document, or the last N. The history lies in the document, so\n"
                "that it does not matter when the step was made, and by whom. Beyond the first step that is\n"
                "kept nothing is undone; that is said. With nothing to undo at all the exit code is 1.",
            .make = &MakeCommand<Move<kUndo>>};
}

CommandKind RedoCommand() {
    return {.name = "redo",
            .brief = "make the steps of a document again that undo took back",
            .text =
                "Make the step of a document again that undo took back last, or N of them. A new change of\n"
                "the document forgets what could have been made again.",
            .make = &MakeCommand<Move<kRedo>>};
}

}  // namespace zelmat
