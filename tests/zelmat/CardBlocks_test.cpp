#include "zelmat/CardBlocks.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// "name [unit]" of every column that a table of a block has.
std::vector<std::string> Columns(const char* block, std::size_t form, bool temperatureDependent) {
    std::vector<std::string> columns;
    for (const auto& column : zelmat::FindCardBlock(block)->forms[form].ColumnsOf(temperatureDependent)) {
        columns.push_back(column.name + " [" + column.unit + "]");
    }
    return columns;
}

TEST(CardBlocks, NameTheColumnsAndUnitsOfEveryTable) {
    EXPECT_THAT(Columns("elastic", 0, false), ElementsAre("youngs_modulus [Pa]", "poissons_ratio [-]"));
    EXPECT_THAT(Columns("density", 0, false), ElementsAre("density [kg/m3]"));
    EXPECT_THAT(Columns("thermal_expansion", 0, false), ElementsAre("thermal_expansion [1/K]"));
    EXPECT_THAT(Columns("conductivity", 0, false), ElementsAre("conductivity [W/(m K)]"));
    EXPECT_THAT(Columns("specific_heat", 0, false), ElementsAre("specific_heat [J/(kg K)]"));
}

TEST(CardBlocks, CloseATemperatureDependentTableWithTheTemperature) {
    EXPECT_THAT(Columns("elastic", 0, true),
                ElementsAre("youngs_modulus [Pa]", "poissons_ratio [-]", "temperature [K]"));
}

TEST(CardBlocks, GiveThePlasticCurvesAlwaysATemperatureAndJohnsonCookNever) {
    for (const bool flag : {false, true}) {
        EXPECT_THAT(Columns("plastic", 0, flag),
                    ElementsAre("yield_stress [Pa]", "plastic_strain [-]", "temperature [K]"));
        EXPECT_THAT(Columns("plastic", 1, flag),
                    ElementsAre("yield_stress [Pa]", "plastic_strain [-]", "temperature [K]"));
        EXPECT_THAT(Columns("plastic", 2, flag),
                    ElementsAre("A [Pa]", "B [Pa]", "n [-]", "m [-]", "melting_temperature [K]",
                                "transition_temperature [K]"));
    }
}

TEST(CardBlocks, ReachABehaviorExactlyWhenTheyAreShown) {
    std::vector<std::string> shown;
    for (const auto& block : zelmat::CardBlocks()) {
        EXPECT_EQ(block.write != nullptr, block.use == zelmat::CardUse::SHOWN) << block.name;
        EXPECT_EQ(block.read != nullptr, block.use == zelmat::CardUse::SHOWN) << block.name;
        if (block.use == zelmat::CardUse::SHOWN) shown.push_back(block.name);
    }
    EXPECT_THAT(shown,
                ElementsAre("elastic", "density", "thermal_expansion", "conductivity", "specific_heat"));
}

TEST(CardBlocks, HaveNoOthers) {
    EXPECT_EQ(zelmat::FindCardBlock("elastc"), nullptr);
}

}  // namespace
