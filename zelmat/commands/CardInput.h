#pragma once

#include <optional>
#include <string>
#include <vector>

#include "zelmat/cards/ReadCard.h"
#include "zelmat/findings/Findings.h"
#include "zelmat/materials/Material.h"

namespace CLI {
class App;
}

namespace zelmat {

/// Declares --decimal-comma, for every command that reads cards.
void DeclareCardReading(CLI::App& line, CardReading& how);

/// The materials of the card that a command was given. None, and findings, when it cannot be read; when the
/// file is another form of the house, the finding names the command that reads it.
std::vector<Material> ReadGivenCards(const std::string& path, Findings& findings,
                                     const CardReading& how = {});

/// The same where one material is wanted.
std::optional<Material> ReadGivenCard(const std::string& path, Findings& findings,
                                      const CardReading& how = {});

}  // namespace zelmat
