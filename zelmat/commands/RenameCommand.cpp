
#include "interfaces/KORIAlias.h"
#include "zelmat/commands/MaterialChange.h"
#include "zelmat/commands/frame/Arguments.h"

namespace zelmat {

namespace {

/// Gives a material of a document another name. Whatever refers to it still does.
class Rename final : public MaterialChange {
protected:
    void DeclareFurther(Arguments& line) override { line.Add("NEW", name_, "The new name").Required(); }

    std::string StepName(const DocumentMaterial& material) const override {
        return "Rename " + material.name + " to " + name_;
    }

    bool Change(KORMemoryDocument& document, const DocumentMaterial& material, Findings& findings) override {
        if (!IsNewName(name_, "zelmat rename", findings)) return false;
        if (material.name != name_ && IsTaken(document, name_, Path(), findings)) return false;
        KORIAlias_var::Of(material.feature.Get())->SetAlias(name_.c_str());
        return true;
    }

private:
    std::string name_;
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
