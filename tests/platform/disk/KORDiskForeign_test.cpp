#include <sqlite3.h>
#include <unistd.h>

#include <filesystem>
#include <random>

#include "platform/disk/KORDiskCopy.h"
#include "platform/disk/KORDoctor.h"
#include "tests/platform/disk/KORDiskTest.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

/// Files that are no documents, or broken ones.
class KORDiskForeignTest : public KORDiskTest {
protected:
    void MakeDocument() {
        auto made = Create();
        Do(made->Document(), "Make", [&] {
            for (int i = 0; i < 40; ++i) {
                const auto material = Material(made->Document(), "Steel");
                material->SetAlias("Steel of many");
                material->SetListOfDouble(numbers, KORNumbers({1.0, 2.0, 3.0}));
                material->AppendComponent(others, First(made->Document()).Get());
                material->SetUndeclared("Damping", KORValue::OfDouble(0.1));
            }
            KORRawColldouble list;
            for (int i = 0; i < 3000; ++i) list.Append(i);
            First(made->Document())->SetListOfDouble(numbers, list);
        });
        Do(made->Document(), "Remove", [&] { First(made->Document())->SetContainer(nullptr); });
        Save(*made);
    }

    int Number(const char* sql) {
        KORSqlite file(Path());
        EXPECT_TRUE(file.Open(Path()));
        return static_cast<int>(file.Number(sql));
    }

    /// Nothing opens it, it stays as it is, and nothing new lies beside it. The message.
    std::string Refusal() {
        const std::string before = Content();
        KORFileError error;
        KORFileError again;
        EXPECT_EQ(nullptr, KORDiskDocument::OpenToRead(*platform, Path(), error));
        EXPECT_EQ(nullptr, KORDiskDocument::OpenToChange(*platform, Path(), again));
        EXPECT_EQ(error.message, again.message);
        EXPECT_EQ(std::nullopt, KORDoctor::Examine(Path(), again));
        EXPECT_FALSE(KORDiskCopy::Compact(Path(), again));
        EXPECT_FALSE(KORDiskCopy::To(Path(), Path("copy"), again));
        EXPECT_EQ(before, Content());
        EXPECT_THAT(Files(), ElementsAre("d.zeldoc"));
        EXPECT_EQ(Path(), error.file);
        return error.message;
    }
};

TEST_F(KORDiskForeignTest, AnEmptyFileIsRefused) {
    Touch("d.zeldoc");
    EXPECT_EQ("is empty", Refusal());
}

TEST_F(KORDiskForeignTest, ATextIsRefused) {
    Touch("d.zeldoc", "{\"format\": 1, \"features\": []}");
    EXPECT_EQ("is no document", Refusal());
    Touch("d.zeldoc", "x");
    EXPECT_EQ("is no document", Refusal());
    Touch("d.zeldoc", std::string(5000, '\0'));
    EXPECT_EQ("is no document", Refusal());
}

TEST_F(KORDiskForeignTest, AnotherProgramsSqliteFileIsRefused) {
    Sql("CREATE TABLE features (number INTEGER PRIMARY KEY)");
    EXPECT_EQ("is another program's SQLite file, no document", Refusal());
}

TEST_F(KORDiskForeignTest, AFileCutShortIsRefusedAtEachLength) {
    MakeDocument();
    const std::string whole = Content();
    ASSERT_GT(whole.size(), 20000u);
    for (const std::size_t size :
         {std::size_t{1}, std::size_t{15}, std::size_t{16}, std::size_t{50}, std::size_t{99}}) {
        Touch("d.zeldoc", whole.substr(0, size));
        EXPECT_THAT(Refusal(), testing::AnyOf("is no document", "is cut short: not even its header is whole"))
            << size;
    }
    for (std::size_t size = 100; size < whole.size(); size += 1013) {
        Touch("d.zeldoc", whole.substr(0, size));
        EXPECT_THAT(Refusal(), StartsWith("is damaged")) << size;
    }
    Touch("d.zeldoc", whole.substr(0, whole.size() - 4096));
    EXPECT_EQ("is damaged: it has " + std::to_string(whole.size() - 4096) +
                  " bytes, and its header tells of " + std::to_string(whole.size()),
              Refusal());
}

