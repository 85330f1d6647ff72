#include "zelmat/text/LengthText.h"

#include <gmock/gmock.h>

#include <limits>

namespace {

using testing::Optional;
using zelmat::LengthUnits;
using zelmat::Millimetres;
using zelmat::ReadLength;

TEST(LengthText, ReadsANumberAndItsUnit) {
    EXPECT_THAT(ReadLength("0.125mm"), Optional(0.000125));
    EXPECT_THAT(ReadLength("0.127 mm"), Optional(0.000127));
    EXPECT_THAT(ReadLength("125um"), Optional(0.000125));
    EXPECT_THAT(ReadLength("2e-3 m"), Optional(0.002));
    EXPECT_THAT(ReadLength("1.5cm"), Optional(0.015));
    EXPECT_THAT(ReadLength("0.005in"), Optional(0.000127));
    EXPECT_THAT(ReadLength("1ft"), Optional(0.3048));
    EXPECT_THAT(ReadLength("2 km"), Optional(2000.0));
    EXPECT_THAT(ReadLength("-1mm"), Optional(-0.001));
}

TEST(LengthText, RefusesWhatIsNoLength) {
    for (const char* text : {"", "mm", "0.125", "0.125 ", "0,125mm", "0.125MM", "0.125 kg", "0.125mm thick",
                             "a1mm", "1e999mm", " 1mm"}) {
        EXPECT_EQ(ReadLength(text), std::nullopt) << text;
    }
}

TEST(LengthText, NamesItsUnits) {
    EXPECT_EQ(LengthUnits(), "m, mm, cm, um, km, in, ft");
}

TEST(LengthText, WritesMillimetresWithoutTheNoiseOfSums) {
    EXPECT_EQ(Millimetres(0.000125), "0.125");
    EXPECT_EQ(Millimetres(0.1 + 0.2), "300");
    EXPECT_EQ(Millimetres(-0.0005), "-0.5");
    EXPECT_EQ(Millimetres(1.084e-19), "0");
    EXPECT_EQ(Millimetres(-1.084e-19), "0") << "no minus zero";
    EXPECT_EQ(Millimetres(0.000127 * 3), "0.381");
}

}  // namespace
