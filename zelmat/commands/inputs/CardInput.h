#pragma once

#include "zelmat/cards/ReadCard.h"

namespace CLI {
class App;
}

namespace zelmat {

/// Declares --decimal-comma, for every command that reads cards.
void DeclareCardReading(CLI::App& line, CardReading& how);

}  // namespace zelmat
