#include <deque>
#include <set>

#include "zelmat/cards/FitChoice.h"
#include "zelmat/commands/frame/Arguments.h"
#include "zelmat/commands/frame/Command.h"
#include "zelmat/commands/frame/Progress.h"
#include "zelmat/commands/frame/WriteGate.h"
#include "zelmat/commands/inputs/CardInput.h"
#include "zelmat/commands/inputs/GivenMaterials.h"
#include "zelmat/commands/reports/ChangeReport.h"
#include "zelmat/materials/NewMaterial.h"
#include "zelmat/text/CountText.h"
#include "zelmat/text/Printable.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

namespace {

/// A card that passed the checks, and the fit of it that the document gets.
struct PassedCard {
    Material card;
    const Block* fit = nullptr;  // one of the card's; null: it has none
};

struct AddedMaterial {
    std::string name;
    std::size_t features = 0;
};

/// Puts the materials of cards into a document, all of them or, with a mistake in one, none.
class Add final : public Command {
public:
    void Declare(Arguments& line) override {
        line.Add("DOC", document_, "Document").Required();
        line.Add("CARD", paths_, "Material cards of any form, or documents; - is standard input").Required();
        line.Add("--model", fit_.model, "Hyperelastic fit of this model: OGDEN, ...");
        line.Add("--variant", fit_.variant, "Hyperelastic fit with this text in its variant");
        DeclareCardReading(line, how_);
        gate_.Declare(line);
    }

    void Work(CommandContext& context) override {
        Findings& findings = context.findings;
        Findings own;
        Progress progress(context.notes);
        std::size_t read = 0;
        for (const std::string& path : paths_) {
            Read(path, context.options, own);
            progress.Tell("read", ++read, paths_.size(), "cards");
        }
        findings.Add(own);
        const bool goesOn = gate_.KeepsGoing() && !cards_.empty();
        if (own.HasErrors() && !goesOn) return;

        const auto document = DocumentToChange::Open(document_, context.options.catalogs, findings);
        if (!document) return;
        KORStep step(document->Document(), StepName());
        if (!AddAll(*document, progress, findings)) {
            added_.clear();
            return;
        }
        step.Commit();
        change_ = SaveChange(*document, context);
    }

    void Print(std::ostream& out) const override {
        if (!change_) return;
        for (const AddedMaterial& material : added_) {
            out << "added: " << Printable(material.name) << " (" << CountText(material.features, "feature")
                << ")\n";
        }
        PrintChange(out, *change_);
    }

    nlohmann::ordered_json Json() const override {
        nlohmann::ordered_json json;
        AddChange(json, change_);
        json["added"] = nlohmann::ordered_json::array();
        if (!change_) return json;
        for (const AddedMaterial& material : added_) {
            json["added"].push_back({{"name", material.name}, {"features", material.features}});
        }
        return json;
    }

private:
    /// Those cards that pass the checks.
    void Read(const std::string& path, const CommonOptions& options, Findings& findings) {
        for (Material& card : ReadGivenMaterials(path, options, findings, how_)) {
            if (!gate_.Passes(card, findings)) continue;
            cards_.push_back({std::move(card), nullptr});
            PassedCard& passed = cards_.back();
            const bool chooses = fit_.IsMade() && !passed.card.fits.empty();
            passed.fit = ChooseFit(passed.card, chooses ? fit_ : FitChoice(), findings);
        }
    }

    std::string StepName() const {
        constexpr std::size_t kNamed = 3;
        if (cards_.size() > kNamed) return "Add " + CountText(cards_.size(), "material");
        return "Add " + WordList(cards_, [](const PassedCard& passed) { return passed.card.name; });
    }

    /// Adds those that can be; false when one cannot, unless it is to go on.
    bool AddAll(DocumentToChange& document, Progress& progress, Findings& findings) {
        std::set<std::string> taken;
        for (const DocumentMaterial& material : MaterialsOf(document.Document())) taken.insert(material.name);
        bool good = true;
        std::size_t tried = 0;
        for (const PassedCard& passed : cards_) {
            if (!taken.insert(passed.card.name).second) {
                findings.Add(
                    {FindingKind::ERROR,
                     {passed.card.file, 0},
                     "name-taken",
                     "there is a material " + Quoted(passed.card.name) + " in " + document_ + " already",
                     {"not added"}});
                good = false;
            } else if (!AddOne(document.Document(), passed, findings)) {
                good = false;
            }
            progress.Tell("added", ++tried, cards_.size(), "materials");
        }
        return good || (gate_.KeepsGoing() && !added_.empty());
    }

    bool AddOne(KORMemoryDocument& document, const PassedCard& passed, Findings& findings) {
        KORStep step(document, passed.card.name);
        Findings answers;
        const auto feature = AddMaterial(document, passed.card, passed.fit, answers);
        findings.Add(answers);
        if (!feature || answers.HasErrors()) return false;
        const std::size_t features = FeaturesOf({KORISpecObject_var(feature), passed.card.name});
        step.Commit();
        added_.push_back({passed.card.name, features});
        return true;
    }

    std::string document_;
    std::vector<std::string> paths_;
    CardReading how_;
    FitChoice fit_;
    WriteGate gate_;
    std::deque<PassedCard> cards_;  // does not move its elements, whose fits are referred to
    std::vector<AddedMaterial> added_;
    std::optional<SavedChange> change_;
};

}  // namespace

CommandKind AddCommand() {
    return {.name = "add",
            .brief = "put the materials of cards into a document",
            .text =
                "Put the materials of cards, or of other documents, into a document, in one step that undo\n"
                "takes back. All that a card says is kept; extract gives it back. A name that the document\n"
                "has already is refused, and so is a card on which the checks find errors; then nothing is\n"
                "added. With --keep-going errors of the checks are told and what can be added is.",
            .make = &MakeCommand<Add>};
}

}  // namespace zelmat
