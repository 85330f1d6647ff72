#include "zelmat/commands/MaterialChange.h"

#include "zelmat/commands/frame/Arguments.h"

namespace zelmat {

void MaterialChange::Declare(Arguments& line) {
    line.Add("DOC", document_, "Document").Required();
    line.Add("MATERIAL", wanted_, "Its name, a beginning that no other has, or #number").Required();
    DeclareFurther(line);
}

void MaterialChange::Work(CommandContext& context) {
    Findings& findings = context.findings;
    const auto document = DocumentToChange::Open(document_, context.options.catalogs, findings);
    if (!document) return;
    const auto material = ChosenMaterial(document->Document(), wanted_, document_, findings);
    if (!material) return;
    KORStep step(document->Document(), StepName(*material));
    if (!Change(document->Document(), *material, findings)) return;
    step.Commit();
    change_ = SaveChange(*document, context);
    if (change_) changed_ = material->name;
}

void MaterialChange::Print(std::ostream& out) const {
    if (change_) PrintChange(out, *change_);
}

nlohmann::ordered_json MaterialChange::Json() const {
    nlohmann::ordered_json json;
    AddChange(json, change_);
    return json;
}

}  // namespace zelmat
