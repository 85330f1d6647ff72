#include <gmock/gmock.h>

#include "ZELMaterialModel/include/ZELILayup.h"
#include "interfaces/KORIAlias.h"
#include "tests/ZELMaterialModel/ZELFactory.h"
#include "tests/ZELMaterialModel/ZELLayups.h"
#include "tests/support/ZELDiagnostics.h"
#include "tests/support/ZELFaultSweep.h"
#include "tests/support/ZELStores.h"
#include "tests/support/ZELTestServices.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr const char* kSet = "ZELZelmarPropertySetLT";

std::string AliasOf(const KORISpecObject_var& feature) {
    const ZELUnrecorded unrecorded;
    return std::string(KORIAlias_var(feature)->GetAlias().View());
}

class ZELCreateLayup : public ZELStoreTest {
protected:
    KORISpecObject_var Created() {
        KORISpecObject_var layup;
        EXPECT_EQ(factory_->CreateLayup(layup, Store().Document()), S_OK);
        return layup;
    }
    void SetAlias(const KORISpecObject_var& feature, const char* alias) {
        KORIAlias_var(feature)->SetAlias(alias);
    }

    ZELTestServices services_;
    ZELIMaterialPropertiesFact_var factory_ = ZELFactory();
    KORISpecObject_var layup_;
};

}  // namespace

TEST_P(ZELCreateLayup, MakesThePropertySetFirstWhenThereIsNone) {
    const ZELDiagnostics diagnostics;
    const auto model = Store().AddAnalysisModel();

    EXPECT_EQ(factory_->CreateLayup(layup_, Store().Document()), S_OK);

    ASSERT_TRUE(layup_);
    const auto sets = ZELChildrenOf(model);
    ASSERT_EQ(sets.size(), 1u) << "the set alone: the layup has moved into it";
    EXPECT_EQ(sets[0]->GetType(), kSet);
    EXPECT_THAT(ZELChildrenOf(sets[0]), ElementsAre(layup_));
    EXPECT_THAT(diagnostics.Lines(), IsEmpty());
}

TEST_P(ZELCreateLayup, MakesAnEmptyLayupWithAUniqueAlias) {
    ZELMakeEntity(Store(), kSet);

    layup_ = Created();

    EXPECT_EQ(layup_->GetType(), "ZELLayupLT");
    EXPECT_EQ(layup_->GetName(), "Layup-");
    EXPECT_EQ(AliasOf(layup_), "Layup-1");
    EXPECT_EQ(Components(layup_, "LayerList"), std::nullopt);
    EXPECT_TRUE(ZELILayup_var(layup_)->IsUnused());
}

TEST_P(ZELCreateLayup, UsesThePropertySetThatThereIs) {
    const auto set = ZELMakeEntity(Store(), kSet);

    const auto first = Created();
    const auto second = Created();

    EXPECT_THAT(ZELChildrenOf(set), ElementsAre(first, second));
    EXPECT_THAT(ZELChildrenOf(Store().AddAnalysisModel()), ElementsAre(set));
    EXPECT_EQ(AliasOf(first), "Layup-1");
    EXPECT_EQ(AliasOf(second), "Layup-2");
}

TEST_P(ZELCreateLayup, TakesTheFirstOfTwoPropertySets) {
    const auto first = ZELMakeEntity(Store(), kSet);
    const auto second = ZELMakeEntity(Store(), kSet);

    layup_ = Created();

    EXPECT_THAT(ZELChildrenOf(first), ElementsAre(layup_));
    EXPECT_THAT(ZELChildrenOf(second), IsEmpty());
}

TEST_P(ZELCreateLayup, FindsAPropertySetInsideAnother) {
    const auto outer = ZELMakeEntity(Store(), kSet);
    const auto inner = ZELMakeInSet(Store(), outer, kSet);

    layup_ = Created();

    EXPECT_THAT(ZELChildrenOf(outer), ElementsAre(inner, layup_));
}

TEST_P(ZELCreateLayup, ChoosesTheNextFreeNameOfTheSet) {
    const auto set = ZELMakeEntity(Store(), kSet);
    SetAlias(ZELMakeInSet(Store(), set, "ZELLayupLT"), "Layup-1");
    SetAlias(ZELMakeInSet(Store(), set, "ZELLayupLT"), "Layup-3");
    SetAlias(ZELMakeInSet(Store(), set, "ZELLayupLT"), "Wing skin");

    EXPECT_EQ(AliasOf(Created()), "Layup-2");
    EXPECT_EQ(AliasOf(Created()), "Layup-4");
}

TEST_P(ZELCreateLayup, DoesNotMindNamesOfOtherSetsAndOfOtherFeatures) {
    const auto set = ZELMakeEntity(Store(), kSet);
    const auto other = ZELMakeEntity(Store(), kSet);
    SetAlias(ZELMakeInSet(Store(), other, "ZELLayupLT"), "Layup-1");
    SetAlias(ZELMakeInSet(Store(), set, "ZELShellSectionEnhLT"), "Layup-1");

    EXPECT_EQ(AliasOf(Created()), "Layup-1");
}

