#include "zelmat/commands/ReportChanges.h"

#include "zelmat/commands/ComparedPairs.h"
#include "zelmat/pictures/LayupPictures.h"
#include "zelmat/quantities/ShownQuantity.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

namespace {

constexpr int kDigits = 6;

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

/// "[0/90]s, 4 layers, 0.5 mm, of T300/5208"
std::string StackText(const LayupCard& card, const UnitChoice& units) {
    const StoredLayup stack = LayupOf(card);
    std::vector<std::string> words = {stack.Notation(), stack.LayerCount(),
                                      ShownQuantity("length", units).Text(stack.Thickness(), kDigits)};
    std::erase(words, "");
    const std::string plies = WordList(card.materials, [](const PlyMaterial& ply) { return ply.name; });
    return WordList(words) + (plies.empty() ? "" : ", of " + plies);
}

std::string WordsOf(const Material&, const UnitChoice&) {
    return "";
}

std::string WordsOf(const LayupCard& card, const UnitChoice& units) {
    return ": " + StackText(card, units);
}

template <class Each>
void AddPairs(const std::string& noun, const std::vector<ComparedPair<Each>>& pairs, const UnitChoice& units,
              std::vector<ReportChange>& changes) {
    for (const ComparedPair<Each>& pair : pairs) {
        if (pair.IsSame()) continue;
        ReportChange& change = changes.emplace_back();
        change.title = noun + " " + pair.Name();
        if (!pair.before) change.lines.push_back("added" + WordsOf(*pair.after, units));
        if (!pair.after) change.lines.emplace_back("removed");
        for (const Difference& difference : pair.differences) {
            change.lines.push_back(DifferenceText(difference));
        }
    }
}

}  // namespace

bool AddChangesSince(std::uint32_t step, DocumentToRead& document, const std::vector<Material>& now,
                     const UnitChoice& units, ReportContent& content, Findings& findings) {
    const std::vector<LayupCard> layupsNow = ComparedLayupsOf(document, findings);
    ReportChange steps = StepsAfter(step, document.Steps());
    if (!document.GoTo(step, findings)) return false;
    content.since = step == 0 ? "of all steps that are kept" : "since step " + std::to_string(step);
    if (!steps.lines.empty()) content.changes.push_back(std::move(steps));
    const std::vector<Material> then = document.Materials(findings);
    AddPairs("Material", Compared(then, now, units), units, content.changes);
    const std::vector<LayupCard> layupsThen = ComparedLayupsOf(document, findings);
    AddPairs("Layup", Compared(layupsThen, layupsNow, units), units, content.changes);
    return true;
}

}  // namespace zelmat
