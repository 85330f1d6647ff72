#pragma once

#include <optional>
#include <string>
#include <vector>

#include "zelmat/findings/Findings.h"
#include "zelmat/materials/Material.h"
#include "zelmat/quantities/UnitChoice.h"

namespace zelmat {

/// The units of a deck, which itself carries none.
class DeckUnits {
public:
    /// `units`: what --units says; empty: SI. Nothing, and a finding, when it cannot be understood.
    static std::optional<DeckUnits> Read(const std::string& units, Findings& findings);

    static DeckUnits Si() { return DeckUnits(UnitChoice::Si()); }

    const Unit& For(const Quantity& quantity) const { return units_.For(quantity); }

    /// The unit of a quantity by its name: "stress".
    const Unit& For(const char* quantity) const;

    /// A stored number in the deck's unit; nothing when a double does not hold it.
    std::optional<double> FromStored(double stored, const char* quantity) const;

    /// The deck's number as it is stored.
    std::optional<double> ToStored(double number, const char* quantity) const;

    /// A column's numbers in the deck's unit, in one step from what was written; those without a unit of
    /// their own stay. Nothing when a double does not hold one.
    std::optional<std::vector<double>> Values(const Column& column) const;

    /// "stress in Pa, density in kg/m3, ...", of what decks of materials hold.
    std::string Text() const;

    /// The temperature in these units at which heat ends: 0 for K, -273.15 for degC.
    double AbsoluteZero() const;

    /// Quantities whose units do not go with those of stress and length, so that a solver, which knows none,
    /// computes nonsense: density in lb/in^3 beside psi and in. Empty for a consistent system.
    std::vector<std::string> Inconsistent() const;

private:
    explicit DeckUnits(UnitChoice units) : units_(std::move(units)) {}

    UnitChoice units_;
};

/// A block's table with the numbers of a deck.
struct DeckTable {
    std::vector<std::vector<double>> columns;  ///< each as long as the others
    std::vector<double> temperatures;          ///< as long as the columns, or empty: for every temperature

    std::size_t Rows() const { return columns.empty() ? 0 : columns.front().size(); }
    std::vector<double> Row(std::size_t row) const;  ///< the temperature last, if there is one
};

/// Nothing, and why in `why`, when there is no table, a number is not finite, or a unit cannot hold it.
std::optional<DeckTable> DeckTableOf(const Block& block, const DeckUnits& units, std::string& why);

}  // namespace zelmat
