#include "zelmat/exchange/calculix/Proof.h"

#include <algorithm>
#include <cmath>
#include <set>

#include "zelmat/exchange/ExportDeck.h"
#include "zelmat/exchange/calculix/CalculixCards.h"
#include "zelmat/exchange/calculix/ProofModel.h"
#include "zelmat/quantities/NumberText.h"
#include "zelmat/text/QuotedText.h"

namespace zelmat {

namespace {

constexpr std::string_view kMaterialCard = "*MATERIAL, NAME=";

/// The name on the first *MATERIAL card of this writer's decks.
std::string NameIn(const std::string& cards) {
    const std::size_t begin = cards.find(kMaterialCard) + kMaterialCard.size();
    return cards.substr(begin, cards.find('\n', begin) - begin);
}

/// What a solid needs to be solved at all where a material has no law of stress: of no consequence for what
/// is proven with it.
constexpr const char* kSomeStiffness = "*ELASTIC\n1., 0.\n";

class CalculixProof {
public:
    CalculixProof(const ProofRequest& request, const SolverProgram& solver, Findings& findings)
        : request_(request), solver_(solver), findings_(findings) {}

    std::optional<Proof> Make() {
        const DeckForm& form = *FindDeckForm("calculix");
        TellInconsistentUnits(request_.units, findings_);
        DeckNotes notes;
        std::set<std::string> taken;
        DeckMaterial deck =
            MakeDeckMaterial(form, request_.material, request_.fit, taken, 1, notes, findings_);
        if (findings_.HasErrors()) return std::nullopt;
        std::erase_if(deck.blocks, [&](const Block& block) { return IsUnproven(block); });
        const std::string cards = CardsOf(form, deck, notes);
        TellConversions(form, deck, notes);
        notes.Report({request_.material.file, 0}, request_.material.name, findings_);
        std::erase_if(deck.blocks, [&](const Block& block) { return notes.HasLost(BehaviorOf(block)); });
        const std::vector<Block>& blocks = deck.blocks;
        if (cards.empty()) {
            NothingToProve();
            return std::nullopt;
        }
        const bool stiff =
            cards.find("*ELASTIC") != std::string::npos || cards.find("*HYPERELASTIC") != std::string::npos;
        ProofSubject subject{blocks, request_.units, cards, stiff ? cards : cards + kSomeStiffness,
                             NameIn(cards)};
        DeckNotes told;  // by the writer before
        if (deck.ply) subject.ply = PlyNumbersOf(*deck.ply, request_.units, told);
        const std::vector<ProofModel> models = ModelsOf(subject);
        Keep(models);
        for (const ProofModel& model : models) {
            if (!Run(model)) return std::nullopt;
        }
        TellUnproven(blocks);
        if (proof_.lines.empty()) NothingToProve();
        return std::move(proof_);
    }

private:
    bool IsUnproven(const Block& block) {
        if (block.kind->name != "user_material") return false;
        proof_.notProven.push_back(BehaviorOf(block) + ": only its own routine knows what it answers");
        return true;
    }

    std::string CardsOf(const DeckForm& form, const DeckMaterial& deck, DeckNotes& notes) const {
        if (request_.deck) return *request_.deck;
        const auto files = form.write(deck, request_.units, notes);
        return files.empty() ? std::string() : files.front().text;
    }

    static std::vector<ProofModel> ModelsOf(const ProofSubject& subject) {
        std::vector<ProofModel> models = HyperelasticProofs(subject);
        for (auto* make : {&ElasticProof, &PlyProof, &HardeningProof, &ExpansionProof, &DensityProof,
                           &ConductionProof, &HeatingProof}) {
            auto model = make(subject);
            if (model && !model->expected.empty()) models.push_back(std::move(*model));
        }
        return models;
    }

    void Keep(const std::vector<ProofModel>& models) const {
        if (!request_.decks) return;
        for (std::size_t at = 0; at < models.size(); ++at) {
            std::set<std::string> none;
            const std::string name = DeckName(models[at].name, {80, "-", false, "model"}, none);
            request_.decks->push_back({std::to_string(at + 1) + "_" + name + ".inp", models[at].bars.Text()});
        }
    }

    bool Run(const ProofModel& model) {
        ++proof_.runs;
        const auto results = RunSolver(solver_, model.bars.Text(),
                                       request_.material.file + " (" + model.name + ")", findings_);
        if (!results) return false;
        const PrintedResults printed(results->printed);
        bool any = false;
        for (const ExpectedLine& expected : model.expected) {
            const PrintedNumber& number = expected.printed;
            const auto found =
                printed.Find(number.kind, number.set, number.time, number.entity, number.column);
            any = any || found;
            ProofLine line = expected.line;
            line.solver = found ? *found * number.factor : std::nan("");
            proof_.lines.push_back(std::move(line));
        }
        if (!any) NothingPrinted(model);
        return any;
    }

    /// It may be no solver, or one of another release.
    void NothingPrinted(const ProofModel& model) {
        findings_.Add({FindingKind::UNREADABLE,
                       {request_.material.file + " (" + model.name + ")", 0},
                       "solver-failed",
                       solver_.name + " printed none of the numbers that its deck asks for",
                       {}});
    }

    /// Beyond the temperature at which the solver can begin.
    bool IsTooHot(const Block& block) const {
        const auto table = ProofTable(&block);
        const auto range = table ? table->Range() : std::nullopt;
        return range &&
               request_.units.FromStored(range->highest, "temperature").value_or(0.0) > kCalculixHottestStart;
    }

    void TellUnproven(const std::vector<Block>& blocks) {
        for (const Block& block : blocks) {
            if (!IsTooHot(block)) continue;
            proof_.notProven.push_back(
                BehaviorOf(block) + " above " +
                WithUnit(kCalculixHottestStart, request_.units.For("temperature").Spelling()) +
                ": no run of CalculiX can begin there");
        }
        for (const Block& block : blocks) {
            const std::string behavior = BehaviorOf(block);
            const bool proven = std::any_of(proof_.lines.begin(), proof_.lines.end(),
                                            [&](const ProofLine& line) { return line.behavior == behavior; });
            if (!proven) proof_.notProven.push_back(behavior + ": no model of one element shows it");
        }
    }

    void NothingToProve() {
        findings_.Add({FindingKind::ERROR,
                       {request_.material.file, 0},
                       "nothing-to-prove",
                       QuotedText(request_.material.name) + " has nothing that a run of CalculiX shows",
                       {}});
    }

    const ProofRequest& request_;
    const SolverProgram& solver_;
    Findings& findings_;
    Proof proof_;
};

}  // namespace

double ProofLine::Difference() const {
    return scale == 0.0 ? solver - ours : (solver - ours) / std::fabs(scale);
}

bool ProofLine::Passes() const {
    return std::fabs(Difference()) <= tolerance;
}

std::optional<Proof> ProveWithCalculix(const ProofRequest& request, const SolverProgram& solver,
                                       Findings& findings) {
    return CalculixProof(request, solver, findings).Make();
}

}  // namespace zelmat
