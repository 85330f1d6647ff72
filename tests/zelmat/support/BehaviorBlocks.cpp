#include "tests/zelmat/support/BehaviorBlocks.h"

#include <algorithm>

const std::vector<std::string>& BehaviorBlocks() {
    static const std::vector<std::string> blocks = {"elastic",
                                                    "plastic",
                                                    "density",
                                                    "thermal_expansion",
                                                    "conductivity",
                                                    "specific_heat",
                                                    "user_material",
                                                    "hyperelastic",
                                                    "gasket",
                                                    "gasket_membrane",
                                                    "gasket_transverse_shear"};
    return blocks;
}

std::string BehaviorBlocksBut(std::initializer_list<std::string_view> leftOut) {
    std::string line;
    for (const std::string& block : BehaviorBlocks()) {
        if (std::ranges::find(leftOut, block) != leftOut.end()) continue;
        line += (line.empty() ? "" : ", ") + block;
    }
    return line;
}
