#include <gmock/gmock.h>

#include "tests/zelmat/support/DocumentFolder.h"

namespace {

using testing::HasSubstr;
using LogCommand = DocumentFolder;

TEST_F(LogCommand, SaysWhenThereAreNoSteps) {
    EXPECT_EQ(Run({"log", NewDocument()}), "no steps are kept\n");
}

TEST_F(LogCommand, RefusesWhatIsNoDocument) {
    EXPECT_THAT(Refusal(3, {"log", Path("none.zeldoc")}), HasSubstr("none.zeldoc: error[unreadable]"));
    EXPECT_THAT(Refusal(3, {"log", File("x.json", "{}")}), HasSubstr("x.json: error"));
}

}  // namespace
