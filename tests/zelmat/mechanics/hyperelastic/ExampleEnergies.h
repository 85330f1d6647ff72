#pragma once

#include <memory>
#include <string>
#include <vector>

#include "zelmat/mechanics/hyperelastic/StrainEnergy.h"

/// A potential with coefficients, as the tests name it.
struct ExampleEnergy {
    std::string name;
    zelmat::mechanics::HyperelasticModel model;
    int order;
    std::vector<double> coefficients;

    std::shared_ptr<const zelmat::mechanics::StrainEnergy> Make() const;
};

/// At least one of each of the eight models, with both signs of coefficients.
const std::vector<ExampleEnergy>& ExampleEnergies();

/// 20 sets of random coefficients of each model, always the same: the first ones positive, the others of both
/// signs.
std::vector<ExampleEnergy> RandomEnergies();

std::shared_ptr<const zelmat::mechanics::StrainEnergy> MakeEnergy(zelmat::mechanics::HyperelasticModel model,
                                                                  int order,
                                                                  const std::vector<double>& coefficients);
