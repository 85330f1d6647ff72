#pragma once

#include <string>
#include <vector>

#include "zelmat/materials/Material.h"

namespace zelmat {

/// Cards in the CSV form, one section after the other, with numbers and units as they were written.
/// CsvCardReader reads the same materials from it. The form holds everything: what has no lines of its own is
/// written as a JSON value.
std::string CsvCardText(const std::vector<Material>& materials);

}  // namespace zelmat
