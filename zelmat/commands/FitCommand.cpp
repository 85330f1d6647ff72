#include <algorithm>

#include "zelmat/commands/FitStore.h"
#include "zelmat/commands/frame/Arguments.h"
#include "zelmat/commands/frame/Calculation.h"
#include "zelmat/commands/inputs/FitInput.h"
#include "zelmat/commands/inputs/OptionNumbers.h"
#include "zelmat/commands/reports/FitReport.h"
#include "zelmat/text/NearestName.h"
#include "zelmat/text/QuotedText.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

namespace {

using mechanics::DeviationMeasure;
using mechanics::HardeningLaw;
using mechanics::HyperelasticModel;

constexpr HardeningLaw kLaws[] = {HardeningLaw::LUDWIK, HardeningLaw::SWIFT, HardeningLaw::VOCE,
                                  HardeningLaw::JOHNSON_COOK};

/// The terms of a model whose number of terms is free, where nobody says it.
int UsualOrder(HyperelasticModel model) {
    switch (model) {
        case HyperelasticModel::OGDEN:
        case HyperelasticModel::REDUCED_POLYNOMIAL:
        case HyperelasticModel::YEOH:
            return 3;
        case HyperelasticModel::POLYNOMIAL:
            return 2;
        case HyperelasticModel::ARRUDA_BOYCE:
        case HyperelasticModel::MOONEY_RIVLIN:
        case HyperelasticModel::NEO_HOOKE:
        case HyperelasticModel::VAN_DER_WAALS:
            return 1;
    }
    return 1;
}

std::vector<std::string> KnownModels() {
    std::vector<std::string> names;
    for (const auto model : mechanics::AllHyperelasticModels()) names.emplace_back(Keyword(model));
    for (const auto law : kLaws) names.emplace_back(Keyword(law));
    return names;
}

/// Finds the coefficients of a potential, or of a hardening law, behind measured points.
class Fit final : public Calculation {
public:
    void Declare(Arguments& line) override {
        input_.Declare(line);
        store_.Declare(line);
        const Argument model =
            line.Add("--model", model_, "OGDEN, YEOH, ...; of metals ludwik, swift, voce or johnson-cook");
        line.Add("--order", order_, "Number of terms of OGDEN, POLYNOMIAL or REDUCED_POLYNOMIAL");
        line.AddFlag("--all-models", all_, "Fit every model and rank them").Excludes(model);
        const Argument relative =
            line.AddFlag("--relative", relative_,
                         "Make relative deviations small (default); points of zero stress do not count");
        line.AddFlag("--absolute", absolute_, "Make the deviations themselves small").Excludes(relative);
    }

protected:
    bool Compute(CommandContext& context, Result& result) override {
        Findings& findings = context.findings;
        if (!ReadModel(findings) || !ReadInput(context)) return false;
        result.Say("tests_of", "tests of", input_.Name());
        return law_ ? FitLaw(context, result) : all_ ? FitAll(context, result) : FitModel(context, result);
    }

private:
    DeviationMeasure Measure() const {
        return absolute_ ? DeviationMeasure::ABSOLUTE : DeviationMeasure::RELATIVE;
    }

    bool ReadModel(Findings& findings) {
        if (model_.empty() && !all_) {
            findings.Add(UsageFinding("--model", "missing-option", "a fit needs a model",
                                      {"--model " + WordList(KnownModels()), "or --all-models"}));
            return false;
        }
        potential_ = mechanics::HyperelasticModelOf(model_);
        law_ = mechanics::HardeningLawOf(model_);
        if (!all_ && !potential_ && !law_) {
            const std::string nearest = NearestName(model_, KnownModels());
            findings.Add(UsageFinding(
                "--model", "no-such-model", "there is no model " + QuotedText(model_),
                {nearest.empty() ? "known: " + WordList(KnownModels()) : "did you mean " + nearest + "?"}));
            return false;
        }
        const bool ordered = all_ || (potential_ && HasOrder(*potential_));
        if (order_ && !ordered && !(potential_ && *order_ == UsualOrder(*potential_))) {
            findings.Add(UsageFinding("--order", "not-for-this-model", model_ + " takes no order",
                                      {"OGDEN, POLYNOMIAL and REDUCED_POLYNOMIAL do"}));
            return false;
        }
        return true;
    }

