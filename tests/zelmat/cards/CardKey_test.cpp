#include "zelmat/cards/CardKey.h"

#include <gtest/gtest.h>

namespace {

using zelmat::CardKey;

TEST(CardKey, IsThatOfTheTableOfAPropertyBesideTheBlocks) {
    EXPECT_EQ(CardKey("E"), "elastic.youngs_modulus");
    EXPECT_EQ(CardKey("Young's modulus"), "elastic.youngs_modulus");
    EXPECT_EQ(CardKey("nu"), "elastic.poissons_ratio");
    EXPECT_EQ(CardKey("rho"), "density");
    EXPECT_EQ(CardKey("CTE"), "thermal_expansion");
    EXPECT_EQ(CardKey("k"), "conductivity");
}

TEST(CardKey, HasTheHousesNamesOfBlockColumnAndSetting) {
    EXPECT_EQ(CardKey("Linear Elastic.YoungModulus"), "elastic.youngs_modulus");
    EXPECT_EQ(CardKey("expansion.Tref"), "thermal_expansion.reference_temperature");
    EXPECT_EQ(CardKey("gasket.loading.Closure"), "gasket.loading.closure");
    EXPECT_EQ(CardKey("Plasticity.TMelt"), "plastic.melting_temperature");
    EXPECT_EQ(CardKey("Elasticity.enabled"), "elastic.enabled");
}

TEST(CardKey, IsTheBlockAloneWhereThatIsOneNumber) {
    EXPECT_EQ(CardKey("density.density"), "density");
    EXPECT_EQ(CardKey("density.rho"), "density");
    EXPECT_EQ(CardKey("thermal_expansion.alpha"), "thermal_expansion");
}

TEST(CardKey, IsWhatWasGivenWhereNothingElseIsMeant) {
    for (const char* key : {"", ".", "elastic", "elastic.", "plastic.E", "plastic.A", "hyperelastic.mu_1",
                            "other_properties.E1", "description", "T", "gasket.loading", "colour.red"}) {
        EXPECT_EQ(CardKey(key), key);
    }
}

}  // namespace
