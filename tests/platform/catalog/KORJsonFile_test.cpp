#include "platform/catalog/KORJsonFile.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include <malloc.h>
#include <unistd.h>

namespace {

/// What is wrong with a text, as its reader would be told.
std::string ErrorOf(const std::string& text) {
    KORFileError error;
    return KORJsonFile::Parse(text, "card.json", error) ? "" : error.Text();
}

TEST(KORJsonFile, KnowsTheLineOfEveryValue) {
    KORFileError error;
    const auto file =
        KORJsonFile::Parse("{\n  \"a\": 1,\n  \"b\": [2,\n3\n, {\"c/d\": \"x\"}]\n}", "card.json", error);

    ASSERT_TRUE(file);
    const auto& root = file->Root();
    EXPECT_EQ(1, file->Line(root));
    EXPECT_EQ(2, file->Line(root["a"]));
    EXPECT_EQ(3, file->Line(root["b"]));
    EXPECT_EQ(3, file->Line(root["b"][0]));
    EXPECT_EQ(4, file->Line(root["b"][1]));
    EXPECT_EQ(5, file->Line(root["b"][2]["c/d"]));
    EXPECT_EQ("card.json:4: expected a text", file->ErrorAt(root["b"][1], "expected a text").Text());
}

TEST(KORJsonFile, KnowsLinesBehindWhateverStandsInTextsAndKeys) {
    KORFileError error;
    const auto file = KORJsonFile::Parse(
        "\xEF\xBB\xBF{\"z\": [\"]}\\\"\\n\\\\\",\r\n-1.5e3,\r\n[],\r\n{}\r\n],\r\n"
        "\"a\\u00e4\\\"\": null, \"\":\r\n true }\r\n",
        "card.json", error);

    ASSERT_TRUE(file) << error.Text();
    const auto& root = file->Root();
    EXPECT_EQ(1, file->Line(root["z"][0]));
    EXPECT_EQ(2, file->Line(root["z"][1]));
    EXPECT_EQ(3, file->Line(root["z"][2]));
    EXPECT_EQ(4, file->Line(root["z"][3]));
    EXPECT_EQ(6, file->Line(root["a\u00e4\""]));
    EXPECT_EQ(7, file->Line(root[""]));
}

TEST(KORJsonFile, AnswersTheSameLineAtTheFirstQuestionAndAtLaterOnes) {
    KORFileError error;
    const auto file = KORJsonFile::Parse("[1,\n[2, {\"a\":\n3}],\n4]", "card.json", error);

    ASSERT_TRUE(file);
    const auto& three = file->Root()[1][1]["a"];
    EXPECT_EQ(3, file->Line(three));
    EXPECT_EQ(3, file->Line(three));
    EXPECT_EQ(3, file->Line(three));
    EXPECT_EQ(4, file->Line(file->Root()[2]));
}

TEST(KORJsonFile, KnowsTheLineOfATextThatIsOneValue) {
    KORFileError error;
    const auto file = KORJsonFile::Parse("\n 12", "card.json", error);

    ASSERT_TRUE(file);
    EXPECT_EQ(2, file->Line(file->Root()));
}

TEST(KORJsonFile, KnowsNoLineOfAValueFromElsewhere) {
    KORFileError error;
    const auto file = KORJsonFile::Parse("[1]", "card.json", error);

    ASSERT_TRUE(file);
    EXPECT_EQ(0, file->Line(nlohmann::json(1)));
    EXPECT_EQ(0, file->Line(nlohmann::json(1))) << "asked again";
}

TEST(KORJsonFile, KnowsItsLinesAlsoAfterItWasMoved) {
    KORFileError error;
    auto first = KORJsonFile::Parse("\n[\n1]", "card.json", error);
    ASSERT_TRUE(first);
    EXPECT_EQ(2, first->Line(first->Root()));

    const KORJsonFile second = std::move(*first);

    EXPECT_EQ(2, second.Line(second.Root()));
    EXPECT_EQ(3, second.Line(second.Root()[0]));
}

TEST(KORJsonFile, BuildsAllKindsOfValues) {
    KORFileError error;
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

TEST(KORJsonFile, RefusesValuesNestedDeeperThanTwoHundredWhereTheyBegin) {
    const auto nested = [](std::size_t depth) { return std::string(depth, '[') + std::string(depth, ']'); };
    std::string objects;
    for (int depth = 0; depth < 201; ++depth) objects += "{\"a\":";

    EXPECT_EQ("", ErrorOf(nested(200)));
    EXPECT_EQ("card.json:1:201: nested deeper than 200", ErrorOf(nested(201)));
    EXPECT_EQ("card.json:1:201: nested deeper than 200", ErrorOf(std::string(8'000'000, '[')));
    EXPECT_EQ("card.json:1:1001: nested deeper than 200", ErrorOf(objects));
}

TEST(KORJsonFile, SeesWhatStandsBehindANulByte) {
    EXPECT_EQ("card.json:2:2: a NUL byte is no JSON", ErrorOf(std::string("{\n}\0 ?", 6)));
    EXPECT_EQ("card.json:1:3: a NUL byte is no JSON", ErrorOf(std::string("[\"\0\"]", 5)));
}

TEST(KORJsonFile, ShowsNamesInErrorsWithoutTheirControlCharactersAndNotAtAnyLength) {
    const std::string longName(1'000'000, 'x');
    const std::string sixty = "\"" + std::string(57, 'x');

    EXPECT_EQ("card.json:1:15: the key \"a\\n\" is given twice", ErrorOf("{\"a\\n\":1, \"a\\n\":2}"));
    EXPECT_NE(std::string::npos, ErrorOf("{\"" + longName + "\":1, \"" + longName + "\":2}").find(sixty));
    EXPECT_LT(ErrorOf("{\"" + longName + "\":1, \"" + longName + "\":2}").size(), 150u);
    EXPECT_LT(ErrorOf("[\"" + longName).size(), 300u);
}

TEST(KORJsonFile, CutsNamesInErrorsBetweenCharacters) {
    EXPECT_EQ("\"a" + std::string(58, 'x') + "...\"", KORShownText("a" + std::string(100, 'x')));
    std::string accents = "a";
    for (int i = 0; i < 50; ++i) accents += "\u00e4";
    const std::string shown = KORShownText(accents);
    EXPECT_EQ("\u00e4...\"", shown.substr(shown.size() - 6));
}

/// Bytes that the heap holds; 0 where the allocator does not count them.
std::size_t HeapBytes() {
    return mallinfo2().uordblks + mallinfo2().hblkhd;
}

TEST(KORJsonFile, TakesMemoryInProportionToTheTextAlsoUnderALongKey) {
    std::string text = "{\"" + std::string(1'000'000, 'k') + "\": [";
    for (int i = 0; i < 1000; ++i) text += "1,";
    text += "1]}";
    KORFileError error;
    const std::size_t before = HeapBytes();

    const auto file = KORJsonFile::Parse(text, "card.json", error);

    ASSERT_TRUE(file);
    EXPECT_EQ(1, file->Line(file->Root().front()[1000]));
    EXPECT_LT(HeapBytes(), before + 20'000'000);
}

TEST(KORJsonFile, RefusesANumberThatWouldBecomeZero) {
    KORFileError error;
    for (const char* number : {"1e-400", "-1e-400", "0.0001e-330", "2e-324"}) {
        EXPECT_FALSE(KORJsonFile::Parse(std::string("[0,\n") + number + "]", "card.json", error)) << number;
        EXPECT_EQ(std::string("the number \"") + number + "\" is too small for a double", error.message);
        EXPECT_EQ(2, error.line);
    }
    for (const char* number : {"0", "-0.0", "0.000e-400", "0e5", "5e-324", "3e-324"}) {
        EXPECT_TRUE(KORJsonFile::Parse(std::string("[") + number + "]", "card.json", error)) << number;
    }
}

TEST(KORJsonFile, ReadsAFileAndRefusesOneThatCannotBeRead) {
    const std::string folder = testing::TempDir();
    const std::string path = folder + "KORJsonFile_test_" + std::to_string(::getpid()) + ".json";
    std::ofstream(path) << "{\"a\":\n1}";
    KORFileError error;

    const auto file = KORJsonFile::Read(path, error);
    std::filesystem::remove(path);

    ASSERT_TRUE(file);
    EXPECT_EQ(path, file->Name());
    EXPECT_EQ(2, file->Line(file->Root()["a"]));
    EXPECT_FALSE(KORJsonFile::Read(path, error));
    EXPECT_EQ(path + ": cannot be read: No such file or directory", error.Text());
    EXPECT_FALSE(KORJsonFile::Read(folder, error));
    EXPECT_EQ(folder + ": cannot be read: Is a directory", error.Text());
}

}  // namespace
