#include "tests/zelmat/exchange/SampleDeck.h"

#include "tests/zelmat/support/CardFile.h"

const char* const kSomeElastic =
    R"("elastic": {"temperature_dependent": false, "columns": ["youngs_modulus", "poissons_ratio"],
        "rows": [[200e9, 0.3]]})";
const char* const kSomeDensity =
    R"("density": {"temperature_dependent": false, "columns": ["density"], "rows": [[8000]]})";

ExportedDeck Exported(const std::string& form, const std::vector<zelmat::Material>& materials,
                      const std::string& units, const zelmat::FitChoice& fit) {
    zelmat::Findings findings;
    const auto chosen = zelmat::DeckUnits::Read(units, findings);
    ExportedDeck deck;
    deck.files =
        zelmat::ExportDeck(*zelmat::FindDeckForm(form), {materials, {}, fit}, chosen.value(), findings);
    if (!deck.files.empty()) deck.text = deck.files.front().text;
    for (zelmat::Finding finding : findings.All()) {
        finding.place = {};
        deck.findings.push_back(zelmat::FindingLine(finding).substr(2));  // without ": "
    }
    deck.errors = findings.HasErrors();
    return deck;
}

std::string WithoutComments(const std::string& deck, const std::string& lead) {
    std::string text;
    for (std::size_t at = 0; at < deck.size();) {
        const std::size_t end = deck.find('\n', at);
        const std::string line = deck.substr(at, end - at);
        if (!line.starts_with(lead)) text += line + "\n";
        at = end == std::string::npos ? deck.size() : end + 1;
    }
    return text;
}

zelmat::Material StuffWith(const std::string& blocks) {
    return CardOf(R"({"name": "Stuff", )" + blocks + "}");
}
