#pragma once

#include <string>
#include <vector>

#include "zelmat/findings/Findings.h"
#include "zelmat/materials/Material.h"

namespace zelmat {

/// A form in which cards are written.
struct CardForm {
    std::string name;       ///< as in --to: "json"
    std::string extension;  ///< of its files: ".json"
    bool severalInOne;      ///< one text holds any number of materials; else exactly one
    /// The text of a card. What the form cannot hold is a finding for each.
    std::string (*write)(const std::vector<Material>& materials, Findings& findings);
};

std::vector<std::string> CardFormNames();  ///< of all that there are, as --to takes them

/// Null when there is none of that name.
const CardForm* FindCardForm(const std::string& name);

}  // namespace zelmat
