#include "zelmat/mechanics/laminate/LaminateResponse.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>

#include "zelmat/mechanics/laminate/PlyStiffness.h"

namespace zelmat::mechanics {

namespace {

Vector3 Sum(const Vector3& a, const Vector3& b, double factor = 1.0) {
    return {a[0] + factor * b[0], a[1] + factor * b[1], a[2] + factor * b[2]};
}

Vector3 TransposedTimes(const Matrix3& matrix, const Vector3& vector) {
    Vector3 product{};
    for (std::size_t i = 0; i < 3; ++i) {
        for (std::size_t k = 0; k < 3; ++k) product[i] += matrix[k][i] * vector[k];
    }
    return product;
}

/// A sum whose entries are 0 where they are less than the rounding of what was added up.
class CleanSum {
public:
    void Add(const Vector3& summand, double factor) {
        for (std::size_t i = 0; i < 3; ++i) {
            sum_[i] += factor * summand[i];
            size_[i] += std::abs(factor * summand[i]);
        }
    }
    Vector3 Value() const {
        constexpr double kRounding = 16.0 * std::numeric_limits<double>::epsilon();
        Vector3 clean = sum_;
        for (std::size_t i = 0; i < 3; ++i) {
            if (std::abs(clean[i]) <= kRounding * size_[i]) clean[i] = 0.0;
        }
        return clean;
    }

private:
    Vector3 sum_{}, size_{};
};

/// Forces and moments that would hold back the expansion of every ply at a change of temperature by 1.
struct HeldBack {
    Vector3 force{}, moment{};
};

HeldBack ThermalLoads(const Laminate& laminate) {
    const auto z = Interfaces(laminate);
    CleanSum force, moment;
    for (std::size_t k = 0; k < laminate.layers.size(); ++k) {
        const Layer& layer = laminate.layers[k];
        const PlyMaterial& material = laminate.materials[layer.material];
        const Vector3 stress =
            Times(RotatedStiffness(material.elastic, layer.angle), RotatedExpansion(material, layer.angle));
        force.Add(stress, layer.thickness);
        moment.Add(stress, layer.thickness * 0.5 * (z[k] + z[k + 1]));
    }
    return {force.Value(), moment.Value()};
}

PlyPoint PointAt(const Laminate& laminate, const Layer& layer, double z, const LaminateResponse& plane,
                 double temperatureChange) {
    const PlyMaterial& material = laminate.materials[layer.material];
    PlyPoint point{};
    point.z = z;
    point.strain = Sum(plane.strain, plane.curvature, z);
    CleanSum stretching;
    stretching.Add(point.strain, 1.0);
    stretching.Add(RotatedExpansion(material, layer.angle), -temperatureChange);
    const Vector3 stretched = stretching.Value();
    const Matrix3 rotated = RotatedStiffness(material.elastic, layer.angle);
    CleanSum stress, plyStress;
    for (std::size_t k = 0; k < 3; ++k)
        stress.Add({rotated[0][k], rotated[1][k], rotated[2][k]}, stretched[k]);
    point.stress = stress.Value();
    point.plyStrain = StrainInPly(point.strain, layer.angle);
    for (std::size_t k = 0; k < 3; ++k) {
        Vector3 alone{};
        alone[k] = point.stress[k];
        plyStress.Add(StressInPly(alone, layer.angle), 1.0);
    }
    point.plyStress = plyStress.Value();
    return point;
}

/// A layer whose expansion is not known does not stay as it is when the temperature changes.
std::optional<Refusal> ExpansionFault(const Laminate& laminate) {
    for (std::size_t k = 0; k < laminate.layers.size(); ++k) {
        if (laminate.materials[laminate.layers[k].material].expansion) continue;
        return Refusal{"layer " + std::to_string(k + 1) +
                       ": the thermal expansion of its material is not known"};
    }
    return std::nullopt;
}

bool AllFinite(const LaminateLoad& load) {
    for (std::size_t i = 0; i < 3; ++i) {
        if (!std::isfinite(load.force[i]) || !std::isfinite(load.moment[i])) return false;
    }
    return std::isfinite(load.temperatureChange);
}

bool AllFinite(const Vector3& vector) {
    return std::all_of(vector.begin(), vector.end(), [](double number) { return std::isfinite(number); });
}

bool AllFinite(const LaminateResponse& response) {
    return std::all_of(response.plies.begin(), response.plies.end(), [](const PlyResponse& ply) {
        return AllFinite(ply.bottom.stress) && AllFinite(ply.bottom.strain) && AllFinite(ply.top.stress) &&
               AllFinite(ply.top.strain) && AllFinite(ply.bottom.plyStress) && AllFinite(ply.top.plyStress);
    });
}

}  // namespace

Outcome<LaminateResponse> RespondTo(const Laminate& laminate, const LaminateLoad& load) {
    const auto stiffness = StiffnessOf(laminate);
    if (!stiffness.Ok()) return stiffness.Refused();
    if (!AllFinite(load)) return Refusal{"a load is not a finite number"};
    if (load.temperatureChange != 0.0) {
        if (const auto fault = ExpansionFault(laminate)) return *fault;
    }
    const HeldBack held = ThermalLoads(laminate);
    const Vector3 force = Sum(load.force, held.force, load.temperatureChange);
    const Vector3 moment = Sum(load.moment, held.moment, load.temperatureChange);

    LaminateResponse response{};
    response.strain = Sum(Times(stiffness->aInverse, force), Times(stiffness->bInverse, moment));
    response.curvature = Sum(TransposedTimes(stiffness->bInverse, force), Times(stiffness->dInverse, moment));
    const auto z = Interfaces(laminate);
    for (std::size_t k = 0; k < laminate.layers.size(); ++k) {
        const Layer& layer = laminate.layers[k];
        response.plies.push_back(
            {.layer = k,
             .bottom = PointAt(laminate, layer, z[k], response, load.temperatureChange),
             .top = PointAt(laminate, layer, z[k + 1], response, load.temperatureChange)});
    }
    if (!AllFinite(response)) return Refusal{"the answer to the load is too great for a number"};
    return response;
}

Outcome<LaminateExpansion> ExpansionOf(const Laminate& laminate) {
    const auto free = RespondTo(laminate, {.force = {}, .moment = {}, .temperatureChange = 1.0});
    if (!free.Ok()) return free.Refused();
    return LaminateExpansion{.strain = free->strain, .curvature = free->curvature};
}

}  // namespace zelmat::mechanics
