#include <algorithm>
#include <cmath>

#include "zelmat/cards/MeasuredCsv.h"
#include "zelmat/commands/frame/Arguments.h"
#include "zelmat/commands/frame/Calculation.h"
#include "zelmat/commands/inputs/CardInput.h"
#include "zelmat/commands/inputs/OptionNumbers.h"
#include "zelmat/files/ReadText.h"
#include "zelmat/mechanics/plastic/TensileCurve.h"
#include "zelmat/quantities/NumberText.h"
#include "zelmat/text/CountText.h"

namespace zelmat {

namespace {

using mechanics::StressStrain;

/// Makes a measured tensile curve ready for a simulation: true stress over plastic strain, up to necking.
class TrueCurve final : public Calculation {
public:
    void Declare(Arguments& line) override {
        line.Add("CSV", path_, "Points of the test: EngineeringStrain [-],EngineeringStress [MPa]")
            .Required();
        AddNumberOption(line, "--youngs-modulus", modulus_, "Young's modulus: 210GPa").Required();
        AddNumberOption(line, "--offset", offset_, "Plastic strain of the offset yield point").ShowsDefault();
        DeclareCardReading(line, how_);
    }

protected:
    bool Compute(CommandContext& context, Result& result) override {
        Findings& findings = context.findings;
        const auto modulus = OptionNumber("--youngs-modulus", modulus_, "modulus", findings);
        const auto offset = OptionNumber("--offset", offset_, "strain", findings);
        const auto text = modulus && offset ? ReadText(path_, findings) : std::nullopt;
        const auto points = text ? MeasuredCsv::Read(*text, ShownPath(path_), how_, findings) : std::nullopt;
        if (!points) return false;
        const auto engineering = Engineering(*points, findings, result);
        if (!engineering) return false;
        const auto curve = mechanics::ConvertTensileCurve(*engineering, *modulus, *offset);
        if (!curve.Ok()) return Refuse(findings, "no-curve", curve.Why());
        result.Add("youngs_modulus", "Young's modulus", "modulus", *modulus);
        HoldAgainstModulus(*curve, *modulus, findings);
        TellYield(*curve, *offset, findings, result);
        TellNecking(*curve, result);
        for (const std::string& note : curve->notes) result.Note(note);
        result.Add(TrueTable(*curve, result));
        if (!curve->hardening.empty()) result.Add(HardeningTable(*curve, result));
        return true;
    }

private:
    bool Refuse(Findings& findings, const char* code, std::string text,
                std::vector<std::string> details = {}) const {
        findings.Add({FindingKind::ERROR, {ShownPath(path_), 0}, code, std::move(text), std::move(details)});
        return false;
    }

    /// Every point as engineering strain and stress; what comes as true is turned back first.
    std::optional<std::vector<StressStrain>> Engineering(const MeasuredCsv& points, Findings& findings,
                                                         Result& result) const {
        using enum MeasuredColumn;
        const auto *engineering = points.Numbers(ENGINEERING_STRAIN), *stretch = points.Numbers(STRETCH),
                   *trueStrain = points.Numbers(TRUE_STRAIN);
        const auto *nominal = points.Numbers(NOMINAL_STRESS), *trueStress = points.Numbers(TRUE_STRESS);
        const bool oneStrain = (engineering != nullptr) + (stretch != nullptr) + (trueStrain != nullptr) == 1;
        if (!oneStrain || (nominal != nullptr) == (trueStress != nullptr)) {
            Refuse(findings, "columns", "a tensile test needs one strain and one stress",
                   {"EngineeringStrain [-],EngineeringStress [MPa]"});
            return std::nullopt;
        }
        std::vector<StressStrain> curve;
        for (std::size_t row = 0; row < points.Rows(); ++row) {
            const double strain = engineering ? (*engineering)[row]
                                  : stretch   ? (*stretch)[row] - 1.0
                                              : std::expm1((*trueStrain)[row]);
            const double stress = nominal ? (*nominal)[row] : (*trueStress)[row] / (1.0 + strain);
            curve.push_back({strain, stress});
        }
        if (trueStrain || trueStress)
            result.Note("true values of the file were turned into engineering ones");
        return curve;
    }

