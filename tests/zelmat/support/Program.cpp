#include "tests/zelmat/support/Program.h"

#include <gtest/gtest.h>
#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <filesystem>

#include "tests/zelmat/support/TestFolder.h"

namespace {

/// For the shell, which takes everything between single quotes as it stands.
std::string Quoted(const std::string& text) {
    return "'" + text + "'";
}

constexpr const char* kTestData = ZELMAT_TEST_DATA;

/// For the shell: the program with its arguments, in the folder of the test cards.
std::string CommandOf(const std::vector<std::string>& arguments,
                      const std::vector<std::string>& environment) {
    std::string command = "cd " + Quoted(kTestData) + " && env XDG_CONFIG_HOME=/dev/null/none";
    for (const std::string& setting : environment) command += " " + Quoted(setting);
    command += " " + Quoted(ZELMAT_PROGRAM);
    for (const std::string& argument : arguments) command += " " + Quoted(argument);
    return command;
}

}  // namespace

ProgramRun RunZelmat(const std::vector<std::string>& arguments, const std::vector<std::string>& environment) {
    return RunZelmatWith(arguments, "", environment);
}

ProgramRun RunZelmatWith(const std::vector<std::string>& arguments, const std::string& redirections,
                         const std::vector<std::string>& environment) {
    const std::string output = testing::TempDir() + "zelmat-run-" + std::to_string(getpid());
    const std::string command = "{ " + CommandOf(arguments, environment) + " " + redirections + "; } >" +
                                Quoted(output + ".out") + " 2>" + Quoted(output + ".err");

    const int status = std::system(command.c_str());

    ProgramRun run{WIFEXITED(status) ? WEXITSTATUS(status) : -1, Contents(output + ".out"),
                   Contents(output + ".err")};
    std::filesystem::remove(output + ".out");
    std::filesystem::remove(output + ".err");
    return run;
}

ProgramRun RunZelmatOnTerminal(const std::vector<std::string>& arguments,
                               const std::vector<std::string>& environment) {
    const std::string command = "unset NO_COLOR; export TERM=xterm; " + CommandOf(arguments, environment);

    int terminal = -1;
    const pid_t child = ::forkpty(&terminal, nullptr, nullptr, nullptr);
    if (child == 0) {
        ::execl("/bin/sh", "sh", "-c", command.c_str(), static_cast<char*>(nullptr));
        ::_exit(127);
    }
    ProgramRun run;
    std::array<char, 4096> buffer;
    for (ssize_t read = 0; (read = ::read(terminal, buffer.data(), buffer.size())) > 0;) {
        run.out.append(buffer.data(), static_cast<std::size_t>(read));
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    ::close(terminal);
    if (WIFEXITED(status)) run.exitCode = WEXITSTATUS(status);
    return run;
}

std::string Sample(const std::string& name) {
    return (std::filesystem::path(ZELMAT_SAMPLES) / name).string();
}
