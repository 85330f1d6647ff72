#include "zelmat/files/JsonNode.h"

#include <algorithm>
#include <utility>

#include "zelmat/text/NameProblem.h"
#include "zelmat/text/WordList.h"

namespace zelmat {

using nlohmann::json;

JsonNode::JsonNode(const PlacedJson& file, Findings& findings)
    : file_(&file), findings_(&findings), json_(&file.Root()) {}

JsonNode::JsonNode(const JsonNode& parent, json::json_pointer at)
    : file_(parent.file_), findings_(parent.findings_), at_(std::move(at)), json_(&file_->Root().at(at_)) {}

JsonNode JsonNode::At(const std::string& key) const {
    return JsonNode(*this, at_ / key);
}

JsonNode JsonNode::At(std::size_t index) const {
    return JsonNode(*this, at_ / index);
}

std::optional<JsonNode> JsonNode::Required(const std::string& key) const {
    if (Has(key)) return At(key);
    Report("missing-key", Path() + " lacks the key \"" + key + "\"");
    return std::nullopt;
}

bool JsonNode::Has(const std::string& key) const {
    return json_->contains(key);
}

std::vector<std::string> JsonNode::Keys() const {
    std::vector<std::string> keys;
    for (const auto& [key, value] : json_->items()) keys.push_back(key);
    return keys;
}

bool JsonNode::ExpectObject() const {
    if (!json_->is_object()) ReportKind("an object in braces");
    return json_->is_object();
}

bool JsonNode::ExpectList() const {
    if (!json_->is_array()) ReportKind("a list");
    return json_->is_array();
}

bool JsonNode::ExpectKeys(const std::vector<std::string>& known) const {
    bool good = true;
    for (const std::string& key : Keys()) {
        if (std::find(known.begin(), known.end(), key) != known.end()) continue;
        At(key).Report("unknown-key", Path() + " has no key " + Quoted(key), {"known: " + WordList(known)});
        good = false;
    }
    return good;
}

std::optional<std::string> JsonNode::Text() const {
    if (json_->is_string()) return json_->get<std::string>();
    ReportKind("a text");
    return std::nullopt;
}

std::optional<std::string> JsonNode::Name() const {
    auto name = Text();
    const auto problem = name ? NameProblem(*name) : std::nullopt;
    if (!problem) return name;
    Report("wrong-value", *problem);
    return std::nullopt;
}

std::optional<bool> JsonNode::Flag() const {
    if (json_->is_boolean()) return json_->get<bool>();
    ReportKind("true or false");
    return std::nullopt;
}

std::optional<double> JsonNode::Number() const {
    if (json_->is_number()) return json_->get<double>();
    Report("not-a-number", Path() + " is not a number",
           {"got " + Excerpt(), "expected a number without quotes"});
    return std::nullopt;
}

std::optional<int> JsonNode::Whole(int least, int most) const {
    if (!json_->is_number_integer()) {
        ReportKind("a whole number");
        return std::nullopt;
    }
    const double value = json_->get<double>();
    if (value >= least && value <= most) return static_cast<int>(value);
    Report("out-of-range", Path() + " is " + Excerpt(),
           {"expected " + std::to_string(least) + " to " + std::to_string(most)});
    return std::nullopt;
}

std::optional<std::vector<std::string>> JsonNode::Texts() const {
    if (!ExpectList()) return std::nullopt;
    std::vector<std::string> texts;
    for (std::size_t i = 0; i < Size(); ++i) {
        if (auto text = At(i).Text()) texts.push_back(std::move(*text));
    }
    return texts.size() == Size() ? std::optional(std::move(texts)) : std::nullopt;
}

std::optional<std::vector<std::string>> JsonNode::OneOrMoreTexts() const {
    if (json_->is_string()) return std::vector<std::string>{json_->get<std::string>()};
    return Texts();
}

std::string JsonNode::Path() const {
    std::string path;
    auto at = at_;
    for (; !at.empty(); at.pop_back()) {
        const bool inList = file_->Root().at(at.parent_pointer()).is_array();
        const std::string step = inList ? "[" + at.back() + "]" : at.back();
        path = path.empty() || path.front() == '[' ? step + path : step + "." + path;
    }
    return path.empty() ? "the card" : path;
}

std::string JsonNode::Excerpt() const {
    constexpr std::size_t kLongest = 40;
    // A cut may fall inside a character: everything beyond plain ASCII is written as an escape.
    std::string text = json_->dump(-1, ' ', true);
    if (text.size() > kLongest) text = text.substr(0, kLongest) + "...";
    return text;
}

int JsonNode::Line() const {
    return file_->Line(at_);
}

void JsonNode::Report(FindingKind kind, std::string code, std::string text,
                      std::vector<std::string> details) const {
    findings_->Add({kind, {file_->Name(), Line()}, std::move(code), std::move(text), std::move(details)});
}

void JsonNode::ReportKind(const char* expected) const {
    Report("wrong-type", Path() + " is not " + expected, {"got " + Excerpt()});
}

}  // namespace zelmat
