#include <sqlite3.h>

#include <filesystem>
#include <fstream>

#include "platform/disk/KORDoctor.h"
#include "tests/platform/disk/KORDiskTest.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Optional;

/// The file as docs/document.md describes it, seen with SQLite alone.
class KORDiskFormatTest : public KORDiskTest {
protected:
    /// The rows of a query, their columns with a "|" between them.
    std::vector<std::string> Rows(const std::string& sql) {
        std::vector<std::string> rows;
        sqlite3* file = nullptr;
        sqlite3_stmt* row = nullptr;
        EXPECT_EQ(SQLITE_OK, sqlite3_open(Path().c_str(), &file));
        EXPECT_EQ(SQLITE_OK, sqlite3_prepare_v2(file, sql.c_str(), -1, &row, nullptr))
            << sqlite3_errmsg(file);
        while (sqlite3_step(row) == SQLITE_ROW) {
            std::string columns;
            for (int column = 0; column < sqlite3_column_count(row); ++column) {
                const auto* shown = reinterpret_cast<const char*>(sqlite3_column_text(row, column));
                columns += (column > 0 ? "|" : "") + std::string(shown ? shown : "NULL");
            }
            rows.push_back(columns);
        }
        sqlite3_finalize(row);
        sqlite3_close(file);
        return rows;
    }

    /// Another release of the program: with other catalogs.
    void UseCatalog(const std::string& types) {
        // A catalog file is read once per process.
        const std::string file = "Release" + std::to_string(++releases_) + ".KORfct";
        Touch(file, R"({"format": 1, "types": [)" + types + "]}");
        platform = std::make_unique<KORPlatform>(std::filesystem::path(Path()).parent_path());
        KORFileError error;
        ASSERT_TRUE(platform->ShareCatalog(file, error)) << error.Text();
    }

private:
    int releases_ = 0;
};

TEST_F(KORDiskFormatTest, TablesHoldWhatTheDescriptionSays) {
    auto made = Create();
    made->Document().AddContainer("Materials");
    Do(made->Document(), "Make", [&] {
        const auto first = Material(made->Document(), "KORDiskTestLT");
        first->SetAlias("Steel");
        first->SetDouble(length, 1.0, 1);
        first->SetInteger(count, -2, 1);
        first->SetString(text, "ab", 1);
        first->SetListOfDouble(numbers, KORNumbers({1.0, -0.0}));
        first->SetComponent(other, first.Get(), 1);
        first->AppendComponent(others, first.Get());
        first->AppendComponent(others, nullptr);
    });
    Do(made->Document(), "Move", [&] {
        First(made->Document())->SetContainer(made->Document().AddContainer("Materials").Get());
        First(made->Document())->SetUndeclared("Late", KORValue::OfBoolean(false));
    });
    Do(made->Document(), "Rename", [&] { First(made->Document())->SetAlias("Iron"); });
    Do(made->Document(), "Empty", [&] {
        First(made->Document())->RemoveAllValues(numbers);
        First(made->Document())->RemoveAllValues(others);
        First(made->Document())->RemoveValue(flag);
    });
    made->Document().Undo();
    Save(*made, {"ada", "zel new \"d.zeldoc\""});
    made = nullptr;

    EXPECT_EQ(0x4B4F5244, std::stoi(Rows("PRAGMA application_id")[0]));
    EXPECT_THAT(Rows("PRAGMA user_version"), ElementsAre("1"));
    EXPECT_THAT(
        Rows("SELECT last_feature, last_step, done, most_steps, most_bytes, pressure_unit FROM document"),
        ElementsAre("1|4|3|1000|67108864|"));
    EXPECT_THAT(Rows("SELECT * FROM containers"), ElementsAre("2|Materials"));
    EXPECT_THAT(Rows("SELECT * FROM catalogs"), IsEmpty());
    EXPECT_THAT(Rows("SELECT text FROM names WHERE id IN (SELECT type FROM features)"),
                ElementsAre("KORDiskTestLT"));
    EXPECT_THAT(Rows("SELECT number, name, user, command, bytes>0 FROM steps"),
                ElementsAre("1|Make|ada|zel new \"d.zeldoc\"|1", "2|Move|ada|zel new \"d.zeldoc\"|1",
                            "3|Rename|ada|zel new \"d.zeldoc\"|1", "4|Empty|ada|zel new \"d.zeldoc\"|1"));
    EXPECT_THAT(Rows("SELECT time FROM steps LIMIT 1")[0], testing::MatchesRegex("....-..-..T..:..:..Z"));
    EXPECT_THAT(Rows("SELECT number, container, name, alias FROM features"), ElementsAre("1|2|NULL|Iron"));
    const auto name = [&](const char* of) {
        const int id = std::stoi(Rows(std::string("SELECT id FROM names WHERE text='") + of + "'")[0]);
        char hex[3];
        std::snprintf(hex, sizeof hex, "%02X", static_cast<unsigned>(id));
        return std::string(hex);
    };
    EXPECT_EQ(name("Flag") + "11" + name("Count") + "20FEFFFFFF" + name("Length") + "21000000000000F03F" +
                  name("Text") + "22026162" + name("Numbers") + "2402000000000000F03F0000000000000080" +
                  name("Other") + "2501" + name("Others") + "27020100" + name("Late") + "10",
              Rows("SELECT hex(attributes) FROM features")[0]);
    EXPECT_THAT(
        Rows("SELECT hex(entries) FROM steps"),
        ElementsAre("010000010203",  // was in no container and never called anything
                    "010001"
                    "0104" +
                        name("Late") + "2F",  // lay in the document's own; had no Late
                    "01022205537465656C",     // was called Steel
                    // undone, so it holds what redoing brings: no numbers, no components, never valued
                    "0103" + name("Numbers") +
                        "23"
                        "0103" +
                        name("Others") +
                        "26"
                        "0103" +
                        name("Flag") + "00"));
}

