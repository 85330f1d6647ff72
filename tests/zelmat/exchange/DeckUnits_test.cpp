#include "zelmat/exchange/DeckUnits.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using zelmat::DeckUnits;

DeckUnits Read(const std::string& units) {
    zelmat::Findings findings;
    return DeckUnits::Read(units, findings).value();
}

TEST(DeckUnits, AreSiUnlessOthersAreSaid) {
    EXPECT_EQ(Read("").For("stress").Spelling(), "Pa");
    EXPECT_EQ(Read("stress=MPa").For("temperature").Spelling(), "K");
    EXPECT_EQ(Read("mm-t-s").For("density").Spelling(), "t/mm3");
}

TEST(DeckUnits, KnowAbsoluteZero) {
    EXPECT_EQ(Read("").AbsoluteZero(), 0.0);
    EXPECT_EQ(Read("mm-t-s").AbsoluteZero(), -273.15);
}

TEST(DeckUnits, FindWhatASolverCannotPutTogether) {
    EXPECT_THAT(Read("").Inconsistent(), IsEmpty());
    EXPECT_THAT(Read("mm-t-s").Inconsistent(), IsEmpty());
    EXPECT_THAT(Read("mm-kg-ms").Inconsistent(), IsEmpty());
    EXPECT_THAT(Read("si,stress=MPa").Inconsistent(),
                ElementsAre("density in kg/m3", "conductivity in W/(m K)", "compressibility in 1/Pa"));
    EXPECT_THAT(Read("us").Inconsistent(),
                ElementsAre("density in lb/in^3", "conductivity in Btu/(h ft degF)",
                            "specific_heat in Btu/(lb degF)"));
}

TEST(DeckUnits, RefuseWordsThatAreNone) {
    zelmat::Findings findings;
    EXPECT_FALSE(DeckUnits::Read("furlongs", findings));
    EXPECT_EQ(findings.Exit(), zelmat::EXIT_USAGE);
}

}  // namespace
