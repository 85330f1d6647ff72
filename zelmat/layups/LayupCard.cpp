#include "zelmat/layups/LayupCard.h"

#include <algorithm>
#include <array>

namespace zelmat {

namespace {

constexpr std::array<std::pair<const char*, const char*>, 10> kConstants = {{
    {"E1", "Pa"},
    {"E2", "Pa"},
    {"E3", "Pa"},
    {"nu12", "-"},
    {"nu13", "-"},
    {"nu23", "-"},
    {"G12", "Pa"},
    {"G13", "Pa"},
    {"G23", "Pa"},
    {"density", "kg/m3"},
}};

}  // namespace

std::string PlyConstantUnit(const std::string& constant) {
    const auto known = std::find_if(kConstants.begin(), kConstants.end(),
                                    [&](const auto& entry) { return entry.first == constant; });
    return known != kConstants.end() ? known->second : "";
}

std::vector<std::string> PlyConstants() {
    std::vector<std::string> names;
    for (const auto& [name, unit] : kConstants) names.emplace_back(name);
    return names;
}

}  // namespace zelmat