TEST_F(KORDiskFormatTest, TheStatementsOfTheDescriptionWork) {
    auto made = Create();
    Do(made->Document(), "Make", [&] { Material(made->Document(), "Steel")->SetAlias("S355"); });
    Save(*made, {"ada", "zel new"});
    made = nullptr;
    std::ifstream page(ZEL_DOCUMENT_PAGE);
    const std::string all{std::istreambuf_iterator<char>(page), std::istreambuf_iterator<char>()};
    const std::size_t begin = all.find("```sql\n") + 7;
    std::string block = all.substr(begin, all.find("```", begin) - begin);
    std::vector<std::vector<std::string>> answers;
    for (std::size_t end = 0; (end = block.find(";\n")) != std::string::npos; block.erase(0, end + 2)) {
        answers.push_back(Rows(block.substr(0, end)));
    }

    ASSERT_EQ(5u, answers.size());
    EXPECT_THAT(answers[0], ElementsAre(testing::StartsWith("1|KORDiskTestLT|S355|NULL|")));
    EXPECT_THAT(answers[1], ElementsAre("KORDiskTestLT|1"));
    EXPECT_THAT(answers[2], ElementsAre(testing::MatchesRegex("1\\|.*Z\\|ada\\|zel new\\|Make\\|<")));
    EXPECT_EQ(8u, answers[4].size());
}

