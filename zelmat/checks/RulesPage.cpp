#include "zelmat/checks/RulesPage.h"

#include "zelmat/checks/CheckRules.h"
#include "zelmat/checks/PlausibleBands.h"
#include "zelmat/quantities/NumberText.h"
#include "zelmat/quantities/Quantity.h"

namespace zelmat {

namespace {

constexpr const char* kHead =
    "# Checks\n"
    "\n"
    "`zelmat check CARD|DOC...` holds material cards, layup cards and what documents hold against the rules\n"
    "below. `zelmat show`, `zelmat summary` and `zelmat convert` do the same before they write anything;\n"
    "errors stop the write unless `--keep-going` is given. Errors are what cannot be, warnings what is\n"
    "hardly meant. With errors the exit code is 1, with warnings alone 0, or 1 under `--strict`.\n"
    "\n"
    "This page is what `zelmat check --rules` prints, made from the tables that the program checks by.\n";

/// In a cell of a table a bar would end it.
std::string Cell(const std::string& text) {
    std::string cell;
    for (const char character : text) {
        if (character == '|') cell += '\\';
        cell += character;
    }
    return cell;
}

std::string Row(const CheckRule& rule) {
    return "| `" + rule.code + "` | " + KindWord(rule.kind) + " | " + Cell(rule.says) + " | " +
           Cell(rule.bound) + " | " + Cell(rule.source) + " |\n";
}

std::string UnitOf(const PlausibleBand& band) {
    return FindQuantity(FindPlausibleProperty(band.property).quantity)->stored.Spelling();
}

std::string Bands() {
    std::string page =
        "\n## Bands\n"
        "\n"
        "For values near room temperature: the rows of a table from 250 K to 350 K, else the one nearest to\n"
        "293.15 K. A card says its class by `class`; without one, or where the class has no band, that of "
        "any\n"
        "material counts. Each band is rounded outwards from the ranges of its source, which are quoted "
        "from\n"
        "memory of the publication and were not compared with a copy.\n"
        "\n"
        "| Property | Class | From | To | Unit | Source |\n"
        "|---|---|---|---|---|---|\n";
    for (const PlausibleBand& band : PlausibleBands()) {
        page += std::string("| ") + FindPlausibleProperty(band.property).title + " | " + band.materialClass +
                " | " + NumberText(band.low) + " | " + NumberText(band.high) + " | " + UnitOf(band) + " | " +
                Cell(band.source) + " |\n";
    }
    return page;
}

}  // namespace

std::string RulesPage() {
    std::string page = kHead;
    for (const CheckTopic& topic : CheckRules()) {
        page += "\n## " + topic.title + "\n\n| Code | Kind | Rule | Bound | Where it comes from |\n" +
                "|---|---|---|---|---|\n";
        for (const CheckRule& rule : topic.rules) page += Row(rule);
    }
    return page + Bands();
}

}  // namespace zelmat
