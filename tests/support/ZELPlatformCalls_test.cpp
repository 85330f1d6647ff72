#include "tests/support/ZELPlatformCalls.h"

#include <gmock/gmock.h>

#include "interfaces/KORICatalog.h"
#include "tests/support/ZELMapStore.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// A map store with one type of feature, and one feature of it.
class ZELPlatformCallsTest : public testing::Test {
protected:
    ZELPlatformCallsTest() {
        store_.DefineType("TestLT", {{"Flag", ZELKind::Boolean},
                                     {"Data", ZELKind::ListOfDoubles},
                                     {"Part", ZELKind::Component},
                                     {"Parts", ZELKind::ListOfComponents}});
        feature_ = store_.Make("TestLT");
    }

    ZELMapStore store_;
    KORISpecObject_var feature_;
};

}  // namespace

TEST_F(ZELPlatformCallsTest, LogsEveryCallInOrderWithItsValues) {
    const KORISpecAttrAccess_var access = feature_;
    KORISpecAttrKey* data = access->GetAttrKey("Data");
    access->SetListOfDouble(data, ListOf({7850.0, 0.5}));
    delete access->GetListOfDouble(data);
    data->Release();

    EXPECT_THAT(store_.Calls().Log(),
                ElementsAre("QueryInterface TestLT KORISpecAttrAccess", "GetAttrKey TestLT.Data",
                            "SetListOfDouble TestLT.Data [7850, 0.5]", "GetListOfDouble TestLT.Data"));
    EXPECT_THAT(store_.Calls().Log("GetAttrKey"), ElementsAre("GetAttrKey TestLT.Data"));
}

TEST_F(ZELPlatformCallsTest, SaysThatAKeyWasNotFound) {
    const KORISpecAttrAccess_var access = feature_;
    store_.Calls().ClearLog();

    EXPECT_EQ(access->GetAttrKey("Missing"), nullptr);

    EXPECT_THAT(store_.Calls().Log(), ElementsAre("GetAttrKey TestLT.Missing not found"));
}

TEST_F(ZELPlatformCallsTest, DoesNotLogTheTestsOwnLookAtAFeature) {
    SetFlag(feature_, "Flag", true);
    EXPECT_TRUE(GetFlag(feature_, "Flag"));
    EXPECT_EQ(References(feature_), 2);

    EXPECT_THAT(store_.Calls().Log(), IsEmpty());
}

TEST_F(ZELPlatformCallsTest, CountsTheKeysThatWereNotGivenBack) {
    const KORISpecAttrAccess_var access = feature_;
    const long before = store_.KeyReferences();

    KORISpecAttrKey* key = access->GetAttrKey("Flag");
    EXPECT_EQ(store_.KeyReferences(), before + 1);

    key->Release();
    EXPECT_EQ(store_.KeyReferences(), before);
}

TEST_F(ZELPlatformCallsTest, RefusesTheNthCallOfAKind) {
    const KORISpecAttrAccess_var access = feature_;
    store_.Calls().Inject(ZELFault::Refuse, 2, "GetAttrKey");

    KORISpecAttrKey* flag = access->GetAttrKey("Flag");
    EXPECT_FALSE(store_.Calls().FaultHit());
    EXPECT_EQ(access->GetAttrKey("Data"), nullptr);
    KORISpecAttrKey* data = access->GetAttrKey("Data");

    ASSERT_NE(flag, nullptr);
    ASSERT_NE(data, nullptr);
    flag->Release();
    data->Release();
    EXPECT_TRUE(store_.Calls().FaultHit());
    EXPECT_EQ(store_.Calls().FailedCall(), "GetAttrKey TestLT.Data");
}

TEST_F(ZELPlatformCallsTest, RefusesAnInterfaceOnce) {
    store_.Calls().Inject(ZELFault::Refuse, 1);

    EXPECT_EQ(KORISpecAttrAccess_var(feature_), nullptr);
    EXPECT_NE(KORISpecAttrAccess_var(feature_), nullptr);
}

TEST_F(ZELPlatformCallsTest, RefusesAnInterfaceForGoodOnALateType) {
    store_.DefineType("OtherLT", {});
    const KORISpecObject_var other = store_.Make("OtherLT");
    store_.Calls().RefuseInterface("TestLT", "KORISpecAttrAccess");

    void* found = this;
    EXPECT_EQ(feature_->QueryInterface(IID_KORISpecAttrAccess, &found), E_NOINTERFACE);
    EXPECT_EQ(found, nullptr);
    EXPECT_EQ(feature_->QueryInterface(IID_KORISpecAttrAccess, &found), E_NOINTERFACE);
    EXPECT_NE(KORISpecAttrAccess_var(other), nullptr);
    EXPECT_NE(Access(feature_), nullptr) << "the test itself still has it";
}

TEST_F(ZELPlatformCallsTest, NeverRefusesTheIdentityOfAnObject) {
    store_.Calls().Inject(ZELFault::Refuse, 1);

    EXPECT_NE(KORBaseUnknown_var(feature_), nullptr);
    EXPECT_FALSE(store_.Calls().FaultHit());
}

