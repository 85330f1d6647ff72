#include "zelmat/cards/YamlTree.h"

#include <yaml-cpp/eventhandler.h>
#include <yaml-cpp/yaml.h>

#include <sstream>
#include <utility>
#include <vector>

#include "zelmat/text/QuotedText.h"

namespace zelmat {

namespace {

using nlohmann::json;

constexpr std::size_t kMostBytes = std::size_t{16} << 20;
constexpr std::size_t kDeepest = 50;

/// Builds the tree while the text is parsed; stops at what is refused.
class Builder final : public YAML::EventHandler {
public:
    json root;
    PlacedJson::Lines lines;
    std::size_t documents = 0;

    void OnDocumentStart(const YAML::Mark&) override { ++documents; }
    void OnDocumentEnd() override {}
    void OnNull(const YAML::Mark& mark, YAML::anchor_t anchor) override { Put(mark, anchor, nullptr); }
    void OnAlias(const YAML::Mark& mark, YAML::anchor_t) override { Refuse(mark, "aliases are not read"); }
    void OnScalar(const YAML::Mark& mark, const std::string&, YAML::anchor_t anchor,
                  const std::string& value) override {
        if (!open_.empty() && open_.back().is_object() && !key_) {
            if (open_.back().contains(value))
                Refuse(mark, "the key " + QuotedText(value) + " is given twice");
            key_ = value;
            return;
        }
        Put(mark, anchor, value);
    }
    void OnSequenceStart(const YAML::Mark& mark, const std::string&, YAML::anchor_t anchor,
                         YAML::EmitterStyle::value) override {
        Open(mark, anchor, json::array());
    }
    void OnSequenceEnd() override { Close(); }
    void OnMapStart(const YAML::Mark& mark, const std::string&, YAML::anchor_t anchor,
                    YAML::EmitterStyle::value) override {
        Open(mark, anchor, json::object());
    }
    void OnMapEnd() override { Close(); }

private:
    [[noreturn]] static void Refuse(const YAML::Mark& mark, const std::string& why) {
        throw YAML::ParserException(mark, why);
    }

    void CheckPlace(const YAML::Mark& mark, YAML::anchor_t anchor) const {
        if (anchor != YAML::NullAnchor) Refuse(mark, "anchors are not read");
        if (!open_.empty() && open_.back().is_object() && !key_) Refuse(mark, "a key is no text");
    }

    void Put(const YAML::Mark& mark, YAML::anchor_t anchor, json value) {
        CheckPlace(mark, anchor);
        json::json_pointer place = places_.empty() ? json::json_pointer() : places_.back();
        if (!open_.empty()) Step(place);
        lines.emplace(place.to_string(), mark.line + 1);
        Add(std::move(value));
    }

    void Step(json::json_pointer& place) const {
        if (key_) {
            place /= *key_;
        } else {
            place /= open_.back().size();
        }
    }

    void Add(json value) {
        if (open_.empty()) {
            root = std::move(value);
        } else if (key_) {
            open_.back()[*std::exchange(key_, std::nullopt)] = std::move(value);
        } else {
            open_.back().push_back(std::move(value));
        }
    }

    void Open(const YAML::Mark& mark, YAML::anchor_t anchor, json empty) {
        CheckPlace(mark, anchor);
        if (open_.size() == kDeepest) Refuse(mark, "nested deeper than " + std::to_string(kDeepest));
        json::json_pointer place = places_.empty() ? json::json_pointer() : places_.back();
        if (!open_.empty()) Step(place);
        lines.emplace(place.to_string(), mark.line + 1);
        places_.push_back(std::move(place));
        keys_.push_back(std::exchange(key_, std::nullopt));
        open_.push_back(std::move(empty));
    }

    void Close() {
        json value = std::move(open_.back());
        open_.pop_back();
        places_.pop_back();
        key_ = std::move(keys_.back());
        keys_.pop_back();
        Add(std::move(value));
    }

    std::vector<json> open_;
    std::vector<json::json_pointer> places_;
    std::vector<std::optional<std::string>> keys_;  // under which the open ones go into those around them
    std::optional<std::string> key_;                // that was read last, of the innermost
};

}  // namespace

std::shared_ptr<const PlacedJson> ReadYamlTree(const std::string& text, const std::string& name,
                                               Findings& findings) {
    const auto refuse = [&](int line, const std::string& why) {
        findings.Add({FindingKind::UNREADABLE, {name, line}, "broken-yaml", why, {}});
        return nullptr;
    };
    if (text.size() > kMostBytes) return refuse(0, "the card holds more than 16 MiB");
    Builder builder;
    try {
        std::istringstream stream(text);
        YAML::Parser parser(stream);
        while (parser.HandleNextDocument(builder)) {
            if (builder.documents > 1) return refuse(0, "the file holds several documents; expected one");
        }
    } catch (const YAML::Exception& problem) {
        return refuse(problem.mark.line + 1, problem.msg);
    }
    return std::make_shared<const PlacedJson>(name, std::move(builder.root), std::move(builder.lines));
}

}  // namespace zelmat
