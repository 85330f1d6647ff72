#pragma once

#include <optional>
#include <string>
#include <vector>

#include "zelmat/exchange/PlyNumbers.h"
#include "zelmat/exchange/calculix/BarModel.h"
#include "zelmat/exchange/calculix/PrintedResults.h"
#include "zelmat/exchange/calculix/Proof.h"
#include "zelmat/mechanics/tables/TemperatureTable.h"

namespace zelmat {

/// A number to look up in the solver's results.
struct PrintedNumber {
    std::string kind;  ///< of the printed table: "stresses"
    std::string set;
    int entity;
    std::size_t column;
    double time = 1.0;
    double factor = 1.0;  ///< the result times this is what is compared
};

/// A line of a proof that waits for the solver.
struct ExpectedLine {
    ProofLine line;
    PrintedNumber printed;
};

/// One run of the solver: a model and what it should give.
struct ProofModel {
    std::string name;  ///< "elastic"
    BarModel bars;
    std::vector<ExpectedLine> expected;

    /// Stress component of a bar: 0 to 5 are xx, yy, zz, xy, xz, yz.
    PrintedNumber Stress(int bar, std::size_t component, double time = 1.0) const;
    /// Displacement of the far corner along 0 x, 1 y, 2 z.
    PrintedNumber FarDisplacement(int bar, std::size_t direction, double time = 1.0) const;
};

/// What the makers of models know about the material.
struct ProofSubject {
    const std::vector<Block>& blocks;  ///< that the deck carries, in the stored meaning
    const DeckUnits& units;
    std::string cards;    ///< of the material, from *MATERIAL on, with a stiffness
    std::string thermal;  ///< the same for runs that need no more than some stiffness
    std::string name;     ///< of the material in the cards
    std::optional<PlyNumbers> ply = std::nullopt;  ///< that the deck carries

    const Block* Find(const std::string& block) const;
    double Temperature(double kelvin) const;  ///< in the deck's unit
    std::string TemperatureText(double kelvin) const;

    /// Whether a bar of the solver's can have it from the beginning.
    bool CanStartAt(double kelvin) const;

    /// Where a table is looked at, in K: at rows, between and beyond them; at 20 degC where it does not
    /// depend on temperature. Not where no bar can start.
    std::vector<double> Temperatures(const mechanics::TemperatureTable& table) const;

    ProofModel Model(const std::string& name, bool mechanical = true) const;
};

/// A table of the subject with the numbers of the stored units; nothing where it has none that can be read.
std::optional<mechanics::TemperatureTable> ProofTable(const Block* block);

/// Its first column's number, that of the nearest row outside; not a number where there is none.
double ProofValue(const mechanics::TemperatureTable& table, double kelvin);

std::optional<ProofModel> ElasticProof(const ProofSubject& subject);
std::optional<ProofModel> HardeningProof(const ProofSubject& subject);
std::optional<ProofModel> ExpansionProof(const ProofSubject& subject);
std::optional<ProofModel> DensityProof(const ProofSubject& subject);
std::optional<ProofModel> ConductionProof(const ProofSubject& subject);
std::optional<ProofModel> HeatingProof(const ProofSubject& subject);
std::optional<ProofModel> PlyProof(const ProofSubject& subject);
std::vector<ProofModel> HyperelasticProofs(const ProofSubject& subject);

}  // namespace zelmat
