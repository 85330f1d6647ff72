#pragma once

#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <unordered_map>

/// What is wrong with a file, and where. Line and column are counted from 1; 0 when the file as a whole is
/// meant.
struct KORJsonError {
    std::string file;
    int line = 0;
    int column = 0;
    std::string message;

    std::string Text() const;  ///< "file:line:column: message", without the numbers that are 0
};

/// A JSON text that knows on which line every one of its values stands, so that whoever reads it can say
/// where a value makes no sense. UTF-8; a key given twice in one object is an error, and so are comments and
/// numbers that are none (NaN, Infinity) or too large for a double. It knows nothing of what the text means.
class KORJsonFile {
public:
    /// Nothing, and `error` filled, when the file cannot be read or is no JSON.
    [[nodiscard]] static std::optional<KORJsonFile> Read(const std::string& path, KORJsonError& error);

    /// The same for a text at hand; `name` is what errors call it.
    [[nodiscard]] static std::optional<KORJsonFile> Parse(const std::string& text, const std::string& name,
                                                          KORJsonError& error);

    const nlohmann::json& Root() const { return root_; }
    const std::string& Name() const { return name_; }

    /// The line on which a value begins; that of the closest value around it when there is no such value.
    int Line(const nlohmann::json::json_pointer& value) const;

    /// An error about a value of this text.
    KORJsonError ErrorAt(const nlohmann::json::json_pointer& value, const std::string& message) const;

private:
    KORJsonFile() = default;

    std::string name_;
    nlohmann::json root_;
    std::unordered_map<std::string, int> lines_;  ///< by JSON pointer
};