    /// No metal is stiffer in its own test: then the modulus is another material's, or in another unit.
    void HoldAgainstModulus(const mechanics::TensileCurve& curve, double modulus, Findings& findings) const {
        constexpr double kScatter = 0.1;
        const auto stiffer = std::find_if(curve.trueCurve.begin(), curve.trueCurve.end(),
                                          [&](const mechanics::TrueCurvePoint& point) {
                                              return point.plasticStrain < -kScatter * point.stress / modulus;
                                          });
        if (stiffer == curve.trueCurve.end()) return;
        findings.Add({FindingKind::WARNING,
                      {ShownPath(path_), 0},
                      "modulus-too-low",
                      "the test is stiffer than the Young's modulus that is given: the plastic strain is " +
                          RoundedText(stiffer->plasticStrain, 4) + " at the true strain " +
                          RoundedText(stiffer->strain, 4),
                      {"offset yield point and plastic strains follow from that modulus"}});
    }

    static void TellYield(const mechanics::TensileCurve& curve, double offset, Findings& findings,
                          Result& result) {
        result.Add("offset", "offset of the yield point", "strain", offset);
        if (curve.offsetYield) {
            result.Add("offset_yield_stress", "offset yield stress, engineering", "stress",
                       curve.offsetYield->stress);
            result.Add("offset_yield_strain", "at the engineering strain", "strain",
                       curve.offsetYield->strain);
            result.Note(
                "the plastic strains of the hardening curve count from the yield point, whose own is "
                "taken off");
            return;
        }
        result.Say("offset_yield", "offset yield stress", "none: the curve does not reach the offset line");
        findings.Add({FindingKind::WARNING,
                      {"--offset", 0},
                      "no-yield",
                      "the curve does not reach the offset line: there is no hardening curve",
                      {}});
    }

    static void TellNecking(const mechanics::TensileCurve& curve, Result& result) {
        if (!curve.necking) {
            return result.Say("necking", "necking", "none: the curve still rises at its end");
        }
        result.Say("necking", "necking",
                   "by Considere's criterion, d sigma/d eps = sigma: the greatest engineering stress");
        result.Add("necking_stress", "there the engineering stress", "stress", curve.necking->stress);
        result.Add("necking_strain", "there the engineering strain", "strain", curve.necking->strain);
        if (curve.pointsAfterNecking == 0) return;
        result.Say("points_left_out", "left out",
                   CountText(curve.pointsAfterNecking, "point") + " after necking");
    }

    static ResultTable TrueTable(const mechanics::TensileCurve& curve, const Result& result) {
        std::vector<MaybeNumber> strain, stress, plastic;
        for (const auto& point : curve.trueCurve) {
            strain.emplace_back(point.strain);
            stress.emplace_back(point.stress);
            plastic.emplace_back(point.plasticStrain);
        }
        ResultTable table("true_curve", "True curve up to necking");
        table.AddNumbers("true_strain", "true strain", result.Of("strain"), strain);
        table.AddNumbers("true_stress", "true stress", result.Of("stress"), stress);
        table.AddNumbers("plastic_strain", "plastic strain", result.Of("strain"), plastic);
        return table;
    }

    static ResultTable HardeningTable(const mechanics::TensileCurve& curve, const Result& result) {
        std::vector<MaybeNumber> stress, plastic;
        for (const StressStrain& point : curve.hardening) {
            stress.emplace_back(point.stress);
            plastic.emplace_back(point.strain);
        }
        ResultTable table("hardening", "Hardening curve, from the offset yield point");
        table.AddNumbers("yield_stress", "yield stress", result.Of("stress"), stress);
        table.AddNumbers("plastic_strain", "plastic strain", result.Of("strain"), plastic);
        return table;
    }

    std::string path_;
    std::string modulus_;
    std::string offset_ = "0.2%";
    CardReading how_;
};

}  // namespace

CommandKind TrueCurveCommand() {
    return {.name = "true-curve",
            .brief = "turn a measured tensile curve into true stress over plastic strain",
            .text =
                "Turn a measured tensile curve into true stress and strain, up to necking by Considere's\n"
                "criterion, find the offset yield point, and make the hardening curve from there. The "
                "columns say\n"
                "what was measured: EngineeringStrain [-],EngineeringStress [MPa].",
            .units = true,
            .csv = true,
            .make = &MakeCommand<TrueCurve>};
}

}  // namespace zelmat
