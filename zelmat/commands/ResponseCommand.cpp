#include <algorithm>

#include "zelmat/commands/frame/Arguments.h"
#include "zelmat/commands/frame/Calculation.h"
#include "zelmat/commands/inputs/FitOption.h"
#include "zelmat/commands/inputs/GivenMaterials.h"
#include "zelmat/commands/inputs/OptionNumbers.h"
#include "zelmat/commands/inputs/StretchOption.h"
#include "zelmat/commands/reports/FitReport.h"
#include "zelmat/mechanics/fit/HyperelasticFit.h"
#include "zelmat/mechanics/hyperelastic/HyperelasticResponse.h"
#include "zelmat/mechanics/hyperelastic/Stability.h"
#include "zelmat/properties/HyperelasticProperty.h"
#include "zelmat/properties/TestCurves.h"
#include "zelmat/quantities/NumberText.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

namespace {

using mechanics::LoadingMode;
using mechanics::StrainEnergy;

std::string Word(std::string_view keyword) {
    return std::string(keyword);
}

/// What a set of coefficients answers, mode by mode.
class Response final : public Calculation {
public:
    void Declare(Arguments& line) override {
        given_.Declare(line);
        line.Add("--mode", mode_,
                 "How the specimen is loaded: uniaxial, equibiaxial, planar or shear; else the first three")
            .OneOf({"uniaxial", "equibiaxial", "planar", "shear"});
        stretches_.Declare(line);
        AddNumberOption(line, "--temperature", temperature_,
                        "Temperature of coefficients that depend on it: 20degC");
        fit_.Declare(line);
    }

protected:
    bool Compute(CommandContext& context, Result& result) override {
        Findings& findings = context.findings;
        const auto stretches = stretches_.Read(findings);
        const auto temperature = OptionNumberIfGiven("--temperature", temperature_, "temperature", findings);
        if (findings.HasErrors()) return false;
        const auto material = given_.ReadOne(context);
        const auto fit = material ? fit_.Choose(*material, findings) : std::nullopt;
        if (!fit) return false;
        const Place place{material->file, fit->origin.Line()};
        const auto property = HyperelasticProperty::Of(*fit);
        const auto at = property.Ok() ? property->At(temperature, mechanics::OutsidePolicy::REFUSE)
                                      : mechanics::Outcome<HyperelasticAt>(property.Refused());
        if (!at.Ok()) {
            findings.Add({FindingKind::ERROR, place, "no-response", at.Why(), Range(property, result)});
            return false;
        }
        TellModel(*material, *property, *at, temperature, result);
        TellModes(*at->energy, result);
        TellDeviation(*at->energy, *material, result);
        if (!stretches.empty()) TellResponse(*at->energy, stretches, place, findings, result);
        return true;
    }

private:
    /// The temperatures that would do.
    static std::vector<std::string> Range(const mechanics::Outcome<HyperelasticProperty>& property,
                                          const Result& result) {
        const auto range = property.Ok() ? property->Coefficients().Range() : std::nullopt;
        if (!range) return {};
        const Shown shown = result.Of("temperature");
        return {"--temperature from " + shown.Text(range->lowest) + " to " + shown.Text(range->highest)};
    }

    static void TellModel(const Material& material, const HyperelasticProperty& property,
                          const HyperelasticAt& at, std::optional<double> temperature, Result& result) {
        result.Say("material", "material", material.name);
        result.Say("model", "model", Word(Keyword(property.Model())));
        if (HasOrder(property.Model())) result.Say("order", "order", std::to_string(property.Order()));
        if (temperature) result.Add("temperature", "temperature", "temperature", temperature);
        result.Add("initial_shear_modulus", "initial shear modulus mu0", "modulus",
                   at.energy->ShearModulus());
        const auto bulk = at.volumetric.BulkModulus();
        result.Add("initial_bulk_modulus", "initial bulk modulus K0", "modulus",
                   bulk.Ok() ? MaybeNumber(*bulk) : std::nullopt);
        result.Say("compressibility", "responses",
                   "incompressible" + std::string(bulk.Ok() ? ": the change of volume is left out" : ""));
        result.Note(at.notes);
    }

    std::vector<LoadingMode> Modes() const {
        if (const auto mode = mechanics::LoadingModeOf(mode_)) return {*mode};
        return {LoadingMode::UNIAXIAL, LoadingMode::EQUIBIAXIAL, LoadingMode::PLANAR};
    }

    /// Where the potential locks, and where it becomes unstable.
    void TellModes(const StrainEnergy& energy, Result& result) const {
        ResultTable locking("locking", "Locking: the chains are fully drawn");
        ResultTable limits("stability", "Stability: the first stretches at which a criterion fails");
        std::vector<std::string> modes, criteria, states, lockingModes, beyond;
        std::vector<MaybeNumber> compression, tension, from, to, lower, upper;
        for (const LoadingMode mode : Modes()) {
            if (const auto locks = mechanics::LockingStretchOf(energy, mode)) {
                lockingModes.push_back(Word(Keyword(mode)));
                lower.emplace_back(locks->lower);
                upper.emplace_back(locks->upper);
                beyond.emplace_back(locks->ends ? "no energy beyond" : "the series goes on beyond");
            }
            for (const auto criterion :
                 {mechanics::StabilityCriterion::DRUCKER, mechanics::StabilityCriterion::DEAD_LOAD}) {
                const auto found =
                    FindStabilityLimits(energy, criterion, mode, mechanics::DefaultStabilityRange(mode));
                modes.push_back(Word(Keyword(mode)));
                criteria.push_back(Word(Keyword(criterion)));
                compression.push_back(found.compression);
                tension.push_back(found.tension);
                from.emplace_back(found.searched.lower);
                to.emplace_back(found.searched.upper);
                states.push_back(StateOf(found));
            }
        }
        limits.AddWords("mode", "mode", modes);
        limits.AddWords("criterion", "criterion", criteria);
        limits.AddNumbers("compression", "compression", compression);
        limits.AddNumbers("tension", "tension", tension);
        limits.AddNumbers("searched_from", "searched from", from);
        limits.AddNumbers("searched_to", "to", to);
        limits.AddWords("state", "state", states);
        if (!lockingModes.empty()) {
            locking.AddWords("mode", "mode", lockingModes);
            locking.AddNumbers("lower", "lower", lower);
            locking.AddNumbers("upper", "upper", upper);
            locking.AddWords("beyond", "beyond", beyond);
            result.Add(std::move(locking));
        }
        result.Add(std::move(limits));
    }

