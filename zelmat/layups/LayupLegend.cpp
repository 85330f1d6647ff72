#include "zelmat/layups/LayupLegend.h"

#include <iterator>

namespace zelmat {

namespace {

/// Light enough for black lines upon them; neighbours differ for colour-blind readers and in grey.
constexpr const char* kColors[] = {"#cfe6f7", "#f7d9a8", "#bfe3cf", "#f3c7b3",
                                   "#f8f3b0", "#e6cde0", "#d9d9d9", "#a9c9e6"};

}  // namespace

LayupLegend::LayupLegend(const StoredLayup& layup, const std::set<std::string>& isotropic) {
    for (const StoredLayer& layer : layup.layers) {
        const auto [place, isNew] = places_.try_emplace(layer.material, materials_.size());
        if (isNew) {
            const std::size_t index = materials_.size();
            const char* color = layer.material ? kColors[index % std::size(kColors)] : "#ffffff";
            materials_.push_back({.name = layer.material,
                                  .mark = "M" + std::to_string(index + 1),
                                  .color = color,
                                  .isotropic = layer.material && isotropic.contains(*layer.material)});
        }
        LegendMaterial& material = materials_[place->second];
        ++material.plies;
        material.thickness += layer.thickness;
        if (!material.isotropic) ++angles_[layer.angle == 0.0 ? 0.0 : layer.angle];
    }
}

const LegendMaterial& LayupLegend::Of(const StoredLayer& layer) const {
    return materials_[places_.at(layer.material)];
}

}  // namespace zelmat
