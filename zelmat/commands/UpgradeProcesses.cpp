#include "zelmat/commands/UpgradeProcesses.h"

#include <sys/wait.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <deque>
#include <filesystem>
#include <memory>
#include <thread>
#include <utility>

#include "zelmat/commands/frame/Progress.h"
#include "zelmat/text/CountText.h"
#include "zelmat/text/ShellWord.h"

namespace zelmat {

namespace {

using nlohmann::json;

/// One document's process, which prints one JSON object.
class UpgradeProcess {
public:
    UpgradeProcess(std::string path, const std::vector<std::string>& further) : path_(std::move(path)) {
        std::string command =
            ShellWord(std::filesystem::read_symlink("/proc/self/exe").string()) + " upgrade";
        for (const std::string& option : further) command += " " + ShellWord(option);
        output_ = ::popen((command + " --json -- " + ShellWord(path_)).c_str(), "re");
    }
    UpgradeProcess(const UpgradeProcess&) = delete;
    UpgradeProcess& operator=(const UpgradeProcess&) = delete;
    ~UpgradeProcess() {
        if (output_) ::pclose(output_);
    }

    /// Waits for its end.
    UpgradedDocument Take(Findings& findings) {
        std::string text;
        std::array<char, 4096> part{};
        for (std::size_t size = 1; output_ && size > 0;) {
            size = std::fread(part.data(), 1, part.size(), output_);
            text.append(part.data(), size);
        }
        const int status = output_ ? ::pclose(std::exchange(output_, nullptr)) : -1;
        const json told = json::parse(text, nullptr, false);
        if (!WIFEXITED(status) || !told.is_object()) {
            findings.Add({FindingKind::UNREADABLE, {path_, 0}, "not-upgraded", "its process has failed", {}});
            return {path_, "failed"};
        }
        AddFindings(told, WEXITSTATUS(status), findings);
        return {path_, ResultOf(told, WEXITSTATUS(status))};
    }

private:
    static void AddFindings(const json& told, int exit, Findings& findings) {
        for (const json& one : told.value("findings", json::array())) {
            const std::string kind = one.value("kind", "error");
            FindingKind as = exit == EXIT_UNREADABLE ? FindingKind::UNREADABLE : FindingKind::ERROR;
            if (exit == EXIT_USAGE) as = FindingKind::USAGE;
            if (kind == "warning") as = FindingKind::WARNING;
            if (kind == "note") as = FindingKind::NOTE;
            findings.Add({as,
                          {one.value("file", ""), one.value("line", 0)},
                          one.value("code", ""),
                          one.value("text", ""),
                          one.value("details", std::vector<std::string>())});
        }
    }

    static std::string ResultOf(const json& told, int exit) {
        const auto upgrade = told.find("upgrade");
        const bool ran = upgrade != told.end() && upgrade->is_object();
        if (ran && upgrade->value("refused", false)) return "refused";
        if (exit != EXIT_CLEAN || !ran) return "failed";
        const std::size_t count = upgrade->value("upgraded", json::array()).size();
        return count == 0 ? "up to date" : CountText(count, "material") + " upgraded";
    }

    std::string path_;
    std::FILE* output_ = nullptr;
};

}  // namespace

std::vector<UpgradedDocument> UpgradeDocuments(const std::vector<std::string>& paths,
                                               const std::vector<std::string>& further,
                                               CommandContext& context) {
    const std::size_t atOnce = std::max(1u, std::thread::hardware_concurrency());
    Progress progress(context.notes);
    std::deque<std::unique_ptr<UpgradeProcess>> running;
    std::vector<UpgradedDocument> upgraded;
    for (std::size_t next = 0; upgraded.size() < paths.size();) {
        while (next < paths.size() && running.size() < atOnce) {
            running.push_back(std::make_unique<UpgradeProcess>(paths[next++], further));
        }
        upgraded.push_back(running.front()->Take(context.findings));
        running.pop_front();
        progress.Tell("upgraded", upgraded.size(), paths.size(), "documents");
    }
    return upgraded;
}

}  // namespace zelmat