TEST_P(ZELCreateLayup, TakesTheDocumentThatTheUserWorksOnWhenItIsGivenNone) {
    const auto model = Store().AddAnalysisModel();
    services_.Table().currentDocument = KORBaseUnknown_var::Of(Store().Document()).Get();

    EXPECT_EQ(factory_->CreateLayup(layup_, nullptr), S_OK);

    EXPECT_THAT(ZELChildrenOf(ZELChildrenOf(model).at(0)), ElementsAre(layup_));
}

TEST_P(ZELCreateLayup, FailsWithoutAnyDocument) {
    layup_ = Make("ZELElasticLT");
    const auto held = layup_;

    EXPECT_EQ(factory_->CreateLayup(layup_, nullptr), E_FAIL);

    EXPECT_EQ(layup_, held);
}

TEST_P(ZELCreateLayup, FailsInADocumentWithoutAnAnalysisModel) {
    layup_ = Make("ZELElasticLT");
    const auto held = layup_;
    const long features = Store().LiveFeatures();

    EXPECT_EQ(factory_->CreateLayup(layup_, Store().Document()), E_FAIL);

    EXPECT_EQ(layup_, held);
    EXPECT_EQ(Store().LiveFeatures(), features);
}

TEST_P(ZELCreateLayup, FailsWhenTheCatalogLacksLayupsAndLeavesTheSetItMade) {
    Store().OmitType("ZELLayupLT");
    const auto model = Store().AddAnalysisModel();
    layup_ = Make("ZELElasticLT");

    EXPECT_EQ(factory_->CreateLayup(layup_, Store().Document()), E_FAIL);

    EXPECT_EQ(layup_, nullptr);
    ASSERT_EQ(ZELChildrenOf(model).size(), 1u);
    EXPECT_EQ(ZELChildrenOf(model)[0]->GetType(), kSet);
}

TEST_P(ZELCreateLayup, LeavesTheCallerTheOnlyReferenceBesidesContainerAndSet) {
    const auto set = ZELMakeEntity(Store(), kSet);
    const long sets = References(set);
    const long models = References(Store().AddAnalysisModel());

    layup_ = Created();

    EXPECT_EQ(References(layup_), 3);
    EXPECT_EQ(References(set), sets);
    EXPECT_EQ(References(Store().AddAnalysisModel()), models);
}

ZEL_ON_BOTH_STORES(ZELCreateLayup);

namespace {

/// The map store with an analysis model, ready for a look at the calls.
class ZELCreateLayupCalls : public testing::Test {
protected:
    HRESULT Create() {
        store_.Calls().ClearLog();
        return factory_->CreateLayup(layup_, store_.Document());
    }
    void ExpectRefused(const char* label, const char* interface) {
        store_.Calls().RefuseInterface(label, interface);
        EXPECT_EQ(Create(), E_FAIL) << label << " " << interface;
        EXPECT_EQ(layup_, nullptr);
        EXPECT_THAT(store_.Calls().Log("CreateEntity"), IsEmpty());
    }

    ZELMapStore store_;
    KORISpecObject_var model_ = store_.AddAnalysisModel();
    ZELIMaterialPropertiesFact_var factory_ = ZELFactory();
    KORISpecObject_var layup_;
};

}  // namespace

TEST_F(ZELCreateLayupCalls, ScanOnceWithASetAndTwiceWithout) {
    EXPECT_EQ(Create(), S_OK);
    EXPECT_THAT(store_.Calls().Log("Scan"),
                ElementsAre("Scan ZELZelmarPropertySetLT 3", "Scan ZELZelmarPropertySetLT 3"));

    EXPECT_EQ(Create(), S_OK);
    EXPECT_THAT(store_.Calls().Log("Scan"), ElementsAre("Scan ZELZelmarPropertySetLT 3"));
}

TEST_F(ZELCreateLayupCalls, LoadTheModulesCatalogAndCreateTheEntityUnderTheModel) {
    ZELMakeEntity(store_, kSet);

    EXPECT_EQ(Create(), S_OK);

    EXPECT_THAT(store_.Calls().Log("LoadCatalog"),
                ElementsAre("LoadCatalog ZELMaterialPropertiesCatalog.KORfct"));
    EXPECT_THAT(store_.Calls().Log("CreateEntity"),
                ElementsAre("CreateEntity ZELLayupLT \"Layup-\" in KORAnalysisModelLT"));
}

