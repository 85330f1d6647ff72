#include "zelmat/settings/ConfigurationFile.h"

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <nlohmann/json.hpp>

#include "zelmat/files/OutputFile.h"
#include "zelmat/files/UnreadableFile.h"
#include "zelmat/text/QuotedText.h"

namespace zelmat {

namespace {

namespace fs = std::filesystem;

/// The folder of an environment variable; empty unless it is an absolute path.
fs::path FolderFrom(const char* variable) {
    const char* value = std::getenv(variable);
    const fs::path folder = value ? value : "";
    return folder.is_absolute() ? folder : fs::path();
}

fs::path ConfigurationFolder() {
    if (fs::path folder = FolderFrom("XDG_CONFIG_HOME"); !folder.empty()) return folder;
    const fs::path home = FolderFrom("HOME");
    return home.empty() ? home : home / ".config";
}

void ReportUnreadable(const Place& place, std::string text, Findings& findings) {
    findings.Add({FindingKind::UNREADABLE, place, "bad-configuration", std::move(text), {}});
}

/// Looked at before it is opened: a pipe or a device might never end.
bool IsSmallFile(const std::string& path, Findings& findings) {
    constexpr std::uintmax_t kLargest = 1 << 20;
    std::error_code problem;
    if (!fs::is_regular_file(path, problem)) {
        ReportUnreadable({path, 0}, problem ? "cannot be read: " + problem.message() : "is no regular file",
                         findings);
        return false;
    }
    const std::uintmax_t size = fs::file_size(path, problem);
    if (problem || size > kLargest) {
        ReportUnreadable({path, 0}, problem ? "cannot be read: " + problem.message() : "is larger than 1 MiB",
                         findings);
        return false;
    }
    return true;
}

}  // namespace

ConfigurationFile::ConfigurationFile() {
    const fs::path folder = ConfigurationFolder();
    if (!folder.empty()) path_ = (folder / "zelmat" / "config.json").string();
}

bool ConfigurationFile::Exists() const {
    std::error_code problem;
    const fs::file_type type = fs::symlink_status(path_, problem).type();
    return !path_.empty() && type != fs::file_type::not_found;
}

std::optional<Settings> ConfigurationFile::Read(Findings& findings) const {
    Settings settings;
    if (!Exists()) return settings;
    if (!IsSmallFile(path_, findings)) return std::nullopt;
    KORFileError error;
    const auto file = KORJsonFile::Read(path_, error);
    if (!file) {
        findings.Add(UnreadableFile(path_, error, "bad-configuration"));
        return std::nullopt;
    }
    const auto refuse = [&](const nlohmann::json& value, std::string text) {
        ReportUnreadable({path_, file->Line(value)}, std::move(text), findings);
    };
    if (!file->Root().is_object()) {
        refuse(file->Root(), "expected an object in braces, as {\"units\": \"us\"}");
        return std::nullopt;
    }
    bool good = true;
    for (const auto& [name, value] : file->Root().items()) {
        const auto set = Set(settings, name, value.is_string() ? value.get<std::string>() : "");
        if (!set || !value.is_string()) {
            refuse(value, set ? QuotedText(name) + " is no text" : set.Error().text);
            good = false;
        }
    }
    return good ? std::optional(settings) : std::nullopt;
}

bool ConfigurationFile::Write(const Settings& settings, Findings& findings) const {
    if (path_.empty()) {
        findings.Add({FindingKind::UNREADABLE,
                      {"configuration", 0},
                      "not-written",
                      "the environment names no folder for it",
                      {"set HOME or XDG_CONFIG_HOME to an absolute path"}});
        return false;
    }
    const fs::path folder = fs::path(path_).parent_path();
    std::error_code problem;
    fs::create_directories(folder, problem);
    if (problem) {
        findings.Add({FindingKind::UNREADABLE,
                      {folder.string(), 0},
                      "not-written",
                      "cannot be made: " + problem.message(),
                      {}});
        return false;
    }
    nlohmann::ordered_json json = nlohmann::ordered_json::object();
    for (const UserSetting& kind : UserSettings()) {
        if (!(settings.*kind.value).empty()) json[kind.name] = settings.*kind.value;
    }
    return WriteOutputFile(path_, json.dump(2) + "\n", {}, findings).has_value();
}

}  // namespace zelmat
