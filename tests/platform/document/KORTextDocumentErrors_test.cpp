#include <gtest/gtest.h>

#include "platform/document/KORTextDocument.h"

namespace {

struct Mistake {
    const char* name;
    const char* text;
    const char* error;
};

/// What is wrong stands on line 2 or later.
constexpr Mistake kMistakes[] = {
    {"NoJson", "{\n\"format\": }",
     "text:2:11: syntax error while parsing value - unexpected '}'; expected '[', '{', or a literal"},
    {"NoObject", "[]", "text:1: expected an object"},
    {"UnknownMember", "{\"format\": 1,\n\"feature\": []}", "text:2: \"feature\" means nothing here"},
    {"OtherFormat", "{\n\"format\": 2, \"features\": []}", "text:2: expected \"format\": 1"},
    {"NoFeatures", "{\"format\": 1}", "text:1: expected \"features\": an array"},
    {"CatalogsNoArray", "{\"format\": 1,\n\"catalogs\": 1}", "text:2: expected \"catalogs\": an array"},
    {"CatalogNoText", "{\"format\": 1,\n\"catalogs\": [1]}", "text:2: expected the file name of a catalog"},
    {"NoUnitOfPressure", "{\"format\": 1,\n\"pressure_unit\": \"mm\"}",
     "text:2: \"mm\" is no unit of pressure"},
    {"PressureUnitNoText", "{\"format\": 1,\n\"pressure_unit\": 1}",
     "text:2: expected \"pressure_unit\": a text that is not empty"},
    {"ContainersNoArray", "{\"format\": 1,\n\"containers\": {}}",
     "text:2: expected \"containers\": an array"},
    {"ContainerNoText", "{\"format\": 1,\n\"containers\": [1]}",
     "text:2: expected the name of an applicative container"},
    {"ContainerEmpty", "{\"format\": 1,\n\"containers\": [\"\"]}",
     "text:2: expected the name of an applicative container"},
    {"ContainerBeginsWithNul", "{\"format\": 1,\n\"containers\": [\"\\u0000A\"]}",
     "text:2: expected the name of an applicative container"},
    {"CatalogAbove", "{\"format\": 1,\n\"catalogs\": [\"../a.KORfct\"]}",
     "text:2: the catalog \"../a.KORfct\" cannot be opened: ../a.KORfct: expected the name of a file in the "
     "catalog folder"},
    {"CatalogAbsolute", "{\"format\": 1,\n\"catalogs\": [\"/a.KORfct\"]}",
     "text:2: the catalog \"/a.KORfct\" cannot be opened: /a.KORfct: expected the name of a file in the "
     "catalog folder"},
    {"NestedTooDeep",
     "{\"format\":\n[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[["
     "[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[["
     "[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[",
     "text:2:200: nested deeper than 200"},
    {"FeatureNoObject", "{\"format\": 1, \"features\": [\n1]}", "text:2: expected an object"},
    {"FeatureUnknownMember", "{\"format\": 1, \"features\": [\n{\"ID\": 1}]}",
     "text:2: \"ID\" means nothing here"},
    {"NoId", "{\"format\": 1, \"features\": [\n{\"type\": \"KORMaterialLT\"}]}",
     "text:2: expected \"id\": a whole number from 1 on"},
    {"IdZero", "{\"format\": 1, \"features\": [\n{\"id\": 0, \"type\": \"KORMaterialLT\"}]}",
     "text:2: expected \"id\": a whole number from 1 on"},
    {"IdText", "{\"format\": 1, \"features\": [\n{\"id\": \"1\", \"type\": \"KORMaterialLT\"}]}",
     "text:2: expected \"id\": a whole number from 1 on"},
    {"IdTwice",
     "{\"format\": 1, \"features\": [\n{\"id\": 1, \"type\": \"KORMaterialLT\"},\n{\"id\": 1, \"type\": "
     "\"KORMaterialLT\"}]}",
     "text:3: the id 1 is given twice"},
    {"NoType", "{\"format\": 1, \"features\": [\n{\"id\": 1}]}",
     "text:2: expected \"type\": a text that is not empty"},
    {"NameNoText", "{\"format\": 1, \"features\": [\n{\"id\": 1, \"type\": \"KORMaterialLT\", \"name\": 1}]}",
     "text:2: expected \"name\": a text"},
    {"AliasNoText",
     "{\"format\": 1, \"features\": [\n{\"id\": 1, \"type\": \"KORMaterialLT\", \"alias\": 1}]}",
     "text:2: expected \"alias\": a text"},
    {"UnknownContainer",
     "{\"format\": 1, \"containers\": [\"A\"], \"features\": [\n{\"id\": 1, \"type\": \"KORMaterialLT\", "
     "\"container\": \"B\"}]}",
     "text:2: expected one of \"containers\", or null"},
    {"ContainerNumber",
     "{\"format\": 1, \"containers\": [\"A\"], \"features\": [\n{\"id\": 1, \"type\": \"KORMaterialLT\", "
     "\"container\": 1}]}",
     "text:2: expected one of \"containers\", or null"},
    {"AttributesNoObject",
     "{\"format\": 1, \"features\": [\n{\"id\": 1, \"type\": \"KORMaterialLT\", \"attributes\": 1}]}",
     "text:2: expected an object"},
};

/// Wrong values of attributes of one feature: they stand on line 3.
constexpr Mistake kWrongValues[] = {
    {"Boolean", R"("ZELElasticFlag": 1)", "expected true or false"},
    {"Integer", R"("UserMaterialDepVar": 1.5)", "expected a whole number of 32 bits"},
    {"IntegerTooLarge", R"("UserMaterialDepVar": 2147483648)", "expected a whole number of 32 bits"},
    {"Double", R"("CoeffA": "x")", "expected a number"},
    {"String", R"("DataFile": 1)", "expected a text"},
    {"NumbersNoArray", R"("YoungData": 1)", "expected an array of numbers"},
    {"NumbersText", R"("YoungData": [1, "x"])", "expected a number"},
    {"ComponentNoObject", R"("ZELElastic": 1)", "expected {\"ref\": id}"},
    {"ComponentRefs", R"("ZELElastic": {"refs": []})", "expected {\"ref\": id}"},
    {"ComponentMore", R"("ZELElastic": {"ref": 1, "x": 1})", "expected {\"ref\": id}"},
    {"ComponentUnknown", R"("ZELElastic": {"ref": 9})", "there is no feature with the id 9"},
    {"ComponentText", R"("ZELElastic": {"ref": "1"})", "there is no feature with the id \"1\""},
    {"ListNoObject", R"("LayerList": [1])", "expected {\"refs\": [id or null, ...]}"},
    {"ListMore", R"("LayerList": {"refs": [], "x": 1})", "expected {\"refs\": [id or null, ...]}"},
    {"ListNoRefs", R"("LayerList": {"ref": 1})", "expected {\"refs\": [id or null, ...]}"},
    {"ListNoArray", R"("LayerList": {"refs": 1})", "expected {\"refs\": [id or null, ...]}"},
    {"ListUnknown", R"("LayerList": {"refs": [1, 9]})", "there is no feature with the id 9"},
    {"KeptObject", R"("Unknown": {"x": 1})", "expected {\"ref\": id}"},
    {"KeptReference", R"("Unknown": {"ref": 9})", "there is no feature with the id 9"},
    {"KeptTexts", R"("Unknown": [1, "red"])", "expected a number"},
    {"KeptLists", R"("Unknown": [[1]])", "expected a number"},
    {"KeptReferences", R"("Unknown": {"refs": [9]})", "there is no feature with the id 9"},
};

class KORTextDocumentErrors : public testing::TestWithParam<Mistake> {
protected:
    void ExpectRefused(const std::string& text, const std::string& expected) {
        KORFileError error;
        KORTextDocument reader(*document);

        EXPECT_FALSE(reader.ReadText(text, "text", error));

        EXPECT_EQ(expected, error.Text());
        EXPECT_EQ(1u, document->Features().Size());
        EXPECT_TRUE(document->ContainerNames().empty());
        EXPECT_TRUE(document->Catalogs().Catalogs().empty());
        EXPECT_EQ("GPa", platform.Units().CurrentUnit(*KORFindUnitType("PRESSURE")).symbol);
        EXPECT_EQ(2u, document->NewPlatformFeature("KORMaterialLT", "Next")->Number());
    }
    void SetUp() override {
        platform.Units().SetCurrentUnit("PRESSURE", "GPa");
        document->NewPlatformFeature("KORMaterialLT", "There");
    }

