#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "zelmat/materials/Material.h"

namespace zelmat {

/// A material that plies are made of, with its published constants. They are for reference: a layup keeps a
/// link to the material and none of its numbers.
struct PlyMaterial {
    std::string name;
    std::vector<std::pair<std::string, double>> constants;  ///< "E1", "nu12", ... as on the card
    std::string source;
    std::vector<std::string> lacking = {};  ///< blocks of the material that gave no constants, and why

    /// The constant of that name; nothing when the card does not give it.
    std::optional<double> Constant(const std::string& constant) const;

    /// Whether it has no direction: E is given in the place of E1; or E1 and nu12 are, and E2 and G12, if
    /// they are, agree with them (G = E/(2(1+nu)), to one part in a hundred, as rounded values do).
    bool IsIsotropic() const;
};

/// One layer of a card.
struct CardLayer {
    int line = 0;                         ///< where it stands on the card; 0 when it stands on none
    std::optional<std::string> material;  ///< the name of a ply material
    double thickness = 0.0;               ///< m
    double angle = 0.0;                   ///< deg, from the laminate's x axis, counter-clockwise
};

/// A layup card as it was read.
struct LayupCard {
    std::string file;
    int layersLine = 0;  ///< where the list of the layers stands; 0 when it stands in no file
    std::string name;
    std::string description;
    std::vector<std::string> sources;
    std::vector<std::string> notes;
    std::vector<PlyMaterial> materials;
    std::vector<CardLayer> layers;  ///< the bottom one first
    std::vector<KeptValue> kept;    ///< units, convention and results, which the program does not work with
};

/// The unit of a ply material's constant; empty when there is no such constant.
std::string PlyConstantUnit(const std::string& constant);
/// The name of its quantity, as FindQuantity knows it; null when there is no such constant.
const char* PlyConstantQuantity(const std::string& constant);
std::vector<std::string> PlyConstants();  ///< all there are

}  // namespace zelmat
