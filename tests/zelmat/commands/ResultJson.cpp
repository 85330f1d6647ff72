#include "tests/zelmat/commands/ResultJson.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <stdexcept>

#include "tests/zelmat/support/Program.h"

using nlohmann::json;

ResultJson::ResultJson(std::vector<std::string> arguments, int exitCode) {
    arguments.emplace_back("--json");
    const ProgramRun run = RunZelmat(arguments);
    EXPECT_EQ(run.exitCode, exitCode) << run.out << run.err;
    json_ = json::parse(run.out);
}

const json& ResultJson::Table(const std::string& table) const {
    for (const json& each : json_["result"]["tables"]) {
        if (each["table"] == table) return each;
    }
    throw std::out_of_range("there is no table " + table);
}

std::size_t ResultJson::Index(const std::string& table, const std::string& column) const {
    const json& columns = Table(table)["columns"];
    for (std::size_t at = 0; at < columns.size(); ++at) {
        if (columns[at]["name"] == column) return at;
    }
    throw std::out_of_range("there is no column " + column);
}

json ResultJson::Cell(const std::string& table, std::size_t row, const std::string& column) const {
    return Table(table)["rows"].at(row).at(Index(table, column));
}

double ResultJson::Number(const std::string& table, std::size_t row, const std::string& column) const {
    return Cell(table, row, column).get<double>();
}

std::size_t ResultJson::Rows(const std::string& table) const {
    return Table(table)["rows"].size();
}

std::string ResultJson::Unit(const std::string& table, const std::string& column) const {
    return Table(table)["columns"].at(Index(table, column)).value("unit", "");
}

std::vector<std::string> ResultJson::Findings() const {
    std::vector<std::string> lines;
    for (const json& finding : json_["findings"]) {
        lines.push_back(finding["code"].get<std::string>() + ": " + finding["text"].get<std::string>());
    }
    return lines;
}

namespace {

/// Goes with the test program.
struct ResultFolder {
    ResultFolder() { std::filesystem::create_directories(path); }
    ~ResultFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path, ignored);
    }
    ResultFolder(const ResultFolder&) = delete;
    ResultFolder& operator=(const ResultFolder&) = delete;

    std::filesystem::path path =
        std::filesystem::path(testing::TempDir()) / ("zelmat-results-" + std::to_string(getpid()));
};

}  // namespace

std::string FileOf(const std::string& name, const std::string& text) {
    static const ResultFolder folder;
    const auto path = folder.path / name;
    std::ofstream(path, std::ios::binary) << text;
    return path.string();
}
