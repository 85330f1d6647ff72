#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

/// What a calculating command answers with --json.
class ResultJson {
public:
    /// Runs the command with --json; a run that does not end with this code is a failure.
    explicit ResultJson(std::vector<std::string> arguments, int exitCode = 0);

    const nlohmann::json& All() const { return json_; }
    const nlohmann::json& operator[](const char* key) const { return json_["result"][key]; }

    double Number(const char* key) const { return json_["result"][key]["value"].get<double>(); }

    /// A cell of a table; null where it has none.
    nlohmann::json Cell(const std::string& table, std::size_t row, const std::string& column) const;
    double Number(const std::string& table, std::size_t row, const std::string& column) const;
    std::size_t Rows(const std::string& table) const;
    std::string Unit(const std::string& table, const std::string& column) const;

    /// "code: text" of each finding.
    std::vector<std::string> Findings() const;

private:
    const nlohmann::json& Table(const std::string& table) const;
    std::size_t Index(const std::string& table, const std::string& column) const;

    nlohmann::json json_;
};

/// The path of a file in a folder of the test program's own, with this text.
std::string FileOf(const std::string& name, const std::string& text);
