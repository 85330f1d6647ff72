#include "tests/zelmat/mechanics/laminate/SampleLaminate.h"

#include <fstream>
#include <map>
#include <nlohmann/json.hpp>

using namespace zelmat::mechanics;

namespace {

nlohmann::json Sample(const std::string& name) {
    return nlohmann::json::parse(std::ifstream(ZELMAT_SAMPLES "/layups/" + name + ".json"));
}

}  // namespace

Laminate SampleLaminate(const std::string& name) {
    const auto sample = Sample(name);
    Laminate laminate;
    std::map<std::string, std::size_t> places;
    for (const auto& [key, ply] : sample["ply_materials"].items()) {
        places[key] = laminate.materials.size();
        PlyMaterial material;
        material.elastic = {ply["E1"].get<double>(), ply["E2"].get<double>(), ply["nu12"].get<double>(),
                            ply["G12"].get<double>()};
        if (ply.contains("density")) material.density = ply["density"].get<double>();
        laminate.materials.push_back(material);
    }
    for (const auto& layer : sample["layers"]) {
        laminate.layers.push_back({places.at(layer["material"].get<std::string>()),
                                   layer["thickness"].get<double>(), layer["angle_deg"].get<double>()});
    }
    return laminate;
}

Matrix3 SampleMatrix(const std::string& name, const std::string& block, const std::string& matrix) {
    return Sample(name)[block][matrix].get<Matrix3>();
}

const std::vector<std::string>& SampleLaminates() {
    static const std::vector<std::string> names = {
        "angle_ply_t300_5208", "cross_ply_t300_5208",       "kaw_0_30_m45",
        "nasa_rp1351_0_45_s",  "quasi_isotropic_t300_5208", "sandwich_t300_rohacell"};
    return names;
}

PlyMaterial GraphiteEpoxy() {
    PlyMaterial material;
    material.elastic = {181e9, 10.3e9, 0.28, 7.17e9};
    return material;
}

Laminate Stacked(const PlyMaterial& material, double thickness, const std::vector<double>& angles) {
    Laminate laminate{.materials = {material}, .layers = {}};
    for (const double angle : angles) laminate.layers.push_back({0, thickness, angle});
    return laminate;
}
