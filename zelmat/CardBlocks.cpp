#include "zelmat/CardBlocks.h"

#include <algorithm>

#include "zelmat/BehaviorAccess.h"

namespace zelmat {

namespace {

const CardColumn kTemperature{"temperature", "temperature", "K"};

CardBlock Elastic() {
    return {.name = "elastic",
            .title = "Elastic",
            .forms = {{"",
                       {{"youngs_modulus", "Young's modulus", "Pa"},
                        {"poissons_ratio", "Poisson's ratio", "-"}}}},
            .write = &BehaviorAccess<ElasticNames>::Write,
            .read = &BehaviorAccess<ElasticNames>::Read};
}

CardBlock Plastic() {
    const std::vector<CardColumn> curve = {{"yield_stress", "yield stress", "Pa"},
                                           {"plastic_strain", "plastic strain", "-"}};
    const std::vector<CardColumn> johnsonCook = {{"A", "A", "Pa"},
                                                 {"B", "B", "Pa"},
                                                 {"n", "n", "-"},
                                                 {"m", "m", "-"},
                                                 {"melting_temperature", "melting temperature", "K"},
                                                 {"transition_temperature", "transition temperature", "K"}};
    return {.name = "plastic",
            .title = "Plastic",
            .use = CardUse::NOT_SHOWN_YET,
            .forms = {{"isotropic", curve, TemperatureRule::ALWAYS},
                      {"kinematic", curve, TemperatureRule::ALWAYS},
                      {"johnson-cook", johnsonCook, TemperatureRule::NEVER}}};
}

CardBlock Density() {
    return {.name = "density",
            .title = "Density",
            .forms = {{"", {{"density", "density", "kg/m3"}}}},
            .write = &BehaviorAccess<DensityNames>::Write,
            .read = &BehaviorAccess<DensityNames>::Read};
}

CardBlock ThermalExpansion() {
    return {.name = "thermal_expansion",
            .title = "Thermal expansion",
            .forms = {{"", {{"thermal_expansion", "thermal expansion", "1/K"}}}},
            .referenceTemperature = true,
            .write = &BehaviorAccess<ThermalExpansionNames>::Write,
            .read = &BehaviorAccess<ThermalExpansionNames>::Read};
}

CardBlock Conductivity() {
    return {.name = "conductivity",
            .title = "Conductivity",
            .forms = {{"", {{"conductivity", "conductivity", "W/(m K)"}}}},
            .write = &BehaviorAccess<ConductivityNames>::Write,
            .read = &BehaviorAccess<ConductivityNames>::Read};
}

CardBlock SpecificHeat() {
    return {.name = "specific_heat",
            .title = "Specific heat",
            .forms = {{"", {{"specific_heat", "specific heat", "J/(kg K)"}}}},
            .write = &BehaviorAccess<SpecificHeatNames>::Write,
            .read = &BehaviorAccess<SpecificHeatNames>::Read};
}

}  // namespace

std::vector<CardColumn> CardTableForm::ColumnsOf(bool temperatureDependent) const {
    std::vector<CardColumn> all = columns;
    if (temperature == TemperatureRule::ALWAYS ||
        (temperature == TemperatureRule::AS_FLAGGED && temperatureDependent)) {
        all.push_back(kTemperature);
    }
    return all;
}

const std::vector<CardBlock>& CardBlocks() {
    static const std::vector<CardBlock> blocks = {
        Elastic(),
        Plastic(),
        Density(),
        ThermalExpansion(),
        Conductivity(),
        SpecificHeat(),
        {.name = "hyperelastic", .title = "Hyperelastic", .use = CardUse::NOT_SHOWN_YET},
        {.name = "gasket", .title = "Gasket", .use = CardUse::NOT_SHOWN_YET},
        {.name = "test_data", .title = "Test data", .use = CardUse::NOT_SHOWN_YET},
        {.name = "strength", .title = "Strength", .use = CardUse::FOR_INFORMATION},
    };
    return blocks;
}

const CardBlock* FindCardBlock(const std::string& name) {
    const auto& blocks = CardBlocks();
    const auto found = std::find_if(blocks.begin(), blocks.end(),
                                    [&](const CardBlock& block) { return block.name == name; });
    return found == blocks.end() ? nullptr : &*found;
}

const CardColumn& TemperatureColumn() {
    return kTemperature;
}

}  // namespace zelmat
