#include "zelmat/materials/BlockKind.h"

#include <gmock/gmock.h>

#include "tests/zelmat/support/BehaviorBlocks.h"
#include "zelmat/materials/Values.h"

namespace {

using testing::ElementsAre;
using zelmat::FindBlockKind;
using zelmat::Values;

/// "name [unit]" of every column that a table of a block has.
std::vector<std::string> Columns(const char* block, bool temperatureDependent, const char* table = "",
                                 const Values& values = {}) {
    std::vector<std::string> columns;
    const auto form = FindBlockKind(block)->FindTable(table)->form(values);
    for (const auto& column : form.value().ColumnsOf(temperatureDependent)) {
        columns.push_back(column.name + " [" + column.unit + "]");
    }
    return columns;
}

Values Hardening(const char* hardening) {
    Values values;
    values.Set("hardening", std::string(hardening));
    return values;
}

TEST(BlockKinds, NameTheColumnsAndUnitsOfEveryTable) {
    EXPECT_THAT(Columns("elastic", false), ElementsAre("youngs_modulus [Pa]", "poissons_ratio [-]"));
    EXPECT_THAT(Columns("density", false), ElementsAre("density [kg/m3]"));
    EXPECT_THAT(Columns("thermal_expansion", false), ElementsAre("thermal_expansion [1/K]"));
    EXPECT_THAT(Columns("conductivity", false), ElementsAre("conductivity [W/(m K)]"));
    EXPECT_THAT(Columns("specific_heat", false), ElementsAre("specific_heat [J/(kg K)]"));
}

TEST(BlockKinds, CloseATemperatureDependentTableWithTheTemperature) {
    EXPECT_THAT(Columns("elastic", true),
                ElementsAre("youngs_modulus [Pa]", "poissons_ratio [-]", "temperature [K]"));
}

TEST(BlockKinds, GiveThePlasticCurvesAlwaysATemperatureAndJohnsonCookNever) {
    for (const bool flag : {false, true}) {
        for (const char* hardening : {"isotropic", "kinematic"}) {
            EXPECT_THAT(Columns("plastic", flag, "", Hardening(hardening)),
                        ElementsAre("yield_stress [Pa]", "plastic_strain [-]", "temperature [K]"));
        }
        EXPECT_THAT(Columns("plastic", flag, "", Hardening("johnson-cook")),
                    ElementsAre("A [Pa]", "B [Pa]", "n [-]", "m [-]", "melting_temperature [K]",
                                "transition_temperature [K]"));
    }
}

TEST(BlockKinds, GiveTheGasketTablesAlwaysATemperature) {
    EXPECT_THAT(Columns("gasket", false, "loading"),
                ElementsAre("pressure [Pa]", "closure [m]", "temperature [K]"));
    EXPECT_THAT(Columns("gasket", false, "unloading_elastic_plastic"),
                ElementsAre("pressure [Pa]", "closure [m]", "plastic_closure [m]", "temperature [K]"));
    EXPECT_THAT(Columns("gasket", false, "unloading_damage"),
                ElementsAre("pressure [Pa]", "closure [m]", "max_closure [m]", "temperature [K]"));
    EXPECT_THAT(Columns("gasket_membrane", false),
                ElementsAre("youngs_modulus [Pa]", "poissons_ratio [-]", "temperature [K]"));
    EXPECT_THAT(Columns("gasket_transverse_shear", false),
                ElementsAre("shear_stiffness [Pa/m]", "temperature [K]"));
}

TEST(BlockKinds, ReachABehaviorUnlessTheyAreForInformation) {
    std::vector<std::string> behaviors;
    for (const auto& block : zelmat::BlockKinds()) {
        EXPECT_EQ(block.write != nullptr, block.use == zelmat::BlockUse::BEHAVIOR) << block.name;
        EXPECT_EQ(block.read != nullptr, block.use == zelmat::BlockUse::BEHAVIOR) << block.name;
        if (block.use == zelmat::BlockUse::BEHAVIOR) behaviors.push_back(block.name);
    }
    EXPECT_EQ(behaviors, BehaviorBlocks());
}

TEST(BlockKinds, NameTheirTables) {
    const auto* gasket = FindBlockKind("gasket");
    EXPECT_EQ(gasket->TableName(*gasket->FindTable("loading")), "gasket.loading");
    const auto* density = FindBlockKind("density");
    EXPECT_EQ(density->TableName(*density->FindTable("")), "density");
    EXPECT_EQ(density->FindTable("loading"), nullptr);
}

TEST(BlockKinds, HaveNoOthers) {
    EXPECT_EQ(FindBlockKind("elastc"), nullptr);
}

}  // namespace
