#include "zelmat/commands/inputs/LaminateInput.h"

#include <algorithm>

#include "zelmat/commands/frame/Arguments.h"
#include "zelmat/commands/inputs/GivenLayups.h"
#include "zelmat/commands/inputs/GivenMaterials.h"
#include "zelmat/commands/inputs/OptionNumbers.h"
#include "zelmat/commands/inputs/WrongForm.h"
#include "zelmat/files/ReadText.h"
#include "zelmat/layups/LayupCardReader.h"
#include "zelmat/layups/PlyThickness.h"
#include "zelmat/layups/StackingNotation.h"
#include "zelmat/quantities/ReadNumber.h"
#include "zelmat/text/NearestName.h"
#include "zelmat/text/QuotedText.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

namespace {

constexpr const char* kNotation = "notation";

/// The rest of the last number's text: its unit.
std::string UnitOf(const std::string& text) {
    const auto number = ReadLeadingNumber(text);
    return number ? std::string(number->rest) : "";
}

/// Three numbers, each with its unit or all with that of the last one; a bare 0 is 0 in every unit.
mechanics::Vector3 ReadVector(const char* option, const std::string& text, const char* quantity,
                              Findings& findings) {
    mechanics::Vector3 vector{};
    const auto pieces = AtCommas(text);
    if (pieces.size() != vector.size()) {
        findings.Add(UsageFinding(option, "three-numbers", QuotedText(text) + " is no list of three numbers",
                                  {std::string("as in ") + option + " 100,0,0" +
                                   (quantity == std::string("force_per_length") ? "N/mm" : "N")}));
        return vector;
    }
    const std::string unit = UnitOf(pieces.back());
    for (std::size_t at = 0; at < vector.size(); ++at) {
        const auto bare = ReadNumber(pieces[at]);
        if (bare && *bare == 0.0) continue;
        const auto number = OptionNumber(option, bare ? pieces[at] + unit : pieces[at], quantity, findings);
        if (!number) break;  // the others have the same unit, and the same mistake in it
        vector[at] = *number;
    }
    return vector;
}

}  // namespace

void LaminateInput::Declare(Arguments& line) {
    line.Add("NOTATION|CARD|DOC", layup_, "Stacking notation, layup card, or document").Required();
    line.Add("LAYUP", wanted_, "Which layup of a document: its name, a beginning of it, or #number");
    const Argument material = line.Add("--material", material_, "Material card of a notation's plies");
    line.Add("--ply", ply_,
             "Constants of a notation's plies: E1=181GPa,E2=10.3GPa,nu12=0.28,G12=7.17GPa and, as they "
             "are known, alpha1, alpha2, density, Xt, Xc, Yt, Yc, S")
        .Excludes(material);
    AddNumberOption(line, "--thickness", thickness_, "Thickness of a notation's plies: 0.125mm");
}

std::optional<LayupCard> LaminateInput::Read(const PlyTemperature& at, CommandContext& context) const {
    const bool notation = IsNotation(layup_);
    GivenFile given = notation ? GivenFile() : OpenGiven(layup_, context.options, context.findings);
    if (!notation && !given.document && !given.text) return std::nullopt;
    if (!given.document && !wanted_.empty()) {
        context.findings.Add(UsageFinding("LAYUP", "not-of-a-document",
                                          QuotedText(layup_) + " has no layups to choose from",
                                          {"zelmat laminate DOC LAYUP"}));
        return std::nullopt;
    }
    if (notation) return FromNotation(at, context);
    if (!material_.empty() || !ply_.empty() || !thickness_.empty()) {
        context.findings.Add(
            UsageFinding("--material, --ply, --thickness", "not-for-a-card",
                         "a card or a document gives material and thickness of each layer itself"));
        return std::nullopt;
    }
    if (given.document) return FromDocument(*given.document, at, context);
    if (at.temperature) {
        RefuseTemperature(context.findings);
        return std::nullopt;
    }
    auto card = LayupCardReader(context.findings).ReadText(std::move(*given.text), ShownPath(layup_));
    if (!card) NameRightCommand(layup_, FileForm::LAYUP_CARD, context.findings);
    return card;
}

void LaminateInput::RefuseTemperature(Findings& findings) {
    findings.Add(UsageFinding("--temperature", "not-for-constants",
                              "constants of plies that are given one by one do not depend on temperature",
                              {"materials of a document and --material do"}));
}

