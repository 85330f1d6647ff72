#include "zelmat/text/NameProblem.h"

#include <gtest/gtest.h>

namespace {

using zelmat::NameProblem;

TEST(NameProblem, IsNoneOfWhatPeopleCallThings) {
    for (const char* name :
         {"S", "Steel S355", " S ", "日本", "µ-alloy (2)", "#", "#1 common", "1", "a\nb"}) {
        EXPECT_EQ(NameProblem(name), std::nullopt) << name;
    }
}

TEST(NameProblem, IsTheSentenceOfWhatNobodyCouldAskFor) {
    EXPECT_EQ(NameProblem(""), "a name cannot be empty");
    EXPECT_EQ(NameProblem(" \t\n"), "a name cannot be empty");
    EXPECT_EQ(NameProblem(std::string_view("a\0b", 3)), "a name cannot hold a NUL character");
    EXPECT_EQ(NameProblem("S\xff"), "a name has to be UTF-8");
    EXPECT_EQ(NameProblem("#12"), "'#12' cannot be a name: it means a number in the list");
}

}  // namespace
