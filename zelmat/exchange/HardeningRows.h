#pragma once

#include <optional>
#include <vector>

#include "zelmat/exchange/DeckForm.h"
#include "zelmat/mechanics/plastic/JohnsonCook.h"

namespace zelmat {

/// Hardening curves with the numbers of a deck: rows sorted by temperature, then by plastic strain.
struct HardeningRows {
    std::vector<double> stress;
    std::vector<double> plasticStrain;
    std::vector<double> temperatures;  ///< one a row, or empty: for every temperature
};

/// Johnson and Cook's law as curves for programs that have no such law, or none that is the same: to plastic
/// strain 1, from the transition to just below the melting temperature; stresses of 7 digits. In stored
/// units. Refused as mechanics::Tabulated refuses.
mechanics::Outcome<mechanics::HardeningTable> JohnsonCookCurves(const mechanics::JohnsonCook& law);

/// The greatest deviation of those curves from the law, as a part of its stress, half-way between their
/// strains and between their temperatures.
double TabulationError(const mechanics::JohnsonCook& law, const mechanics::HardeningTable& curves);

/// The curves of a plastic block in the stored meaning; a law is tabulated, which is a note. Nothing, and a
/// note, where there are none.
std::optional<HardeningRows> HardeningRowsOf(const Block& plastic, const DeckUnits& units, DeckNotes& notes);

/// The same curves, every one at the plastic strains of all of them, for solvers that interpolate between
/// temperatures by the row: CalculiX reads a curve at the strains of the one below it, and cuts what lies
/// beyond. Unchanged, with false, where that would take more than 100,000 rows.
bool ToCommonStrains(HardeningRows& rows);

}  // namespace zelmat
