#include "zelmat/files/ChildProgram.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstring>
#include <string_view>
#include <system_error>
#include <thread>

#include "zelmat/files/SignalHold.h"

namespace zelmat {

namespace {

constexpr const char* kSaid = "said.txt";

/// What spawning takes.
std::vector<char*> Pointers(std::vector<std::string>& texts) {
    std::vector<char*> pointers;
    for (std::string& text : texts) pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

/// The user's environment as far as the program gets it, and its own settings.
std::vector<std::string> SettingsFor(const ChildProgram& program) {
    std::vector<std::string> settings;
    for (char** at = environ; at && *at; ++at) {
        const std::string_view setting(*at);
        const bool isWithheld =
            std::any_of(program.without.begin(), program.without.end(),
                        [&](const std::string& prefix) { return setting.starts_with(prefix); });
        const bool isReplaced = std::any_of(
            program.with.begin(), program.with.end(),
            [&](const std::string& own) { return setting.starts_with(own.substr(0, own.find('=') + 1)); });
        if (!isWithheld && !isReplaced) settings.emplace_back(setting);
    }
    settings.insert(settings.end(), program.with.begin(), program.with.end());
    return settings;
}

/// Its standard streams, its folder, and signals as in a fresh program.
class SpawnSettings {
public:
    explicit SpawnSettings(const std::string& folder) {
        posix_spawn_file_actions_init(&files_);
        posix_spawn_file_actions_addchdir_np(&files_, folder.c_str());
        posix_spawn_file_actions_addopen(&files_, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        constexpr int kMode = 0600;
        posix_spawn_file_actions_addopen(&files_, STDOUT_FILENO, kSaid, O_WRONLY | O_CREAT | O_TRUNC, kMode);
        posix_spawn_file_actions_adddup2(&files_, STDOUT_FILENO, STDERR_FILENO);
        posix_spawnattr_init(&attributes_);
        sigset_t none, all;
        sigemptyset(&none);
        sigfillset(&all);
        posix_spawnattr_setsigmask(&attributes_, &none);
        posix_spawnattr_setsigdefault(&attributes_, &all);
        posix_spawnattr_setflags(&attributes_, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
    }
    ~SpawnSettings() {
        posix_spawn_file_actions_destroy(&files_);
        posix_spawnattr_destroy(&attributes_);
    }
    SpawnSettings(const SpawnSettings&) = delete;
    SpawnSettings& operator=(const SpawnSettings&) = delete;

    int Spawn(const ChildProgram& program, pid_t& child) const {
        std::vector<std::string> words = {program.name};
        words.insert(words.end(), program.arguments.begin(), program.arguments.end());
        std::vector<std::string> settings = SettingsFor(program);
        return posix_spawnp(&child, program.name.c_str(), &files_, &attributes_, Pointers(words).data(),
                            Pointers(settings).data());
    }

private:
    posix_spawn_file_actions_t files_{};
    posix_spawnattr_t attributes_{};
};

/// Waits for the program; it is killed when it takes longer, or when this one is told to end.
int StatusAtTheEnd(pid_t child, const ChildProgram& program) {
    using Clock = std::chrono::steady_clock;
    constexpr auto kBetweenLooks = std::chrono::milliseconds(2);
    const auto start = Clock::now();
    auto told = std::chrono::seconds(0);
    int status = 0;
    while (::waitpid(child, &status, WNOHANG) == 0) {
        const auto waited = std::chrono::duration_cast<std::chrono::seconds>(Clock::now() - start);
        if (program.waited && waited > told) program.waited(static_cast<std::size_t>(waited.count()));
        told = waited;
        if (waited >= std::chrono::minutes(program.minutes) || IsToldToEnd()) {
            ::kill(child, SIGKILL);
            ::waitpid(child, &status, 0);
            break;
        }
        std::this_thread::sleep_for(kBetweenLooks);
    }
    return status;
}

/// The first lines of what it said.
std::string Said(const ScratchFolder& folder) {
    constexpr std::size_t kMost = 400;
    std::string said = folder.Read(kSaid, kMost);
    while (!said.empty() && (said.back() == '\n' || said.back() == ' ')) said.pop_back();
    return said;
}

void ReportMissing(const ChildProgram& program, int problem, Findings& findings) {
    findings.Add({FindingKind::UNREADABLE,
                  {program.name, 0},
                  "program-missing",
                  program.needed + " needs the program " + program.name + ", which cannot be run",
                  {std::generic_category().message(problem), "package " + program.package}});
}

std::string HowItEnded(int status) {
    if (WIFSIGNALED(status)) {
        return "was ended by signal " + std::to_string(WTERMSIG(status)) + " (" +
               strsignal(WTERMSIG(status)) + ")";
    }
    return "ended with " + std::to_string(WEXITSTATUS(status));
}

}  // namespace

bool RunChild(const ChildProgram& program, const ScratchFolder& folder, Findings& findings) {
    pid_t child = 0;
    const int problem = SpawnSettings(folder.Path()).Spawn(program, child);
    if (problem != 0) {
        ReportMissing(program, problem, findings);
        return false;
    }
    const int status = StatusAtTheEnd(child, program);
    if (WIFEXITED(status) && WEXITSTATUS(status) == 0) return true;
    std::vector<std::string> details;
    if (std::string said = Said(folder); !said.empty()) details.push_back(std::move(said));
    findings.Add({FindingKind::UNREADABLE,
                  {program.name, 0},
                  "program-failed",
                  "the program " + HowItEnded(status),
                  std::move(details)});
    return false;
}

}  // namespace zelmat
