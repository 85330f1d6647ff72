#pragma once

#include <memory>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/catalog/KORFileError.h"

/// A text from a file as messages show it: in quotes, control characters escaped, cut when it is long.
std::string KORShownText(std::string_view text);

/// A JSON text that can say on which line every one of its values stands, so that whoever reads it can say
/// where a value makes no sense. UTF-8; a key given twice in one object is an error, and so are values nested
/// deeper than kDeepest, NUL bytes, comments, and numbers that are none (NaN, Infinity), too large
/// for a double, or so small that they would become 0. It knows nothing of what the text means. Reading takes
/// time and memory in proportion to the text.
class KORJsonFile {
public:
    static constexpr std::size_t kDeepest = 200;  ///< no reader here needs more than 10

    /// Nothing, and `error` filled, when the file cannot be read or is no JSON.
    [[nodiscard]] static std::optional<KORJsonFile> Read(const std::string& path, KORFileError& error);

    /// The same for a text at hand; `name` is what errors call it.
    [[nodiscard]] static std::optional<KORJsonFile> Parse(std::string text, const std::string& name,
                                                          KORFileError& error);

    const nlohmann::json& Root() const { return *root_; }
    const std::string& Name() const { return name_; }

    /// The line on which a value begins. The value is Root() or lies in it; for any other, 0. A text in which
    /// nothing is wrong pays nothing for this: the first question goes through it up to the value, the second
    /// through all of it, the others through nothing.
    int Line(const nlohmann::json& value) const;

    /// An error about a value of this text.
    KORFileError ErrorAt(const nlohmann::json& value, const std::string& message) const;

private:
    struct PlacedValue {
        const nlohmann::json* value;
        int line;
    };

    KORJsonFile() = default;

    std::string name_;
    std::string text_;
    std::unique_ptr<nlohmann::json> root_;    ///< stays where it is when the file is moved
    mutable bool asked_ = false;              ///< for a line
    mutable std::vector<PlacedValue> lines_;  ///< by address; empty until somebody asks again
};
