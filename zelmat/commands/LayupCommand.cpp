
#include "zelmat/commands/LayupActions.h"
#include "zelmat/commands/frame/Arguments.h"
#include "zelmat/commands/frame/ChosenUnits.h"
#include "zelmat/commands/frame/Command.h"
#include "zelmat/commands/frame/WriteGate.h"
#include "zelmat/commands/frame/WrittenReport.h"
#include "zelmat/commands/inputs/GivenLayups.h"
#include "zelmat/commands/inputs/WrongForm.h"
#include "zelmat/commands/reports/LayupReport.h"
#include "zelmat/files/OutputFile.h"
#include "zelmat/layups/LayupCardReader.h"
#include "zelmat/layups/LayupHost.h"
#include "zelmat/layups/PlyThickness.h"
#include "zelmat/pictures/LayupPictures.h"
#include "zelmat/quantities/Measured.h"

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
    const Quantity& length = *FindQuantity("length");
    const auto measured = ReadMeasured(text, length);
    const auto thickness = measured ? measured->Stored(length) : measured.Error();
    if (!thickness) {
        ReportUsage(findings, "--thickness", "wrong-length", thickness.Error().text, {"as in 0.125mm"});
        return std::nullopt;
    }
    if (!IsPlyThickness(*thickness)) {
        ReportUsage(findings, "--thickness", "out-of-range", "the thickness is " + text, {kPlyThicknesses});
        return std::nullopt;
    }
    return *thickness;
}

/// Makes a layup from a stacking notation or from a card in a document in memory, reads it back from there,
/// checks it, prints it and draws it. Keeps nothing on disk but the drawing.
class Layup final : public Command {
public:
    void Declare(Arguments& line) override {
        line.Add("NOTATION|CARD|DOC", layup_, "Stacking notation, layup card, or document").Required();
        actions_.Declare(line);
        line.Add("--material", material_, "Material of a notation's plies");
        line.Add("--thickness", thickness_, "Thickness of a notation's plies: 0.125mm");
        line.Add("--section", section_, "Reference the layup from a shell section: composite or homogeneous")
            .OneOf({"composite", "homogeneous"});
        line.Add("--svg", drawing_, "Draw the stack into this SVG file");
        gate_.Declare(line);
    }

    void Work(CommandContext& context) override {
        Findings& findings = context.findings;
        units_ = context.units;
        if (actions_.IsAsked()) {
            actions_.Work(context, layup_,
                          [this](const std::string& text, Findings& found) { return Given(text, found); });
            return;
        }
        card_ = Given(layup_, findings);
        if (card_) stored_ = Store(context.options.catalogs, findings);
        if (!stored_) return;
        ReportValidity(*card_, *stored_, findings);
        const bool passes = gate_.Passes(*card_, findings);
        if (passes && !drawing_.empty()) {
            const auto units = DrawnUnits(context.options, findings);
            if (!units) return;
            drawn_ = WriteOutputFile(drawing_, LayupDrawing(*stored_, StackPicture(*card_, *units)),
                                     {card_->file}, findings);
        }
    }

    bool TakesStandardOutput() const override { return drawing_ == "-"; }

    void Print(std::ostream& out) const override {
        if (actions_.IsAsked()) actions_.Print(out, units_);
        if (stored_) PrintLayup(out, *card_, *stored_, units_);
        if (drawn_) PrintWritten(out, "drawn", *drawn_);
    }

    nlohmann::ordered_json Json() const override {
        nlohmann::ordered_json json = {{"layup", nullptr}, {"drawing", nullptr}};
        if (actions_.IsAsked()) json.update(actions_.Json(units_));
        if (stored_) json["layup"] = ToJson(*card_, *stored_, units_);
        if (drawn_) AddWritten(json, "drawing", *drawn_);
        return json;
    }

private:
    std::optional<LayupCard> Given(const std::string& text, Findings& findings) const {
        if (IsNotation(text)) return FromNotation(text, findings);
        if (!material_.empty() || !thickness_.empty()) {
            ReportUsage(findings, "--material, --thickness", "not-for-a-card",
                        "a card gives material and thickness of each layer itself", {});
            return std::nullopt;
        }
        auto card = LayupCardReader(findings).Read(text);
        if (!card) NameRightCommand(text, FileForm::LAYUP_CARD, findings);
        return card;
    }

    std::optional<LayupCard> FromNotation(const std::string& notation, Findings& findings) const {
        const auto read = ReadStackingNotation(notation);
        if (const auto* mistake = std::get_if<NotationMistake>(&read)) {
            ReportUsage(findings, kNotation, "wrong-notation", mistake->text,
                        {"position " + std::to_string(mistake->position) + " of " + notation});
        }
        if (material_.empty()) {
            ReportUsage(findings, "--material", "missing-option",
                        "a notation needs the material of its plies", {});
        }
        if (thickness_.empty()) {
            ReportUsage(findings, "--thickness", "missing-option",
                        "a notation needs the thickness of a ply with its unit", {"as in 0.125mm"});
        }
        const auto ply = thickness_.empty() ? std::nullopt : ReadThickness(thickness_, findings);
        if (findings.HasErrors()) return std::nullopt;

        LayupCard card;
        card.file = kNotation;
        card.name = notation + ", " + material_;
        card.materials.push_back({material_, {}, {}});
        for (const double angle : std::get<StackingSequence>(read)) {
            card.layers.push_back({.material = material_, .thickness = *ply, .angle = angle});
        }
        return card;
    }

    /// Makes the layup, and the section if one is asked for, and reads it back.
    std::optional<StoredLayup> Store(const std::string& catalogs, Findings& findings) const {
        LayupHost host(catalogs);
        if (!host.Make(*card_, findings)) return std::nullopt;
        const bool placed =
            section_.empty() || host.AddSection(section_ == "composite" ? kComposite : kHomogeneous);
        auto stored = placed ? host.Read() : std::nullopt;
        if (!stored) {
            findings.Add({FindingKind::UNREADABLE,
                          {card_->file, 0},
                          "not-stored",
                          "the document gives no layup back",
                          {}});
        }
        return stored;
    }

    LayupActions actions_;
    std::string layup_;      // a stacking notation, or the path of a card or document
    std::string material_;   // of a notation: the one that all plies are of
    std::string thickness_;  // of a notation: of each ply, with its unit
    std::string section_;    // "composite", "homogeneous": one that references the layup; empty: none
    std::string drawing_;    // where the SVG picture goes; empty: nowhere
    UnitChoice units_ = UnitChoice::Si();
    WriteGate gate_;  // before the picture
    std::optional<LayupCard> card_;
    std::optional<StoredLayup> stored_;
    std::optional<WrittenFile> drawn_;
};

}  // namespace

CommandKind LayupCommand() {
    return {.name = "layup",
            .brief = "make, check and draw a composite layup",
            .text =
                "Make a composite layup from a stacking notation or a layup card in a document in memory,\n"
                "read it back from there, check it and print its layers from the bottom up with the z of\n"
                "their faces. Notation: [0/45/-45/90]s, [±45/0]2, [0_2/90]s, [0/90_bar]s.\n"
                "With a document: DOC list, DOC show NAME, DOC add NAME STACK, DOC set NAME STACK and DOC\n"
                "remove NAME work with the layups that it keeps. STACK is a notation or a layup card; its\n"
                "materials are those of the document, to which the plies are linked.",
            .units = true,
            .make = &MakeCommand<Layup>};
}

}  // namespace zelmat
