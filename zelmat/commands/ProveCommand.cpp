#include <algorithm>

#include "zelmat/commands/frame/Arguments.h"
#include "zelmat/commands/frame/Command.h"
#include "zelmat/commands/frame/WrittenReport.h"
#include "zelmat/commands/inputs/GivenMaterials.h"
#include "zelmat/exchange/calculix/CalculixCardsOf.h"
#include "zelmat/exchange/calculix/Proof.h"
#include "zelmat/quantities/NumberText.h"
#include "zelmat/text/CountText.h"
#include "zelmat/text/Printable.h"
#include "zelmat/text/TablePrinter.h"

namespace zelmat {

namespace {

std::string Shown(double number, int digits) {
    return NumberText(RoundedTo(number, digits));
}

/// Runs a solver on a material's deck and holds the results against the formulas.
class Prove final : public Command {
public:
    void Declare(Arguments& line) override {
        given_.Declare(line);
        line.Add("--solver", solver_, "The solver's program: ccx, or a path of it").Required();
        line.Add("--model", fit_.model, "Hyperelastic model to prove");
        line.Add("--variant", fit_.variant, "Part of the variant of the hyperelastic fit to prove");
        line.Add("--timeout", timeout_, "Seconds that one run of the solver may take").Within(1, 86'400);
        line.Add("--deck", deck_, "Prove the material cards of this CalculiX deck, not those of export");
        line.Add("--keep-deck", keep_, "Folder in which the models that are run are kept");
    }

    void Work(CommandContext& context) override {
        Findings& findings = context.findings;
        const auto units = DeckUnits::Read(context.options.units, findings);
        const auto material = given_.ReadOne(context);
        if (!units || !material) return;
        name_ = material->name;
        const auto solver = FindSolver(solver_, timeout_, findings);
        if (!solver) return;
        ProofRequest request{*material, fit_, *units};
        if (!deck_.empty()) {
            request.deck = CalculixCardsOf(deck_, findings);
            if (!request.deck) return;
        }
        std::vector<DeckFile> models;
        request.decks = &models;
        proof_ = ProveWithCalculix(request, *solver, findings);
        if (proof_) TellFailures(material->file, findings);
        if (keep_.empty() || models.empty()) return;
        if (auto kept = WriteOutputFolder(keep_, models, findings)) kept_ = std::move(*kept);
    }

    void Print(std::ostream& out) const override {
        if (!proof_) return;
        TablePrinter table(
            {"behavior", "load", "quantity", "unit", "ours", "solver", "difference", "bound", ""});
        for (const std::size_t column : {0U, 1U, 2U, 3U, 8U}) table.SetLeft(column);
        for (const ProofLine& line : proof_->lines) {
            table.AddRow({line.behavior, line.load, line.quantity, line.unit, Shown(line.ours, 7),
                          Shown(line.solver, 7), Shown(line.Difference(), 2), NumberText(line.tolerance),
                          line.Passes() ? "" : "FAILS"});
        }
        out << Printable(name_) << '\n';
        table.Print(out);
        for (const std::string& text : proof_->notProven) out << "not proven: " << Printable(text) << '\n';
        out << CountText(proof_->lines.size(), "number") << " compared in "
            << CountText(static_cast<std::size_t>(proof_->runs), "run") << ", " << Failures()
            << " beyond the bound\n";
        for (const WrittenFile& file : kept_) PrintWrittenLine(out, "kept", file);
    }

    nlohmann::ordered_json Json() const override {
        nlohmann::ordered_json json = {{"material", name_}, {"lines", nlohmann::ordered_json::array()}};
        if (!proof_) return json;
        for (const ProofLine& line : proof_->lines) {
            json["lines"].push_back({{"behavior", line.behavior},
                                     {"load", line.load},
                                     {"quantity", line.quantity},
                                     {"unit", line.unit},
                                     {"ours", line.ours},
                                     {"solver", line.solver},
                                     {"difference", line.Difference()},
                                     {"bound", line.tolerance},
                                     {"passes", line.Passes()}});
        }
        json["not_proven"] = proof_->notProven;
        json["runs"] = proof_->runs;
        json["kept"] = nlohmann::ordered_json::array();
        for (const WrittenFile& file : kept_) json["kept"].push_back(file.path);
        return json;
    }

private:
    std::size_t Failures() const {
        return static_cast<std::size_t>(std::count_if(proof_->lines.begin(), proof_->lines.end(),
                                                      [](const ProofLine& line) { return !line.Passes(); }));
    }

    void TellFailures(const std::string& file, Findings& findings) const {
        for (const ProofLine& line : proof_->lines) {
            if (line.Passes()) continue;
            findings.Add(
                {FindingKind::ERROR,
                 {file, 0},
                 "not-as-computed",
                 line.behavior + ", " + line.load + ": the solver's " + line.quantity + " is " +
                     WithUnit(RoundedTo(line.solver, 7), line.unit),
                 {"computed: " + WithUnit(RoundedTo(line.ours, 7), line.unit),
                  "difference " + Shown(line.Difference(), 2), "bound " + NumberText(line.tolerance)}});
        }
    }

    GivenMaterials given_;
    std::string solver_;
    FitChoice fit_;
    int timeout_ = 60;
    std::string deck_;  // empty: that of export
    std::string keep_;  // empty: the models go with the run
    std::vector<WrittenFile> kept_;
    std::string name_;
    std::optional<Proof> proof_;
};

}  // namespace

CommandKind ProveCommand() {
    return {
        .name = "prove",
        .brief = "run a solver on a material's deck and compare with the formulas",
        .text =
            "Write the material's deck, run CalculiX on models of one element in a temporary folder, and\n"
            "hold stresses, expansion, mass, conduction and heating against the formulas. Ends with 1 when\n"
            "a difference is beyond its bound. --keep-deck keeps the models; --deck proves a deck that\n"
            "somebody has changed or written against the card.",
        .units = true,
        .make = &MakeCommand<Prove>};
}

}  // namespace zelmat