TEST_F(KORDiskFormatTest, ANewerFormatIsReadWithANoteAndNotChanged) {
    auto made = Create();
    Do(made->Document(), "Make", [&] { Material(made->Document(), "Steel"); });
    Save(*made);
    made = nullptr;
    Sql("PRAGMA user_version=2; CREATE TABLE later (a); ALTER TABLE features ADD COLUMN later TEXT;");
    const std::string before = Content();
    KORFileError error;

    auto opened = OpenToRead();
    ASSERT_TRUE(opened);
    EXPECT_EQ(1u, opened->Document().FeatureCount());
    EXPECT_THAT(opened->Notes(), ElementsAre("its format is newer than this program: it can be read only"));
    EXPECT_FALSE(opened->Save({}, error));
    EXPECT_EQ(nullptr, KORDiskDocument::OpenToChange(*platform, Path(), error));
    EXPECT_EQ(Path() + ": its format is newer than this program: it can be read, not changed", error.Text());
    EXPECT_EQ(std::nullopt, KORDoctor::Examine(Path(), error));

    EXPECT_EQ(before, Content());
}

TEST_F(KORDiskFormatTest, ANewerFormatThatCannotBeReadIsTold) {
    auto made = Create();
    Save(*made);
    made = nullptr;
    Sql("PRAGMA user_version=2; ALTER TABLE features RENAME TO later;");
    KORFileError error;

    EXPECT_EQ(nullptr, KORDiskDocument::OpenToRead(*platform, Path(), error));

    EXPECT_THAT(error.Text(), HasSubstr("its format is newer than this program, which cannot read it"));
}

TEST_F(KORDiskFormatTest, WhatTheCatalogsOfTodayDoNotKnowIsKeptAndWrittenBack) {
    {
        auto made = Create();
        Do(made->Document(), "Make", [&] {
            const auto first = Material(made->Document(), "Steel");
            first->SetListOfDouble(numbers, KORNumbers({1.0, 2.0}));
            first->AppendComponent(others, Material(made->Document(), "Copper").Get());
        });
        Do(made->Document(), "Set", [&] { First(made->Document())->SetDouble(length, 3.0, 1); });
        Save(*made);
    }
    const std::string original = Shown(OpenToRead()->Document());
    // No late type; then one without two of the attributes and with Length as a text.
    for (const char* types : {"", R"({"name": "KORDiskTestLT", "since": 1, "meaning": "x", "attributes": [
              {"name": "Count", "kind": "integer", "default": 1, "since": 1, "meaning": "x"},
              {"name": "Length", "kind": "string", "default": "long", "since": 2, "meaning": "x"},
              {"name": "Newer", "kind": "double", "default": 5, "unit": "m", "since": 2, "meaning": "x"}]})"}) {
        UseCatalog(types);
        auto opened = OpenToChange();
        const KORVar<KORFeature> first = First(opened->Document());
        EXPECT_EQ(3.0, UndeclaredOf(*first, "Length").Double());
        opened->Document().Undo();
        EXPECT_EQ(1.5, UndeclaredOf(*first, "Length").Double());
        opened->Document().Redo();
        Do(opened->Document(), "Touch", [&] { first->SetAlias("touched"); });
        Save(*opened);
        opened->Document().Undo();
        Save(*opened);
    }

    UseCatalog("");
    platform = std::make_unique<KORPlatform>(std::filesystem::path(Path()).parent_path());
    KORFileError error;
    ASSERT_TRUE(platform->ShareCatalog("KORDiskTest.KORfct", error));
    const std::string shown = Shown(OpenToRead()->Document());
    EXPECT_THAT(shown, HasSubstr("Length=3 Text='' Numbers=[1 2] Other=never Others=[#2]"));
    EXPECT_THAT(shown, HasSubstr("+Length='long' +Newer=5"));
    EXPECT_THAT(KORDoctor::Examine(Path(), error), Optional(IsEmpty()));
}

