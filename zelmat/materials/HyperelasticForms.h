#pragma once

#include <optional>
#include <string>
#include <vector>

#include "zelmat/materials/TableKind.h"

namespace zelmat {

/// The strain-energy potentials by their keywords, the same in a block and in the store: "OGDEN".
const std::vector<std::string>& HyperelasticModels();

/// The columns of a potential's coefficients: those of the deviatoric part, then the compressibilities "D1",
/// "D2", ... One that is left out means an incompressible material: it is stored as 0.
/// Nothing for a potential that there is not. `order` is from 1 on; potentials without terms ignore it.
std::optional<TableForm> HyperelasticForm(const std::string& model, int order);

/// The order of a potential where nobody says it: the one that a potential without terms is kept under, else
/// the least, up to `most`, that has all of its coefficients among `columns`. Nothing where there is none.
std::optional<int> OrderOfColumns(const std::string& model, const std::vector<std::string>& columns,
                                  int most);

/// The strain energy as a formula in the coefficients' names, from the principal stretches l1, l2, l3 or the
/// invariants I1, I2 of a deformation without change of volume. Empty for a potential that there is not.
std::string StrainEnergyFormula(const std::string& model);

}  // namespace zelmat
