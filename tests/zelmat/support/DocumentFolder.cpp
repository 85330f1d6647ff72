#include "tests/zelmat/support/DocumentFolder.h"

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <nlohmann/json.hpp>

DocumentFolder::DocumentFolder()
    : folder_(testing::TempDir() + "zelmat-documents-" + std::to_string(getpid())) {
    std::filesystem::remove_all(folder_);
    std::filesystem::create_directories(folder_);
}

DocumentFolder::~DocumentFolder() {
    std::filesystem::remove_all(folder_);
}

std::string DocumentFolder::File(const std::string& name, const std::string& text) const {
    std::ofstream(Path(name), std::ios::binary) << text;
    return Path(name);
}

std::string DocumentFolder::NewDocument(const std::string& name) const {
    Run({"new", Path(name)});
    return Path(name);
}

std::string DocumentFolder::DocumentOf(const std::vector<std::string>& samples,
                                       const std::string& name) const {
    std::vector<std::string> add = {"add", NewDocument(name)};
    for (const std::string& sample : samples) add.push_back(Sample(sample));
    Run(add);
    return Path(name);
}

std::string DocumentFolder::Shorten(std::string text) const {
    for (auto at = text.find(folder_ + "/"); at != std::string::npos; at = text.find(folder_ + "/", at)) {
        text.erase(at, folder_.size() + 1);
    }
    return text;
}

std::string DocumentFolder::Run(const std::vector<std::string>& arguments) const {
    const ProgramRun run = RunZelmat(arguments);
    EXPECT_EQ(run.exitCode, 0) << arguments.front() << ": " << run.err;
    return Shorten(run.out);
}

std::string DocumentFolder::Refusal(int exitCode, const std::vector<std::string>& arguments) const {
    const ProgramRun run = RunZelmat(arguments);
    EXPECT_EQ(run.exitCode, exitCode) << arguments.front() << ": " << run.out << run.err;
    return Shorten(run.err);
}

std::vector<std::string> DocumentFolder::Names(const std::string& document) const {
    const auto list = nlohmann::json::parse(RunZelmat({"list", document, "--json"}).out);
    std::vector<std::string> names;
    for (const auto& material : list.at("materials")) names.push_back(material.at("name"));
    return names;
}

std::string DocumentFolder::Contents(const std::string& path) const {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}
