#include "zelmat/layups/LayupCard.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "zelmat/quantities/Quantity.h"

namespace zelmat {

namespace {

struct PlyConstant {
    const char* name;
    const char* quantity;
};

constexpr std::array<PlyConstant, 20> kConstants = {{
    {"E1", "modulus"},
    {"E2", "modulus"},
    {"E3", "modulus"},
    {"nu12", "number"},
    {"nu13", "number"},
    {"nu23", "number"},
    {"G12", "modulus"},
    {"G13", "modulus"},
    {"G23", "modulus"},
    {"E", "modulus"},  // of an isotropic ply
    {"nu", "number"},
    {"density", "density"},
    {"alpha", "expansion"},
    {"alpha1", "expansion"},  // along the fibre
    {"alpha2", "expansion"},
    // Strengths: along the fibre, across it, in shear; tension and compression.
    {"Xt", "stress"},
    {"Xc", "stress"},
    {"Yt", "stress"},
    {"Yc", "stress"},
    {"S", "stress"},
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
    if (!e1 && Constant("E")) return true;
    if (!e1 || !nu12) return false;
    const auto agrees = [](std::optional<double> given, double isotropic) {
        constexpr double kRounding = 0.01;
        return !given || std::abs(*given - isotropic) <= kRounding * std::abs(isotropic);
    };
    return agrees(Constant("E2"), *e1) && agrees(Constant("G12"), *e1 / (2.0 * (1.0 + *nu12)));
}

std::string PlyConstantUnit(const std::string& constant) {
    const PlyConstant* known = Find(constant);
    return known ? FindQuantity(known->quantity)->stored.Spelling() : "";
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
