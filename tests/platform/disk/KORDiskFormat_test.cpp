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

}  // namespace