TEST_F(ZELPlatformCallsTest, AnswersNullForListsAndFeaturesThatAreRefused) {
    const KORISpecAttrAccess_var access = feature_;
    SetList(feature_, "Data", {1.0});
    Attach(feature_, "Part", feature_);
    AppendComponent(feature_, "Parts", feature_);
    KORISpecAttrKey* data = access->GetAttrKey("Data");
    KORISpecAttrKey* parts = access->GetAttrKey("Parts");

    store_.Calls().Inject(ZELFault::Refuse, 1);
    EXPECT_EQ(access->GetListOfDouble(data), nullptr);
    store_.Calls().Inject(ZELFault::Refuse, 1);
    EXPECT_EQ(access->GetSpecObject("Part", 0), nullptr);
    store_.Calls().Inject(ZELFault::Refuse, 1);
    EXPECT_EQ(access->GetListOfComponents(parts), nullptr);
    store_.Calls().Inject(ZELFault::Refuse, 1);
    EXPECT_EQ(access->GetComponent(parts, 1), nullptr);
    store_.Calls().Inject(ZELFault::Refuse, 1);
    EXPECT_EQ(feature_->GetFeatContainer(), nullptr);
    data->Release();
    parts->Release();
}

TEST_F(ZELPlatformCallsTest, DoesNotRefuseSettersButThrowsFromThem) {
    const KORISpecAttrAccess_var access = feature_;
    KORISpecAttrKey* flag = access->GetAttrKey("Flag");

    store_.Calls().Inject(ZELFault::Refuse, 1);
    access->SetBoolean(flag, true, 0);
    EXPECT_FALSE(store_.Calls().FaultHit());
    EXPECT_TRUE(GetFlag(feature_, "Flag"));

    store_.Calls().Inject(ZELFault::Throw, 1);
    EXPECT_THROW(access->SetBoolean(flag, false, 0), ZELInjectedFault);
    EXPECT_TRUE(GetFlag(feature_, "Flag")) << "nothing was written";
    flag->Release();
}

TEST_F(ZELPlatformCallsTest, FailsCatalogStartUpAndInstantiation) {
    KORICatalog_var catalog;
    store_.Calls().Inject(ZELFault::Refuse, 1, "OpenCatalog");
    EXPECT_EQ(
        AccessCatalog("ZELMaterialPropertiesCatalog.KORfct", "ZELMAR", store_.Container().Get(), catalog),
        E_FAIL);
    store_.Calls().Inject(ZELFault::SuccessWithNull, 1, "OpenCatalog");
    EXPECT_EQ(
        AccessCatalog("ZELMaterialPropertiesCatalog.KORfct", "ZELMAR", store_.Container().Get(), catalog),
        S_OK);
    EXPECT_EQ(catalog, nullptr);
    ASSERT_EQ(
        AccessCatalog("ZELMaterialPropertiesCatalog.KORfct", "ZELMAR", store_.Container().Get(), catalog),
        S_OK);

    void* startUp = this;
    store_.Calls().Inject(ZELFault::Refuse, 1, "RetrieveStartUp");
    EXPECT_EQ(catalog->RetrieveStartUp("TestLT", "KORISpecObject", &startUp), E_FAIL);
    EXPECT_EQ(startUp, nullptr);
    store_.Calls().Inject(ZELFault::SuccessWithNull, 1, "RetrieveStartUp");
    EXPECT_EQ(catalog->RetrieveStartUp("TestLT", "KORISpecObject", &startUp), S_OK);
    EXPECT_EQ(startUp, nullptr);

    ASSERT_EQ(catalog->RetrieveStartUp("TestLT", "KORISpecObject", &startUp), S_OK);
    const auto held = KORISpecObject_var::Adopt(static_cast<KORISpecObject*>(startUp));
    store_.Calls().Inject(ZELFault::Refuse, 1, "Instantiate");
    EXPECT_EQ(held->Instantiate("name", store_.Container().Get()), nullptr);
    EXPECT_EQ(store_.LiveFeatures(), 1);
}

TEST_F(ZELPlatformCallsTest, AnswersTheStatusThatAFaultCarries) {
    constexpr HRESULT kOtherSuccess = 1;
    const KORICatalogAccess_var catalogs(store_.Container());
    const auto open = [&](HRESULT status) {
        KORICatalog_var catalog;
        store_.Calls().InjectStatus(status, 1, "OpenCatalog");
        const HRESULT answer =
            catalogs->OpenCatalog("ZELMaterialPropertiesCatalog.KORfct", "ZELMAR", catalog);
        EXPECT_EQ(catalog, nullptr);
        return answer;
    };

    EXPECT_EQ(open(E_OUTOFMEMORY), E_OUTOFMEMORY);
    EXPECT_EQ(open(kOtherSuccess), kOtherSuccess);

    KORICatalog_var catalog;
    EXPECT_EQ(catalogs->OpenCatalog("ZELMaterialPropertiesCatalog.KORfct", "ZELMAR", catalog), S_OK);
    EXPECT_NE(catalog, nullptr) << "a fault hits once";
}

TEST_F(ZELPlatformCallsTest, RefusesAQueryWithTheFailureThatAFaultCarries) {
    void* found = this;
    store_.Calls().InjectStatus(E_OUTOFMEMORY, 1);
    EXPECT_EQ(feature_->QueryInterface(IID_KORISpecAttrAccess, &found), E_OUTOFMEMORY);
    EXPECT_EQ(found, nullptr);

    store_.Calls().InjectStatus(S_OK, 1);
    EXPECT_EQ(feature_->QueryInterface(IID_KORISpecAttrAccess, &found), E_NOINTERFACE)
        << "a query cannot succeed with nothing";

    store_.Calls().Inject(ZELFault::Refuse, 1);
    EXPECT_EQ(feature_->QueryInterface(IID_KORISpecAttrAccess, &found), E_NOINTERFACE);
}
