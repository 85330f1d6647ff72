#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>

#include "tests/zelmat/support/Program.h"

namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

TEST(ConvertCommand, WritesNothingOfACardOnWhichTheChecksFindErrors) {
    const ProgramRun run = RunZelmat({"convert", "first_strain.json", "--to", "csv"});

    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_THAT(run.err, HasSubstr("first_strain.json:8: error[first-plastic-strain]: row 1 of plastic: "
                                   "plastic strain is 0.002 (has to be 0)\n"));
}

TEST(ConvertCommand, WritesSuchACardWhenItIsToKeepGoing) {
    const ProgramRun run = RunZelmat({"convert", "first_strain.json", "--to", "csv", "--keep-going"});

    EXPECT_EQ(run.exitCode, 1);
    EXPECT_THAT(run.out, HasSubstr("\n[plastic]\n"));
    EXPECT_THAT(run.err, HasSubstr("error[first-plastic-strain]"));
}

}  // namespace
