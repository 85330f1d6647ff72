#include "zelmat/quantities/UnitDatabase.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cstdlib>
#include <string>

#include "tests/zelmat/quantities/CommaLocale.h"
#include "zelmat/quantities/Unit.h"

namespace zelmat {
namespace {

double Size(const char* word) {
    const auto meaning = FindDatabaseWord(word);
    EXPECT_TRUE(meaning) << word;
    return meaning ? static_cast<double>(meaning->factor.Quotient()) : 0.0;
}

TEST(UnitDatabase, KnowsRarerUnitsAndLongNames) {
    EXPECT_DOUBLE_EQ(Size("furlong"), 201.1684023368047);  // of 660 US survey feet
    EXPECT_DOUBLE_EQ(Size("poise"), 0.1);
    EXPECT_DOUBLE_EQ(Size("kilonewton"), 1000.0);
    EXPECT_DOUBLE_EQ(Size("megapascal"), 1e6);
    EXPECT_DOUBLE_EQ(Size("millimeter"), 1e-3);
    EXPECT_EQ(FindDatabaseWord("megapascal")->dimension, Unit::Read("MPa")->Dimension());
}

TEST(UnitDatabase, RefusesWhatIsNoUnitAndScalesThatAreNoFactor) {
    for (const char* word :
         {"", "mpa", "blah", "celsius", "kilo", "kilocelsius", "dBZ", "pa", "PASCALS_AND"}) {
        EXPECT_FALSE(FindDatabaseWord(word)) << word;
    }
    EXPECT_FALSE(FindDatabaseWord(std::string_view("m\0", 2)));
}

TEST(UnitDatabase, ReadsItsFactorsInEveryLocale) {
    const CommaLocale comma;
    if (!comma.IsSet()) GTEST_SKIP() << "no locale with a decimal comma is installed";

    EXPECT_DOUBLE_EQ(Size("fathom"), 1.8288036576073152);
    EXPECT_STREQ(std::setlocale(LC_ALL, nullptr), "de_DE.UTF-8");
}

// In a process of its own, since the database is read once.
TEST(UnitDatabaseDeathTest, WithoutADatabaseTheWordsOfTheFieldAreStillKnownAndNothingIsPrinted) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto onlyOursAreKnown = [] {
        setenv("UDUNITS2_XML_PATH", "/nonexistent/udunits2.xml", 1);
        return !FindDatabaseWord("furlong") && !Unit::Read("furlong") && Unit::Read("Btu/(h ft degF)");
    };
    EXPECT_EXIT(std::exit(onlyOursAreKnown() ? 0 : 1), testing::ExitedWithCode(0), "^$");
}

}  // namespace
}  // namespace zelmat
