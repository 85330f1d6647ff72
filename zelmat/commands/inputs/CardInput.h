#pragma once

#include "zelmat/cards/ReadCard.h"

namespace zelmat {

class Arguments;

/// Declares --decimal-comma, for every command that reads cards.
void DeclareCardReading(Arguments& line, CardReading& how);

}  // namespace zelmat