TEST_F(KORDiskForeignTest, AFileThatIsTooLongIsRefused) {
    MakeDocument();
    Touch("d.zeldoc", Content() + "more");
    EXPECT_THAT(Refusal(), HasSubstr("bytes, and its header tells of"));
}

TEST_F(KORDiskForeignTest, AFileWithMoreThanADocumentsTablesIsRefused) {
    for (const char* more : {"CREATE TRIGGER spy AFTER UPDATE ON document BEGIN DELETE FROM features; END",
                             "CREATE VIEW spy AS SELECT number FROM features", "CREATE TABLE spy (number)",
                             "CREATE INDEX spy ON features(type)", "ALTER TABLE features ADD COLUMN spy TEXT",
                             "DROP TABLE steps", "ANALYZE"}) {
        std::filesystem::remove(Path());
        MakeDocument();
        Sql(more);
        EXPECT_EQ("is damaged: its tables are not a document's", Refusal()) << more;
    }
}

TEST_F(KORDiskForeignTest, AFileWithAWriteAheadLogIsRefused) {
    MakeDocument();
    Sql("PRAGMA journal_mode=WAL");
    EXPECT_EQ("is damaged: its header is not a document's", Refusal());
}

TEST_F(KORDiskForeignTest, AFileWithoutAFormatIsRefused) {
    MakeDocument();
    Sql("PRAGMA user_version=0");
    EXPECT_EQ("is damaged: its header tells no format", Refusal());
}

TEST_F(KORDiskForeignTest, AFolderAndNothingAreRefused) {
    KORFileError error;
    EXPECT_EQ(nullptr, KORDiskDocument::OpenToRead(*platform, Path("none"), error));
    EXPECT_EQ(Path("none") + ": cannot be read: No such file or directory", error.Text());
    std::filesystem::create_directory(Path("folder"));
    EXPECT_EQ(nullptr, KORDiskDocument::OpenToRead(*platform, Path("folder"), error));
    EXPECT_EQ(Path("folder") + ": is no file", error.Text());
    EXPECT_EQ(nullptr, KORDiskDocument::OpenToRead(*platform, "/dev/zero", error));
    EXPECT_EQ("/dev/zero: is no file", error.Text());
    EXPECT_EQ(nullptr, KORDiskDocument::OpenToRead(*platform, "", error));
    EXPECT_EQ(nullptr, KORDiskDocument::OpenToRead(*platform, ":memory:", error));
    EXPECT_THAT(error.Text(), HasSubstr("No such file"));
}

TEST_F(KORDiskForeignTest, APathThatIsTooLongForSqliteIsToldAndNothingIsMade) {
    std::string folder = "f";
    for (int depth = 0; depth < 4; ++depth) folder += "/" + std::string(150, 'f');
    std::filesystem::create_directories(Path(folder));
    KORFileError error;

    EXPECT_EQ(nullptr, KORDiskDocument::Create(*platform, Path(folder + "/d.zeldoc"), error));

    EXPECT_THAT(error.Text(), HasSubstr("d.zeldoc: cannot be opened"));
    EXPECT_FALSE(std::filesystem::exists(Path(folder + "/d.zeldoc")));
}

