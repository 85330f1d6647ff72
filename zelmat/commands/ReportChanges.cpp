#include "zelmat/commands/ReportChanges.h"

#include <algorithm>

#include "zelmat/commands/GivenLayups.h"
#include "zelmat/commands/MaterialPairs.h"
#include "zelmat/pictures/LayupPictures.h"
#include "zelmat/quantities/ShownQuantity.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

namespace {

constexpr int kDigits = 6;

/// A document at one of its steps.
struct DocumentState {
    GivenContent content;
    std::vector<KORHistoryStep> steps;
    bool read = false;
};

DocumentState StateOf(const std::string& path, std::optional<std::uint32_t> step,
                      const CommandContext& context, Findings& findings) {
    DocumentState state;
    const auto document = DocumentToRead::Open(path, context.options.catalogs, findings, step);
    if (!document) return state;
    state.content = {document->Materials(findings), LayupCardsOf(*document, findings)};
    state.steps = document->Steps();
    state.read = true;
    return state;
}

/// The steps that were done after this one.
ReportChange StepsAfter(std::uint32_t step, const std::vector<KORHistoryStep>& steps) {
    ReportChange change{.title = "Steps", .lines = {}};
    for (const KORHistoryStep& each : steps) {
        if (!each.done || each.number <= step) continue;
        change.lines.push_back(std::to_string(each.number) + ", " + each.time + ", " + each.user + ": " +
                               each.name);
    }
    return change;
}

void AddMaterials(const GivenContent& before, const GivenContent& after, const UnitChoice& units,
                  std::vector<ReportChange>& changes) {
    for (const MaterialPair& pair : PairMaterials(before.materials, after.materials, units)) {
        if (pair.IsSame()) continue;
        ReportChange& change = changes.emplace_back();
        change.title = "Material " + pair.Name();
        if (!pair.before) change.lines.emplace_back("added");
        if (!pair.after) change.lines.emplace_back("removed");
        for (const Difference& difference : pair.differences) {
            change.lines.push_back(DifferenceText(difference));
        }
    }
}

/// "[0/90]s, 4 layers, 0.5 mm, of T300/5208"
std::string StackText(const LayupCard& card, const UnitChoice& units) {
    const StoredLayup stack = LayupOf(card);
    std::vector<std::string> words = {stack.Notation(), stack.LayerCount(),
                                      ShownQuantity("length", units).Text(stack.Thickness(), kDigits)};
    std::erase(words, "");
    const std::string plies = WordList(card.materials, [](const PlyMaterial& ply) { return ply.name; });
    return WordList(words) + (plies.empty() ? "" : ", of " + plies);
}

const LayupCard* Named(const std::vector<LayupCard>& cards, const std::string& name) {
    const auto found =
        std::find_if(cards.begin(), cards.end(), [&](const LayupCard& card) { return card.name == name; });
    return found == cards.end() ? nullptr : &*found;
}

void AddLayups(const GivenContent& before, const GivenContent& after, const UnitChoice& units,
               std::vector<ReportChange>& changes) {
    for (const LayupCard& card : before.layups) {
        const LayupCard* const now = Named(after.layups, card.name);
        if (!now) {
            changes.push_back({"Layup " + card.name, {"removed"}});
        } else if (LayupOf(card).layers != LayupOf(*now).layers) {
            changes.push_back({"Layup " + card.name,
                               {"layers: " + StackText(card, units) + " -> " + StackText(*now, units)}});
        }
    }
    for (const LayupCard& card : after.layups) {
        if (Named(before.layups, card.name)) continue;
        changes.push_back({"Layup " + card.name, {"added: " + StackText(card, units)}});
    }
}

}  // namespace

void AddChangesSince(std::uint32_t step, const std::string& path, const CommandContext& context,
                     const UnitChoice& units, ReportContent& content) {
    const DocumentState before = StateOf(path, step, context, context.findings);
    if (!before.read) return;
    Findings known;  // told when the document was read for its sheets
    const DocumentState now = StateOf(path, std::nullopt, context, known);
    content.since = step == 0 ? "of all steps that are kept" : "since step " + std::to_string(step);
    ReportChange steps = StepsAfter(step, now.steps);
    if (!steps.lines.empty()) content.changes.push_back(std::move(steps));
    AddMaterials(before.content, now.content, units, content.changes);
    AddLayups(before.content, now.content, units, content.changes);
}

}  // namespace zelmat
