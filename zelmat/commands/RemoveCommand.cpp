#include <CLI/CLI.hpp>

#include "interfaces/KORICutAndPastable.h"
#include "zelmat/commands/ChangeReport.h"
#include "zelmat/commands/Command.h"
#include "zelmat/documents/MaterialUses.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

namespace {

/// Takes a material out of a document, with all that hangs on it.
class Remove final : public Command {
public:
    void Declare(CLI::App& line) override {
        line.add_option("DOC", document_, "Document")->required();
        line.add_option("MATERIAL", wanted_, "Its name, a beginning that no other has, or #number")
            ->required();
        line.add_flag("--force", force_, "Remove it though layups use it");
    }

    void Work(CommandContext& context) override {
        Findings& findings = context.findings;
        const auto document = DocumentToChange::Open(document_, context.options.catalogs, findings);
        if (!document) return;
        const auto material = ChosenMaterial(document->Document(), wanted_, document_, findings);
        if (!material) return;
        const auto layups = LayupsThatUse(document->Document(), material->feature.Get());
        if (!layups.empty()) {
            findings.Add(
                {force_ ? FindingKind::WARNING : FindingKind::ERROR,
                 {document_, 0},
                 "material-used",
                 material->name + " is used by " + WordList(layups),
                 {force_ ? "removed all the same" : "not removed; --force removes it all the same"}});
            if (!force_) return;
        }
        KORStep step(document->Document(), "Remove " + material->name);
        RemoveMaterial(document->Document(), *material);
        step.Commit();
        change_ = SaveChange(*document, context);
    }

    void Print(std::ostream& out) const override {
        if (change_) PrintChange(out, *change_);
    }

    nlohmann::ordered_json Json() const override {
        nlohmann::ordered_json json;
        AddChange(json, change_);
        return json;
    }

private:
    std::string document_;
    std::string wanted_;
    bool force_ = false;
    std::optional<SavedChange> change_;
};

}  // namespace

CommandKind RemoveCommand() {
    return {
        .name = "remove",
        .brief = "take a material out of a document",
        .text =
            "Take a material out of a document, with all that belongs to it, in one step that undo takes\n"
            "back. A material that a layup uses is not removed without --force.",
        .make = &MakeCommand<Remove>};
}

}  // namespace zelmat
