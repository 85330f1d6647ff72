#pragma once

#include <string>

#include "zelmat/exchange/DeckNotes.h"
#include "zelmat/exchange/PlyNumbers.h"

namespace zelmat {

/// *ELASTIC of a ply, TYPE=ENGINEERING CONSTANTS (E1, E2, E3, nu12, nu13, nu23, G12, G13, G23) unless it is
/// isotropic. What is assumed across the ply is a note about `name`.
std::string CalculixPlyElastic(const std::string& name, const PlyNumbers& ply, DeckNotes& notes);

/// *EXPANSION of a ply, the same in 2 and 3; empty where it has none.
std::string CalculixPlyExpansion(const PlyNumbers& ply);

/// A table of one row, for every temperature.
std::string CalculixRow(const std::string& keyword, const std::vector<double>& numbers);

}  // namespace zelmat