std::optional<LayupCard> LaminateInput::FromDocument(DocumentToRead& document, const PlyTemperature& at,
                                                     CommandContext& context) const {
    const auto layup = ChosenLayup(document.Document(), wanted_, ShownPath(layup_), context.findings);
    return layup ? LayupCardOf(document, *layup, context.findings, at) : std::nullopt;
}

std::optional<LayupCard> LaminateInput::FromNotation(const PlyTemperature& at,
                                                     CommandContext& context) const {
    Findings& findings = context.findings;
    const auto read = ReadStackingNotation(layup_);
    if (const auto* mistake = std::get_if<NotationMistake>(&read)) {
        findings.Add(UsageFinding(kNotation, "wrong-notation", mistake->text,
                                  {"position " + std::to_string(mistake->position) + " of " + layup_}));
    }
    if (thickness_.empty()) {
        findings.Add(UsageFinding("--thickness", "missing-option",
                                  "a notation needs the thickness of a ply with its unit",
                                  {"as in 0.125mm"}));
    }
    const auto thickness = OptionNumberIfGiven("--thickness", thickness_, "length", findings);
    if (thickness && !IsPlyThickness(*thickness)) {
        findings.Add(
            UsageFinding("--thickness", "out-of-range", "the thickness is " + thickness_, {kPlyThicknesses}));
    }
    const auto ply = Ply(at, context);
    if (!ply || findings.HasErrors()) return std::nullopt;

    LayupCard card;
    card.file = kNotation;
    card.name = layup_ + ", " + ply->name;
    card.materials.push_back(*ply);
    for (const double angle : std::get<StackingSequence>(read)) {
        card.layers.push_back({.material = ply->name, .thickness = *thickness, .angle = angle});
    }
    return card;
}

std::optional<PlyMaterial> LaminateInput::Ply(const PlyTemperature& at, CommandContext& context) const {
    if (!ply_.empty()) {
        if (at.temperature) RefuseTemperature(context.findings);
        return PlyOfText(context.findings);
    }
    if (material_.empty()) {
        context.findings.Add(UsageFinding("--material, --ply", "missing-option",
                                          "a notation needs the material of its plies",
                                          {"--ply E1=181GPa,E2=10.3GPa,nu12=0.28,G12=7.17GPa", "or a card"}));
        return std::nullopt;
    }
    GivenMaterials given;
    given.Set(material_, "", {});
    const auto material = given.ReadOne(context);
    if (!material) return std::nullopt;
    return PlyOfMaterial(*material, at);
}

std::optional<PlyMaterial> LaminateInput::PlyOfText(Findings& findings) const {
    PlyMaterial ply{"ply", {}, {}};
    const auto known = PlyConstants();
    for (const NamedText& piece : NamedTexts(AtCommas(ply_))) {
        const char* quantity = PlyConstantQuantity(piece.name);
        if (!quantity) {
            const std::string nearest = NearestName(piece.name, known);
            findings.Add(UsageFinding(
                "--ply", "unknown-constant", "a ply has no constant " + QuotedText(piece.name),
                {nearest.empty() ? "known: " + WordList(known) : "did you mean " + nearest + "?"}));
            continue;
        }
        const bool twice = std::any_of(ply.constants.begin(), ply.constants.end(),
                                       [&](const auto& each) { return each.first == piece.name; });
        if (twice) findings.Add(UsageFinding("--ply", "given-twice", piece.name + " is given twice"));
        const auto number = OptionNumber("--ply " + piece.name, piece.text, quantity, findings);
        if (number) ply.constants.emplace_back(piece.name, *number);
    }
    return ply;
}

void LoadOption::Declare(Arguments& line) {
    AddNumberOption(line, "--N", force_, "Forces Nx,Ny,Nxy per length: 100,0,0N/mm");
    AddNumberOption(line, "--M", moment_, "Moments Mx,My,Mxy per length: \"5,0,0 N m/m\"");
    AddNumberOption(line, "--dT", temperature_, "Change of temperature from the one without stress: -100K");
}

mechanics::LaminateLoad LoadOption::Read(Findings& findings) const {
    mechanics::LaminateLoad load;
    if (!force_.empty()) load.force = ReadVector("--N", force_, "force_per_length", findings);
    if (!moment_.empty()) load.moment = ReadVector("--M", moment_, "moment_per_length", findings);
    load.temperatureChange =
        OptionNumberIfGiven("--dT", temperature_, "temperature_difference", findings).value_or(0.0);
    return load;
}

}  // namespace zelmat
