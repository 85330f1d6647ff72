#include <CLI/CLI.hpp>

#include "interfaces/KORIAlias.h"
#include "zelmat/commands/ChangeReport.h"
#include "zelmat/commands/Command.h"

namespace zelmat {

namespace {

/// Gives a material of a document another name. Whatever refers to it still does.
class Rename final : public Command {
public:
    void Declare(CLI::App& line) override {
        line.add_option("DOC", document_, "Document")->required();
        line.add_option("MATERIAL", wanted_, "Its name, a beginning that no other has, or #number")
            ->required();
        line.add_option("NEW", name_, "The new name")->required();
    }

    void Work(CommandContext& context) override {
        Findings& findings = context.findings;
        if (name_.empty()) {
            findings.Add({FindingKind::USAGE, {"zelmat rename", 0}, "usage", "a name cannot be empty", {}});
            return;
        }
        const auto document = DocumentToChange::Open(document_, context.options.catalogs, findings);
        if (!document) return;
        const auto material = ChosenMaterial(document->Document(), wanted_, document_, findings);
        if (!material) return;
        const bool same = material->name == name_;
        if (!same && IsTaken(document->Document(), name_, document_, findings)) return;
        KORStep step(document->Document(), "Rename " + material->name + " to " + name_);
        KORIAlias_var::Of(material->feature.Get())->SetAlias(name_.c_str());
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
    std::string name_;
    std::optional<SavedChange> change_;
};

}  // namespace

CommandKind RenameCommand() {
    return {.name = "rename",
            .brief = "give a material of a document another name",
            .text =
                "Give a material of a document another name, in one step that undo takes back. Layups that\n"
                "use it still do. A name that another material has is refused.",
            .make = &MakeCommand<Rename>};
}

}  // namespace zelmat