TEST_F(KORDiskForeignTest, ARowThatMakesNoSenseIsRefusedAndNamed) {
    const std::pair<const char*, const char*> cases[] = {
        {"DELETE FROM document", "it has no counters"},
        {"INSERT INTO document SELECT 2, last_feature, last_step, done, 1, 1, '' FROM document",
         "it has its counters twice"},
        {"UPDATE document SET last_feature=-1", "its counters make no sense"},
        {"UPDATE document SET last_feature=1<<40", "its counters make no sense"},
        {"UPDATE document SET last_feature=39", "40 is no number of a feature"},
        {"UPDATE document SET pressure_unit='Elle'", "\"Elle\" is no unit of pressure"},
        {"UPDATE names SET text=(SELECT text FROM names WHERE id=1) WHERE id=2", "a name is given twice"},
        {"UPDATE names SET id=100 WHERE id=1", "a name is given twice"},
        {"INSERT INTO containers VALUES(2,'')", "the container \"\" is none, or given twice"},
        {"UPDATE features SET number=0 WHERE number=1", "0 is no number of a feature"},
        {"UPDATE features SET type=99 WHERE number=2", "feature 2 is of no type"},
        {"UPDATE features SET container=2 WHERE number=2", "feature 2 lies in a container that is not there"},
        {"UPDATE features SET container=-1 WHERE number=2",
         "feature 2 lies in a container that is not there"},
        {"UPDATE features SET attributes=x'01' WHERE number=2",
         "feature 2: its attributes cannot be taken apart"},
        {"UPDATE features SET attributes=x'0124ffffffffffffff7f' WHERE number=2",
         "feature 2: its attributes cannot be taken apart"},
        {"UPDATE features SET attributes=x'6310' WHERE number=2",
         "feature 2: its attributes cannot be taken apart"},
        {"UPDATE features SET attributes=x'012f' WHERE number=2",
         "feature 2: its attributes cannot be taken apart"},
        {"DELETE FROM features WHERE number=1", "feature 2 references feature 1, which is not there"},
    };
    MakeDocument();
    const std::string whole = Content();
    for (const auto& [sql, message] : cases) {
        Touch("d.zeldoc", whole);
        Sql(sql);
        KORFileError error;
        EXPECT_EQ(nullptr, KORDiskDocument::OpenToRead(*platform, Path(), error)) << sql;
        EXPECT_EQ(std::string("is damaged: ") + message, error.message) << sql;
        EXPECT_EQ(nullptr, KORDiskDocument::OpenToChange(*platform, Path(), error)) << sql;
        const auto findings = KORDoctor::Examine(Path(), error);
        EXPECT_TRUE(findings && !findings->empty()) << sql;
    }
}

TEST_F(KORDiskForeignTest, AStepThatMakesNoSenseKeepsTheDocumentFromBeingChangedAndNotFromBeingRead) {
    const std::pair<const char*, const char*> cases[] = {
        {"UPDATE steps SET entries=x'01' WHERE number=2", "step 2: its entries cannot be taken apart"},
        {"UPDATE steps SET entries=x'630001' WHERE number=2", "step 2: its entries cannot be taken apart"},
        {"UPDATE steps SET entries=x'010009' WHERE number=2", "step 2: its entries cannot be taken apart"},
        {"UPDATE steps SET entries=x'010310' WHERE number=2", "step 2: its entries cannot be taken apart"},
        {"UPDATE steps SET entries=x'010910' WHERE number=2", "step 2: its entries cannot be taken apart"},
        {"UPDATE steps SET entries=x'010110' WHERE number=2", "step 2: its entries cannot be taken apart"},
        {"UPDATE steps SET entries=x'01032f' WHERE number=2", "step 2: its entries cannot be taken apart"},
        {"UPDATE steps SET entries=x'01030125e707' WHERE number=2",
         "step 2: its entries cannot be taken apart"},
    };
    MakeDocument();
    const std::string whole = Content();
    for (const auto& [sql, message] : cases) {
        Touch("d.zeldoc", whole);
        Sql(sql);
        EXPECT_TRUE(OpenToRead()) << sql;
        KORFileError error;
        EXPECT_EQ(nullptr, KORDiskDocument::OpenToChange(*platform, Path(), error)) << sql;
        EXPECT_EQ(std::string("is damaged: ") + message, error.message) << sql;
        const auto findings = KORDoctor::Examine(Path(), error);
        EXPECT_TRUE(findings && !findings->empty()) << sql;
    }
}

