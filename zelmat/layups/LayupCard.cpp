#include "zelmat/layups/LayupCard.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace zelmat {

namespace {

struct PlyConstant {
    const char* name;
    const char* unit;
    const char* quantity;
};

constexpr std::array<PlyConstant, 20> kConstants = {{
    {"E1", "Pa", "modulus"},        {"E2", "Pa", "modulus"},         {"E3", "Pa", "modulus"},
    {"nu12", "-", "number"},        {"nu13", "-", "number"},         {"nu23", "-", "number"},
    {"G12", "Pa", "modulus"},       {"G13", "Pa", "modulus"},        {"G23", "Pa", "modulus"},
    {"E", "Pa", "modulus"},  // of an isotropic ply
    {"nu", "-", "number"},          {"density", "kg/m3", "density"}, {"alpha", "1/K", "expansion"},
    {"alpha1", "1/K", "expansion"},                          // along the fibre
    {"alpha2", "1/K", "expansion"}, {"Xt", "Pa", "stress"},  // strengths: along the fibre, across it, in
                                                             // shear; tension and compression
    {"Xc", "Pa", "stress"},         {"Yt", "Pa", "stress"},          {"Yc", "Pa", "stress"},
    {"S", "Pa", "stress"},
}};

const PlyConstant* Find(const std::string& constant) {
    const auto known = std::find_if(kConstants.begin(), kConstants.end(),
                                    [&](const PlyConstant& entry) { return entry.name == constant; });
    return known == kConstants.end() ? nullptr : &*known;
}

}  // namespace

std::optional<double> PlyMaterial::Constant(const std::string& constant) const {
    const auto given = std::find_if(constants.begin(), constants.end(),
                                    [&](const auto& entry) { return entry.first == constant; });
    return given != constants.end() ? std::optional(given->second) : std::nullopt;
}

bool PlyMaterial::IsIsotropic() const {
    const auto e1 = Constant("E1"), nu12 = Constant("nu12");
    if (!e1 || !nu12) return false;
    const auto agrees = [](std::optional<double> given, double isotropic) {
        constexpr double kRounding = 0.01;
        return !given || std::abs(*given - isotropic) <= kRounding * std::abs(isotropic);
    };
    return agrees(Constant("E2"), *e1) && agrees(Constant("G12"), *e1 / (2.0 * (1.0 + *nu12)));
}

std::string PlyConstantUnit(const std::string& constant) {
    const PlyConstant* known = Find(constant);
    return known ? known->unit : "";
}

const char* PlyConstantQuantity(const std::string& constant) {
    const PlyConstant* known = Find(constant);
    return known ? known->quantity : nullptr;
}

std::vector<std::string> PlyConstants() {
    std::vector<std::string> names;
    for (const PlyConstant& constant : kConstants) names.emplace_back(constant.name);
    return names;
}

}  // namespace zelmat
