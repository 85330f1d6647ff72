#include "zelmat/commands/LayupActions.h"

#include <filesystem>
#include <map>

#include "zelmat/commands/frame/Arguments.h"
#include "zelmat/commands/inputs/GivenLayups.h"
#include "zelmat/commands/reports/LayupReport.h"
#include "zelmat/documents/DocumentToRead.h"
#include "zelmat/findings/DiagnosticLines.h"
#include "zelmat/layups/DocumentLayups.h"
#include "zelmat/layups/KeptLayupCard.h"
#include "zelmat/materials/StatusText.h"
#include "zelmat/text/Printable.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

namespace {

using LinkedMaterials = std::map<std::string, KORISpecObject_var>;

/// What the card's layers are of, in the document; a finding for each material that it does not have.
LinkedMaterials MaterialsOfLayers(KORMemoryDocument& document, const LayupCard& card, const std::string& path,
                                  Findings& findings) {
    LinkedMaterials linked;
    for (const CardLayer& given : card.layers) {
        if (!given.material || linked.contains(*given.material)) continue;
        const auto material = ChosenMaterial(document, *given.material, path, findings);
        linked[*given.material] = material ? material->feature : KORISpecObject_var();
    }
    return linked;
}

std::vector<NewLayer> LayersOf(const LayupCard& card, const LinkedMaterials& linked) {
    std::vector<NewLayer> layers;
    for (const CardLayer& given : card.layers) {
        layers.push_back({given.material ? linked.at(*given.material) : KORISpecObject_var(), given.thickness,
                          given.angle});
    }
    return layers;
}

/// A layup's card with the layers of a notation: what was said of laminate and plies stays, what was found of
/// the other layers goes.
LayupCard WithLayersOf(LayupCard card, const LayupCard& notation) {
    card.layers = notation.layers;
    card.materials.insert(card.materials.end(), notation.materials.begin(), notation.materials.end());
    std::erase_if(card.kept, [](const KeptValue& kept) {
        return kept.name == "total_thickness" || kept.name == "published" || kept.name == "computed";
    });
    return card;
}

/// Gives a layup the card's layers and keeps what else the card says; the status of what fails.
HRESULT Give(KORMemoryDocument& document, const DocumentLayup& layup, const LayupCard& card,
             const LinkedMaterials& linked) {
    LayupCard kept = card;
    Findings none;  // a layup that cannot be read has nothing that could stay
    if (card.layersLine == 0) {
        const auto before = ReadWholeLayup(document, layup, {}, none);
        if (before) kept = WithLayersOf(before->card, card);
    }
    const HRESULT status = SetLayers(document, layup.feature, LayersOf(card, linked));
    if (FAILED(status)) return status;
    return KeepLayupCard(document, layup.feature, kept, linked) ? S_OK : E_FAIL;
}

bool IsFile(const std::string& path) {
    std::error_code none;
    return std::filesystem::is_regular_file(path, none);
}

}  // namespace

void LayupActions::Declare(Arguments& line) {
    line.Add("ACTION", action_, "With a document: list, show, add, set, remove")
        .OneOf({"list", "show", "add", "set", "remove"});
    line.Add("NAME", name_, "Of a layup of the document; a beginning, or #number. add CARD: the card's");
    line.Add("STACK", stack_, "To add or set: stacking notation, or layup card");
}

void LayupActions::Work(CommandContext& context, const std::string& path, const ReadStack& read) {
    Findings& findings = context.findings;
    const bool changes = action_ == "add" || action_ == "set";
    const bool named = !(action_ == "add" && stack_.empty() && IsFile(name_));
    if (!named) stack_ = std::exchange(name_, {});
    if ((action_ != "list" && named && name_.empty()) || changes == stack_.empty()) {
        findings.Add(
            {FindingKind::USAGE,
             {"zelmat layup", 0},
             "usage",
             "expected DOC list, DOC show NAME, DOC add NAME STACK, DOC add CARD, DOC set NAME STACK or DOC "
             "remove NAME",
             {}});
        return;
    }
    if (action_ == "list" || action_ == "show") return List(context, path);
    const auto card = changes ? read(stack_, findings) : std::nullopt;
    if (changes && !card) return;
    if (!named) name_ = card->name;
    if (action_ == "add" && !IsNewName(name_, "zelmat layup", findings)) return;
    Change(context, path, card);
}

