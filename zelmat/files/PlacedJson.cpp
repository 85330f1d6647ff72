#include "zelmat/files/PlacedJson.h"

#include <utility>

namespace zelmat {

PlacedJson::PlacedJson(KORJsonFile file) : name_(file.Name()), file_(std::move(file)) {}

PlacedJson::PlacedJson(std::string name, nlohmann::json root, Lines lines)
    : name_(std::move(name)), root_(std::move(root)), lines_(std::move(lines)) {}

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
    for (;; at.pop_back()) {
        const auto found = lines_.find(at.to_string());
        if (found != lines_.end()) return found->second;
        if (at.empty()) return 0;
    }
}

}  // namespace zelmat
