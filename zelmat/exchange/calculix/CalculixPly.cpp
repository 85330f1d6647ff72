#include "zelmat/exchange/calculix/CalculixPly.h"

#include "zelmat/exchange/calculix/CalculixCards.h"
#include "zelmat/text/QuotedText.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

std::string CalculixRow(const std::string& keyword, const std::vector<double>& numbers) {
    DeckTable table;
    for (const double number : numbers) table.columns.push_back({number});
    return CalculixCard(keyword, table);
}

std::string CalculixPlyElastic(const std::string& name, const PlyNumbers& ply, DeckNotes& notes) {
    if (ply.isotropic) return CalculixRow("*ELASTIC", {ply.e1, ply.nu12});
    if (!ply.assumed.empty()) {
        notes.Changed("ply material " + QuotedText(name) +
                      ": assumed to be the same in 2 and 3, with nu23 = nu12: " + WordList(ply.assumed));
    }
    return CalculixRow("*ELASTIC, TYPE=ENGINEERING CONSTANTS",
                       {ply.e1, ply.e2, ply.e3, ply.nu12, ply.nu13, ply.nu23, ply.g12, ply.g13, ply.g23});
}

std::string CalculixPlyExpansion(const PlyNumbers& ply) {
    if (!ply.alpha1) return {};
    if (*ply.alpha1 == *ply.alpha2) return CalculixRow("*EXPANSION", {*ply.alpha1});
    return CalculixRow("*EXPANSION, TYPE=ORTHO", {*ply.alpha1, *ply.alpha2, *ply.alpha2});
}

}  // namespace zelmat
