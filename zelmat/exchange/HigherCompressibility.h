#pragma once

#include "zelmat/exchange/DeckNotes.h"
#include "zelmat/properties/HyperelasticProperty.h"

namespace zelmat {

/// A note where a material has D2, D3, ..., for solvers whose energy of a change of volume has one term.
void TellHigherD(const HyperelasticProperty& property, DeckNotes& notes);

}  // namespace zelmat
