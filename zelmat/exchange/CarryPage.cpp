#include "zelmat/exchange/CarryPage.h"

#include "zelmat/exchange/DeckForm.h"
#include "zelmat/exchange/ExchangeGuide.h"

namespace zelmat {

namespace {

std::string Overview() {
    std::string page = "\n## Behavior by solver\n\n| Behavior |", rule = "|---|";
    for (const DeckForm& form : DeckForms()) {
        page += " " + form.title + " |";
        rule += "---|";
    }
    page += "\n" + rule + "\n";
    for (const std::string& behavior : BehaviorNames()) {
        page += "| " + behavior + " |";
        for (const DeckForm& form : DeckForms()) {
            page += " " + std::string(Keyword(FindRule(form.rules, behavior)->carry)) + " |";
        }
        page += "\n";
    }
    return page;
}

std::string Details(const DeckForm& form) {
    std::string page =
        "\n## " + form.title + "\n\n`zelmat export CARD --to " + form.name +
        (form.folder ? " --output FOLDER`" : " --output FILE`") +
        ". Outside a table over temperature it takes " + std::string(form.outside) +
        ".\n\n| Behavior | | Written as | What changes, or why it is lost |\n|---|---|---|---|\n";
    for (const CarryRule& rule : form.rules) {
        page += "| " + rule.behavior + " | " + std::string(Keyword(rule.carry)) + " | " +
                (rule.as.empty() ? "" : "`" + rule.as + "`") + " | " + rule.remark + " |\n";
    }
    return page;
}

}  // namespace

std::string CarryPage() {
    std::string page = kExchangeGuide + Overview();
    for (const DeckForm& form : DeckForms()) page += Details(form);
    return page;
}

}  // namespace zelmat
