
#include "zelmat/commands/MaterialChange.h"
#include "zelmat/commands/frame/Arguments.h"
#include "zelmat/documents/MaterialUses.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

namespace {

/// Takes a material out of a document, with all that hangs on it.
class Remove final : public MaterialChange {
protected:
    void DeclareFurther(Arguments& line) override {
        line.AddFlag("--force", force_, "Remove it though layups use it");
    }

    std::string StepName(const DocumentMaterial& material) const override {
        return "Remove " + material.name;
    }

    bool Change(KORMemoryDocument& document, const DocumentMaterial& material, Findings& findings) override {
        const auto layups = LayupsThatUse(document, material.feature.Get());
        if (!layups.empty()) {
            findings.Add(
                {force_ ? FindingKind::WARNING : FindingKind::ERROR,
                 {Path(), 0},
                 "material-used",
                 material.name + " is used by " + WordList(layups),
                 {force_ ? "removed all the same" : "not removed; --force removes it all the same"}});
            if (!force_) return false;
        }
        RemoveMaterial(document, material);
        return true;
    }

private:
    bool force_ = false;
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
