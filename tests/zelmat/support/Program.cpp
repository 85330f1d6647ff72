#include "tests/zelmat/support/Program.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace {

std::string Contents(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// For the shell, which takes everything between single quotes as it stands.
std::string Quoted(const std::string& text) {
    return "'" + text + "'";
}

}  // namespace

ProgramRun RunZelmat(const std::vector<std::string>& arguments) {
    const std::string output = testing::TempDir() + "zelmat-run-" + std::to_string(getpid());
    std::string command = "cd " + Quoted(ZELMAT_TEST_DATA) + " && " + Quoted(ZELMAT_PROGRAM);
    for (const std::string& argument : arguments) command += " " + Quoted(argument);
    command += " >" + Quoted(output + ".out") + " 2>" + Quoted(output + ".err");

    const int status = std::system(command.c_str());

    ProgramRun run{WIFEXITED(status) ? WEXITSTATUS(status) : -1, Contents(output + ".out"),
                   Contents(output + ".err")};
    std::filesystem::remove(output + ".out");
    std::filesystem::remove(output + ".err");
    return run;
}

std::string Sample(const std::string& name) {
    return (std::filesystem::path(ZELMAT_SAMPLES) / name).string();
}
