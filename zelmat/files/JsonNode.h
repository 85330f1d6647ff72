#pragma once

#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "zelmat/files/PlacedJson.h"
#include "zelmat/findings/Findings.h"

namespace zelmat {

/// A value of a card and the place where it stands. Asked for a value of a kind that it is not, it reports
/// that place and answers nothing. It refers to the file and the findings, which outlive it.
class JsonNode {
public:
    /// The card as a whole.
    JsonNode(const PlacedJson& file, Findings& findings);

    JsonNode At(const std::string& key) const;  ///< of an object that has the key
    JsonNode At(std::size_t index) const;       ///< of a list that is longer than that
    /// The value of a key; reports a missing one.
    std::optional<JsonNode> Required(const std::string& key) const;

    bool Has(const std::string& key) const;  ///< false also when this is no object
    std::vector<std::string> Keys() const;
    std::size_t Size() const { return json_->size(); }

    bool ExpectObject() const;  ///< reports when it is none
    bool ExpectList() const;    ///< reports when it is none
    /// Reports every key of an object that is none of these.
    bool ExpectKeys(const std::vector<std::string>& known) const;
    std::optional<std::string> Text() const;
    std::optional<std::string> Name() const;  ///< by which something can be asked for: see NameProblem
    std::optional<bool> Flag() const;
    std::optional<double> Number() const;
    std::optional<int> Whole(int least, int most) const;             ///< a whole number, the bounds included
    std::optional<std::vector<std::string>> Texts() const;           ///< a list of texts
    std::optional<std::vector<std::string>> OneOrMoreTexts() const;  ///< a text, or a list of texts

    /// How the user finds the value inside the card: "elastic.columns[2]".
    std::string Path() const;
    /// The value as the card has it, for messages; long ones are cut.
    std::string Excerpt() const;
    int Line() const;

    /// The value itself, for those who walk through many.
    const nlohmann::json& Json() const { return *json_; }

    void Report(std::string code, std::string text, std::vector<std::string> details = {}) const {
        Report(FindingKind::ERROR, std::move(code), std::move(text), std::move(details));
    }
    void Report(FindingKind kind, std::string code, std::string text,
                std::vector<std::string> details = {}) const;

private:
    JsonNode(const JsonNode& parent, nlohmann::json::json_pointer at);
    void ReportKind(const char* expected) const;

    const PlacedJson* file_;
    Findings* findings_;
    nlohmann::json::json_pointer at_;
    const nlohmann::json* json_;
};

}  // namespace zelmat
