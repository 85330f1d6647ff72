#pragma once

#include <string>
#include <vector>

#include "zelmat/exchange/DeckUnits.h"
#include "zelmat/exchange/calculix/DeckCards.h"
#include "zelmat/findings/Findings.h"
#include "zelmat/materials/Material.h"

namespace zelmat {

using NumberRows = std::vector<DeckNumbers>;

/// Rows that take more than a line, of which every one but the last is full: `width` numbers at most, with
/// the temperature.
NumberRows JoinedRows(const NumberRows& lines, std::size_t width);

/// Makes the block's only table of a card's rows: `width` numbers each and then, perhaps, a temperature. The
/// column of the temperature gets room temperature where the block wants one and the card has none. Numbers
/// that are missing are 0, as in the solver, and told; compressibilities may be left out. False, and a
/// finding with the line, where the rows make no table.
[[nodiscard]] bool FillTable(Block& block, const std::string& path, const DeckKeyword& card,
                             const NumberRows& rows, std::size_t width, const DeckUnits& units,
                             Findings& findings);

}  // namespace zelmat
