#pragma once

#include <optional>
#include <string>
#include <vector>

#include "zelmat/materials/CardTableKind.h"

namespace zelmat {

/// The strain-energy potentials by their keywords, the same on the card and in the store: "OGDEN".
const std::vector<std::string>& HyperelasticModels();

/// The columns of a potential's coefficients: those of the deviatoric part, then the compressibilities "D1",
/// "D2", ... A card that leaves a compressibility out means an incompressible material: it is stored as 0.
/// Nothing for a potential that there is not. `order` is from 1 on; potentials without terms ignore it.
std::optional<CardTableForm> HyperelasticForm(const std::string& model, int order);

}  // namespace zelmat
