#include "zelmat/text/CountText.h"

#include <gtest/gtest.h>

namespace {

TEST(CountText, CountsInSingularAndPlural) {
    EXPECT_EQ(zelmat::CountText(0, "row"), "0 rows");
    EXPECT_EQ(zelmat::CountText(1, "row"), "1 row");
    EXPECT_EQ(zelmat::CountText(2, "row"), "2 rows");
}

}  // namespace
