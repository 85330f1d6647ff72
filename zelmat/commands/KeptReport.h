#pragma once

#include <ostream>

#include "zelmat/materials/Material.h"

namespace zelmat {

/// What a card has beside what behaviors use, value by value: orthotropic constants, strengths, electrical
/// values, what belongs to a card's form alone, and unknown keys. Numbers and units are as they were written.
/// Of a part with very many values the first are told, and how many more there are.
void PrintKept(std::ostream& out, const Material& material);

}  // namespace zelmat
