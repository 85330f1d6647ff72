#include "zelmat/text/Base64.h"

#include <gtest/gtest.h>

namespace {

using zelmat::Base64;

TEST(Base64, IsThatOfTheStandard) {
    EXPECT_EQ(Base64(""), "");
    EXPECT_EQ(Base64("f"), "Zg==");
    EXPECT_EQ(Base64("fo"), "Zm8=");
    EXPECT_EQ(Base64("foo"), "Zm9v");
    EXPECT_EQ(Base64("foobar"), "Zm9vYmFy");
    EXPECT_EQ(Base64(std::string("\xff\xfb\x00", 3)), "//sA");
}

}  // namespace
