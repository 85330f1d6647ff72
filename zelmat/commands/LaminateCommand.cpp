#include "zelmat/commands/frame/Calculation.h"
#include "zelmat/commands/inputs/LaminateInput.h"
#include "zelmat/commands/inputs/OptionNumbers.h"
#include "zelmat/commands/reports/LaminateReport.h"
#include "zelmat/layups/StackingNotation.h"
#include "zelmat/properties/LaminateProperty.h"

namespace zelmat {

namespace {

/// Said with every result: without it A, B and D mean nothing.
constexpr const char* kConvention =
    "z upwards from the middle plane, first layer at the bottom; angles from the x axis to the fibre, "
    "counter-clockwise; shear as engineering strain; strain at z = strain + z curvature";

/// The stiffness of a laminate by classical lamination theory, and what it does under a load.
class LaminateOfPlies final : public Calculation {
public:
    void Declare(Arguments& line) override {
        input_.Declare(line);
        load_.Declare(line);
        AddNumberOption(line, "--temperature", temperature_,
                        "Temperature of plies whose materials depend on it: 150degC");
    }

protected:
    bool Compute(CommandContext& context, Result& result) override {
        Findings& findings = context.findings;
        const auto load = load_.Read(findings);
        const PlyTemperature at{OptionNumberIfGiven("--temperature", temperature_, "temperature", findings),
                                load.temperatureChange};
        if (findings.HasErrors()) return false;
        const auto card = input_.Read(at, context);
        if (!card) return false;
        const auto laminate = LaminateOf(*card);
        if (!laminate.Ok()) return Refuse(*card, laminate.Why(), findings);
        result.Say("laminate", "laminate", card->name);
        result.Say("layers", "layers", std::to_string(card->layers.size()) + ", " + Sequence(*card));
        result.Say("convention", "convention", kConvention);
        if (at.temperature) TellTemperature(at, result);
        result.Note(Lacking(*card));
        if (const auto fault = TellLaminate(*laminate, result)) return Refuse(*card, fault->text, findings);
        if (!load_.IsGiven()) return true;
        if (const auto fault = TellLoaded(*laminate, load, result))
            return Refuse(*card, fault->text, findings, Lacking(*card));
        return true;
    }

private:
    static bool Refuse(const LayupCard& card, const std::string& why, Findings& findings,
                       std::vector<std::string> details = {}) {
        findings.Add(
            {FindingKind::ERROR, {card.file, card.layersLine}, "no-laminate", why, std::move(details)});
        return false;
    }

    static std::vector<std::string> Lacking(const LayupCard& card) {
        std::vector<std::string> all;
        for (const PlyMaterial& ply : card.materials)
            all.insert(all.end(), ply.lacking.begin(), ply.lacking.end());
        return all;
    }

    static void TellTemperature(const PlyTemperature& at, Result& result) {
        result.Add("temperature", "temperature of the plies", "temperature", *at.temperature);
        result.Note(
            "an expansion that depends on temperature is the mean one (linearised) from there less the "
            "change of temperature");
    }

    /// The angles; where plies differ in more, they say less than the card.
    static std::string Sequence(const LayupCard& card) {
        StackingSequence angles;
        bool one = true;
        for (const CardLayer& layer : card.layers) {
            angles.push_back(layer.angle);
            one = one && layer.material == card.layers.front().material &&
                  layer.thickness == card.layers.front().thickness;
        }
        return WriteStackingNotation(angles) + (one ? "" : ", angles only");
    }

    LaminateInput input_;
    LoadOption load_;
    std::string temperature_;
};

}  // namespace

CommandKind LaminateCommand() {
    return {
        .name = "laminate",
        .brief = "stiffness, moduli, ply stresses and first ply failure of a laminate",
        .text =
            "What a laminate is by classical lamination theory, from a notation, a layup card or a layup of\n"
            "a document, whose materials keep the constants of its plies: A, B, D and their inverse, moduli\n"
            "of membrane and bending, lamination parameters, thermal expansion, mass. Under --N, --M and "
            "--dT also what\n"
            "every ply bears and, with strengths, where it first fails by maximum stress, Tsai-Hill and\n"
            "Tsai-Wu. z counts upwards, the first layer lies at the bottom. zelmat laminate\n"
            "\"[0/45/-45/90]s\" --ply E1=181GPa,E2=10.3GPa,nu12=0.28,G12=7.17GPa --thickness 0.125mm",
        .units = true,
        .csv = true,
        .make = &MakeCommand<LaminateOfPlies>};
}

}  // namespace zelmat
