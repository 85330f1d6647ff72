#pragma once

#include <string>
#include <vector>

/// What one run of the program left behind.
struct ProgramRun {
    int exitCode = -1;  ///< -1 when it did not end by itself
    std::string out;
    std::string err;
};

/// Runs the built program from the folder of the test cards, so that its messages name files by bare name.
ProgramRun RunZelmat(const std::vector<std::string>& arguments);

/// Path of a card in samples/.
std::string Sample(const std::string& name);
