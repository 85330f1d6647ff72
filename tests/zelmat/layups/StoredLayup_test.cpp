#include "zelmat/layups/StoredLayup.h"

#include <gmock/gmock.h>

namespace {

using testing::DoubleEq;
using testing::ElementsAre;
using zelmat::StoredLayup;

StoredLayup Layup(std::vector<zelmat::StoredLayer> layers) {
    return {.name = "Layup-1", .layers = std::move(layers)};
}

TEST(StoredLayup, HasOneInterfaceMoreThanLayersFromTheBottomUp) {
    const StoredLayup layup = Layup({{"A", 0.001, 0.0}, {"A", 0.003, 90.0}});

    EXPECT_THAT(layup.Interfaces(), ElementsAre(DoubleEq(-0.002), DoubleEq(-0.001), DoubleEq(0.002)));
    EXPECT_EQ(layup.Thickness(), 0.004);
}

TEST(StoredLayup, HasOneInterfaceWithoutLayers) {
    EXPECT_THAT(Layup({}).Interfaces(), ElementsAre(0.0));
    EXPECT_EQ(Layup({}).Thickness(), 0.0);
    EXPECT_EQ(Layup({}).Notation(), "");
}

TEST(StoredLayup, IsOfOnePlyWhenMaterialAndThicknessAgree) {
    EXPECT_TRUE(Layup({{"A", 0.001, 0.0}, {"A", 0.001, 90.0}}).IsOfOnePly());
    EXPECT_FALSE(Layup({{"A", 0.001, 0.0}, {"B", 0.001, 0.0}}).IsOfOnePly());
    EXPECT_FALSE(Layup({{"A", 0.001, 0.0}, {"A", 0.002, 0.0}}).IsOfOnePly());
    EXPECT_FALSE(Layup({{"A", 0.001, 0.0}, {std::nullopt, 0.001, 0.0}}).IsOfOnePly());
    EXPECT_TRUE(Layup({}).IsOfOnePly());
}

TEST(StoredLayup, IsWrittenAsANotationOfItsAngles) {
    EXPECT_EQ(
        Layup({{"A", 0.001, 0.0}, {"A", 0.001, 90.0}, {"A", 0.001, 90.0}, {"A", 0.001, 0.0}}).Notation(),
        "[0/90]s");
}

TEST(StoredLayup, CountsItsLayers) {
    EXPECT_EQ(Layup({}).LayerCount(), "0 layers");
    EXPECT_EQ(Layup({{"A", 0.001, 0.0}}).LayerCount(), "1 layer");
    EXPECT_EQ(Layup({{"A", 0.001, 0.0}, {"A", 0.001, 0.0}}).LayerCount(), "2 layers");
}

}  // namespace
