#include "zelmat/checks/PlausibleBands.h"

#include <gmock/gmock.h>

#include <set>

#include "zelmat/quantities/Quantity.h"

namespace {

using namespace zelmat;

TEST(PlausibleBands, HaveOneOfAnyClassForEveryProperty) {
    for (const PlausibleProperty& property : PlausibleProperties()) {
        EXPECT_STREQ(BandOf(property, "").materialClass, "any") << property.name;
        EXPECT_STREQ(BandOf(property, "wood").materialClass, "any") << property.name;
    }
}

TEST(PlausibleBands, LieWithinWhatThereCanBeAndComeFromSomewhere) {
    std::set<std::pair<std::string, std::string>> told;
    for (const PlausibleBand& band : PlausibleBands()) {
        const PlausibleProperty& property = FindPlausibleProperty(band.property);
        EXPECT_TRUE(told.insert({band.property, band.materialClass}).second);
        EXPECT_LT(band.low, band.high) << band.property << band.materialClass;
        EXPECT_GE(band.low, property.least) << band.property << band.materialClass;
        EXPECT_LE(band.high, property.most) << band.property << band.materialClass;
        EXPECT_STRNE(band.source, "");
    }
}

TEST(PlausibleBands, NameUnitsThatTheirQuantityHas) {
    for (const PlausibleProperty& property : PlausibleProperties()) {
        const Quantity* quantity = FindQuantity(property.quantity);
        ASSERT_TRUE(quantity) << property.name;
        for (const char* unit : property.usualUnits) {
            if (unit) {
                EXPECT_TRUE(ReadUnit(unit, *quantity)) << unit;
            }
        }
    }
}

TEST(PlausibleBands, AreThereForTheClassesOfTheField) {
    EXPECT_THAT(PlausibleClasses(), testing::UnorderedElementsAre("metal", "polymer", "ceramic", "elastomer",
                                                                  "composite", "concrete", "foam"));
}

}  // namespace
