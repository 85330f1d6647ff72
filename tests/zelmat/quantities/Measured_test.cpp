#include "zelmat/quantities/Measured.h"

#include <gtest/gtest.h>

#include <string>

namespace zelmat {
namespace {

double Stored(const std::string& text, const char* quantity) {
    const auto measured = ReadMeasured(text, *FindQuantity(quantity));
    EXPECT_TRUE(measured) << text << ": " << (measured ? "" : measured.Error().text);
    return measured ? *measured->Stored(*FindQuantity(quantity)) : 0.0;
}

std::string Refusal(const std::string& text, const char* quantity) {
    const auto measured = ReadMeasured(text, *FindQuantity(quantity));
    return measured ? "read" : measured.Error().text;
}

TEST(Measured, IsReadWithAndWithoutABlank) {
    EXPECT_EQ(Stored("7.85 g/cm^3", "density"), 7850.0);
    EXPECT_EQ(Stored("210GPa", "stress"), 210e9);
    EXPECT_EQ(Stored("20degC", "temperature"), 293.15);
    EXPECT_EQ(Stored("20 °C", "temperature"), 293.15);
    EXPECT_EQ(Stored("-40°F", "temperature"), 233.15);
    EXPECT_EQ(Stored("12e-6/K", "expansion"), 12e-6);
    EXPECT_EQ(Stored("12 µm/m/K", "expansion"), 12e-6);
    EXPECT_EQ(Stored("12 1e-6/K", "expansion"), 12e-6);
    EXPECT_EQ(Stored("5e-3in", "length"), 0.000127);
    EXPECT_EQ(Stored("5mil", "length"), 0.000127);
    EXPECT_EQ(Stored("45°", "angle"), 45.0);
    EXPECT_EQ(Stored("26%", "strain"), 0.26);
    EXPECT_EQ(Stored("2000microstrain", "strain"), 0.002);
    EXPECT_EQ(Stored("0.50 kJ/kg/K", "specific_heat"), 500.0);
}

TEST(Measured, ABareNumberDoesOnlyForAPureNumber) {
    EXPECT_EQ(Stored("0.3", "number"), 0.3);
    EXPECT_EQ(Stored("0.3 -", "number"), 0.3);
    EXPECT_EQ(Refusal("45", "angle"), "angle: '45' has no unit; expected deg, rad or gon");
    EXPECT_EQ(ReadMeasured("0.3").Error().text, "'0.3' has no unit");
}

TEST(Measured, IsWrittenAsItWasRead) {
    for (const char* text :
         {"7.85 g/cm^3", "11.7 µm/m/K", "20 °C", "2.1e+11 Pa", "0.30000000000000004 W/m/K"}) {
        const auto measured = ReadMeasured(text);
        ASSERT_TRUE(measured) << text;
        EXPECT_EQ(measured->Text(), text);
    }
    EXPECT_EQ(ReadMeasured("0.3 -")->Text(), "0.3");
    EXPECT_EQ(ReadMeasured("210GPa")->Text(), "210 GPa");
}

TEST(Measured, ThousandsThatAreSetApartAreRefused) {
    const std::string tail =
        " has a number that is neither 1 nor a power of ten such as 1e-6; expected Pa, kPa, MPa, GPa, "
        "N/mm^2, bar, psi, "
        "ksi, Msi or kgf/mm^2";
    EXPECT_EQ(Refusal("1 200 MPa", "stress"), "stress: the unit '200 MPa'" + tail);
    EXPECT_EQ(Refusal("1 100 MPa", "stress"), "stress: the unit '100 MPa'" + tail);
    EXPECT_EQ(Refusal("1 000 MPa", "stress"), "stress: the unit '000 MPa'" + tail);
    EXPECT_EQ(Refusal("1,200 MPa", "stress"),
              "stress: '1,200 MPa' has a comma in its number; the decimal sign is a point");
}

TEST(Measured, WhatNoDoubleHoldsInTheStoredUnitIsRefused) {
    const Quantity& stress = *FindQuantity("stress");
    const auto large = ReadMeasured("1e305 MPa", stress)->Stored(stress);
    ASSERT_FALSE(large);
    EXPECT_EQ(large.Error().text, "stress: 1e+305 MPa is beyond what a number in Pa can hold");

    const Quantity& length = *FindQuantity("length");
    EXPECT_FALSE(ReadMeasured("1e-305 mm", length)->Stored(length));
    EXPECT_EQ(*ReadMeasured("1e-300 mm", length)->Stored(length), 1e-303);
}

TEST(Measured, RefusesWhatIsNoNumber) {
    EXPECT_EQ(Refusal("nan MPa", "stress"), "stress: 'nan MPa' does not begin with a number");
    EXPECT_EQ(Refusal("1e-400 MPa", "stress"),
              "stress: '1e-400 MPa' is beyond what a number can hold, about 5e-324 to 1.8e308");
    EXPECT_EQ(Refusal("0x1p3 MPa", "stress"), "stress: '0x1p3 MPa' is not a decimal number");
    EXPECT_NE(Refusal("1e5e5 MPa", "stress"), "read");
    EXPECT_FALSE(ReadMeasured("MPa"));
}

}  // namespace
}  // namespace zelmat
