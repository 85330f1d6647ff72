#pragma once

#include <string>
#include <vector>

#include "zelmat/mechanics/laminate/Laminate.h"

/// A layup of the sample cards by its file's name: SI units.
zelmat::mechanics::Laminate SampleLaminate(const std::string& name);

/// The card's matrix under a key ("computed", "A").
zelmat::mechanics::Matrix3 SampleMatrix(const std::string& name, const std::string& block,
                                        const std::string& matrix);

/// The names of all sample layups.
const std::vector<std::string>& SampleLaminates();

/// T300/5208 of Tsai and Hahn: Pa.
zelmat::mechanics::PlyMaterial GraphiteEpoxy();

/// Layers of one material and thickness at these angles, the bottom one first.
zelmat::mechanics::Laminate Stacked(const zelmat::mechanics::PlyMaterial& material, double thickness,
                                    const std::vector<double>& angles);