    /// How near the fit comes to the tests that the material keeps.
    void TellDeviation(const StrainEnergy& energy, const Material& material, Result& result) const {
        DeviationTable table;
        std::vector<mechanics::FitPoint> all;
        for (const mechanics::TestCurve& curve : TestCurvesOf(material)) {
            const auto modes = Modes();
            if (std::find(modes.begin(), modes.end(), curve.mode) == modes.end()) continue;
            const auto data = mechanics::TakeTestData({curve}, mechanics::DeviationMeasure::ABSOLUTE);
            if (!data.Ok()) continue;
            all.insert(all.end(), data->points.begin(), data->points.end());
            const auto [least, greatest] =
                std::minmax_element(curve.points.begin(), curve.points.end(),
                                    [](const auto& a, const auto& b) { return a.stretch < b.stretch; });
            if (const auto deviation = mechanics::DeviationOf(energy, data->points)) {
                table.Add(Word(Keyword(curve.mode)), *deviation, least->stretch, greatest->stretch);
            }
        }
        const auto deviation = mechanics::DeviationOf(energy, all);
        if (!deviation) return;
        table.Add("all", *deviation);
        result.Add(table.Table(result, "Deviation from the material's tests"));
    }

    static std::string StateOf(const mechanics::StabilityLimits& limits) {
        if (!limits.stableAtRest) return "unstable at rest";
        return limits.compression || limits.tension ? "stable between" : "stable throughout";
    }

    void TellResponse(const StrainEnergy& energy, const std::vector<double>& stretches, const Place& place,
                      Findings& findings, Result& result) const {
        std::vector<std::string> modes, notes;
        std::vector<MaybeNumber> loads, energies, nominal, trueStresses, tangents;
        for (const LoadingMode mode : Modes()) {
            for (const double x : stretches) {
                const auto answer = mechanics::Respond(energy, mode, x);
                modes.push_back(Word(Keyword(mode)));
                loads.emplace_back(x);
                energies.push_back(answer.Ok() ? MaybeNumber(answer->energy) : std::nullopt);
                nominal.push_back(answer.Ok() ? MaybeNumber(answer->nominalStress) : std::nullopt);
                trueStresses.push_back(answer.Ok() ? MaybeNumber(answer->trueStress) : std::nullopt);
                tangents.push_back(answer.Ok() ? MaybeNumber(answer->tangent) : std::nullopt);
                notes.emplace_back(!answer.Ok()            ? answer.Why()
                                   : answer->beyondLocking ? "beyond the locking stretch"
                                                           : "");
                if (answer.Ok()) continue;
                findings.Add({FindingKind::ERROR,
                              place,
                              "no-response",
                              Word(Keyword(mode)) + " at " + NumberText(x) + ": " + answer.Why(),
                              {}});
            }
        }
        const bool shear = mode_ == Keyword(LoadingMode::SIMPLE_SHEAR);
        ResultTable table("response", "Response");
        table.AddWords("mode", "mode", modes);
        table.AddNumbers(shear ? "shear" : "stretch", shear ? "amount of shear" : "stretch", loads);
        table.AddNumbers("energy", "energy per volume", result.Of("stress"), energies);
        table.AddNumbers("nominal_stress", "nominal stress", result.Of("stress"), nominal);
        table.AddNumbers("true_stress", "true stress", result.Of("stress"), trueStresses);
        table.AddNumbers("tangent", "tangent", result.Of("stress"), tangents);
        const bool noted =
            std::any_of(notes.begin(), notes.end(), [](const auto& note) { return !note.empty(); });
        if (noted) table.AddWords("note", "note", notes);
        result.Add(std::move(table));
    }

    GivenMaterials given_;
    std::string mode_;  // empty: not said
    StretchOption stretches_;
    std::string temperature_;  // with its unit; empty: not said
    FitOption fit_;
};

}  // namespace

CommandKind ResponseCommand() {
    return {
        .name = "response",
        .brief = "stresses of a hyperelastic fit, where it locks and becomes unstable",
        .text =
            "What a hyperelastic fit answers: energy, nominal and true stress and tangent at the stretches\n"
            "that are given, mu0, K0, where the chains lock, and the first unstable stretches by two\n"
            "criteria: Drucker's, and uniqueness under dead load. In shear the numbers are amounts of "
            "shear,\n"
            "0 unloaded. Coefficients over temperature are interpolated between the nearest rows.",
        .units = true,
        .csv = true,
        .make = &MakeCommand<Response>};
}

}  // namespace zelmat