    bool Refuse(Findings& findings, const std::string& why) const {
        findings.Add({FindingKind::ERROR, input_.Where(), "no-fit", why, {}});
        return false;
    }

    bool ReadInput(CommandContext& context) {
        if (!store_.IsWanted()) return input_.Read(context);
        if (all_) {
            context.findings.Add(UsageFinding("--store", "not-to-be-stored", "only one model can be stored",
                                              {"--model OGDEN, YEOH, ... or a law of metals"}));
            return false;
        }
        auto material = store_.Open(input_.Path(), input_.Wanted(), context);
        return material && input_.Read(context, std::move(material));
    }

    bool FitModel(CommandContext& context, Result& result) {
        Findings& findings = context.findings;
        const auto curves = input_.Curves(findings);
        if (curves.empty()) return false;
        const auto fit = mechanics::FitHyperelastic(*potential_, order_.value_or(UsualOrder(*potential_)),
                                                    curves, Measure());
        if (!fit.Ok()) return Refuse(findings, fit.Why());
        TellFit(*fit, input_.Where(), findings, result);
        return !store_.IsWanted() || store_.Store(*fit, context, result);
    }

    bool FitLaw(CommandContext& context, Result& result) {
        Findings& findings = context.findings;
        const auto curve = input_.Hardening(context);
        if (!curve) return false;
        const auto fit = mechanics::FitHardening(*law_, curve->points, Measure());
        if (!fit.Ok()) return Refuse(findings, fit.Why());
        result.Say("measure", "deviations", MeasureWord(Measure()));
        if (curve->temperature) result.Add("temperature", "temperature", "temperature", curve->temperature);
        TellFit(*fit, input_.Where(), findings, result);
        return !store_.IsWanted() || store_.Store(*fit, *curve, context, result);
    }

    bool FitAll(CommandContext& context, Result& result) const {
        Findings& findings = context.findings;
        result.Say("measure", "deviations", MeasureWord(Measure()));
        if (input_.IsHardening()) return FitAllLaws(context, result);
        const auto curves = input_.Curves(findings);
        if (curves.empty()) return false;
        const auto ranking = mechanics::FitAllModels(curves, Measure(), order_);
        if (ranking.fits.empty()) return Refuse(findings, ranking.failed.front().why);
        TellRanking(ranking, input_.Where(), findings, result);
        return true;
    }

    /// A, B and n of Johnson and Cook's law are those of Ludwik's.
    bool FitAllLaws(CommandContext& context, Result& result) const {
        Findings& findings = context.findings;
        const auto curve = input_.Hardening(context);
        if (!curve) return false;
        std::vector<mechanics::HardeningFit> fits;
        for (const auto law : {HardeningLaw::LUDWIK, HardeningLaw::SWIFT, HardeningLaw::VOCE}) {
            const auto fit = mechanics::FitHardening(law, curve->points, Measure());
            if (!fit.Ok()) return Refuse(findings, fit.Why());
            fits.push_back(*fit);
        }
        TellRanking(std::move(fits), Measure(), result);
        return true;
    }

    FitInput input_;
    FitStore store_;
    std::string model_;  // empty: not said
    std::optional<int> order_;
    bool all_ = false;
    bool relative_ = false, absolute_ = false;
    std::optional<HyperelasticModel> potential_;
    std::optional<HardeningLaw> law_;
};

}  // namespace

CommandKind FitCommand() {
    return {
        .name = "fit",
        .brief = "fit a rubber's potential or a metal's hardening law to measured points",
        .text =
            "Fit a potential to the tests of a card, a document or CSV files (Stretch [-],NominalStress\n"
            "[MPa]), several modes together, or a hardening law of metals to YieldStress, PlasticStrain:\n"
            "coefficients with standard deviations, deviations by mode, where the fit becomes unstable.\n"
            "Without --order OGDEN and REDUCED_POLYNOMIAL have 3 terms, POLYNOMIAL has order 2.\n"
            "--all-models ranks all of them. A CSV file may have columns Mode, Specimen and Weight.\n"
            "--store puts the potential or the law into the material of the document, in one step; with "
            "files\n"
            "of points behind the material, zelmat fit DOC MATERIAL CSV..., these are fitted.",
        .units = true,
        .csv = true,
        .make = &MakeCommand<Fit>};
}

}  // namespace zelmat
