#include "zelmat/layups/LayupCard.h"

#include <gtest/gtest.h>

namespace {

using zelmat::PlyMaterial;

TEST(PlyMaterial, GivesItsConstantsByName) {
    const PlyMaterial ply{"Ply", {{"E1", 181e9}}, ""};

    EXPECT_EQ(ply.Constant("E1"), 181e9);
    EXPECT_EQ(ply.Constant("E2"), std::nullopt);
}

TEST(PlyMaterial, IsIsotropicWhenItsConstantsAgree) {
    EXPECT_TRUE((PlyMaterial{"Foam", {{"E1", 105e6}, {"E2", 105e6}, {"nu12", 0.4}, {"G12", 37.5e6}}, ""}
                     .IsIsotropic()));
    EXPECT_TRUE((
        PlyMaterial{"Steel", {{"E1", 210e9}, {"E2", 210e9}, {"nu12", 0.3}, {"G12", 81e9}}, ""}.IsIsotropic()))
        << "80.77e9 when it is not rounded";
    EXPECT_TRUE((PlyMaterial{"Resin", {{"E1", 3e9}, {"nu12", 0.35}}, ""}.IsIsotropic()));
    EXPECT_TRUE((PlyMaterial{"Core", {{"E", 105e6}, {"nu", 0.4}}, ""}.IsIsotropic()))
        << "as a document's materials are";
}

TEST(PlyMaterial, IsNotIsotropicWithADirectionOrWhenNothingIsKnown) {
    EXPECT_FALSE((PlyMaterial{"Tape", {{"E1", 181e9}, {"E2", 10.3e9}, {"nu12", 0.28}, {"G12", 7.17e9}}, ""}
                      .IsIsotropic()));
    EXPECT_FALSE((
        PlyMaterial{"Fabric", {{"E1", 70e9}, {"E2", 70e9}, {"nu12", 0.05}, {"G12", 5e9}}, ""}.IsIsotropic()));
    EXPECT_FALSE((PlyMaterial{"Unknown", {}, ""}.IsIsotropic()));
    EXPECT_FALSE((PlyMaterial{"Half", {{"E1", 70e9}}, ""}.IsIsotropic()));
}

}  // namespace
