#pragma once

#include <optional>
#include <string>
#include <vector>

#include "zelmat/cards/FitChoice.h"
#include "zelmat/exchange/DeckForm.h"
#include "zelmat/exchange/calculix/SolverRun.h"
#include "zelmat/findings/Findings.h"
#include "zelmat/materials/Material.h"

namespace zelmat {

/// One number that the formulas and the solver both give, in the units of the deck.
struct ProofLine {
    std::string behavior;  ///< "elastic"
    std::string load;      ///< "tension, strain 0.001, 20 degC"
    std::string quantity;  ///< "stress"
    std::string unit;
    double ours;
    double solver;
    double scale;      ///< what the difference is a part of: the size of `ours`, or of what causes it
    double tolerance;  ///< the greatest difference that passes

    double Difference() const;
    bool Passes() const;  ///< false also for what is no number
};

/// What a proof came to.
struct Proof {
    std::vector<ProofLine> lines;
    std::vector<std::string>
        notProven;  ///< behaviors of the deck that no model was made for, with the reason
    int runs = 0;   ///< of the solver
};

/// What goes into a proof.
struct ProofRequest {
    const Material& material;
    FitChoice fit;
    const DeckUnits& units;
    /// The cards to prove in place of what the writer makes of the material; it begins at *MATERIAL.
    std::optional<std::string> deck = std::nullopt;
    /// Gets the models, one a file, before they are run.
    std::vector<DeckFile>* decks = nullptr;
};

/// Runs models of one element of the material's deck and holds the results against the formulas: elastic and
/// hardening stresses, free expansion, mass and conduction, at the temperatures of the tables, between and
/// beyond them; specific heats by a bar that is heated; ply constants in the three directions and planes;
/// hyperelastic stresses in four modes. Tolerances: isotropic hardening 1e-4; kinematic hardening 1e-3, to
/// 1 % with NLGEOM; hyperelastic 1e-3; specific heat 1e-5; all others 1e-6. User materials are not proven.
/// Nothing, and findings, when the solver cannot be run.
std::optional<Proof> ProveWithCalculix(const ProofRequest& request, const SolverProgram& solver,
                                       Findings& findings);

}  // namespace zelmat
