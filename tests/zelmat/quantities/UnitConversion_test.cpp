#include "zelmat/quantities/UnitConversion.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <vector>

namespace zelmat {
namespace {

Unit Read(const std::string& text) {
    return *Unit::Read(text);
}

double Convert(double value, const std::string& from, const std::string& to) {
    const auto converted = UnitConversion(Read(from), Read(to), true)(value);
    EXPECT_TRUE(converted) << value << " " << from << " in " << to;
    return converted.value_or(0.0);
}

/// Places of the last digit between two doubles, in those of `size`.
double Ulps(double found, double expected, double size) {
    const double next = std::nextafter(std::abs(size), std::numeric_limits<double>::infinity());
    return std::abs(found - expected) / (next - std::abs(size));
}

struct Published {
    const char* from;
    const char* to;
    double factor;
    double relative;  ///< how far the published digits go; 0 where the factor is exact
};

class PublishedFactor : public testing::TestWithParam<Published> {};

TEST_P(PublishedFactor, IsWhatConversionGives) {
    const auto& [from, to, factor, relative] = GetParam();

    const double found = Convert(1.0, from, to);

    if (relative == 0.0) {
        EXPECT_LE(Ulps(found, factor, factor), 2.0) << from << ": " << found;
    } else {
        EXPECT_NEAR(found / factor, 1.0, relative) << from << ": " << found;
    }
}

// NIST Special Publication 811 (2008), appendix B.8; the exact ones from the definitions that it gives there:
// 1 in = 0.0254 m, 1 lb = 0.45359237 kg, g_n = 9.80665 m/s2, 1 Btu_IT = 1055.05585262 J.
INSTANTIATE_TEST_SUITE_P(
    Nist811, PublishedFactor,
    testing::Values(
        Published{"psi", "Pa", 6.894757e3, 1e-7}, Published{"psi", "Pa", 6894.7572931683613, 0.0},
        Published{"ksi", "MPa", 6.894757, 1e-7}, Published{"Msi", "GPa", 6.8947572931683613, 0.0},
        Published{"lbf/in^2", "Pa", 6894.7572931683613, 0.0}, Published{"psf", "Pa", 4.788026e1, 1e-7},
        Published{"lbf", "N", 4.4482216152605, 0.0}, Published{"kip", "kN", 4.4482216152605, 0.0},
        Published{"kgf", "N", 9.80665, 0.0}, Published{"kp/cm^2", "Pa", 98066.5, 0.0},
        Published{"kgf/mm^2", "MPa", 9.80665, 0.0}, Published{"bar", "Pa", 1e5, 0.0},
        Published{"atm", "Pa", 101325.0, 0.0}, Published{"Torr", "Pa", 133.32236842105263, 0.0},
        Published{"pcf", "kg/m3", 1.601846e1, 1e-6}, Published{"cc", "m3", 1e-6, 0.0},
        Published{"µin", "m", 2.54e-8, 0.0}, Published{"kNm", "N m", 1000.0, 0.0},
        Published{"Nmm/mm", "N", 1.0, 0.0}, Published{"dyn/cm^2", "Pa", 0.1, 0.0},
        Published{"in", "m", 0.0254, 0.0}, Published{"ft", "m", 0.3048, 0.0},
        Published{"yd", "m", 0.9144, 0.0}, Published{"mil", "m", 2.54e-5, 0.0},
        Published{"angstrom", "m", 1e-10, 0.0}, Published{"lb", "kg", 0.45359237, 0.0},
        Published{"slug", "kg", 1.459390e1, 1e-6}, Published{"short_ton", "kg", 9.071847e2, 1e-7},
        Published{"long_ton", "kg", 1.016047e3, 1e-6}, Published{"lb/in^3", "kg/m3", 2.767990e4, 1e-6},
        Published{"lb/ft^3", "kg/m3", 1.601846e1, 1e-6}, Published{"slug/ft^3", "kg/m3", 5.153788e2, 1e-7},
        Published{"Btu", "J", 1055.05585262, 0.0}, Published{"Btu_th", "J", 1.054350e3, 1e-6},
        Published{"cal_th", "J", 4.184, 0.0}, Published{"cal_IT", "J", 4.1868, 0.0},
        Published{"Btu/(h ft degF)", "W/(m K)", 1.730735, 1e-6},
        Published{"Btu in/(h ft^2 degF)", "W/(m K)", 1.442279e-1, 1e-6},
        Published{"Btu/(lb degF)", "J/(kg K)", 4186.8, 0.0},
        Published{"cal_th/(g degC)", "J/(kg K)", 4184.0, 0.0}, Published{"lbf in", "N m", 1.129848e-1, 1e-6},
        Published{"lbf/in", "N/m", 1.751268e2, 1e-6}, Published{"deg", "rad", 1.745329e-2, 1e-6},
        Published{"deg", "rad", 0.017453292519943295, 0.0}, Published{"gon", "deg", 0.9, 0.0},
        Published{"h", "s", 3600.0, 0.0}, Published{"L", "m3", 1e-3, 0.0}));

// What divides and multiplies in one go has no factor in between that is rounded: the exact quotients, worked
// out by hand from the definitions above.
INSTANTIATE_TEST_SUITE_P(
    Compounds, PublishedFactor,
    testing::Values(Published{"psi/in", "Pa/m", 271447.13752631344, 0.0},
                    Published{"1/psi", "1/Pa", 0.00014503773773020923, 0.0},
                    Published{"lbf s2/in4", "kg/m3", 10686895.178201316, 0.0},
                    Published{"slinch/in3", "kg/m3", 10686895.178201316, 0.0},
                    Published{"1/degF", "1/K", 1.8, 0.0}, Published{"mJ/(t K)", "J/(kg K)", 1e-6, 0.0},
                    Published{"mW/(mm K)", "W/(m K)", 1.0, 0.0}, Published{"kW/(mm K)", "W/(m K)", 1e6, 0.0},
                    Published{"t/mm3", "kg/m3", 1e12, 0.0}, Published{"g/cm^3", "kg/m3", 1000.0, 0.0},
                    Published{"GPa/mm", "Pa/m", 1e12, 0.0}));

TEST(UnitConversion, NumbersOfFewDigitsKeepThem) {
    EXPECT_EQ(Convert(0.127, "mm", "m"), 0.000127);
    EXPECT_EQ(Convert(0.000127, "m", "mm"), 0.127);
    EXPECT_EQ(Convert(5e-3, "in", "m"), 0.000127);
    EXPECT_EQ(Convert(7.85, "g/cm^3", "kg/m3"), 7850.0);
    EXPECT_EQ(Convert(7.85e-9, "t/mm3", "kg/m3"), 7850.0);
    EXPECT_EQ(Convert(7850.0, "kg/m3", "t/mm3"), 7.85e-9);
    EXPECT_EQ(Convert(11.7, "µm/m/K", "1/K"), 11.7e-6);
    EXPECT_EQ(Convert(210.0, "GPa", "Pa"), 210e9);
    EXPECT_EQ(Convert(7.85, "g/cc", "kg/m3"), 7850.0);
    EXPECT_EQ(Convert(6.5, "µin/in/degF", "1/K"), 11.7e-6);
    EXPECT_EQ(Convert(0.1, "MPa", "Pa"), 1e5);
    EXPECT_EQ(Convert(2.3, "%", "-"), 0.023);
    EXPECT_EQ(Convert(57.7, "kPa", "MPa"), 0.0577);
}

TEST(UnitConversion, EveryNumberOfThreeDigitsIsTheDecimalOneInMetres) {
    for (int i = 1; i < 1000; ++i) {
        const std::string digits = std::to_string(i);
        const double millimetres = std::stod(digits + "e-3");
        EXPECT_EQ(Convert(millimetres, "mm", "m"), std::stod(digits + "e-6"));
        EXPECT_EQ(Convert(std::stod(digits + "e-6"), "m", "mm"), millimetres);
    }
}

TEST(UnitConversion, TemperaturesConvertWithTheirOffset) {
    EXPECT_EQ(Convert(20.0, "degC", "K"), 293.15);
    EXPECT_EQ(Convert(293.15, "K", "degC"), 20.0);
    EXPECT_EQ(Convert(0.0, "degC", "K"), 273.15);
    EXPECT_EQ(Convert(273.15, "K", "°C"), 0.0);
    EXPECT_EQ(Convert(-273.15, "degC", "K"), 0.0);
    EXPECT_EQ(Convert(0.0, "K", "degC"), -273.15);
    EXPECT_EQ(Convert(32.0, "degF", "K"), 273.15);
    EXPECT_EQ(Convert(68.0, "degF", "K"), 293.15);
    EXPECT_EQ(Convert(293.15, "K", "degF"), 68.0);
    EXPECT_EQ(Convert(212.0, "degF", "degC"), 100.0);
    EXPECT_EQ(Convert(-40.0, "degC", "degF"), -40.0);
    EXPECT_EQ(Convert(0.0, "K", "degF"), -459.67);
    EXPECT_EQ(Convert(527.67, "degR", "K"), 293.15);
    EXPECT_EQ(Convert(20.05, "degC", "K"), 293.2);
}

TEST(UnitConversion, EveryTenthOfADegreeComesBack) {
    for (int i = -2731; i < 20000; ++i) {
        const double celsius = i / 10.0;
        EXPECT_EQ(Convert(Convert(celsius, "degC", "K"), "K", "degC"), celsius);
    }
}

TEST(UnitConversion, OffsetTemperaturesAreRightToTwoPlacesOfTheLargerOfValueAndOffset) {
    // Worked out in fractions and rounded once.
    EXPECT_LE(Ulps(Convert(0.1 + 0.2, "degC", "K"), 273.45, 273.15), 2.0);
    EXPECT_LE(Ulps(Convert(1.0 / 3.0, "degC", "K"), 273.48333333333335, 273.15), 2.0);
    EXPECT_LE(Ulps(Convert(100.0, "degF", "K"), 310.92777777777778, 310.9), 2.0);
    EXPECT_LE(Ulps(Convert(1234.5678901234567, "K", "degF"), 1762.5522022222221, 1762.0), 2.0);
    EXPECT_LE(Ulps(Convert(1e17, "degC", "K"), 1.0000000000000027e17, 1e17), 2.0);
}

TEST(UnitConversion, AScaleIsADifferenceWhereItIsNoPoint) {
    const UnitConversion difference(Read("degC"), Read("K"), false);
    EXPECT_EQ(difference(20.0), 20.0);
    EXPECT_TRUE(difference.IsIdentity());
    EXPECT_EQ(UnitConversion(Read("degF"), Read("K"), false)(9.0), 5.0);
    EXPECT_EQ(Convert(1e-6, "1/degC", "1/K"), 1e-6);
    EXPECT_EQ(Convert(45.0, "W/(m degC)", "W/(m K)"), 45.0);
}

TEST(UnitConversion, PureFactorsAreRightToTwoPlacesWhateverTheNumber) {
    // Worked out in fractions from 4.4482216152605 / 0.00064516 and rounded once.
    const auto check = [](double value, double expected) {
        EXPECT_LE(Ulps(Convert(value, "psi", "Pa"), expected, expected), 2.0) << value;
    };
    check(0.14285714285714285, 984.96532759548018);
    check(3.141592653589793, 21660.518860502372);
    check(1e-300, 6.8947572931683613e-297);
    check(1e300, 6.8947572931683613e303);
    check(123456789.123456789, 851204597200.1022);
}

TEST(UnitConversion, UnitsOfTheSameSizeLeaveEveryBit) {
    for (const double value : {0.1 + 0.2, 5e-324, -0.0, 1.7976931348623157e308}) {
        const double same = Convert(value, "N/mm^2", "MPa");
        EXPECT_EQ(same, value);
        EXPECT_EQ(std::signbit(same), std::signbit(value));
    }
    EXPECT_TRUE(UnitConversion(Read("kg m-3"), Read("kg/m^3"), false).IsIdentity());
}

TEST(UnitConversion, NothingSmallBecomesNothingAndNothingLargeInfinite) {
    const UnitConversion toPascal(Read("GPa"), Read("Pa"), false);
    EXPECT_FALSE(toPascal(1e300));
    EXPECT_FALSE(toPascal(-1e300));
    const UnitConversion toGigapascal(Read("Pa"), Read("GPa"), false);
    EXPECT_FALSE(toGigapascal(1e-300));
    EXPECT_FALSE(toGigapascal(5e-324));
    EXPECT_EQ(toGigapascal(0.0), 0.0);
    EXPECT_EQ(toGigapascal(1e-20), 1e-29);
    EXPECT_EQ(toPascal(1e-300), 1e-291);
}

TEST(UnitConversion, AnOffsetThatLeavesNothingLeavesNoMinusZero) {
    EXPECT_FALSE(std::signbit(*UnitConversion(Read("K"), Read("degC"), true)(273.15)));
    EXPECT_FALSE(std::signbit(*UnitConversion(Read("K"), Read("degF"), true)(255.37222222222223)));
}

TEST(UnitConversion, WhatIsNotFiniteStays) {
    const UnitConversion conversion(Read("degF"), Read("K"), true);
    EXPECT_TRUE(std::isnan(*conversion(std::nan(""))));
    EXPECT_EQ(conversion(-std::numeric_limits<double>::infinity()), -std::numeric_limits<double>::infinity());
}

TEST(UnitConversion, ConvertsAColumnUpToWhatItCannot) {
    std::vector<double> column = {1.0, 2.5, 1e305, 4.0};

    const auto stopped = UnitConversion(Read("MPa"), Read("Pa"), false).Convert(column);

    EXPECT_EQ(stopped, 2u);
    EXPECT_EQ(column, (std::vector<double>{1e6, 2.5e6, 1e305, 4.0}));
}

}  // namespace
}  // namespace zelmat