TEST_F(KORDiskFormatTest, TheDocumentsOwnCatalogsAreOpenedAgainAndAMissingOneIsNoted) {
    Touch("Own.KORfct",
          R"({"format": 1, "types": [{"name": "OwnLT", "since": 1, "meaning": "x", "attributes": [
          {"name": "Own", "kind": "integer", "default": 1, "since": 1, "meaning": "x"}]}]})");
    {
        auto made = Create();
        const auto catalog = made->Document().OpenCatalog("Own.KORfct");
        ASSERT_TRUE(catalog);
        const auto container = KORBaseUnknown_var::Adopt(made->Document().GetFeatContainer());
        KORFeature::New(made->Document(), catalog->Find(KORName::Find("OwnLT"))->layout, "x", *container);
        Save(*made);
    }
    EXPECT_THAT(OpenToRead()->Notes(), IsEmpty());
    EXPECT_EQ(1, First(OpenToRead()->Document())->GetInteger(KORName::Intern("Own"), 1));

    std::filesystem::remove(Path("Own.KORfct"));
    std::filesystem::create_directory(Path("Own.KORfct"));
    platform = std::make_unique<KORPlatform>(Path("elsewhere"));
    auto opened = OpenToChange();

    ASSERT_EQ(1u, opened->Notes().size());
    EXPECT_THAT(opened->Notes()[0], HasSubstr("the catalog \"Own.KORfct\" cannot be opened"));
    EXPECT_EQ(1, UndeclaredOf(*First(opened->Document()), "Own").Integer());
    Material(opened->Document(), "More");
    Save(*opened);
    EXPECT_THAT(Rows("SELECT name FROM catalogs"), ElementsAre("Own.KORfct"));
}

TEST_F(KORDiskFormatTest, ThePressureUnitThatWasChosenComesBack) {
    {
        auto made = Create();
        EXPECT_EQ("", made->PressureUnit());
        EXPECT_FALSE(made->SetPressureUnit("furlong"));
        ASSERT_TRUE(made->SetPressureUnit("MPa"));
        Save(*made);
    }
    EXPECT_EQ("MPa", OpenToRead()->PressureUnit());
    EXPECT_THAT(Rows("SELECT pressure_unit FROM document"), ElementsAre("MPa"));
}

TEST_F(KORDiskFormatTest, PressureUnitsOfDocumentsThatAreOpenAtOnceAreTheirOwn) {
    for (const auto& [name, unit] : {std::pair("mpa.zeldoc", "MPa"), std::pair("none.zeldoc", "")}) {
        auto made = Create(name);
        ASSERT_TRUE(made->SetPressureUnit(unit));
        Save(*made);
    }
    ASSERT_TRUE(platform->Units().SetCurrentUnit("PRESSURE", "GPa"));

    auto first = OpenToChange("mpa.zeldoc");
    auto second = OpenToChange("none.zeldoc");
    Material(first->Document(), "Steel");
    Material(second->Document(), "Steel");
    Save(*second);
    Save(*first);

    EXPECT_EQ("MPa", OpenToRead("mpa.zeldoc")->PressureUnit());
    EXPECT_EQ("", OpenToRead("none.zeldoc")->PressureUnit());
    EXPECT_EQ("GPa", platform->Units().CurrentUnit(*KORFindUnitType("PRESSURE")).symbol);
}

TEST_F(KORDiskFormatTest, NumbersOfFeaturesAndStepsAreNeverGivenTwice) {
    {
        auto made = Create();
        Do(made->Document(), "Make", [&] { Material(made->Document(), "Steel"); });
        Do(made->Document(), "Make", [&] { Material(made->Document(), "Steel"); });
        made->Document().Undo();
        made->Document().Undo();
        Do(made->Document(), "Make", [&] { Material(made->Document(), "Steel"); });
        made->Document().Undo();
        made->SetHistoryBounds(0, 0);
        made->Document().Log().Clear();
        Save(*made);
    }
    auto opened = OpenToChange();
    EXPECT_EQ(0u, opened->Document().Features().Size());

    opened->SetHistoryBounds(10, 1000);
    Do(opened->Document(), "Make", [&] { Material(opened->Document(), "Steel"); });
    Save(*opened);

    EXPECT_EQ(4u, First(opened->Document())->Number());
    ASSERT_EQ(1u, opened->Steps().size());
    EXPECT_EQ(4u, opened->Steps()[0].number);
}

