#include "platform/catalog/KORCatalog.h"

#include "KORTestDocument.h"
#include "platform/catalog/KORStartUp.h"

namespace {

constexpr const char* kText =
    R"({"format": 1, "types": [{"name": "KORTestLT", "since": 1, "meaning": "x", "attributes": [
{"name": "Flag", "kind": "boolean", "default": true, "since": 1, "meaning": "x"},
{"name": "Length", "kind": "double", "default": 1.5, "unit": "m", "since": 1, "meaning": "x"},
{"name": "Text", "kind": "string", "default": "", "since": 1, "meaning": "x"},
{"name": "Numbers", "kind": "list of doubles", "unit": "Pa", "since": 1, "meaning": "x"},
{"name": "Other", "kind": "component", "since": 1, "meaning": "x"},
{"name": "Others", "kind": "list of components", "since": 1, "meaning": "x"}]}]})";

class KORCatalogTest : public KORTestDocument {
protected:
    KORISpecObject_var StartUp() {
        void* found = nullptr;
        EXPECT_EQ(S_OK, catalog->RetrieveStartUp("KORTestLT", "KORISpecObject", &found));
        return KORISpecObject_var::Adopt(static_cast<KORISpecObject*>(found));
    }

    KORFileError error;
    const KORICatalog_var catalog =
        KORICatalog_var::Adopt(new KORCatalog(KORCatalogFile::FromText(kText, "test.KORfct", error)));
};

TEST_F(KORCatalogTest, HandsOutAStartUpWithOneReferenceForTheCaller) {
    const KORBaseUnknown_var watch(StartUp());
    const auto before = watch->References();

    const auto startUp = StartUp();

    EXPECT_EQ(KORUnicodeString("KORTestLT"), startUp->GetType());
    EXPECT_EQ(before + 1, watch->References());
}

TEST_F(KORCatalogTest, HandsOutTheSameStartUpEachTime) {
    EXPECT_EQ(StartUp(), StartUp());
}

TEST_F(KORCatalogTest, AnswersAStartUpUnderTheInterfaceAskedFor) {
    void* found = nullptr;
    ASSERT_EQ(S_OK, catalog->RetrieveStartUp("KORTestLT", "KORISpecAttrAccess", &found));
    const auto access = KORISpecAttrAccess_var::Adopt(static_cast<KORISpecAttrAccess*>(found));

    EXPECT_EQ(1.5, access->GetDouble(length, 0));
}

TEST_F(KORCatalogTest, FailsForATypeItLacksAndAnInterfaceTheStartUpLacks) {
    void* found = this;
    EXPECT_EQ(E_FAIL, catalog->RetrieveStartUp("KORUnknownLT", "KORISpecObject", &found));
    EXPECT_EQ(nullptr, found);

    found = this;
    EXPECT_EQ(E_FAIL, catalog->RetrieveStartUp("KORTestLT", "KORILinkableObject", &found));
    EXPECT_EQ(nullptr, found);

    found = this;
    EXPECT_EQ(E_FAIL, catalog->RetrieveStartUp("KORTestLT", "KORINeverHeardOf", &found));
    EXPECT_EQ(nullptr, found);
}

TEST_F(KORCatalogTest, StartUpReadsAsTheDefaultsAndIgnoresWrites) {
    const KORISpecAttrAccess_var access(StartUp());

    access->SetBoolean(flag, false, 0);
    access->SetDouble(length, 9.0, 0);
    access->SetInteger(count, 9, 0);
    access->SetString(text, "abc", 0);
    access->SetListOfDouble(numbers, KORNumbers({1.0}));
    access->SetComponent(other, container.Get(), 0);
    access->AppendComponent(others, container.Get());
    access->RemoveAllValues(numbers);
    access->RemoveValue(length);

    EXPECT_TRUE(access->GetBoolean(flag, 0));
    EXPECT_EQ(1.5, access->GetDouble(length, 0));
    EXPECT_EQ(KORUnicodeString(""), access->GetString(text, 0));
    EXPECT_EQ(nullptr, access->GetListOfDouble(numbers));
    EXPECT_EQ(nullptr, access->GetComponent(other, 0));
    EXPECT_EQ(nullptr, access->GetListOfComponents(others));
    EXPECT_EQ(nullptr, access->GetAttrKey("Count"));
}

TEST_F(KORCatalogTest, StartUpLiesInNoContainerAndIsNamedAfterItsType) {
    const auto startUp = StartUp();

    EXPECT_EQ(nullptr, startUp->GetFeatContainer());
    EXPECT_EQ(KORUnicodeString("KORTestLT"), startUp->GetName());
    EXPECT_FALSE(KORILinkableObject_var(startUp));
}

TEST_F(KORCatalogTest, StartUpMakesFeaturesWithItsDefaults) {
    const auto own = KORIContainer_var::Of(container.Get());
    {
        const auto made = KORISpecObject_var::Adopt(StartUp()->Instantiate("Made", own.Get()));

        ASSERT_TRUE(made);
        EXPECT_EQ(2, KORVar<KORFeature>(made)->References() - 1);
        EXPECT_EQ(KORUnicodeString("Made"), made->GetName());
        EXPECT_EQ(KORUnicodeString("KORTestLT"), made->GetType());
        const KORISpecAttrAccess_var access(made);
        EXPECT_TRUE(access->GetBoolean(flag, 0));
        EXPECT_EQ(1.5, access->GetDouble(length, 0));
        EXPECT_EQ(container.Get(), KORBaseUnknown_var::Adopt(made->GetFeatContainer()).Get());
    }
    EXPECT_EQ(1u, document->FeatureCount());
}

TEST_F(KORCatalogTest, StartUpMakesNothingWhereNoFeatureCanLie) {
    const auto own = KORIContainer_var::Of(container.Get());

    EXPECT_EQ(nullptr, StartUp()->Instantiate("Made", nullptr));
    document->Close();
    EXPECT_EQ(nullptr, StartUp()->Instantiate("Made", own.Get()));
}

TEST_F(KORCatalogTest, FeaturesOutliveTheCatalogTheyWereMadeFrom) {
    const auto own = KORIContainer_var::Of(container.Get());
    KORVar<KORFeature> made;
    {
        auto file = KORCatalogFile::FromText(kText, "gone.KORfct", error);
        const auto shortLived = KORICatalog_var::Adopt(new KORCatalog(std::move(file)));
        void* found = nullptr;
        ASSERT_EQ(S_OK, shortLived->RetrieveStartUp("KORTestLT", "KORISpecObject", &found));
        const auto startUp = KORISpecObject_var::Adopt(static_cast<KORISpecObject*>(found));
        made = KORVar<KORFeature>(KORISpecObject_var::Adopt(startUp->Instantiate("Made", own.Get())));
    }
    EXPECT_EQ(KORUnicodeString("KORTestLT"), made->GetType());
    EXPECT_EQ(1.5, made->GetDouble(length, 0));
}

}  // namespace
