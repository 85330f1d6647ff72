#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "zelmat/files/PlacedJson.h"
#include "zelmat/findings/Findings.h"
#include "zelmat/materials/Material.h"

namespace zelmat {

/// What a card says beyond its own text.
struct CardReading {
    bool decimalComma = false;  ///< numbers of a CSV card have a comma for their decimal point
};

/// Reads a material card. The one place that knows which forms of cards there are and which reader each has;
/// the form is told by the file's content, never by its name. "-" is standard input. Answers the materials
/// that have no mistake; findings tell what is wrong with the others, or with the file.
std::vector<Material> ReadCards(const std::string& path, Findings& findings, const CardReading& how = {});

/// The same of a text that was read already; `name` is what findings call its file.
std::vector<Material> ReadCardText(std::string text, const std::string& name, Findings& findings,
                                   const CardReading& how = {});

/// The tree of values that a card's text is, whatever its form, before anything is given a meaning. Null, and
/// findings, when it is none.
std::shared_ptr<const PlacedJson> ReadCardTree(std::string text, const std::string& name, Findings& findings,
                                               const CardReading& how = {});

/// The same where one material is wanted; a card with several is a finding.
std::optional<Material> ReadCard(const std::string& path, Findings& findings, const CardReading& how = {});

}  // namespace zelmat
