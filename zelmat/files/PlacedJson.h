#pragma once

#include <memory>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "platform/catalog/KORJsonFile.h"

namespace zelmat {

/// A tree of values, each with the line of the file on which it stands: a JSON file, or what a reader of
/// another form made of a file. What the values mean is the business of whoever walks through it.
class PlacedJson {
public:
    /// Lines by JSON pointers ("/elastic/rows/3"). A value that is not named has the line of the value around
    /// it.
    using Lines = std::unordered_map<std::string, int>;

    /// Lines of the elements of long lists, by the lists' JSON pointers: a text for each element would cost
    /// more than the elements.
    using ElementLines = std::unordered_map<std::string, std::vector<int>>;

    /// Where values of a tree stand in the one that it was made from, both as JSON pointers. What lies inside
    /// such a value lies there, too; what is not named stands at the same place.
    using Moves = std::unordered_map<std::string, std::string>;

    explicit PlacedJson(KORJsonFile file);
    PlacedJson(std::shared_ptr<const PlacedJson> original, nlohmann::json root, Moves moves);
    PlacedJson(std::string name, nlohmann::json root, Lines lines, ElementLines elementLines = {});

    const std::string& Name() const { return name_; }  ///< what findings call the file
    const nlohmann::json& Root() const { return file_ ? file_->Root() : root_; }

    /// From 1; 0 when nothing is known about the file's lines.
    int Line(nlohmann::json::json_pointer at) const;

private:
    nlohmann::json::json_pointer InOriginal(nlohmann::json::json_pointer at) const;

    std::string name_;
    std::optional<KORJsonFile> file_;
    nlohmann::json root_;  ///< when there is no JSON file
    Lines lines_;
    ElementLines elementLines_;
    std::shared_ptr<const PlacedJson> original_;  ///< that knows the lines; null when this one does
    Moves moves_;
};

}  // namespace zelmat
