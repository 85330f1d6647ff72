#pragma once

#include <cstddef>
#include <vector>

#include "zelmat/layups/StoredLayup.h"

namespace zelmat {

/// A ply as a picture of the stack shows it.
struct DrawnPly {
    std::size_t layer;      ///< from 0, the bottom one first
    double bottom, height;  ///< above the bottom of the stack, in pixels
    bool cutShort;          ///< thicker than it is drawn
};

/// Neighbouring plies that stand in a stack several times over, drawn once; a single ply; or plies that are
/// not drawn, with a box in their place.
struct DrawnGroup {
    std::size_t first;                  ///< the lowest layer, from 0
    std::size_t layers;                 ///< of one repeat
    std::size_t times;                  ///< how often they follow on each other
    double bottom = 0.0, height = 0.0;  ///< above the bottom of the stack, in pixels
    std::vector<DrawnPly> plies = {};   ///< from the bottom up; none where they are left out

    std::size_t AllLayers() const { return layers * times; }
};

/// Where the plies of a stack stand in its picture, such that each can be seen and counted: to scale where
/// that can be, else the thick ones are cut short. Up to 64 plies are drawn one by one; of more, repeats are
/// drawn once, and the middle of a stack that repeats too little is left out.
struct StackPlan {
    std::vector<DrawnGroup> groups;  ///< from the bottom up
    double height = 0.0;             ///< pixels
    bool toScale = true;             ///< pixels are proportional to thickness all over

    /// The height of a z (m, from the middle plane) in the picture, above the bottom of the stack.
    double HeightOf(double z, const std::vector<double>& interfaces) const;
};

StackPlan PlanStack(const StoredLayup& layup);

}  // namespace zelmat
