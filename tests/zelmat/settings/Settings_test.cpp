#include "zelmat/settings/Settings.h"

#include <gtest/gtest.h>

#include <map>

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

TEST(Settings, TellHowMuchHistoryIsKept) {
    Settings settings;
    EXPECT_EQ(settings.HistorySteps(), std::nullopt);
    EXPECT_EQ(settings.HistoryBytes(), std::nullopt);

    EXPECT_TRUE(Set(settings, "history-steps", "200"));
    EXPECT_EQ(settings.HistorySteps(), 200);
    EXPECT_TRUE(Set(settings, "history-steps", "0"));
    EXPECT_EQ(settings.HistorySteps(), 0);
    for (const auto& [text, bytes] : std::map<std::string, std::int64_t>{
             {"4096", 4096}, {"64MB", 67108864}, {"1.5 kB", 1536}, {"2GiB", 2147483648}, {"0", 0}}) {
        EXPECT_TRUE(Set(settings, "history-bytes", text)) << text;
        EXPECT_EQ(settings.HistoryBytes(), bytes) << text;
    }
    EXPECT_TRUE(Set(settings, "history-bytes", ""));
    EXPECT_EQ(settings.HistoryBytes(), std::nullopt);
}

TEST(Settings, SayWhatIsExpectedOfAWrongAmountOfHistory) {
    Settings settings;
    for (const char* wrong : {"many", "-1", "1.5", "1e3", "10 steps", "1000000001", "99999999999999999999"}) {
        EXPECT_EQ(
            Set(settings, "history-steps", wrong).Error().text,
            "history-steps: expected a whole number from 0 to 1000000000, not '" + std::string(wrong) + "'");
    }
    for (const char* wrong : {"much", "64 MP", "64MB now", "MB"}) {
        EXPECT_EQ(Set(settings, "history-bytes", wrong).Error().text,
                  "history-bytes: expected a number of bytes, as in 64MB, not '" + std::string(wrong) +
                      "'; units are kB, MB and GB");
    }
    for (const char* wrong : {"-1", "1e30", "1048577 GB"}) {
        EXPECT_EQ(Set(settings, "history-bytes", wrong).Error().text,
                  "history-bytes: expected from 0 to 1048576 GB, not '" + std::string(wrong) + "'");
    }
    EXPECT_EQ(settings.HistorySteps(), std::nullopt);
    EXPECT_EQ(settings.HistoryBytes(), std::nullopt);
}

TEST(Settings, NameTheNearestOneForAnUnknownOne) {
    Settings settings;

    EXPECT_EQ(Set(settings, "unit", "us").Error().text, "there is no setting 'unit'; is 'units' meant?");
    EXPECT_EQ(Set(settings, "colour", "no").Error().text,
              "there is no setting 'colour'; known: units, history-steps, history-bytes");
}

}  // namespace
