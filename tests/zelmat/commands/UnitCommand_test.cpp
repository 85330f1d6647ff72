#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "tests/zelmat/support/Program.h"

namespace {

using nlohmann::json;
using testing::HasSubstr;
using testing::StartsWith;

TEST(UnitCommand, ConvertsANumber) {
    EXPECT_EQ(RunZelmat({"unit", "210 GPa", "MPa"}).out, "210 GPa = 210000 MPa\n");
    EXPECT_EQ(RunZelmat({"unit", "5 mil", "mm"}).out, "5 mil = 0.127 mm\n");
    EXPECT_EQ(RunZelmat({"unit", "12 µm/m/K", "1/degF"}).out, "12 µm/m/K = 6.666666666666667e-06 1/degF\n");
}

TEST(UnitCommand, ConvertsANegativeNumberHoweverItIsWritten) {
    EXPECT_EQ(RunZelmat({"unit", "-5 MPa", "Pa"}).out, "-5 MPa = -5e+06 Pa\n");
    EXPECT_EQ(RunZelmat({"unit", "-.5 MPa", "Pa"}).out, "-0.5 MPa = -5e+05 Pa\n");
}

TEST(UnitCommand, ConvertsATemperatureWithItsOffset) {
    EXPECT_EQ(RunZelmat({"unit", "20 degC", "K"}).out, "20 degC = 293.15 K\n");
    EXPECT_EQ(RunZelmat({"unit", "-40 degC", "degF"}).out, "-40 degC = -40 degF\n");
    EXPECT_EQ(RunZelmat({"unit", "293.15 K", "°C"}).out, "293.15 K = 20 °C\n");
}

TEST(UnitCommand, PrintsOneJsonObject) {
    const ProgramRun run = RunZelmat({"unit", "7.85 g/cm^3", "kg/m3", "--json"});

    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(json::parse(run.out), json::parse(R"({"version": 1, "command": "unit",
                  "given": {"value": 7.85, "unit": "g/cm^3"},
                  "converted": {"value": 7850.0, "unit": "kg/m3"}, "quantities": [], "findings": []})"));
}

TEST(UnitCommand, ListsTheUnitsOfAQuantity) {
    const ProgramRun one = RunZelmat({"unit", "--list", "temperature"});
    const ProgramRun all = RunZelmat({"unit", "--list", "all"});

    EXPECT_EQ(one.exitCode, 0);
    EXPECT_EQ(one.out,
              "  quantity     stored in  units\n"
              "  temperature  K          K, degC, degF or degR\n");
    EXPECT_THAT(all.out, HasSubstr("\n  density "));
    EXPECT_THAT(all.out, HasSubstr("\n  specific_heat "));
}

TEST(UnitCommand, NamesTheNearestQuantity) {
    const ProgramRun run = RunZelmat({"unit", "--list", "strss"});

    EXPECT_EQ(run.exitCode, 2);
    EXPECT_EQ(run.err,
              "--list: error[unknown-quantity]: there is no quantity 'strss' (did you mean stress?)\n");
}

TEST(UnitCommand, SaysWhichUnitsWouldDo) {
    const ProgramRun run = RunZelmat({"unit", "210 GPa", "kg"});

    EXPECT_EQ(run.exitCode, 2);
    EXPECT_EQ(run.out, "");
    EXPECT_THAT(run.err,
                StartsWith("UNIT: error[wrong-unit]: 210 GPa cannot be converted to 'kg' (units that "
                           "would do: Pa, kPa, MPa, GPa, "));
}

TEST(UnitCommand, KnowsAbsoluteZero) {
    EXPECT_EQ(RunZelmat({"unit", "0 K", "degC"}).out, "0 K = -273.15 degC\n");
    EXPECT_EQ(RunZelmat({"unit", "-273.15 degC", "K"}).out, "-273.15 degC = 0 K\n");
    EXPECT_EQ(RunZelmat({"unit", "-5 K", "degR"}).out, "-5 K = -9 degR\n") << "a difference";
    for (const char* below : {"-273.16 degC", "-460 degF", "-1 K"}) {
        const ProgramRun run = RunZelmat({"unit", below, std::string(below) == "-1 K" ? "degC" : "K"});
        EXPECT_EQ(run.exitCode, 2);
        EXPECT_EQ(run.out, "");
        EXPECT_EQ(run.err, "NUMBER: error[below-absolute-zero]: " + std::string(below) +
                               " lies below absolute zero (0 K is -273.15 degC and -459.67 degF)\n");
    }
}

TEST(UnitCommand, SaysThatAFullDiskTookNothing) {
    for (const auto& arguments :
         {std::vector<std::string>{"unit", "210 GPa", "psi"}, {"unit", "--list", "stress"}}) {
        const ProgramRun run = RunZelmatWith(arguments, ">/dev/full");
        EXPECT_EQ(run.exitCode, 3);
        EXPECT_THAT(run.err, HasSubstr("standard output: error[not-written]"));
    }
}

TEST(UnitCommand, RefusesWhatIsNoNumberOrNoUnit) {
    const std::vector<std::vector<std::string>> wrong = {{"unit"},
                                                         {"unit", "210 GPa"},
                                                         {"unit", "210", "MPa"},
                                                         {"unit", "", "MPa"},
                                                         {"unit", "1e400 Pa", "MPa"},
                                                         {"unit", "210 GPa", "C"},
                                                         {"unit", "1 N", "lb"},
                                                         {"unit", "1e300 km", "nm"},
                                                         {"unit", "210 GPa", "psi", "Pa"},
                                                         {"unit", "210 GPa", "psi", "--list", "stress"},
                                                         {"unit", "210 GPa", std::string(100'000, '(')}};
    for (const auto& arguments : wrong) {
        const ProgramRun run = RunZelmat(arguments);
        EXPECT_EQ(run.exitCode, 2) << arguments.back();
        EXPECT_EQ(run.out, "");
        EXPECT_THAT(run.err, HasSubstr(": error["));
        EXPECT_LT(run.err.size(), 500u);
    }
}

}  // namespace
