#pragma once

#include <string>

#include "zelmat/materials/Material.h"

/// A card of samples/, by its name without ending.
zelmat::Material SampleCard(const std::string& name);

/// Its block as the formulas take it.
zelmat::Block SampleBlock(const std::string& name, const std::string& block);
