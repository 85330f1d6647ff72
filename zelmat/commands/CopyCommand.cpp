
#include "platform/disk/KORDiskCopy.h"
#include "zelmat/commands/frame/Arguments.h"
#include "zelmat/commands/frame/Command.h"
#include "zelmat/commands/reports/ChangeReport.h"
#include "zelmat/documents/DocumentForm.h"
#include "zelmat/documents/DocumentToRead.h"
#include "zelmat/documents/MaterialUses.h"
#include "zelmat/documents/WholeMaterial.h"
#include "zelmat/materials/MaterialWriter.h"
#include "zelmat/materials/NewMaterial.h"
#include "zelmat/text/Printable.h"

namespace zelmat {

namespace {

/// Copies a material within its document or into another one; or a whole document.
class Copy final : public Command {
public:
    void Declare(Arguments& line) override {
        line.Add("DOC", document_, "Document").Required();
        line.Add("MATERIAL|NEW.zeldoc", what_, "What is copied; a path alone: the whole document, to there")
            .Required();
        line.Add("NEW|OTHER.zeldoc", target_, "Name of the copy, or the document that it goes into")
            .NotEmpty("a name cannot be empty");
    }

    void Work(CommandContext& context) override {
        if (target_.empty() && IsDocumentName(what_)) {
            CopyDocument(context.findings);
        } else if (IsDocumentName(target_)) {
            CopyIntoOther(context);
        } else {
            CopyWithin(context);
        }
    }

    void Print(std::ostream& out) const override {
        if (!copied_.empty()) out << "copied to: " << Printable(copied_) << '\n';
        if (change_) PrintChange(out, *change_);
    }

    nlohmann::ordered_json Json() const override {
        nlohmann::ordered_json json;
        AddChange(json, change_);
        json["copied_to"] = nullptr;
        if (!copied_.empty()) json["copied_to"] = copied_;
        return json;
    }

private:
    void CopyDocument(Findings& findings) {
        KORFileError error;
        if (KORDiskCopy::To(document_, what_, error)) {
            copied_ = what_;
            return;
        }
        findings.Add({FindingKind::UNREADABLE,
                      {error.file.empty() ? document_ : error.file, 0},
                      "not-copied",
                      error.Sentence(),
                      {}});
    }

    void CopyWithin(CommandContext& context) {
        Findings& findings = context.findings;
        if (!target_.empty() && !IsNewName(target_, "zelmat copy", findings)) return;
        const auto document = DocumentToChange::Open(document_, context.options.catalogs, findings);
        if (!document) return;
        const auto material = ChosenMaterial(document->Document(), what_, document_, findings);
        if (!material) return;
        if (!target_.empty() && IsTaken(document->Document(), target_, document_, findings)) return;
        const std::string name = target_.empty() ? FreeName(document->Document(), material->name) : target_;
        KORStep step(document->Document(), "Copy " + material->name + " to " + name);
        if (!CopyMaterial(*material, name)) {
            findings.Add(
                {FindingKind::ERROR, {document_, 0}, "not-copied", material->name + " cannot be copied", {}});
            return;
        }
        step.Commit();
        Save(*document, name, context);
    }

    void CopyIntoOther(CommandContext& context) {
        Findings& findings = context.findings;
        const auto material = ReadSource(context);
        if (!material) return;
        const auto other = DocumentToChange::Open(target_, context.options.catalogs, findings);
        if (!other) return;
        WholeMaterial copy = *material;
        copy.material.name = FreeName(other->Document(), copy.material.name);
        KORStep step(other->Document(), "Copy " + material->material.name + " of " + document_);
        Findings answers;
        const bool made = AddWholeMaterial(other->Document(), copy, answers);
        findings.Add(answers);
        if (!made || answers.HasErrors()) return;
        step.Commit();
        Save(*other, copy.material.name, context);
    }

    std::optional<WholeMaterial> ReadSource(CommandContext& context) const {
        Findings own;
        const auto source = DocumentToRead::Open(document_, context.options.catalogs, own);
        const auto chosen = source ? ChosenMaterial(source->Document(), what_, document_, own) : std::nullopt;
        std::optional<WholeMaterial> material;
        if (chosen) material = ReadWholeMaterial(*chosen, document_, own);
        context.findings.Add(own);
        return own.HasErrors() ? std::nullopt : material;
    }

    void Save(DocumentToChange& document, const std::string& name, CommandContext& context) {
        change_ = SaveChange(document, context);
        if (change_) copied_ = name;
    }

    std::string document_;
    std::string what_;
    std::string target_;
    std::string copied_;  // where to: a name, or a path; empty: nowhere
    std::optional<SavedChange> change_;
};

}  // namespace

CommandKind CopyCommand() {
    return {
        .name = "copy",
        .brief = "copy a material, within a document or into another, or a whole document",
        .text =
            "Copy a material of a document, in one step that undo takes back: within the document, under\n"
            "the name NEW or, without it, a free one; or into another document, OTHER.zeldoc. With a path\n"
            "alone, copy the whole document with its history to a file that is not there yet.",
        .make = &MakeCommand<Copy>};
}

}  // namespace zelmat
