#include "zelmat/settings/Settings.h"

#include <gtest/gtest.h>

namespace {

using zelmat::FindQuantity;
using zelmat::Set;
using zelmat::Settings;

std::string TextUnitOf(const char* quantity, const Settings& settings) {
    return settings.TextUnits().For(*FindQuantity(quantity)).Spelling();
}

TEST(Settings, ShowTextInMegapascalsAndDegreesUntilSomethingIsSet) {
    const Settings settings;

    EXPECT_EQ(TextUnitOf("stress", settings), "MPa");
    EXPECT_EQ(TextUnitOf("temperature", settings), "degC");
}

TEST(Settings, TakeASystemOrSingleUnits) {
    Settings settings;

    EXPECT_TRUE(Set(settings, "units", "us"));
    EXPECT_EQ(TextUnitOf("stress", settings), "psi");
    EXPECT_TRUE(Set(settings, "units", "stress=ksi"));
    EXPECT_EQ(TextUnitOf("stress", settings), "ksi");
    EXPECT_EQ(TextUnitOf("temperature", settings), "degC");
    EXPECT_TRUE(Set(settings, "units", ""));
    EXPECT_EQ(TextUnitOf("stress", settings), "MPa");
}

TEST(Settings, StayAsTheyAreWhenAValueIsNoChoice) {
    Settings settings;
    ASSERT_TRUE(Set(settings, "units", "us"));

    const auto wrong = Set(settings, "units", "stress=kg");

    ASSERT_FALSE(wrong);
    EXPECT_TRUE(wrong.Error().text.starts_with("units: ")) << wrong.Error().text;
    EXPECT_EQ(settings.units, "us");
}

TEST(Settings, NameTheNearestOneForAnUnknownOne) {
    Settings settings;

    EXPECT_EQ(Set(settings, "unit", "us").Error().text, "there is no setting 'unit'; is 'units' meant?");
    EXPECT_EQ(Set(settings, "colour", "no").Error().text, "there is no setting 'colour'; known: units");
}

}  // namespace
