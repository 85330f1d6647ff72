#include "platform/document/KORTextDocument.h"

#include <unistd.h>

#include <cmath>
#include <filesystem>
#include <fstream>
#include <limits>
#include <map>

#include "KORTestDocument.h"
#include "interfaces/KORIMaterialFeature.h"

namespace {

/// Every kind of attribute, in every state it can be in.
constexpr const char* kWhole = R"json({
  "format": 1,
  "catalogs": ["ZELMaterialPropertiesCatalog.KORfct"],
  "pressure_unit": "MPa",
  "containers": ["VRBMatAppliCont", "Second"],
  "features": [
    {"id": 1, "type": "KORMaterialLT", "name": "Steel", "alias": "S235 \"é\"",
     "attributes": {
       "ApplicativeData": {"refs": [2]}
     }},
    {"id": 2, "type": "KORApplicativeDataLT",
     "attributes": {
       "Name": "ZELMaterialApplicative",
       "Data": {"ref": 3}
     }},
    {"id": 3, "type": "ZELMaterialLT", "name": "", "container": "VRBMatAppliCont",
     "attributes": {
       "ZELElasticFlag": true,
       "ZELPlasticFlag": null,
       "ZELElastic": {"ref": 4},
       "Father": {"ref": 1}
     }},
    {"id": 4, "type": "ZELElasticLT", "alias": "", "container": null,
     "attributes": {
       "DataFile": "steel.csv",
       "YoungData": [2.1e+11, 0.1, -0.0, "NaN", "Infinity", "-Infinity", 1152921504606846976],
       "PoissonData": []
     }},
    {"id": 5, "type": "MRVUserMaterialLT", "container": "Second",
     "attributes": {
       "UserMaterialDepVar": -3
     }},
    {"id": 6, "type": "ZELLayupLT",
     "attributes": {
       "LayerList": {"refs": [7, null, 7]}
     }},
    {"id": 7, "type": "ZELLayupLayerLT",
     "attributes": {
       "Thickness": 0.00025
     }},
    {"id": 8, "type": "ZELLayupLT",
     "attributes": {
       "LayerList": {"refs": []}
     }},
    {"id": 9, "type": "ZELLayupLT"}
  ]
}
)json";

class KORTextDocumentTest : public testing::Test {
protected:
    std::string Written() {
        KORFileError error;
        const auto written = text.Write(error);
        EXPECT_EQ("", error.Text());
        return written.value_or("");
    }
    void Read(const std::string& read) {
        KORFileError error;
        ASSERT_TRUE(text.ReadText(read, "text", error)) << error.Text();
    }
    const KORValue& ValueOf(int id, const char* attribute) {
        const auto feature = text.Find(id);
        return feature->At(feature->Layout().Find(KORName::Intern(attribute)).slot);
    }
    KORBaseUnknown_var ContainerOf(int id) {
        return KORBaseUnknown_var::Adopt(text.Find(id)->GetFeatContainer());
    }

    KORPlatform platform{ZEL_CATALOG_FOLDER};
    KORVar<KORMemoryDocument> document = KORMemoryDocument::New(platform);
    KORTextDocument text{*document};
};

TEST_F(KORTextDocumentTest, IsWrittenAsItWasRead) {
    Read(kWhole);

    EXPECT_EQ(kWhole, Written());
}

TEST_F(KORTextDocumentTest, MakesFeaturesInTheirContainers) {
    Read(kWhole);

    EXPECT_EQ(8u, document->FeatureCount());
    EXPECT_EQ(9u, document->Features().Size());
    EXPECT_EQ(KORUnicodeString("Steel"), text.Find(1)->GetName());
    EXPECT_EQ(KORUnicodeString("S235 \"é\""), text.Find(1)->GetAlias());
    EXPECT_EQ(KORUnicodeString("KORApplicativeDataLT"), text.Find(2)->GetName());
    EXPECT_EQ(KORUnicodeString(""), text.Find(3)->GetName());
    EXPECT_EQ(KORBaseUnknown_var::Adopt(document->GetFeatContainer()), ContainerOf(1));
    EXPECT_EQ(KORBaseUnknown_var::Adopt(document->FindContainer("VRBMatAppliCont")), ContainerOf(3));
    EXPECT_FALSE(ContainerOf(4));
    EXPECT_FALSE(text.Find(10));
}

