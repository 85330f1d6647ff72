#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "zelmat/materials/Material.h"

namespace zelmat {

/// One of a card's values that no behavior uses.
struct KeptLine {
    std::string name;
    std::string value;  ///< as it was written
};

/// Those that belong together.
struct KeptPart {
    std::string title;
    std::vector<KeptLine> lines;
};

/// All of them, part by part; none without lines.
std::vector<KeptPart> KeptParts(const Material& material);

/// What a card has beside what behaviors use, value by value: orthotropic constants, strengths, electrical
/// values, what belongs to a card's form alone, and unknown keys. Numbers and units are as they were written.
/// Of a part with very many values the first are told, and how many more there are.
void PrintKept(std::ostream& out, const Material& material);

}  // namespace zelmat
