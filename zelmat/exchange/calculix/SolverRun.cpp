#include "zelmat/exchange/calculix/SolverRun.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string_view>
#include <thread>
#include <vector>

#include "zelmat/files/ScratchFolder.h"
#include "zelmat/files/SignalHold.h"
#include "zelmat/text/Printable.h"
#include "zelmat/text/QuotedText.h"

namespace zelmat {

namespace {

namespace fs = std::filesystem;

constexpr const char* kJob = "job";
constexpr std::size_t kLogEnd = 20'000;
constexpr std::size_t kMostResults = std::size_t{64} << 20U;  // of models of some elements: far fewer

std::optional<Finding> Problem(const std::string& job, const std::string& text,
                               std::vector<std::string> details = {}) {
    return Finding{FindingKind::UNREADABLE, {job, 0}, "solver-failed", text, std::move(details)};
}

std::string FileIn(const ScratchFolder& folder, const std::string& name) {
    return folder.Path() + "/" + name;
}

std::string ReadEnd(const std::string& path, std::size_t most) {
    std::error_code none;
    if (!fs::is_regular_file(path, none)) return {};
    std::ifstream file(path, std::ios::binary | std::ios::ate);
    if (!file) return {};
    const auto size = static_cast<std::size_t>(file.tellg());
    const std::size_t length = std::min(size, most);
    std::string text(length, '\0');
    file.seekg(static_cast<std::streamoff>(size - length));
    file.read(text.data(), static_cast<std::streamsize>(length));
    text.resize(static_cast<std::size_t>(file.gcount()));
    return text;
}

/// The environment with one thread for the solver: one element needs no more.
std::vector<std::string> Environment() {
    std::vector<std::string> settings = {"OMP_NUM_THREADS=1", "CCX_NPROC_STIFFNESS=1"};
    for (char** one = environ; *one; ++one) {
        const std::string_view setting = *one;
        if (!setting.starts_with("OMP_NUM_THREADS=") && !setting.starts_with("CCX_NPROC")) {
            settings.emplace_back(setting);
        }
    }
    return settings;
}

std::vector<char*> Pointers(std::vector<std::string>& texts) {
    std::vector<char*> pointers;
    for (std::string& text : texts) pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

/// Lets the processes that are made meanwhile write no file beyond a size: a solver that runs wild ends
/// before the disk is full.
class FileSizeLimit {
public:
    FileSizeLimit() {
        ::getrlimit(RLIMIT_FSIZE, &before_);
        constexpr rlim_t kLargest = rlim_t{512} << 20U;
        rlimit limit = before_;
        limit.rlim_cur = std::min(limit.rlim_cur, kLargest);
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit() { ::setrlimit(RLIMIT_FSIZE, &before_); }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

private:
    rlimit before_{};
};

/// The process, as the leader of a group of its own; 0 and errno's value in `error` when it cannot be made.
pid_t Start(const SolverProgram& solver, const ScratchFolder& folder, int& error) {
    posix_spawn_file_actions_t actions;
    posix_spawnattr_t attributes;
    posix_spawn_file_actions_init(&actions);
    posix_spawnattr_init(&attributes);
    posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, FileIn(folder, "log").c_str(),
                                     O_WRONLY | O_CREAT | O_TRUNC, 0600);
    posix_spawn_file_actions_adddup2(&actions, STDOUT_FILENO, STDERR_FILENO);
    posix_spawn_file_actions_addchdir_np(&actions, folder.Path().c_str());
    sigset_t none;
    sigemptyset(&none);
    posix_spawnattr_setsigmask(&attributes, &none);
    posix_spawnattr_setpgroup(&attributes, 0);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETPGROUP | POSIX_SPAWN_SETSIGMASK);
    std::vector<std::string> arguments = {solver.path, kJob}, environment = Environment();
    pid_t process = 0;
    const FileSizeLimit limit;
    error = ::posix_spawn(&process, solver.path.c_str(), &actions, &attributes, Pointers(arguments).data(),
                          Pointers(environment).data());
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&actions);
    return error == 0 ? process : 0;
}

/// Waits for the process, which does not outlive this, nor does any that it has made: how it ended, or
/// nothing when its time was over.
std::optional<int> WaitFor(pid_t process, int timeoutSeconds) {
    using Clock = std::chrono::steady_clock;
    const auto end = Clock::now() + std::chrono::seconds(timeoutSeconds);
    const auto id = static_cast<id_t>(process);
    bool ended = false;
    for (;;) {
        siginfo_t state{};
        // It stays what it is until the others of its group are gone, so that its number is nobody else's.
        const int found = ::waitid(P_PID, id, &state, WEXITED | WNOHANG | WNOWAIT);
        ended = found == 0 && state.si_pid == process;
        if (ended || (found < 0 && errno != EINTR) || Clock::now() >= end || IsToldToEnd()) break;
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    ::kill(-process, SIGKILL);
    int status = 0;
    while (::waitpid(process, &status, 0) < 0 && errno == EINTR) {
    }
    return ended ? std::optional(status) : std::nullopt;
}

/// The solver's own words about its failure: the lines after *ERROR.
std::vector<std::string> ErrorLines(const std::string& log) {
    constexpr std::size_t kLongest = 300;
    const std::size_t at = log.rfind("*ERROR");
    if (at == std::string::npos) return {};
    std::string words;
    for (const char character : log.substr(at, kLongest)) {
        const bool blank = character == ' ' || character == '\n' || character == '\r';
        if (!blank) words += character;
        if (blank && !words.empty() && words.back() != ' ') words += ' ';
    }
    return {"it says: " + Printable(words)};
}

std::optional<Finding> Verdict(const SolverProgram& solver, const std::optional<int>& status,
                               const SolverResults& results, const std::string& job) {
    if (!status && IsToldToEnd()) return Problem(job, solver.name + " was stopped: this program is to end");
    if (!status) {
        return Problem(job,
                       solver.name + " did not end within " + std::to_string(solver.timeoutSeconds) + " s",
                       {"it was stopped", "--timeout gives it longer"});
    }
    if (WIFSIGNALED(*status)) {
        return Problem(job, solver.name + " crashed: " + ::strsignal(WTERMSIG(*status)),
                       ErrorLines(results.log));
    }
    if (WEXITSTATUS(*status) != 0 || results.printed.empty()) {
        return Problem(job,
                       solver.name + " failed with exit code " + std::to_string(WEXITSTATUS(*status)) +
                           (results.printed.empty() ? " and printed no results" : ""),
                       ErrorLines(results.log));
    }
    return std::nullopt;
}

}  // namespace

std::optional<SolverProgram> FindSolver(const std::string& name, int timeoutSeconds, Findings& findings) {
    std::vector<std::string> candidates;
    const char* path = std::getenv("PATH");
    if (name.find('/') != std::string::npos) {
        candidates.push_back(fs::absolute(name).string());
    } else {
        std::string_view folders = path ? path : "/usr/local/bin:/usr/bin:/bin";
        while (!folders.empty()) {
            const std::size_t end = std::min(folders.find(':'), folders.size());
            if (end > 0) candidates.push_back(std::string(folders.substr(0, end)) + "/" + name);
            folders.remove_prefix(std::min(end + 1, folders.size()));
        }
    }
    for (const std::string& candidate : candidates) {
        std::error_code none;
        if (fs::is_regular_file(candidate, none) && ::access(candidate.c_str(), X_OK) == 0) {
            return SolverProgram{name, fs::absolute(candidate).string(), timeoutSeconds};
        }
    }
    findings.Add({FindingKind::UNREADABLE,
                  {"--solver", 0},
                  "no-solver",
                  "there is no program " + QuotedText(name),
                  {"on Debian: apt-get install calculix-ccx", "--solver takes a path, too"}});
    return std::nullopt;
}

std::optional<SolverResults> RunSolver(const SolverProgram& solver, const std::string& deck,
                                       const std::string& job, Findings& findings) {
    const ScratchFolder folder(findings);
    if (!folder.Exists() || !folder.Write(std::string(kJob) + ".inp", deck, findings)) return std::nullopt;
    int error = 0;
    const pid_t process = Start(solver, folder, error);
    if (process == 0) {
        findings.Add(*Problem(job, solver.path + " cannot be run: " + std::strerror(error)));
        return std::nullopt;
    }
    const auto status = WaitFor(process, solver.timeoutSeconds);
    SolverResults results{folder.Read(std::string(kJob) + ".dat", kMostResults),
                          ReadEnd(FileIn(folder, "log"), kLogEnd)};
    if (const auto problem = Verdict(solver, status, results, job)) {
        findings.Add(*problem);
        return std::nullopt;
    }
    return results;
}

}  // namespace zelmat