TEST_F(KORTextDocumentTest, GivesAttributesTheirValuesAndTheOthersTheCatalogs) {
    Read(kWhole);

    EXPECT_TRUE(ValueOf(3, "ZELElasticFlag").Boolean());
    EXPECT_EQ(KORValueState::NeverValued, ValueOf(3, "ZELPlasticFlag").State());
    EXPECT_EQ(KORValueState::Valued, ValueOf(3, "ZELDensityFlag").State());
    EXPECT_EQ(text.Find(4).Get(), ValueOf(3, "ZELElastic").Component());
    EXPECT_EQ(KORValueState::NeverValued, ValueOf(3, "ZELPlastic").State());
    EXPECT_EQ(KORValueState::Empty, ValueOf(4, "PoissonData").State());
    EXPECT_EQ(KORValueState::NeverValued, ValueOf(4, "TemperatureData").State());
    EXPECT_EQ(-3, ValueOf(5, "UserMaterialDepVar").Integer());
    EXPECT_EQ(0.00025, ValueOf(7, "Thickness").Double());
    EXPECT_EQ(3, ValueOf(6, "LayerList").ListSize());
    EXPECT_FALSE(ValueOf(6, "LayerList").ComponentAt(2));
    EXPECT_EQ(KORValueState::Empty, ValueOf(8, "LayerList").State());
    EXPECT_EQ(KORValueState::NeverValued, ValueOf(9, "LayerList").State());
}

TEST_F(KORTextDocumentTest, HoldsEveryNumber) {
    Read(kWhole);

    const KORRawColldouble numbers = ValueOf(4, "YoungData").ListOfDoubles();

    ASSERT_EQ(7, numbers.Size());
    EXPECT_EQ(2.1e11, numbers[1]);
    EXPECT_EQ(0.1, numbers[2]);
    EXPECT_TRUE(numbers[3] == 0.0 && std::signbit(numbers[3]));
    EXPECT_TRUE(std::isnan(numbers[4]));
    EXPECT_EQ(std::numeric_limits<double>::infinity(), numbers[5]);
    EXPECT_EQ(-std::numeric_limits<double>::infinity(), numbers[6]);
    EXPECT_EQ(0x1p60, numbers[7]);
}

TEST_F(KORTextDocumentTest, HangsApplicativeFeaturesOnPlatformMaterials) {
    Read(kWhole);

    const KORIMaterialFeature_var steel(text.Find(1));

    const auto hung = KORISpecObject_var::Adopt(steel->GetApplicativeFeature("ZELMaterialApplicative"));
    EXPECT_EQ(KORISpecObject_var(text.Find(3).Get()), hung);
    EXPECT_EQ(KORISpecObject_var(text.Find(1).Get()), KORISpecObject_var::Adopt(hung->GetFather()));
}

TEST_F(KORTextDocumentTest, SetsThePlatformsUnitOfPressureAndUsesItsCatalogs) {
    Read(kWhole);

    EXPECT_EQ("MPa", platform.Units().CurrentUnit(*KORFindUnitType("PRESSURE")).symbol);
    ASSERT_EQ(1u, document->Catalogs().Catalogs().size());
    EXPECT_EQ("ZELMaterialPropertiesCatalog.KORfct", document->Catalogs().Catalogs()[0].name);
}

TEST_F(KORTextDocumentTest, LeavesTheUnitOfPressureWhenItNamesNone) {
    platform.Units().SetCurrentUnit("PRESSURE", "ksi");

    Read(R"({"format": 1, "features": []})");

    EXPECT_EQ("ksi", platform.Units().CurrentUnit(*KORFindUnitType("PRESSURE")).symbol);
    EXPECT_EQ(0u, document->FeatureCount());
    EXPECT_EQ(
        "{\n  \"format\": 1,\n  \"catalogs\": [],\n  \"pressure_unit\": \"ksi\",\n  \"containers\": [],\n"
        "  \"features\": []\n}\n",
        Written());
}

TEST_F(KORTextDocumentTest, KeepsAttributesThatTheCatalogDoesNotKnowInTheOrderOfTheirNames) {
    Read(R"json({"format": 1, "features": [
      {"id": 30, "type": "KORMaterialLT", "attributes": {"Tint": "red", "Numbers": [1, 2.5], "Off": null,
          "Next": {"ref": 20}, "All": {"refs": [20, null]}, "ApplicativeData": {"refs": [20]}}},
      {"id": 20, "type": "KORApplicativeDataLT", "attributes": {"Name": "a"}}]})json");

    EXPECT_EQ(R"json({
  "format": 1,
  "catalogs": [],
  "pressure_unit": "Pa",
  "containers": [],
  "features": [
    {"id": 1, "type": "KORMaterialLT",
     "attributes": {
       "ApplicativeData": {"refs": [2]},
       "All": {"refs": [2, null]},
       "Next": {"ref": 2},
       "Numbers": [1, 2.5],
       "Off": null,
       "Tint": "red"
     }},
    {"id": 2, "type": "KORApplicativeDataLT",
     "attributes": {
       "Name": "a"
     }}
  ]
}
)json",
              Written());
}

