#include "zelmat/commands/LayupCommand.h"

#include <cmath>
#include <filesystem>

#include "zelmat/commands/JsonReport.h"
#include "zelmat/commands/LayupReport.h"
#include "zelmat/files/OutputFile.h"
#include "zelmat/layups/LayupCardReader.h"
#include "zelmat/layups/LayupDrawing.h"
#include "zelmat/layups/LayupHost.h"
#include "zelmat/text/LengthText.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

namespace {

constexpr const char* kNotation = "notation";
constexpr int kHomogeneous = 0;
constexpr int kComposite = 1;

void ReportUsage(Findings& findings, const char* what, const char* code, std::string text,
                 std::vector<std::string> details) {
    findings.Add({FindingKind::USAGE, {what, 0}, code, std::move(text), std::move(details)});
}

/// The thickness of a ply in metres; reports what is none.
std::optional<double> ReadThickness(const std::string& text, Findings& findings) {
    const auto thickness = ReadLength(text);
    if (!thickness) {
        ReportUsage(findings, "--thickness", "wrong-length", Quoted(text) + " is no thickness",
                    {"expected a number and a unit, as in 0.125mm", "known units: " + LengthUnits()});
    } else if (!(*thickness > 0.0) || !std::isfinite(*thickness)) {
        ReportUsage(findings, "--thickness", "out-of-range", "the thickness is " + text,
                    {"expected more than 0"});
        return std::nullopt;
    }
    return thickness;
}

/// Makes the layup, and the section if one is asked for, and reads it back.
std::optional<StoredLayup> StoreLayup(const LayupCommand& command, const LayupCard& card,
                                      Findings& findings) {
    LayupHost host(command.catalogs);
    if (!host.Make(card, findings)) return std::nullopt;
    const bool placed = command.section.empty() ||
                        host.AddSection(command.section == "composite" ? kComposite : kHomogeneous);
    auto stored = placed ? host.Read() : std::nullopt;
    if (!stored) {
        findings.Add(
            {FindingKind::UNREADABLE, {card.file, 0}, "not-stored", "the document gives no layup back", {}});
    }
    return stored;
}

}  // namespace

ExitCode LayupCommand::Run(std::ostream& out, std::ostream& err) const {
    Findings findings;
    const auto card = Given(findings);
    std::optional<StoredLayup> stored;
    bool drawn = false;
    if (card) stored = StoreLayup(*this, *card, findings);
    if (stored) {
        ReportValidity(*card, *stored, findings);
        if (!drawing.empty()) {
            drawn = WriteOutputFile(drawing, LayupDrawing(*stored, card->name), {card->file}, findings)
                        .has_value();
        }
    }

    if (json) {
        nlohmann::ordered_json told = {{"layup", nullptr}, {"drawing", nullptr}};
        if (stored) told["layup"] = ToJson(*card, *stored);
        if (drawn) told["drawing"] = drawing;
        told["findings"] = ToJson(findings);
        out << told.dump(2) << '\n';
        return findings.Exit();
    }
    if (stored) PrintLayup(out, *card, *stored);
    if (drawn) out << "\ndrawn: " << drawing << '\n';
    for (const Finding& finding : findings.All()) err << FindingLine(finding) << '\n';
    return findings.Exit();
}

bool LayupCommand::IsNotation() const {
    return !layup.ends_with(".json") && !std::filesystem::exists(layup);
}

std::optional<LayupCard> LayupCommand::Given(Findings& findings) const {
    if (IsNotation()) return FromNotation(findings);
    if (!material.empty() || !thickness.empty()) {
        ReportUsage(findings, "--material, --thickness", "not-for-a-card",
                    "a card gives material and thickness of each layer itself", {});
        return std::nullopt;
    }
    return LayupCardReader(findings).Read(layup);
}

std::optional<LayupCard> LayupCommand::FromNotation(Findings& findings) const {
    const auto read = ReadStackingNotation(layup);
    if (const auto* mistake = std::get_if<NotationMistake>(&read)) {
        ReportUsage(findings, kNotation, "wrong-notation", mistake->text,
                    {"position " + std::to_string(mistake->position) + " of " + layup});
    }
    if (material.empty()) {
        ReportUsage(findings, "--material", "missing-option", "a notation needs the material of its plies",
                    {});
    }
    if (thickness.empty()) {
        ReportUsage(findings, "--thickness", "missing-option",
                    "a notation needs the thickness of a ply with its unit", {"as in 0.125mm"});
    }
    const auto ply = thickness.empty() ? std::nullopt : ReadThickness(thickness, findings);
    if (findings.HasErrors()) return std::nullopt;

    LayupCard card;
    card.file = kNotation;
    card.name = layup + ", " + material;
    card.materials.push_back({material, {}, {}});
    for (const double angle : std::get<StackingSequence>(read)) {
        card.layers.push_back({.material = material, .thickness = *ply, .angle = angle});
    }
    return card;
}

}  // namespace zelmat
