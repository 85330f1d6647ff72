#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "zelmat/layups/StoredLayup.h"

namespace zelmat {

/// A material of a stack, as the legend of its picture names it.
struct LegendMaterial {
    std::optional<std::string> name;  ///< nothing for plies without a material
    std::string mark;                 ///< "M1"
    const char* color;                ///< of its plies
    bool isotropic = false;
    std::size_t plies = 0;
    double thickness = 0.0;  ///< of all of them, m
};

/// What the marks, colours and hatchings in the picture of a stack mean.
class LayupLegend {
public:
    LayupLegend(const StoredLayup& layup, const std::set<std::string>& isotropic);

    /// In the order in which they first stand in the stack, from the bottom.
    const std::vector<LegendMaterial>& Materials() const { return materials_; }
    const LegendMaterial& Of(const StoredLayer& layer) const;

    /// The plies of every angle in degrees; those of isotropic materials have none.
    const std::map<double, std::size_t>& Angles() const { return angles_; }

private:
    std::vector<LegendMaterial> materials_;
    std::map<std::optional<std::string>, std::size_t> places_;
    std::map<double, std::size_t> angles_;
};

}  // namespace zelmat
