#include "tests/zelmat/support/DocumentFolder.h"

#include <nlohmann/json.hpp>

#include "zelmat/text/ReplaceAll.h"

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
    zelmat::ReplaceAll(text, folder_ / "", "");
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