void LayupActions::List(CommandContext& context, const std::string& path) {
    Findings& findings = context.findings;
    const auto document = DocumentToRead::Open(path, context.options.catalogs, findings);
    if (!document) return;
    auto layups = LayupsOf(document->Document());
    if (action_ == "show") {
        const auto chosen = ChosenLayup(document->Document(), name_, path, findings);
        if (!chosen) return;
        layups = {*chosen};
    }
    for (const DocumentLayup& layup : layups) {
        auto whole = ReadWholeLayup(document->Document(), layup, path, findings);
        if (!whole) continue;
        if (action_ == "show") {
            ReportValidity(whole->card, whole->stored, findings);
            ReportRemovedMaterials(layup, path, findings);
        }
        layups_.push_back(std::move(*whole));
    }
    read_ = action_ == "list" || !layups_.empty();
}

void LayupActions::Change(CommandContext& context, const std::string& path,
                          const std::optional<LayupCard>& card) {
    Findings& findings = context.findings;
    const auto opened = DocumentToChange::Open(path, context.options.catalogs, findings);
    if (!opened) return;
    KORMemoryDocument& document = opened->Document();
    Findings own;
    std::optional<DocumentLayup> layup;
    if (action_ != "add") {
        layup = ChosenLayup(document, name_, path, own);
    } else {
        for (const DocumentLayup& each : LayupsOf(document)) {
            if (each.name != name_) continue;
            own.Add({FindingKind::ERROR,
                     {path, 0},
                     "name-taken",
                     "the document has a layup " + Quoted(name_) + " already",
                     {}});
        }
    }
    const auto linked = card ? MaterialsOfLayers(document, *card, path, own) : LinkedMaterials();
    findings.Add(own);
    if (own.HasErrors()) return;
    const std::string name = layup ? layup->name : name_;
    const char* const verb = action_ == "add"   ? "Add layup "
                             : action_ == "set" ? "Set layup "
                                                : "Remove layup ";
    KORStep step(document, verb + name);
    HRESULT status = S_OK;
    {
        const DiagnosticLines diagnostics(findings, path, name);
        if (action_ == "remove") {
            RemoveLayup(document, layup->feature);
        } else {
            const auto feature = layup ? layup->feature : NewLayup(document, name, status);
            if (feature) status = Give(document, {feature, name}, *card, linked);
        }
    }
    if (FAILED(status)) {
        findings.Add({FindingKind::ERROR,
                      {path, 0},
                      "not-written",
                      "the layup " + name + " could not be written",
                      {StatusText(status)}});
        return;
    }
    step.Commit();
    change_ = SaveChange(*opened, context);
}

void LayupActions::Print(std::ostream& out, const UnitChoice& units) const {
    if (change_) PrintChange(out, *change_);
    if (!read_) return;
    if (action_ == "show") {
        PrintLayup(out, layups_.front().card, layups_.front().stored, units);
        return;
    }
    std::vector<StoredLayup> stored;
    for (const WholeLayup& layup : layups_) stored.push_back(layup.stored);
    PrintLayupList(out, stored);
}

nlohmann::ordered_json LayupActions::Json(const UnitChoice& units) const {
    nlohmann::ordered_json json;
    AddChange(json, change_);
    json["layups"] = nlohmann::ordered_json::array();
    for (const WholeLayup& layup : layups_) {
        json["layups"].push_back(ToJson(layup.card, layup.stored, units));
    }
    return json;
}

}  // namespace zelmat
