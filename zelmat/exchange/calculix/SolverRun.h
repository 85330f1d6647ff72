#pragma once

#include <optional>
#include <string>

#include "zelmat/findings/Findings.h"

namespace zelmat {

/// A program that is run without a shell.
struct SolverProgram {
    std::string name;       ///< "ccx", or a path
    std::string path = {};  ///< where it was found
    int timeoutSeconds = 60;
};

/// The program by its name along PATH, or by its path. Nothing, and a finding that says how to install it,
/// when it is not there.
std::optional<SolverProgram> FindSolver(const std::string& name, int timeoutSeconds, Findings& findings);

/// What one run left behind.
struct SolverResults {
    std::string printed;  ///< the file of printed results (.dat)
    std::string log;      ///< what the program said; its end where that is long
};

/// Runs the solver on a deck in a temporary folder of its own, in one thread and with no input, and removes
/// the folder, whatever happens; a signal that ends this program ends the solver first. Nothing, and a
/// finding about `job`, when it cannot be run, fails, crashes, takes too long, or prints no results.
std::optional<SolverResults> RunSolver(const SolverProgram& solver, const std::string& deck,
                                       const std::string& job, Findings& findings);

}  // namespace zelmat
