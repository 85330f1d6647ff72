#include "platform/catalog/KORCatalogFile.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "platform/store/KORRoles.h"

namespace {

/// A catalog of one late type, with these attributes from line 4 on.
std::string Catalog(const std::string& attributes) {
    return "{\"format\": 1, \"types\": [\n{\"name\": \"KORTestLT\", \"since\": 2, \"meaning\": \"test\",\n"
           "\"attributes\": [\n" +
           attributes + "\n]}]}";
}

std::shared_ptr<const KORCatalogFile> Read(const std::string& text) {
    KORFileError error;
    auto catalog = KORCatalogFile::FromText(text, "test.KORfct", error);
    EXPECT_TRUE(catalog) << error.Text();
    return catalog;
}

std::string ErrorOf(const std::string& text) {
    KORFileError error;
    return KORCatalogFile::FromText(text, "test.KORfct", error) ? "" : error.Text();
}

std::string AttributeError(const std::string& attributes) {
    return ErrorOf(Catalog(attributes));
}

TEST(KORCatalogFile, ReadsLateTypesWithTheirAttributes) {
    const auto catalog = Read(Catalog(
        R"({"name": "Flag", "kind": "boolean", "default": true, "since": 2, "meaning": "switched on"},
{"name": "Length", "kind": "double", "default": 1.5, "unit": "m", "since": 3, "meaning": "length"},
{"name": "Old", "kind": "component", "since": 2, "superseded_by": "Length", "meaning": "older data"})"));

    const KORCatalogType* type = catalog->Find(KORName::Find("KORTestLT"));
    ASSERT_NE(nullptr, type);
    EXPECT_EQ("test", type->meaning);
    EXPECT_EQ(2, type->since);
    ASSERT_EQ(3u, type->layout->Attributes().size());
    EXPECT_EQ("Length", type->layout->Attributes()[1].name->Text());
    EXPECT_EQ(1.5, type->layout->Attributes()[1].initial.Double());
    EXPECT_EQ("m", type->attributes[1].unit);
    EXPECT_EQ(3, type->attributes[1].since);
    EXPECT_EQ("length", type->attributes[1].meaning);
    EXPECT_EQ("", type->attributes[0].unit);
    EXPECT_EQ("", type->attributes[1].supersededBy);
    EXPECT_EQ("Length", type->attributes[2].supersededBy);
}

TEST(KORCatalogFile, ReadsTheRolesOfLateTypesAndOfTheFather) {
    const auto catalog = Read(R"({"format": 1, "types": [
      {"name": "M", "role": "model", "since": 1, "meaning": "x", "attributes": []},
      {"name": "S", "role": "set", "since": 1, "meaning": "x", "attributes": []},
      {"name": "E", "role": "entity", "since": 1, "meaning": "x", "attributes": [
        {"name": "Other", "kind": "component", "since": 1, "meaning": "x"},
        {"name": "HangsOn", "kind": "component", "role": "father", "since": 1, "meaning": "x"}]},
      {"name": "N", "since": 1, "meaning": "x", "attributes": [
        {"name": "Father", "kind": "component", "since": 1, "meaning": "no father, in spite of its name"}]}]})");
    const auto role = [&](std::size_t type) { return catalog->Types()[type].layout->Role(); };

    EXPECT_EQ(KORName::Find(kKORModelRole), role(0));
    EXPECT_EQ(KORName::Find(kKORSetRole), role(1));
    EXPECT_EQ(KORName::Find(kKOREntityRole), role(2));
    EXPECT_EQ(nullptr, role(3));
    const KORLayout& entity = *catalog->Types()[2].layout;
    EXPECT_EQ(entity.Find(KORName::Find("HangsOn")).slot, entity.FatherSlot());
    EXPECT_EQ(0, catalog->Types()[3].layout->FatherSlot());
}

TEST(KORCatalogFile, RefusesRolesItDoesNotKnow) {
    EXPECT_EQ("test.KORfct:2: the role \"layup\" is unknown; expected one of \"model\", \"set\", \"entity\"",
              ErrorOf("{\"format\": 1, \"types\": [\n{\"name\": \"A\", \"role\": \"layup\", \"since\": 1, "
                      "\"meaning\": \"x\", \"attributes\": []}]}"));
    const std::string father = R"("kind": "component", "role": "father", "since": 1, "meaning": "x"})";
    EXPECT_EQ("test.KORfct:5: a late type has one father",
              AttributeError("{\"name\": \"A\", " + father + ",\n{\"name\": \"B\", " + father));
    EXPECT_EQ(
        "test.KORfct:4: an attribute's one role is \"father\"",
        AttributeError(R"({"name": "A", "kind": "component", "role": "son", "since": 1, "meaning": "x"})"));
    EXPECT_EQ(
        "test.KORfct:4: only a component can be the father",
        AttributeError(
            R"({"name": "A", "kind": "list of components", "role": "father", "since": 1, "meaning": "x"})"));
}

