#include "zelmat/files/PlacedJson.h"

#include <charconv>
#include <utility>

namespace zelmat {

namespace {

/// The line of an element, by its index as a text; 0 when it is not there.
int LineOf(const std::string& index, const std::vector<int>& lines) {
    std::size_t place = lines.size();
    std::from_chars(index.data(), index.data() + index.size(), place);
    return place < lines.size() ? lines[place] : 0;
}

}  // namespace

PlacedJson::PlacedJson(KORJsonFile file) : name_(file.Name()), file_(std::move(file)) {}

PlacedJson::PlacedJson(std::string name, nlohmann::json root, Lines lines, ElementLines elementLines)
    : name_(std::move(name)),
      root_(std::move(root)),
      lines_(std::move(lines)),
      elementLines_(std::move(elementLines)) {}

PlacedJson::PlacedJson(std::shared_ptr<const PlacedJson> original, nlohmann::json root, Moves moves)
    : name_(original->Name()),
      root_(std::move(root)),
      original_(std::move(original)),
      moves_(std::move(moves)) {}

nlohmann::json::json_pointer PlacedJson::InOriginal(nlohmann::json::json_pointer at) const {
    nlohmann::json::json_pointer inside;
    for (;; at.pop_back()) {
        const auto moved = moves_.find(at.to_string());
        if (moved != moves_.end()) at = nlohmann::json::json_pointer(moved->second);
        if (moved != moves_.end() || at.empty()) break;
        inside = nlohmann::json::json_pointer() / at.back() / inside;
    }
    at /= inside;
    while (!original_->Root().contains(at)) at.pop_back();
    return at;
}

int PlacedJson::Line(nlohmann::json::json_pointer at) const {
    if (original_) return original_->Line(InOriginal(std::move(at)));
    if (file_) return file_->Line(file_->Root().at(at));
    for (;;) {
        const auto found = lines_.find(at.to_string());
        if (found != lines_.end()) return found->second;
        if (at.empty()) return 0;
        const std::string step = at.back();
        at.pop_back();
        const auto list = elementLines_.find(at.to_string());
        if (const int line = list == elementLines_.end() ? 0 : LineOf(step, list->second)) return line;
    }
}

}  // namespace zelmat
