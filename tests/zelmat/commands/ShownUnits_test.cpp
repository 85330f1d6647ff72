#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "tests/zelmat/support/Program.h"

namespace {

using nlohmann::json;
using testing::HasSubstr;
using testing::StartsWith;

TEST(ShownUnits, AreMegapascalsAndDegreesOnATerminalAndInAPipe) {
    const std::string expected = "  Young's modulus [MPa]  Poisson's ratio [-]  temperature [degC]";

    EXPECT_THAT(RunZelmat({"show", "two_tables.json"}).out, HasSubstr(expected));
    EXPECT_THAT(RunZelmatOnTerminal({"show", "two_tables.json"}).out, HasSubstr(expected));
}

TEST(ShownUnits, AreThoseOfASystemOrOfSingleQuantities) {
    EXPECT_THAT(RunZelmat({"show", "two_tables.json", "--units", "us"}).out,
                HasSubstr("Young's modulus [psi]  Poisson's ratio [-]  temperature [degF]"));
    const ProgramRun single = RunZelmat({"show", "two_tables.json", "--units", "modulus=GPa"});
    EXPECT_THAT(single.out, HasSubstr("  Young's modulus [GPa]  Poisson's ratio [-]  temperature [degC]\n"
                                      "                    210                 0.30                  20\n"
                                      "                    189                 0.31                 200\n"));
}

TEST(ShownUnits, AreSiForProgramsUnlessTheyAreChosen) {
    const auto elastic = [](const ProgramRun& run) {
        return json::parse(run.out)["material"]["behaviors"][0]["tables"][0];
    };
    const json si = elastic(RunZelmat({"show", "two_tables.json", "--json"}));
    const json chosen = elastic(RunZelmat({"show", "two_tables.json", "--json", "--units", "mm-t-s"}));

    EXPECT_EQ(si["columns"][0]["unit"], "Pa");
    EXPECT_EQ(si["rows"][0], json::parse("[210000000000.0, 0.3, 293.15]"));
    EXPECT_EQ(chosen["columns"][0]["unit"], "MPa");
    EXPECT_EQ(chosen["columns"][2]["unit"], "degC");
    EXPECT_EQ(chosen["rows"][0], json::parse("[210000.0, 0.3, 20.0]"));
}

TEST(ShownUnits, HoldForSummariesAndLayups) {
    const json summary =
        json::parse(RunZelmat({"summary", "two_tables.json", "--json", "--units", "us"}).out);
    EXPECT_EQ(summary["materials"][0]["behaviors"][0]["tables"][0]["columns"][0]["unit"], "psi");

    const std::vector<std::string> layup = {"layup",       "[0/90]", "--material", "M",
                                            "--thickness", "5mil",   "--units",    "us"};
    const ProgramRun text = RunZelmat(layup);
    EXPECT_THAT(text.out, HasSubstr("Layup-1: 2 layers, 0.01 in thick\n"));
    EXPECT_THAT(text.out,
                HasSubstr("  layer  material  thickness [in]  angle [deg]  z bottom [in]  z top [in]\n"
                          "      1  M                  0.005            0         -0.005       0.000\n"));
    const ProgramRun card =
        RunZelmat({"layup", Sample("layups/kaw_0_30_m45.json"), "--units", "modulus=GPa"});
    EXPECT_THAT(card.out,
                HasSubstr("graphite/epoxy: E1 = 181 GPa, E2 = 10.3 GPa, nu12 = 0.28, G12 = 7.17 GPa\n"));
}

TEST(ShownUnits, AreRefusedWhenTheyAreNone) {
    for (const char* units :
         {"metric", "stress=K", "stress", "stress=MPa,stress=Pa", "temperature=C", ",", "us,si"}) {
        const ProgramRun run = RunZelmat({"show", "two_tables.json", "--units", units});
        EXPECT_EQ(run.exitCode, 2) << units;
        EXPECT_EQ(run.out, "") << units;
        EXPECT_THAT(run.err, StartsWith("--units: error[wrong-units]: ")) << units;
    }
}

TEST(ShownUnits, StandInEveryHeaderOfCsv) {
    const ProgramRun run = RunZelmat({"show", "two_tables.json", "--csv"});

    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.out,
              "# Two tables: elastic\n"
              "youngs_modulus [Pa],poissons_ratio [-],temperature [K]\n"
              "2.1e+11,0.3,293.15\n"
              "1.89e+11,0.31,473.15\n"
              "\n"
              "# Two tables: thermal_expansion\n"
              "thermal_expansion [1/K]\n"
              "1.2e-05\n");
    EXPECT_THAT(RunZelmat({"show", "two_tables.json", "--csv", "--units", "us"}).out,
                HasSubstr("\nyoungs_modulus [psi],poissons_ratio [-],temperature [degF]\n"));
    EXPECT_EQ(RunZelmat({"show", "two_tables.json", "--csv", "--json"}).exitCode, 2);
    EXPECT_EQ(RunZelmat({"summary", "two_tables.json", "--csv"}).exitCode, 2);
}

}  // namespace
