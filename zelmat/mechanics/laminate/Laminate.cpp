#include "zelmat/mechanics/laminate/Laminate.h"

#include <cmath>
#include <string>

#include "zelmat/mechanics/laminate/PlyFailure.h"

namespace zelmat::mechanics {

namespace {

bool IsPositive(double value) {
    return std::isfinite(value) && value > 0.0;
}

std::optional<Refusal> MaterialFault(const PlyMaterial& material) {
    if (auto fault = UnstablePly(material.elastic)) return fault;
    if (material.expansion &&
        !(std::isfinite(material.expansion->alpha1) && std::isfinite(material.expansion->alpha2))) {
        return Refusal{"the thermal expansion of a ply is not a finite number"};
    }
    if (material.density && !IsPositive(*material.density))
        return Refusal{"the density of a ply has to be above 0"};
    if (!material.strength) return std::nullopt;
    const PlyStrength& strength = *material.strength;
    for (const double value : {strength.xt, strength.xc, strength.yt, strength.yc, strength.s}) {
        if (!IsPositive(value))
            return Refusal{"the strengths of a ply have to be above 0, also in compression"};
    }
    if (const auto wu = TsaiWuOf(strength); !(wu.f12 * wu.f12 < wu.f11 * wu.f22)) {
        return Refusal{"F12 is too great: Tsai and Wu's criterion would allow stresses without end"};
    }
    return std::nullopt;
}

}  // namespace

std::optional<Refusal> LaminateFault(const Laminate& laminate) {
    if (laminate.layers.empty()) return Refusal{"a laminate needs a layer"};
    for (const PlyMaterial& material : laminate.materials) {
        if (auto fault = MaterialFault(material)) return fault;
    }
    for (std::size_t i = 0; i < laminate.layers.size(); ++i) {
        const Layer& layer = laminate.layers[i];
        const std::string name = "layer " + std::to_string(i + 1);
        if (layer.material >= laminate.materials.size()) return Refusal{name + " has no material"};
        if (!IsPositive(layer.thickness)) return Refusal{name + ": a thickness has to be above 0"};
        if (!std::isfinite(layer.angle)) return Refusal{name + ": the angle is not a finite number"};
    }
    return std::nullopt;
}

std::vector<double> Interfaces(const Laminate& laminate) {
    const std::size_t count = laminate.layers.size();
    std::vector<double> below(count + 1, 0.0), above(count + 1, 0.0);
    for (std::size_t i = 0; i < count; ++i) below[i + 1] = below[i] + laminate.layers[i].thickness;
    for (std::size_t i = count; i > 0; --i) above[i - 1] = above[i] + laminate.layers[i - 1].thickness;
    std::vector<double> interfaces;
    for (std::size_t i = 0; i <= count; ++i) interfaces.push_back(0.5 * (below[i] - above[i]));
    return interfaces;
}

}  // namespace zelmat::mechanics