TEST_F(KORTextDocumentTest, KeepsWhatStandsBehindAnEmbeddedNul) {
    const std::string whole = R"json({
  "format": 1,
  "catalogs": [],
  "pressure_unit": "Pa",
  "containers": ["A\u0000B"],
  "features": [
    {"id": 1, "type": "KORApplicativeDataLT", "name": "N\u0000M", "alias": "\u0000", "container": "A\u0000B",
     "attributes": {
       "Name": "a\u0000b",
       "Unknown\u0000Name": "\u0000"
     }}
  ]
}
)json";

    Read(whole);

    EXPECT_EQ(whole, Written());
    EXPECT_EQ(3u, text.Find(1)->GetName().size());
}

/// Every form that an attribute without a declaration can have, and a late type without one.
constexpr const char* kUndeclared = R"json({
  "format": 1,
  "catalogs": [],
  "pressure_unit": "Pa",
  "containers": [],
  "features": [
    {"id": 1, "type": "KORMaterialLT", "alias": "Steel",
     "attributes": {
       "ApplicativeData": {"refs": [2]},
       "All": {"refs": [2, null]},
       "Count": -7,
       "Empty": [],
       "Flag": true,
       "Length": 0.1,
       "Long": 12345678901,
       "Next": {"ref": 2},
       "None": {"refs": []},
       "Numbers": [1, -0.0, "NaN", "Infinity", "-Infinity"],
       "Off": null,
       "Text": "re\u0001d",
       "Zero": -0.0
     }},
    {"id": 2, "type": "KORFutureLT", "name": "Damping", "alias": "", "container": null,
     "attributes": {
       "Father": {"ref": 1},
       "Table": [0.02, 0.03]
     }}
  ]
}
)json";

TEST_F(KORTextDocumentTest, LosesNothingThatTheCatalogsDoNotDeclare) {
    Read(kUndeclared);

    EXPECT_EQ(kUndeclared, Written());
}

TEST_F(KORTextDocumentTest, IsWrittenWholeByAnotherThanTheOneThatReadIt) {
    Read(kUndeclared);
    KORFileError error;

    EXPECT_EQ(kUndeclared, KORTextDocument(*document).Write(error));
}

TEST_F(KORTextDocumentTest, GivesUndeclaredAttributesTheKindThatTheyAreWrittenAs) {
    Read(kUndeclared);
    std::map<std::string_view, KORAttributeKind> kinds;

    text.Find(1)->ForEachUndeclared([&](const KORUnicodeString& name, const KORValue& value) {
        kinds.emplace(name.View(), value.Kind());
    });

    EXPECT_EQ(12u, kinds.size());
    EXPECT_EQ(KORAttributeKind::Boolean, kinds["Flag"]);
    EXPECT_EQ(KORAttributeKind::Integer, kinds["Count"]);
    EXPECT_EQ(KORAttributeKind::Double, kinds["Length"]);
    EXPECT_EQ(KORAttributeKind::Double, kinds["Long"]);
    EXPECT_EQ(KORAttributeKind::String, kinds["Text"]);
    EXPECT_EQ(KORAttributeKind::ListOfDoubles, kinds["Empty"]);
    EXPECT_EQ(KORAttributeKind::Component, kinds["Next"]);
    EXPECT_EQ(KORAttributeKind::ListOfComponents, kinds["None"]);
}

TEST_F(KORTextDocumentTest, ShowsThatAWholeNumberThatNobodyDeclaresIsADouble) {
    Read(R"json({"format": 1, "features": [
      {"id": 1, "type": "KORMaterialLT", "attributes": {"Length": 2.0, "Depth": -3e0, "Far": 1e22}}]})json");

    const std::string written = Written();

    EXPECT_NE(std::string::npos, written.find("\"Length\": 2.0")) << written;
    EXPECT_NE(std::string::npos, written.find("\"Depth\": -3.0")) << written;
    EXPECT_NE(std::string::npos, written.find("\"Far\": 1e+22")) << written;
}