TEST_F(KORDiskFormatTest, NothingIsWrittenWhereNothingHasChanged) {
    auto made = Create();
    Do(made->Document(), "Make", [&] { Material(made->Document(), "Steel"); });
    Save(*made);
    const std::string before = Content();

    Save(*made);
    made = nullptr;
    Save(*OpenToChange());

    EXPECT_EQ(before, Content());
}

TEST_F(KORDiskFormatTest, AHistoryWithinItsBytesForgetsTheOldestAndKeepsTheLastHoweverLarge) {
    auto made = Create();
    made->SetHistoryBounds(1000, 5000);
    Do(made->Document(), "Make", [&] { Material(made->Document(), "Steel"); });
    for (int i = 0; i < 10; ++i) {
        Do(made->Document(), "Set", [&] {
            KORRawColldouble list;
            for (int value = 0; value < 100; ++value) list.Append(value + i);
            First(made->Document())->SetListOfDouble(numbers, list);
        });
        Save(*made);
    }
    EXPECT_EQ(6u, made->Steps().size());  // of some 800 bytes each
    EXPECT_EQ(6u, OpenToRead()->Steps().size());

    Do(made->Document(), "Large", [&] {
        KORRawColldouble list;
        for (int value = 0; value < 10000; ++value) list.Append(value);
        First(made->Document())->SetListOfDouble(numbers, list);
    });
    Do(made->Document(), "Set", [&] { First(made->Document())->RemoveAllValues(numbers); });
    Save(*made);

    ASSERT_EQ(1u, made->Steps().size());
    EXPECT_EQ("Set", made->Steps()[0].name);
    EXPECT_EQ(1000, OpenToRead()->MostSteps());
    EXPECT_EQ(5000, OpenToRead()->MostBytes());
}

TEST_F(KORDiskFormatTest, ARemovedFeatureCountsAsLongAsItCanComeBack) {
    auto made = Create();
    made->SetHistoryBounds(1000, 100000);
    Do(made->Document(), "Make", [&] {
        KORRawColldouble list;
        for (int value = 0; value < 20000; ++value) list.Append(value);
        Material(made->Document(), "Large")->SetListOfDouble(numbers, list);
    });
    Do(made->Document(), "Remove", [&] { First(made->Document())->SetContainer(nullptr); });
    Save(*made);
    EXPECT_THAT(Rows("SELECT name, bytes>160000 FROM steps"), ElementsAre("Remove|1"));

    Do(made->Document(), "Make", [&] { Material(made->Document(), "Small"); });
    Save(*made);

    EXPECT_THAT(Rows("SELECT name FROM steps"), ElementsAre("Make"));
    EXPECT_THAT(Rows("SELECT number FROM features"), ElementsAre("2"));
}

TEST_F(KORDiskFormatTest, GoesToAnyStepThatIsKept) {
    auto made = Create();
    Do(made->Document(), "Make", [&] { Material(made->Document(), "Steel"); });
    for (const double value : {2.0, 3.0}) {
        Do(made->Document(), "Set", [&] { First(made->Document())->SetDouble(length, value, 1); });
    }
    Save(*made);

    auto opened = OpenToRead("d.zeldoc", KORDiskDocument::History::Steps);
    ASSERT_TRUE(opened->GoToStep(2));
    EXPECT_EQ(2.0, First(opened->Document())->GetDouble(length, 1));
    ASSERT_TRUE(opened->GoToStep(3));
    EXPECT_EQ(3.0, First(opened->Document())->GetDouble(length, 1));
    ASSERT_TRUE(opened->GoToStep(0));
    EXPECT_EQ(nullptr, First(opened->Document()));
    EXPECT_FALSE(opened->GoToStep(4));

    EXPECT_FALSE(OpenToRead()->GoToStep(2));
}