TEST_F(ZELCreateLayupCalls, NameTheLayupBeforeItIsInTheSetAndFreeItOfItsDomainLast) {
    ZELMakeEntity(store_, kSet);

    EXPECT_EQ(Create(), S_OK);

    std::vector<std::string> order;
    for (const std::string& line : store_.Calls().Log()) {
        for (const char* kind : {"CreateEntity ", "GetFeatures ", "SetAlias ", "AddChild ", "SetDomain "}) {
            if (line.starts_with(kind)) order.push_back(line);
        }
    }
    EXPECT_THAT(
        order, ElementsAre("CreateEntity ZELLayupLT \"Layup-\" in KORAnalysisModelLT",
                           "GetFeatures ZELZelmarPropertySetLT ZELLayupLT", "SetAlias ZELLayupLT \"Layup-1\"",
                           "AddChild ZELZelmarPropertySetLT ZELLayupLT", "SetDomain ZELLayupLT null"));
    EXPECT_EQ(store_.Calls().Log().back(), "SetDomain ZELLayupLT null");
}

TEST_F(ZELCreateLayupCalls, DoWithoutAnAlias) {
    const auto set = ZELMakeEntity(store_, kSet);
    store_.Calls().RefuseInterface("ZELLayupLT", "KORIAlias");

    EXPECT_EQ(Create(), S_OK);

    EXPECT_EQ(AliasOf(layup_), "");
    EXPECT_THAT(ZELChildrenOf(set), ElementsAre(layup_));
}

TEST_F(ZELCreateLayupCalls, FailForADocumentWithoutAnAnalysisSide) {
    ExpectRefused("Document", "KORIAnalysisDocument");
}

TEST_F(ZELCreateLayupCalls, FailForAModelThatIsNoFeature) {
    ExpectRefused("KORAnalysisModelLT", "KORISpecObject");
}

TEST_F(ZELCreateLayupCalls, FailForAModelThatCannotBeScanned) {
    ExpectRefused("KORAnalysisModelLT", "KORISamAnalysisScan");
}

TEST_F(ZELCreateLayupCalls, FailForAPropertySetThatIsNoSet) {
    ZELMakeEntity(store_, kSet);
    ExpectRefused("ZELZelmarPropertySetLT", "KORISamAnalysisSet");
}

TEST_F(ZELCreateLayupCalls, FailWithoutCatalogFactoryOrModel) {
    ZELMakeEntity(store_, kSet);
    for (const char* kind : {"LoadCatalog", "GetFactory", "GetAnalysisModel"}) {
        store_.Calls().Inject(ZELFault::Refuse, 1, kind);
        EXPECT_EQ(Create(), E_FAIL) << kind;
        EXPECT_TRUE(store_.Calls().FaultHit()) << kind;
        EXPECT_EQ(layup_, nullptr);
    }
}

TEST_F(ZELCreateLayupCalls, FailWhenNoEntityIsMade) {
    ZELMakeEntity(store_, kSet);
    store_.Calls().Inject(ZELFault::Refuse, 1, "CreateEntity");

    EXPECT_EQ(Create(), E_FAIL);

    EXPECT_EQ(layup_, nullptr);
    EXPECT_THAT(store_.Calls().Log("SetAlias"), IsEmpty());
}

TEST_F(ZELCreateLayupCalls, PassTheFailureOfThePropertySetOn) {
    store_.Calls().Inject(ZELFault::Refuse, 1, "CreateEntity");

    EXPECT_EQ(Create(), E_FAIL);

    EXPECT_THAT(
        store_.Calls().Log("CreateEntity"),
        ElementsAre("CreateEntity ZELZelmarPropertySetLT \"ZELZelmarPropertySetLT\" in KORAnalysisModelLT"));
    EXPECT_THAT(store_.Calls().Log("Scan"), ElementsAre("Scan ZELZelmarPropertySetLT 3"));
}

TEST(ZELCreateLayupFaults, MakeALayupOrFailWhicheverCallFails) {
    for (const ZELFault fault : {ZELFault::Refuse, ZELFault::SuccessWithNull, ZELFault::Throw}) {
        for (const bool hasSet : {true, false}) {
            const int hits = ZELFaultSweep(fault, [hasSet](ZELFaultRun& run) {
                const auto model = run.store.AddAnalysisModel();
                if (hasSet) ZELMakeEntity(run.store, kSet);
                const auto factory = ZELFactory();
                const long models = References(model);
                HRESULT status = S_OK;
                KORISpecObject_var layup;

                run.Act([&] { status = factory->CreateLayup(layup, run.store.Document()); });

                const std::string& failed = run.FailedCall();
                if (!run.FaultHit()) {
                    EXPECT_EQ(status, S_OK);
                }
                if (FAILED(status)) {
                    EXPECT_EQ(status, E_FAIL);
                }
                if (!layup && !run.Threw()) {
                    EXPECT_EQ(status, E_FAIL) << failed;
                }
                if (layup) {
                    EXPECT_GE(run.store.LiveFeatures(), 3) << "model, set and layup, whatever failed later";
                }
                if (SUCCEEDED(status) && !run.Threw()) {
                    EXPECT_EQ(ZELChildrenOf(ZELChildrenOf(model).at(0)), std::vector{layup}) << failed;
                }
                layup = nullptr;
                EXPECT_EQ(References(model), models);
            });
            EXPECT_GT(hits, 8);
        }
    }
}