TEST_F(KORTextDocumentTest, KeepsWhatOnlyAnUndeclaredAttributeReferences) {
    Read(R"json({"format": 1, "features": [
      {"id": 1, "type": "KORMaterialLT", "attributes": {"Next": {"ref": 2}}},
      {"id": 2, "type": "KORMaterialLT"}]})json");

    EXPECT_EQ(S_OK, document->Remove(text.Find(2).Get()));

    const std::string written = Written();
    EXPECT_NE(std::string::npos, written.find("\"Next\": {\"ref\": 2}"));
    EXPECT_NE(std::string::npos,
              written.find("{\"id\": 2, \"type\": \"KORMaterialLT\", \"container\": null}"));
}

TEST_F(KORTextDocumentTest, ReadsAndWritesManyContainersAndFeaturesInTimeProportionalToTheirNumber) {
    constexpr int kMany = 20'000;  // a search through all for each of them would take minutes
    std::string many = R"({"format": 1, "containers": [)";
    for (int number = 1; number <= kMany; ++number) {
        many += (number > 1 ? ", \"" : "\"") + std::to_string(number) + "\"";
    }
    many += "], \"features\": [";
    for (int number = 1; number <= kMany; ++number) {
        const std::string digits = std::to_string(number);
        many += (number > 1 ? ", " : "") + ("{\"id\": " + digits) +
                ", \"type\": \"KORMaterialLT\", \"container\": \"" + digits + "\"}";
    }
    many += "]}";

    Read(many);

    EXPECT_EQ(20'000u, document->FeatureCount());
    EXPECT_NE(std::string::npos, Written().find("\"container\": \"20000\"}"));
}

TEST_F(KORTextDocumentTest, LeavesOutWhatOnlyUndoOrAHandleStillHolds) {
    Read(kWhole);
    const auto held = text.Find(9);

    EXPECT_EQ(S_OK, document->Remove(held.Get()));

    EXPECT_EQ(std::string::npos, Written().find("\"id\": 9"));
}

TEST_F(KORTextDocumentTest, IsNoStepToUndoUnlessTheCallerOpensOne) {
    Read(kWhole);
    EXPECT_FALSE(document->CanUndo());
    {
        KORStep step(*document, "Read");
        Read(kWhole);
        step.Commit();
    }
    EXPECT_EQ(16u, document->FeatureCount());

    EXPECT_TRUE(document->Undo());

    EXPECT_EQ(8u, document->FeatureCount());
    EXPECT_EQ(kWhole, Written());
}

TEST_F(KORTextDocumentTest, IsReadFromAFile) {
    const std::string path = testing::TempDir() + "KORTextDocument_" + std::to_string(::getpid()) + ".json";
    std::ofstream(path) << kWhole;
    KORFileError error;

    EXPECT_TRUE(text.Read(path, error)) << error.Text();
    std::filesystem::remove(path);

    EXPECT_EQ(kWhole, Written());
    EXPECT_FALSE(text.Read(path, error));
    EXPECT_EQ(path + ": cannot be read: No such file or directory", error.Text());
}

TEST_F(KORTextDocumentTest, IsNotWrittenWhenAFeatureReferencesSomethingElse) {
    const auto elsewhere = KORMemoryDocument::New(platform);
    const auto foreign = elsewhere->NewPlatformFeature("KORMaterialLT", "Steel");
    const auto object = KORBaseUnknown_var::Adopt(new KORBaseUnknown);
    const auto entry = document->NewPlatformFeature("KORApplicativeDataLT", "Entry");
    KORFileError error;

    entry->SetComponent(KORName::Intern("Data"), foreign.Get(), 0);
    EXPECT_FALSE(text.Write(error));
    EXPECT_EQ("feature 1, Data: references what is no feature of the document", error.Text());

    entry->SetComponent(KORName::Intern("Data"), object.Get(), 0);
    EXPECT_FALSE(text.Write(error));
    EXPECT_EQ("feature 1, Data: references what is no feature of the document", error.Text());
}

TEST_F(KORTextDocumentTest, IsNotWrittenWhenATextIsNoUtf8) {
    document->NewPlatformFeature("KORMaterialLT", "Steel")->SetAlias("\xff");
    KORFileError error;

    EXPECT_FALSE(text.Write(error));

    EXPECT_EQ("a text is no UTF-8", error.Text());
}

TEST_F(KORTextDocumentTest, LeavesNoReferencesBehind) {
    Read(kWhole);

    EXPECT_NE("", Written());

    EXPECT_EQ(2, text.Find(9)->References());  // the container's and the handle's
}

}  // namespace
