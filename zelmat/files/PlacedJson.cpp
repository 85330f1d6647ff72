#include "zelmat/files/PlacedJson.h"

#include <utility>

namespace zelmat {

PlacedJson::PlacedJson(KORJsonFile file) : name_(file.Name()), file_(std::move(file)) {}

PlacedJson::PlacedJson(std::string name, nlohmann::json root, Lines lines)
    : name_(std::move(name)), root_(std::move(root)), lines_(std::move(lines)) {}

int PlacedJson::Line(nlohmann::json::json_pointer at) const {
    if (file_) return file_->Line(file_->Root().at(at));
    for (;; at.pop_back()) {
        const auto found = lines_.find(at.to_string());
        if (found != lines_.end()) return found->second;
        if (at.empty()) return 0;
    }
}

}  // namespace zelmat