TEST_F(KORDiskForeignTest, ALongChainAndARingToWhichNothingLeadsAreReadOverAndGoWithTheNextChange) {
    MakeDocument();
    Sql("UPDATE document SET last_feature=200000");
    // Each references the next one, the last one the first; numbers of three bytes, seven bits each.
    sqlite3* file = nullptr;
    ASSERT_EQ(SQLITE_OK, sqlite3_open(Path().c_str(), &file));
    sqlite3_stmt* insert = nullptr;
    ASSERT_EQ(SQLITE_OK,
              sqlite3_prepare_v2(file,
                                 "INSERT INTO features SELECT ?1, type, NULL, NULL, NULL, ?2 FROM features "
                                 "WHERE number=2",
                                 -1, &insert, nullptr));
    const auto name = static_cast<std::uint8_t>(Number("SELECT id FROM names WHERE text='Other'"));
    sqlite3_exec(file, "BEGIN", nullptr, nullptr, nullptr);
    constexpr int kFirst = 20000;
    constexpr int kLast = 120000;
    for (int number = kFirst; number <= kLast; ++number) {
        const int next = number == kLast ? kFirst : number + 1;
        const std::uint8_t packed[] = {name, 0x25, static_cast<std::uint8_t>(next | 0x80),
                                       static_cast<std::uint8_t>(next >> 7 | 0x80),
                                       static_cast<std::uint8_t>(next >> 14)};
        sqlite3_bind_int(insert, 1, number);
        sqlite3_bind_blob(insert, 2, packed, sizeof packed, SQLITE_STATIC);
        ASSERT_EQ(SQLITE_DONE, sqlite3_step(insert));
        sqlite3_reset(insert);
    }
    sqlite3_finalize(insert);
    sqlite3_exec(file, "COMMIT", nullptr, nullptr, nullptr);
    sqlite3_close(file);
    KORFileError error;
    const auto findings = KORDoctor::Examine(Path(), error);
    ASSERT_TRUE(findings);
    ASSERT_EQ(static_cast<std::size_t>(kLast - kFirst + 1), findings->size());
    EXPECT_EQ("feature 20000 lies in no container and nothing leads to it", findings->front().text);

    EXPECT_EQ(39u, OpenToRead()->Document().FeatureCount());
    EXPECT_EQ(40u, OpenToRead()->Document().Features().Size());
    Save(*OpenToChange());

    EXPECT_THAT(KORDoctor::Examine(Path(), error), testing::Optional(testing::IsEmpty()));
}

/// Whatever a file holds, it is refused or read, and nothing crashes.
class KORDiskCorruption : public KORDiskForeignTest, public testing::WithParamInterface<int> {};

TEST_P(KORDiskCorruption, NeverCrashes) {
    MakeDocument();
    const std::string whole = Content();
    std::mt19937 random(static_cast<std::uint32_t>(GetParam()));
    for (int round = 0; round < 100; ++round) {
        std::string broken = whole;
        const std::size_t first = GetParam() % 2 == 0 ? 0 : 100;  // behind the header, too
        for (std::size_t flips = 1 + random() % 8; flips > 0; --flips) {
            char& byte = broken[first + random() % (broken.size() - first)];
            byte = static_cast<char>(byte ^ (1 << random() % 8));
        }
        if (GetParam() % 3 == 0) {
            const std::size_t at = random() % broken.size();
            const std::size_t size = std::min<std::size_t>(broken.size() - at, random() % 600);
            for (std::size_t i = 0; i < size; ++i) broken[at + i] = static_cast<char>(random());
        }
        Touch("d.zeldoc", broken);
        KORFileError error;
        static_cast<void>(
            KORDiskDocument::OpenToRead(*platform, Path(), error, KORDiskDocument::History::Steps));
        if (auto opened = KORDiskDocument::OpenToChange(*platform, Path(), error)) {
            while (opened->Document().Undo()) {
            }
            Material(opened->Document(), "More");
            static_cast<void>(opened->Save({}, error));
        }
        static_cast<void>(KORDoctor::Examine(Path(), error));
    }
}

INSTANTIATE_TEST_SUITE_P(, KORDiskCorruption, testing::Range(0, 10));

}  // namespace
