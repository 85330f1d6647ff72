#include "zelmat/commands/reports/ChangeReport.h"

#include <algorithm>

#include "zelmat/commands/inputs/MaterialChoice.h"
#include "zelmat/commands/reports/HistoryOrigin.h"
#include "zelmat/materials/DocumentMaterials.h"
#include "zelmat/text/NameProblem.h"
#include "zelmat/text/Printable.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

std::optional<SavedChange> SaveChange(DocumentToChange& document, CommandContext& context) {
    SavedChange saved{document.Path(), document.File().IsModified(), std::nullopt};
    if (!document.Save(OriginOf(context), context.findings)) return std::nullopt;
    if (!saved.changed) return saved;
    const auto steps = document.File().Steps();
    const auto last =
        std::find_if(steps.rbegin(), steps.rend(), [](const KORHistoryStep& step) { return step.done; });
    if (last != steps.rend()) saved.step = *last;
    return saved;
}

std::string ChangeText(const SavedChange& change) {
    if (!change.changed) return "nothing has changed";
    if (!change.step) return "changed for good: the document keeps no history";
    return "step " + std::to_string(change.step->number) + ": " + change.step->name;
}

void PrintChange(std::ostream& out, const SavedChange& change) {
    out << Printable(ChangeText(change)) << '\n';
}

void AddChange(nlohmann::ordered_json& json, const std::optional<SavedChange>& change) {
    json["document"] = nullptr;
    json["changed"] = change && change->changed;
    json["step"] = nullptr;
    if (!change) return;
    json["document"] = change->document;
    if (change->step) json["step"] = {{"number", change->step->number}, {"name", change->step->name}};
}

std::optional<DocumentMaterial> ChosenMaterial(KORMemoryDocument& document, const std::string& wanted,
                                               const std::string& file, Findings& findings) {
    auto materials = MaterialsOf(document);
    std::vector<std::string> names;
    for (const DocumentMaterial& material : materials) names.push_back(material.name);
    const auto chosen = ChooseMaterial(names, wanted, file, findings);
    return chosen ? std::optional(std::move(materials[*chosen])) : std::nullopt;
}

bool IsNewName(const std::string& name, const std::string& place, Findings& findings) {
    const auto problem = NameProblem(name);
    if (problem) findings.Add({FindingKind::USAGE, {place, 0}, "usage", *problem, {}});
    return !problem;
}

bool IsTaken(KORMemoryDocument& document, const std::string& name, const std::string& file,
             Findings& findings) {
    const auto materials = MaterialsOf(document);
    const auto found = std::find_if(materials.begin(), materials.end(),
                                    [&](const DocumentMaterial& each) { return each.name == name; });
    if (found == materials.end()) return false;
    findings.Add({FindingKind::ERROR,
                  {file, 0},
                  "name-taken",
                  "the document has a material " + Quoted(name) + " already",
                  {"#" + std::to_string(found - materials.begin() + 1)}});
    return true;
}

}  // namespace zelmat