    KORPlatform platform{ZEL_CATALOG_FOLDER};
    KORVar<KORMemoryDocument> document = KORMemoryDocument::New(platform);
};

std::string NameOf(const testing::TestParamInfo<Mistake>& info) {
    return info.param.name;
}

TEST_P(KORTextDocumentErrors, AreToldWithTheirLineAndChangeNothing) {
    ExpectRefused(GetParam().text, GetParam().error);
}

INSTANTIATE_TEST_SUITE_P(Text, KORTextDocumentErrors, testing::ValuesIn(kMistakes), NameOf);

using KORTextDocumentWrongValues = KORTextDocumentErrors;

/// The late type, of the module's catalog, that has the attribute.
const char* TypeOf(const std::string& attribute) {
    if (attribute.starts_with("\"UserMaterialDepVar")) return "MRVUserMaterialLT";
    if (attribute.starts_with("\"CoeffA")) return "ZELPlasticJohnsonCookLT";
    if (attribute.starts_with("\"DataFile") || attribute.starts_with("\"YoungData")) return "ZELElasticLT";
    if (attribute.starts_with("\"LayerList")) return "ZELLayupLT";
    return "ZELMaterialLT";
}

TEST_P(KORTextDocumentWrongValues, AreToldWithTheirLineAndChangeNothing) {
    const std::string text =
        "{\"format\": 1, \"catalogs\": [\"ZELMaterialPropertiesCatalog.KORfct\"], \"pressure_unit\": "
        "\"Pa\",\n"
        "\"containers\": [\"A\"], \"features\": [{\"id\": 1, \"type\": \"" +
        std::string(TypeOf(GetParam().text)) + "\", \"attributes\": {\n" + GetParam().text + "}}]}";

    ExpectRefused(text, "text:3: " + std::string(GetParam().error));
}

INSTANTIATE_TEST_SUITE_P(Value, KORTextDocumentWrongValues, testing::ValuesIn(kWrongValues), NameOf);

TEST_F(KORTextDocumentErrors, NameTheCatalogThatCannotBeOpenedAndOnlyOnce) {
    testing::internal::CaptureStderr();

    ExpectRefused("{\"format\": 1,\n\"catalogs\": [\"Missing.KORfct\"]}",
                  "text:2: the catalog \"Missing.KORfct\" cannot be opened: " ZEL_CATALOG_FOLDER
                  "/Missing.KORfct: cannot be read: No such file or directory");

    EXPECT_EQ("", testing::internal::GetCapturedStderr());
}

TEST_F(KORTextDocumentErrors, RefuseMoreAttributesThanAFeatureCanHold) {
    std::string text =
        "{\"format\": 1, \"features\": [{\"id\": 1, \"type\": \"KORMaterialLT\",\n\"attributes\": {";
    for (int number = 0; number <= 32768; ++number) text += "\"" + std::to_string(number) + "\": 1,\n";

    ExpectRefused(text + "\"a\": 1}}]}", "text:2: more than 32768 attributes");
}

TEST_F(KORTextDocumentErrors, TellThatTheDocumentIsClosed) {
    document->Close();
    KORFileError error;

    EXPECT_FALSE(KORTextDocument(*document).ReadText(R"({"format": 1, "features": []})", "text", error));

    EXPECT_EQ("text:1: the document is closed", error.Text());
}

}  // namespace
