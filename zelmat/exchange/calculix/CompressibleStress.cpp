#include "zelmat/exchange/calculix/CompressibleStress.h"

#include <array>
#include <cmath>

#include "zelmat/mechanics/hyperelastic/HyperelasticResponse.h"

namespace zelmat {

namespace {

using mechanics::LoadingMode;

using Strains = std::array<double, 3>;  ///< logarithmic

/// Principal Cauchy stresses.
std::optional<std::array<double, 3>> Stresses(const HyperelasticAt& material, const Strains& strains) {
    const double volume = strains[0] + strains[1] + strains[2], mean = volume / 3.0;
    const auto isochoric = mechanics::StretchesOf(strains[0] - mean, strains[1] - mean);
    const auto change = material.volumetric.At(std::exp(volume));
    if (!change.Ok() || !material.energy->IsDefinedAt(isochoric)) return std::nullopt;
    const auto force = material.energy->At(isochoric).force;
    const double pressure = (force[0] + force[1] + force[2]) / 3.0, ratio = std::exp(volume);
    std::array<double, 3> stresses{};
    for (std::size_t i = 0; i < 3; ++i) stresses[i] = (force[i] - pressure) / ratio + change->slope;
    return stresses;
}

/// The strains of a mode with one strain left to find.
Strains StrainsOf(LoadingMode mode, double x, double free) {
    const double along = mechanics::PathStrain(mode, x);
    switch (mode) {
        case LoadingMode::UNIAXIAL:
            return {along, free, free};
        case LoadingMode::EQUIBIAXIAL:
            return {along, along, free};
        case LoadingMode::PLANAR:
            return {along, 0.0, free};
        case LoadingMode::SIMPLE_SHEAR:
            return {along, -along, free};
    }
    return {};
}

}  // namespace

std::optional<double> CompressibleStress(const HyperelasticAt& material, LoadingMode mode, double x) {
    if (material.volumetric.IsIncompressible()) {
        const auto response = mechanics::Respond(*material.energy, mode, x);
        return response.Ok() ? std::optional(response->trueStress) : std::nullopt;
    }
    // The stress on the free face rises with the strain across it, from below 0 to above.
    double low = -3.0, high = 3.0;
    for (int step = 0; step < 200; ++step) {
        const double middle = (low + high) / 2.0;
        const auto stresses = Stresses(material, StrainsOf(mode, x, middle));
        if (!stresses) return std::nullopt;
        ((*stresses)[2] > 0.0 ? high : low) = middle;
    }
    const auto stresses = Stresses(material, StrainsOf(mode, x, low));
    if (!stresses) return std::nullopt;
    if (mode != LoadingMode::SIMPLE_SHEAR) return (*stresses)[0];
    // The principal axes of the left stretch tensor carry the stresses; its shear component is x.
    const double along = mechanics::PathStrain(mode, x);
    return ((*stresses)[0] - (*stresses)[1]) * x / (std::exp(2.0 * along) - std::exp(-2.0 * along));
}

}  // namespace zelmat
