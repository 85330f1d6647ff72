#include "platform/catalog/KORFileError.h"

#include <gtest/gtest.h>

namespace {

TEST(KORFileError, NamesThePlaceAsFarAsItIsKnown) {
    const KORFileError everything = {"a.json", 3, 17, "expected a number", "found a text"};
    const KORFileError line = {"a.json", 3, 0, "expected a number", ""};
    const KORFileError file = {"a.json", 0, 0, "cannot be read", "No such file or directory"};

    EXPECT_EQ("a.json:3:17: expected a number: found a text", everything.Text());
    EXPECT_EQ("a.json:3: expected a number", line.Text());
    EXPECT_EQ("a.json: cannot be read: No such file or directory", file.Text());
}

TEST(KORFileError, IsThePlainSentenceWhereItsReaderKnowsTheFile) {
    const KORFileError error = {"", 0, 0, "a text is no UTF-8", ""};

    EXPECT_EQ("a text is no UTF-8", error.Text());
    EXPECT_EQ("cannot be read: Is a directory",
              (KORFileError{"a.json", 3, 1, "cannot be read", "Is a directory"}.Sentence()));
}

}  // namespace
