#include "zelmat/commands/CardInput.h"

#include "zelmat/cards/ReadCard.h"
#include "zelmat/commands/WrongForm.h"

namespace zelmat {

std::optional<Material> ReadGivenCard(const std::string& path, Findings& findings) {
    auto card = ReadCard(path, findings);
    // A layup card reads as a material card of unknown blocks.
    const bool doubtful = !card || !card->kept.empty();
    if (doubtful && NameRightCommand(path, FileForm::MATERIAL_CARD, findings)) return std::nullopt;
    return card;
}

}  // namespace zelmat
