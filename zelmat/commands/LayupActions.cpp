#include "zelmat/commands/LayupActions.h"

#include <CLI/CLI.hpp>
#include <map>

#include "zelmat/commands/LayupReport.h"
#include "zelmat/commands/MaterialChoice.h"
#include "zelmat/documents/DocumentToRead.h"
#include "zelmat/findings/DiagnosticLines.h"
#include "zelmat/layups/DocumentLayups.h"
#include "zelmat/materials/StatusText.h"
#include "zelmat/text/Printable.h"
#include "zelmat/text/TablePrinter.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

namespace {

LayupCard CardOf(const StoredLayup& stored) {
    LayupCard card;
    card.name = stored.name;
    return card;
}

std::optional<DocumentLayup> Chosen(KORMemoryDocument& document, const std::string& wanted,
                                    const std::string& path, Findings& findings) {
    auto layups = LayupsOf(document);
    std::vector<std::string> names;
    for (const DocumentLayup& layup : layups) names.push_back(layup.name);
    const auto chosen = ChooseMaterial(names, wanted, path, findings, "layup");
    return chosen ? std::optional(std::move(layups[*chosen])) : std::nullopt;
}

/// The card's layers, of materials of the document; a finding for each material that it does not have.
std::vector<NewLayer> LayersOf(KORMemoryDocument& document, const LayupCard& card, const std::string& path,
                               Findings& findings) {
    std::map<std::string, KORISpecObject_var> known;
    std::vector<NewLayer> layers;
    for (const CardLayer& given : card.layers) {
        NewLayer layer{{}, given.thickness, given.angle};
        if (given.material && !known.contains(*given.material)) {
            const auto material = ChosenMaterial(document, *given.material, path, findings);
            known[*given.material] = material ? material->feature : KORISpecObject_var();
        }
        if (given.material) layer.material = known[*given.material];
        layers.push_back(layer);
    }
    return layers;
}

}  // namespace

void LayupActions::Declare(CLI::App& line) {
    line.add_option("ACTION", action_, "With a document: list, show, add, set, remove")
        ->check(CLI::IsMember({"list", "show", "add", "set", "remove"}));
    line.add_option("NAME", name_, "Of a layup of the document; a beginning, or #number");
    line.add_option("STACK", stack_, "To add or set: stacking notation, or layup card");
}

void LayupActions::Work(CommandContext& context, const std::string& path, const ReadStack& read) {
    Findings& findings = context.findings;
    const bool changes = action_ == "add" || action_ == "set";
    if ((action_ != "list" && name_.empty()) || changes == stack_.empty()) {
        findings.Add(
            {FindingKind::USAGE,
             {"zelmat layup", 0},
             "usage",
             "expected DOC list, DOC show NAME, DOC add NAME STACK, DOC set NAME STACK or DOC remove NAME",
             {}});
        return;
    }
    if (action_ == "list" || action_ == "show") return List(context, path);
    const auto card = changes ? read(stack_, findings) : std::nullopt;
    if (changes && !card) return;
    Change(context, path, card);
}

void LayupActions::List(CommandContext& context, const std::string& path) {
    Findings& findings = context.findings;
    const auto document = DocumentToRead::Open(path, context.options.catalogs, findings);
    if (!document) return;
    auto layups = LayupsOf(document->Document());
    if (action_ == "show") {
        const auto chosen = Chosen(document->Document(), name_, path, findings);
        if (!chosen) return;
        layups = {*chosen};
    }
    for (const DocumentLayup& layup : layups) {
        if (auto stored = ReadLayup(layup.feature)) {
            layups_.push_back(std::move(*stored));
            if (action_ == "show") ReportValidity(CardOf(layups_.back()), layups_.back(), findings);
        } else {
            findings.Add({FindingKind::ERROR, {path, 0}, "not-read", layup.name + " could not be read", {}});
        }
    }
    read_ = true;
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
        layup = Chosen(document, name_, path, own);
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
    const auto layers = card ? LayersOf(document, *card, path, own) : std::vector<NewLayer>();
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
            if (feature) status = SetLayers(document, feature, layers);
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
        PrintLayup(out, CardOf(layups_.front()), layups_.front(), units);
        return;
    }
    TablePrinter printer({"#", "layup", "layers", "notation"});
    for (const std::size_t words : {1u, 3u}) printer.SetLeft(words);
    for (std::size_t at = 0; at < layups_.size(); ++at) {
        const StoredLayup& layup = layups_[at];
        printer.AddRow(
            {std::to_string(at + 1), layup.name, std::to_string(layup.layers.size()), layup.Notation()});
    }
    if (!layups_.empty()) printer.Print(out);
    out << (layups_.empty() ? "" : "\n") << "layups: " << layups_.size() << '\n';
}

nlohmann::ordered_json LayupActions::Json(const UnitChoice& units) const {
    nlohmann::ordered_json json;
    AddChange(json, change_);
    json["layups"] = nlohmann::ordered_json::array();
    for (const StoredLayup& layup : layups_) json["layups"].push_back(ToJson(CardOf(layup), layup, units));
    return json;
}

}  // namespace zelmat
