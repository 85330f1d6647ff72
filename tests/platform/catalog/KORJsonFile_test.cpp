#include "platform/catalog/KORJsonFile.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include <unistd.h>

namespace {

using Pointer = nlohmann::json::json_pointer;

/// What is wrong with a text, as its reader would be told.
std::string ErrorOf(const std::string& text) {
    KORJsonError error;
    return KORJsonFile::Parse(text, "card.json", error) ? "" : error.Text();
}

TEST(KORJsonFile, KnowsTheLineOfEveryValue) {
    KORJsonError error;
    const auto file =
        KORJsonFile::Parse("{\n  \"a\": 1,\n  \"b\": [2,\n3\n, {\"c/d\": \"x\"}]\n}", "card.json", error);

    ASSERT_TRUE(file);
    EXPECT_EQ(1, file->Line(Pointer("")));
    EXPECT_EQ(2, file->Line(Pointer("/a")));
    EXPECT_EQ(3, file->Line(Pointer("/b")));
    EXPECT_EQ(3, file->Line(Pointer("/b/0")));
    EXPECT_EQ(4, file->Line(Pointer("/b/1")));
    EXPECT_EQ(5, file->Line(Pointer("/b/2/c~1d")));
}

TEST(KORJsonFile, AnswersTheLineAroundAValueThatIsMissing) {
    KORJsonError error;
    const auto file = KORJsonFile::Parse("{\n\"a\": {}}", "card.json", error);

    ASSERT_TRUE(file);
    EXPECT_EQ(2, file->Line(Pointer("/a/missing/deeper")));
    EXPECT_EQ("card.json:2: expected \"missing\"",
              file->ErrorAt(Pointer("/a/missing"), "expected \"missing\"").Text());
}

TEST(KORJsonFile, BuildsAllKindsOfValues) {
    KORJsonError error;
    const auto file =
        KORJsonFile::Parse(R"([null, true, -3, 7, 2.5, "\u00e4", {"k": []}])", "card.json", error);

    ASSERT_TRUE(file);
    const auto& root = file->Root();
    EXPECT_TRUE(root[0].is_null());
    EXPECT_EQ(true, root[1]);
    EXPECT_EQ(-3, root[2]);
    EXPECT_EQ(7, root[3]);
    EXPECT_EQ(2.5, root[4]);
    EXPECT_EQ("\xC3\xA4", root[5]);
    EXPECT_TRUE(root[6]["k"].is_array());
}

TEST(KORJsonFile, RefusesAKeyThatIsGivenTwice) {
    EXPECT_EQ("card.json:3:3: the key \"a\" is given twice",
              ErrorOf("{\"a\": 1,\n\"b\": {\"a\": 2},\n\"a\": 3}"));
}

TEST(KORJsonFile, SaysWhereASyntaxErrorStands) {
    EXPECT_EQ(0u, ErrorOf("{\n\"a\": ?}").find("card.json:2:6: syntax error"));
    EXPECT_EQ(0u, ErrorOf("[1,\n2").find("card.json:2:1: syntax error"));
    EXPECT_EQ(0u, ErrorOf("[1] 2").find("card.json:1:5: syntax error"));
    EXPECT_EQ(0u, ErrorOf("").find("card.json:1: syntax error"));
}

TEST(KORJsonFile, RefusesNumbersThatAreNone) {
    EXPECT_NE("", ErrorOf("[NaN]"));
    EXPECT_NE("", ErrorOf("[-Infinity]"));
    EXPECT_EQ("card.json:1:7: number overflow parsing '1e999'", ErrorOf("[1e999]"));
}

TEST(KORJsonFile, RefusesCommentsAndTextThatIsNoUtf8) {
    EXPECT_NE("", ErrorOf("// a card\n{}"));
    EXPECT_NE("", ErrorOf("\"\xE4\""));
}

TEST(KORJsonFile, ReadsAFileAndRefusesOneThatCannotBeRead) {
    const std::string folder = testing::TempDir();
    const std::string path = folder + "KORJsonFile_test_" + std::to_string(::getpid()) + ".json";
    std::ofstream(path) << "{\"a\":\n1}";
    KORJsonError error;

    const auto file = KORJsonFile::Read(path, error);
    std::filesystem::remove(path);

    ASSERT_TRUE(file);
    EXPECT_EQ(path, file->Name());
    EXPECT_EQ(2, file->Line(Pointer("/a")));
    EXPECT_FALSE(KORJsonFile::Read(path, error));
    EXPECT_EQ(path + ": cannot be read: No such file or directory", error.Text());
    EXPECT_FALSE(KORJsonFile::Read(folder, error));
    EXPECT_EQ(folder + ": cannot be read: Is a directory", error.Text());
}

}  // namespace