TEST_F(KORDiskFormatTest, UndoGivesANameAndAnAliasBackInAnotherProgram) {
    {
        auto made = Create();
        Do(made->Document(), "Make", [&] {
            Material(made->Document(), "KORDiskTestLT");
            Material(made->Document(), "KORDiskTestLT");
        });
        Do(made->Document(), "Call", [&] { First(made->Document())->SetAlias("Steel"); });
        made->Document().Undo();
        Save(*made);
    }
    auto opened = OpenToChange();

    opened->Document().Redo();

    EXPECT_THAT(Shown(opened->Document()), HasSubstr("1 KORDiskTestLT 'KORDiskTestLT' called 'Steel'"));
    EXPECT_THAT(Shown(opened->Document()), HasSubstr("2 KORDiskTestLT 'KORDiskTestLT' in 1"));
    opened->Document().Undo();
    EXPECT_THAT(Shown(opened->Document()), testing::Not(HasSubstr("Steel")));
}

TEST_F(KORDiskFormatTest, AReferenceToWhatIsNoFeatureOfTheDocumentIsNotSaved) {
    auto made = Create();
    Do(made->Document(), "Make", [&] { Material(made->Document(), "Steel"); });
    Save(*made);
    const auto foreign = KORMemoryDocument::New(*platform);
    const auto stranger = Material(*foreign, "Stranger");
    for (const bool list : {false, true}) {
        const KORBaseUnknown_var container = KORBaseUnknown_var::Adopt(foreign->GetFeatContainer());
        if (list) {
            First(made->Document())->AppendComponent(others, container.Get());
        } else {
            First(made->Document())->SetComponent(other, stranger.Get(), 1);
        }
        KORFileError error;
        EXPECT_FALSE(made->Save({}, error));
        EXPECT_EQ(Path() + ": cannot be saved: feature 1, \"" + (list ? "Others" : "Other") +
                      "\": references what is no feature of the document",
                  error.Text());
        EXPECT_THAT(Shown(made->Document()), HasSubstr("Other=never Others=never"));
    }
    foreign->Close();
}

TEST_F(KORDiskFormatTest, ASaveInAStepOrOfWhatWasOpenedToReadIsRefusedWithoutHarm) {
    auto made = Create();
    KORFileError error;
    {
        KORStep step(made->Document(), "Make");
        Material(made->Document(), "Steel");
        EXPECT_FALSE(made->Save({}, error));
        EXPECT_EQ(Path() + ": cannot be saved in the middle of a step", error.Text());
        step.Commit();
    }
    Save(*made);
    auto opened = OpenToRead();
    EXPECT_FALSE(opened->Save({}, error));
    EXPECT_EQ(Path() + ": was opened to be read only", error.Text());
    EXPECT_EQ(1u, opened->Document().FeatureCount());
}

TEST_F(KORDiskFormatTest, ADocumentThatIsNeverSavedLeavesNoFile) {
    Create();
    EXPECT_THAT(Files(), IsEmpty());
}

TEST_F(KORDiskFormatTest, WhatIsThereIsNotMadeAnew) {
    Touch("text", "x");
    std::filesystem::create_directory(Path("folder"));
    std::filesystem::create_symlink(Path("nowhere"), Path("link"));
    Save(*Create());
    KORFileError error;
    for (const char* name : {"text", "folder", "d.zeldoc"}) {
        EXPECT_EQ(nullptr, KORDiskDocument::Create(*platform, Path(name), error)) << name;
        EXPECT_EQ(Path(name) + ": exists already", error.Text());
    }
    EXPECT_EQ(nullptr, KORDiskDocument::Create(*platform, Path("link"), error));
    EXPECT_EQ(nullptr, KORDiskDocument::Create(*platform, Path("no/such/folder"), error));
    EXPECT_EQ(Path("no/such/folder") + ": cannot be made: No such file or directory", error.Text());
    EXPECT_EQ("x", Content("text"));
    EXPECT_EQ(4u, Files().size());
}

}  // namespace
