#include "zelmat/commands/CardInput.h"

#include <CLI/CLI.hpp>
#include <algorithm>

#include "zelmat/commands/WrongForm.h"

namespace zelmat {

namespace {

/// A layup card reads as a material card of unknown blocks.
bool IsDoubtful(const Material& material) {
    return !material.kept.empty();
}

}  // namespace

void DeclareCardReading(CLI::App& line, CardReading& how) {
    line.add_flag("--decimal-comma", how.decimalComma,
                  "Numbers of a CSV card have a decimal comma (then ; or a tab sets columns apart)");
}

std::vector<Material> ReadGivenCards(const std::string& path, Findings& findings, const CardReading& how) {
    auto cards = ReadCards(path, findings, how);
    const bool doubtful = cards.empty() || std::any_of(cards.begin(), cards.end(), IsDoubtful);
    if (doubtful && NameRightCommand(path, FileForm::MATERIAL_CARD, findings)) return {};
    return cards;
}

std::optional<Material> ReadGivenCard(const std::string& path, Findings& findings, const CardReading& how) {
    auto card = ReadCard(path, findings, how);
    const bool doubtful = !card || IsDoubtful(*card);
    if (doubtful && NameRightCommand(path, FileForm::MATERIAL_CARD, findings)) return std::nullopt;
    return card;
}

}  // namespace zelmat
