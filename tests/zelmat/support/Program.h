#pragma once

#include <string>
#include <vector>

/// What one run of the program left behind.
struct ProgramRun {
    int exitCode = -1;  ///< -1 when it did not end by itself
    std::string out;
    std::string err;
};

/// Runs the built program from the folder of the test cards, so that its messages name files by bare name,
/// and without a user's configuration. `environment`: settings such as "NO_COLOR=1".
ProgramRun RunZelmat(const std::vector<std::string>& arguments,
                     const std::vector<std::string>& environment = {});

/// The same with standard output and standard error both on one terminal: everything is in `out`, with line
/// ends as the terminal makes them.
ProgramRun RunZelmatOnTerminal(const std::vector<std::string>& arguments,
                               const std::vector<std::string>& environment = {});

/// The same with the shell's own words behind the command: ">&-", "| head -c 1".
ProgramRun RunZelmatWith(const std::vector<std::string>& arguments, const std::string& redirections,
                         const std::vector<std::string>& environment = {});

/// Path of a card in samples/.
std::string Sample(const std::string& name);