TEST(KORCatalogFile, FindsOnlyWhatItDeclares) {
    const auto catalog = Read(Catalog(""));

    EXPECT_EQ(nullptr, catalog->Find(KORName::Intern("OtherLT")));
    EXPECT_EQ(nullptr, catalog->Find(nullptr));
}

TEST(KORCatalogFile, StartsListsComponentsAndNullDefaultsNeverValued) {
    const auto catalog = Read(Catalog(
        R"({"name": "L", "kind": "list of doubles", "unit": "Pa", "since": 1, "meaning": "x"},
{"name": "C", "kind": "component", "since": 1, "meaning": "x"},
{"name": "LC", "kind": "list of components", "since": 1, "meaning": "x"},
{"name": "B", "kind": "boolean", "default": null, "since": 1, "meaning": "x"},
{"name": "S", "kind": "string", "default": "", "since": 1, "meaning": "x"},
{"name": "I", "kind": "integer", "default": -2, "since": 1, "meaning": "x"})"));

    const auto& attributes = catalog->Types()[0].layout->Attributes();
    EXPECT_EQ(KORAttributeKind::ListOfDoubles, attributes[0].initial.Kind());
    EXPECT_EQ(KORValueState::NeverValued, attributes[0].initial.State());
    EXPECT_EQ(KORAttributeKind::Component, attributes[1].initial.Kind());
    EXPECT_EQ(KORValueState::NeverValued, attributes[1].initial.State());
    EXPECT_EQ(KORAttributeKind::ListOfComponents, attributes[2].initial.Kind());
    EXPECT_EQ(KORValueState::NeverValued, attributes[2].initial.State());
    EXPECT_EQ(KORValueState::NeverValued, attributes[3].initial.State());
    EXPECT_EQ(KORValueState::Valued, attributes[4].initial.State());
    EXPECT_EQ(-2, attributes[5].initial.Integer());
}

TEST(KORCatalogFile, TakesAWholeNumberAsTheDefaultOfADouble) {
    const auto catalog = Read(
        Catalog(R"({"name": "D", "kind": "double", "default": 2, "unit": "-", "since": 1, "meaning": "x"})"));

    EXPECT_EQ(2.0, catalog->Types()[0].layout->Attributes()[0].initial.Double());
}

TEST(KORCatalogFile, RefusesWhatIsNoCatalog) {
    EXPECT_EQ("test.KORfct:1: expected an object", ErrorOf("[]"));
    EXPECT_EQ("test.KORfct:1: expected \"format\": 1", ErrorOf("{\"types\": []}"));
    EXPECT_EQ("test.KORfct:2: expected \"format\": 1", ErrorOf("{\n\"format\": 2, \"types\": []}"));
    EXPECT_EQ("test.KORfct:1: expected \"types\": an array", ErrorOf("{\"format\": 1}"));
    EXPECT_EQ("test.KORfct:2: expected an object", ErrorOf("{\"format\": 1, \"types\": [\n3]}"));
    EXPECT_EQ("test.KORfct:2: \"typos\" means nothing here", ErrorOf("{\"format\": 1,\n\"typos\": []}"));
    EXPECT_EQ(0u, ErrorOf("{\n\"format\": }").find("test.KORfct:2:11: syntax error"));
}

TEST(KORCatalogFile, RefusesALateTypeThatIsIncomplete) {
    const auto type = [](const std::string& members) {
        return ErrorOf("{\"format\": 1, \"types\": [\n{" + members + "}]}");
    };

    EXPECT_EQ("test.KORfct:2: expected \"name\": a text that is not empty",
              type(R"("since": 1, "meaning": "x", "attributes": [])"));
    EXPECT_EQ("test.KORfct:2: expected \"since\": the number of a release, from 1 on",
              type(R"("name": "A", "since": 0, "meaning": "x", "attributes": [])"));
    EXPECT_EQ("test.KORfct:2: expected \"meaning\": a text that is not empty",
              type(R"("name": "A", "since": 1, "meaning": "", "attributes": [])"));
    EXPECT_EQ("test.KORfct:2: expected \"attributes\": an array",
              type(R"("name": "A", "since": 1, "meaning": "x")"));
}

TEST(KORCatalogFile, RefusesALateTypeThatIsDeclaredTwice) {
    const std::string type = R"({"name": "A", "since": 1, "meaning": "x", "attributes": []})";

    EXPECT_EQ("test.KORfct:3: the late type \"A\" is declared twice",
              ErrorOf("{\"format\": 1, \"types\": [\n" + type + ",\n" + type + "]}"));
}

TEST(KORCatalogFile, RefusesAnAttributeThatIsIncomplete) {
    EXPECT_EQ("test.KORfct:4: expected \"name\": a text that is not empty",
              AttributeError(R"({"kind": "component", "since": 1, "meaning": "x"})"));
    EXPECT_EQ("test.KORfct:4: expected \"since\": the number of a release, from 1 on",
              AttributeError(R"({"name": "A", "kind": "component", "meaning": "x"})"));
    EXPECT_EQ("test.KORfct:4: expected \"meaning\": a text that is not empty",
              AttributeError(R"({"name": "A", "kind": "component", "since": 1})"));
    EXPECT_EQ("test.KORfct:4: expected \"unit\": a text that is not empty",
              AttributeError(R"({"name": "A", "kind": "list of doubles", "since": 1, "meaning": "x"})"));
    EXPECT_EQ("test.KORfct:4: expected \"default\": a value, or null for none",
              AttributeError(R"({"name": "A", "kind": "boolean", "since": 1, "meaning": "x"})"));
    EXPECT_EQ("test.KORfct:4: expected an object", AttributeError("\"A\""));
}

TEST(KORCatalogFile, RefusesAKindItDoesNotKnow) {
    EXPECT_EQ(
        "test.KORfct:5: the kind \"float\" is unknown; expected one of \"boolean\", \"integer\", \"double\", "
        "\"string\", \"list of doubles\", \"component\", \"list of components\"",
        AttributeError("{\"name\": \"A\", \"since\": 1, \"meaning\": \"x\",\n\"kind\": \"float\"}"));
}

TEST(KORCatalogFile, RefusesADefaultThatIsNotOfTheAttributesKind) {
    const auto error = [](const std::string& kind, const std::string& value) {
        return AttributeError(
            "{\"name\": \"A\", \"kind\": \"" + kind + "\", \"since\": 1, \"meaning\": \"x\"" +
            (kind == "double" ? ", \"unit\": \"-\"" : "") + ",\n\"default\": " + value + "}");
    };
    const std::string wrong = "test.KORfct:5: the default is not of the attribute's kind";

    EXPECT_EQ(wrong, error("boolean", "1"));
    EXPECT_EQ(wrong, error("integer", "1.5"));
    EXPECT_EQ(wrong, error("integer", "3000000000"));
    EXPECT_EQ(wrong, error("integer", "-3000000000"));
    EXPECT_EQ(wrong, error("double", "\"1\""));
    EXPECT_EQ(wrong, error("string", "1"));
    EXPECT_EQ("test.KORfct:5: lists and components have no default: they start never valued",
              error("component", "\"A\""));
}

TEST(KORCatalogFile, RefusesAUnitWhereThereIsNoNumber) {
    EXPECT_EQ(
        "test.KORfct:4: only a double or a list of doubles has a unit",
        AttributeError(
            R"({"name": "A", "kind": "boolean", "default": true, "unit": "m", "since": 1, "meaning": "x"})"));
}

TEST(KORCatalogFile, RefusesAnAttributeThatIsDeclaredTwice) {
    const std::string attribute = R"({"name": "A", "kind": "component", "since": 1, "meaning": "x"})";

    EXPECT_EQ("test.KORfct:5: the attribute \"A\" is declared twice",
              AttributeError(attribute + ",\n" + attribute));
}

TEST(KORCatalogFile, RefusesASuccessorThatTheTypeDoesNotHave) {
    EXPECT_EQ("test.KORfct:5: \"KORTestLT\" has no attribute \"A_v2\"",
              AttributeError("{\"name\": \"A\", \"kind\": \"component\", \"since\": 1, \"meaning\": \"x\",\n"
                             "\"superseded_by\": \"A_v2\"}"));
    EXPECT_EQ("test.KORfct:4: expected \"superseded_by\": a text that is not empty",
              AttributeError(
                  R"({"name": "A", "kind": "component", "since": 1, "meaning": "x", "superseded_by": ""})"));
}

TEST(KORCatalogFile, RefusesAMemberThatMeansNothing) {
    EXPECT_EQ("test.KORfct:4: \"sinse\" means nothing here",
              AttributeError(R"({"name": "A", "kind": "component", "sinse": 1, "meaning": "x"})"));
}

class KORCatalogFileOnDisk : public testing::Test {
protected:
    void SetUp() override { std::filesystem::remove(path); }
    void TearDown() override { std::filesystem::remove(path); }
    void Write(const std::string& text) const { std::ofstream(path) << text; }

    /// Of its own for every case: a process parses a path once.
    const std::string path = testing::TempDir() + "KORCatalogFile_" +
                             testing::UnitTest::GetInstance()->current_test_info()->name() +
                             std::to_string(::getpid()) + ".KORfct";
    KORFileError error;
};

TEST_F(KORCatalogFileOnDisk, IsParsedOncePerProcess) {
    Write(Catalog(""));
    const auto first = KORCatalogFile::Open(path, error);
    std::filesystem::remove(path);

    const auto second = KORCatalogFile::Open(path, error);

    ASSERT_TRUE(first);
    EXPECT_EQ(first, second);
}

TEST_F(KORCatalogFileOnDisk, IsOpenedOnceItsMistakeIsMended) {
    EXPECT_FALSE(KORCatalogFile::Open(path, error));
    EXPECT_EQ(path + ": cannot be read: No such file or directory", error.Text());

    Write("{\"format\": 1}");
    EXPECT_FALSE(KORCatalogFile::Open(path, error));
    EXPECT_EQ(path + ":1: expected \"types\": an array", error.Text());

    Write(Catalog(""));
    EXPECT_TRUE(KORCatalogFile::Open(path, error));
}

}  // namespace
