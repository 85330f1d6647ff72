#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELELayup.h"

#include <gmock/gmock.h>

#include "ZELMaterialModel/include/ZELILayup.h"
#include "tests/ZELMaterialModel/ZELLayups.h"
#include "tests/support/ZELFaultSweep.h"
#include "tests/support/ZELStores.h"

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;

namespace {

using Layers = std::vector<KORISpecObject_var>;

constexpr ZELFault kFaults[] = {ZELFault::Refuse, ZELFault::SuccessWithNull, ZELFault::Throw};

class ZELELayupTest : public ZELStoreTest {
protected:
    std::optional<Layers> Stored() { return Components(feature_, "LayerList"); }
    Layers Got() {
        KORListValKORISpecObject_var layers;
        EXPECT_EQ(layup_->GetLayers(layers), S_OK);
        return ZELEntriesOf(layers);
    }

    KORISpecObject_var feature_ = Make("ZELLayupLT");
    ZELILayup_var layup_ = feature_;
    KORISpecObject_var first_ = Make("ZELLayupLayerLT");
    KORISpecObject_var second_ = Make("ZELLayupLayerLT");
};

}  // namespace

TEST_P(ZELELayupTest, IsFoundOnLayupsOnly) {
    EXPECT_TRUE(layup_);
    EXPECT_FALSE(ZELILayup_var(first_));
}

TEST_P(ZELELayupTest, StartsWithoutLayers) {
    EXPECT_EQ(Stored(), std::nullopt);
    EXPECT_THAT(Got(), IsEmpty());
}

TEST_P(ZELELayupTest, StoresItsLayersInTheGivenOrder) {
    EXPECT_EQ(layup_->SetLayers(ZELListOf({second_, first_})), S_OK);

    EXPECT_THAT(Stored(), Optional(ElementsAre(second_, first_)));
    EXPECT_THAT(Got(), ElementsAre(second_, first_));
}

TEST_P(ZELELayupTest, ReplacesTheLayersItHad) {
    const long references = References(first_);
    layup_->SetLayers(ZELListOf({first_, second_}));
    EXPECT_EQ(References(first_), references + 1);
    const KORISpecObject_var third = Make("ZELLayupLayerLT");

    EXPECT_EQ(layup_->SetLayers(ZELListOf({third})), S_OK);

    EXPECT_THAT(Stored(), Optional(ElementsAre(third)));
    EXPECT_EQ(References(first_), references) << "no longer held";
}

TEST_P(ZELELayupTest, IsEmptiedByAnEmptyList) {
    layup_->SetLayers(ZELListOf({first_, second_}));

    EXPECT_EQ(layup_->SetLayers(KORListValKORISpecObject_var()), S_OK);

    EXPECT_THAT(Stored(), Optional(IsEmpty()));
    EXPECT_THAT(Got(), IsEmpty());
}

TEST_P(ZELELayupTest, IsLeftNeverValuedByAnEmptyListWhenItHadNoLayers) {
    EXPECT_EQ(layup_->SetLayers(KORListValKORISpecObject_var()), S_OK);

    EXPECT_EQ(Stored(), std::nullopt);
}

TEST_P(ZELELayupTest, StoresAnEmptyHandleAndSkipsItWhenReading) {
    EXPECT_EQ(layup_->SetLayers(ZELListOf({first_, nullptr, second_})), S_OK);

    EXPECT_THAT(Stored(), Optional(ElementsAre(first_, KORISpecObject_var(), second_)));
    EXPECT_THAT(Got(), ElementsAre(first_, second_));
}

TEST_P(ZELELayupTest, SkipsWhatIsNoFeature) {
    layup_->SetLayers(ZELListOf({first_}));
    {
        const ZELUnrecorded unrecorded;
        const auto stray = KORBaseUnknown_var::Adopt(new KORBaseUnknown);
        const auto access = Access(feature_);
        KORISpecAttrKey* key = access->GetAttrKey("LayerList");
        access->AppendComponent(key, stray.Get());
        key->Release();
    }

    EXPECT_THAT(Got(), ElementsAre(first_));
}

TEST_P(ZELELayupTest, AppendsToWhatTheCallersListHolds) {
    layup_->SetLayers(ZELListOf({first_}));
    auto layers = ZELListOf({second_});

    EXPECT_EQ(layup_->GetLayers(layers), S_OK);

    EXPECT_THAT(ZELEntriesOf(layers), ElementsAre(second_, first_));
}

TEST_P(ZELELayupTest, TakesALayerTwice) {
    const long references = References(first_);

    EXPECT_EQ(layup_->SetLayers(ZELListOf({first_, second_, first_})), S_OK);

    EXPECT_THAT(Got(), ElementsAre(first_, second_, first_));
    EXPECT_EQ(References(first_), references + 2);
}

TEST_P(ZELELayupTest, TakesItsOwnLayersBackTurnedRound) {
    layup_->SetLayers(ZELListOf({first_, second_}));
    KORListValKORISpecObject_var layers;
    layup_->GetLayers(layers);
    layers.Append(layers[1]);
    layers.RemovePosition(1);

    EXPECT_EQ(layup_->SetLayers(layers), S_OK);

    EXPECT_THAT(Got(), ElementsAre(second_, first_));
}

TEST_P(ZELELayupTest, HoldsTenThousandLayersInOrder) {
    KORListValKORISpecObject_var layers;
    for (int i = 0; i < 10000; ++i) {
        layers.Append(i % 3 == 0 ? Make("ZELLayupLayerLT") : i % 3 == 1 ? first_ : second_);
    }

    EXPECT_EQ(layup_->SetLayers(layers), S_OK);

    const Layers got = Got();
    EXPECT_EQ(got.size(), 10000u);
    EXPECT_EQ(got, ZELEntriesOf(layers));
}

TEST_P(ZELELayupTest, FailsWithoutTheLayerListAndLeavesTheCallersList) {
    Store().OmitAttribute("ZELLayupLT", "LayerList");
    const ZELILayup_var bare = Make("ZELLayupLT");
    auto layers = ZELListOf({second_});

    EXPECT_EQ(bare->SetLayers(ZELListOf({first_})), E_FAIL);
    EXPECT_EQ(bare->GetLayers(layers), E_FAIL);

    EXPECT_THAT(ZELEntriesOf(layers), ElementsAre(second_));
    EXPECT_EQ(layup_->SetLayers(ZELListOf({first_})), S_OK) << "another feature's missing key is no matter";
}

TEST_P(ZELELayupTest, GivesItsFeatureBackWithTheLastReference) {
    layup_ = nullptr;
    const long references = References(feature_);

    layup_ = feature_;
    layup_->SetLayers(ZELListOf({first_}));
    EXPECT_GT(References(feature_), references);
    layup_ = nullptr;

    EXPECT_EQ(References(feature_), references);
    EXPECT_EQ(KORModule::Of("ZELMaterialModel").LiveObjects(), 0);
}

ZEL_ON_BOTH_STORES(ZELELayupTest);

TEST(ZELELayup, DoesNothingWithoutAFeature) {
    const auto alone = KORBaseUnknown_var::Adopt(ZELELayup::CreateItself());
    auto& layup = static_cast<ZELELayup&>(*alone);
    KORListValKORISpecObject_var layers;

    EXPECT_EQ(layup.SetLayers(layers), E_FAIL);
    EXPECT_EQ(layup.GetLayers(layers), E_FAIL);
    EXPECT_TRUE(layup.IsUnused());
}

TEST(ZELELayupCalls, ClearTheListOnlyWhenItHoldsSomething) {
    ZELMapStore store;
    const auto layer = store.Make("ZELLayupLayerLT");
    const ZELILayup_var layup = store.Make("ZELLayupLT");

    layup->SetLayers(ZELListOf({layer, nullptr}));
    EXPECT_THAT(store.Calls().Log("RemoveAllValues"), IsEmpty());
    layup->SetLayers(ZELListOf({layer}));

    EXPECT_THAT(store.Calls().Log("RemoveAllValues"), ElementsAre("RemoveAllValues ZELLayupLT.LayerList"));
    EXPECT_THAT(store.Calls().Log("AppendComponent"),
                ElementsAre("AppendComponent ZELLayupLT.LayerList ZELLayupLayerLT",
                            "AppendComponent ZELLayupLT.LayerList null",
                            "AppendComponent ZELLayupLT.LayerList ZELLayupLayerLT"));
}

TEST(ZELELayupCalls, ResolveTheKeyEachTimeAndGiveItBack) {
    ZELMapStore store;
    const ZELILayup_var layup = store.Make("ZELLayupLT");
    const long keys = store.KeyReferences();
    KORListValKORISpecObject_var layers;

    layup->SetLayers(layers);
    layup->GetLayers(layers);

    EXPECT_THAT(store.Calls().Log("GetAttrKey"),
                ElementsAre("GetAttrKey ZELLayupLT.LayerList", "GetAttrKey ZELLayupLT.LayerList"));
    EXPECT_EQ(store.KeyReferences(), keys);
}

TEST(ZELELayupCalls, FailWithoutAttributeAccess) {
    ZELMapStore store;
    const auto layer = store.Make("ZELLayupLayerLT");
    const ZELILayup_var layup = store.Make("ZELLayupLT");
    store.Calls().RefuseInterface("ZELLayupLT", "KORISpecAttrAccess");
    KORListValKORISpecObject_var layers;

    EXPECT_EQ(layup->SetLayers(ZELListOf({layer})), E_FAIL);
    EXPECT_EQ(layup->GetLayers(layers), E_FAIL);

    EXPECT_THAT(store.Calls().Log("AppendComponent"), IsEmpty());
    EXPECT_EQ(layers.Size(), 0);
}

TEST(ZELELayupFaults, LeaveAListThatIsPartlyRefilledAtTheWorst) {
    for (const ZELFault fault : kFaults) {
        const int hits = ZELFaultSweep(fault, [](ZELFaultRun& run) {
            const auto feature = run.store.Make("ZELLayupLT");
            const auto former = run.store.Make("ZELLayupLayerLT");
            const auto first = run.store.Make("ZELLayupLayerLT");
            const auto second = run.store.Make("ZELLayupLayerLT");
            AppendComponent(feature, "LayerList", former);
            const ZELILayup_var layup = feature;
            const long references = References(feature);
            const long keys = run.store.KeyReferences();
            HRESULT status = S_OK;

            run.Act([&] { status = layup->SetLayers(ZELListOf({first, second})); });

            EXPECT_EQ(status, run.FaultHit() && !run.Threw() ? E_FAIL : S_OK);
            const long held = References(first);
            const Layers stored = Components(feature, "LayerList").value_or(Layers());
            const std::vector<Layers> possible = {{former}, {}, {first}, {first, second}};
            EXPECT_THAT(possible, testing::Contains(stored));
            EXPECT_EQ(stored.size() == 2, !run.FaultHit());
            EXPECT_EQ(References(feature), references);
            EXPECT_EQ(run.store.KeyReferences(), keys);
            EXPECT_EQ(held, 2 + std::ranges::count(stored, first));
        });
        EXPECT_GT(hits, 2);
    }
}

TEST(ZELELayupFaults, SkipALayerThatCannotBeReadAndLeaveTheList) {
    for (const ZELFault fault : kFaults) {
        const int hits = ZELFaultSweep(fault, [](ZELFaultRun& run) {
            const auto feature = run.store.Make("ZELLayupLT");
            const auto first = run.store.Make("ZELLayupLayerLT");
            const auto second = run.store.Make("ZELLayupLayerLT");
            AppendComponent(feature, "LayerList", first);
            AppendComponent(feature, "LayerList", second);
            const ZELILayup_var layup = feature;
            const long references = References(feature);
            HRESULT status = S_OK;
            KORListValKORISpecObject_var layers;

            run.Act([&] { status = layup->GetLayers(layers); });

            const bool readsOneLess = run.FailedCall().starts_with("GetComponent") ||
                                      run.FailedCall().starts_with("QueryInterface ZELLayupLayerLT");
            const bool fails = run.FaultHit() && !run.Threw() && !readsOneLess;
            EXPECT_EQ(status, fails ? E_FAIL : S_OK);
            if (!run.Threw()) {
                EXPECT_EQ(layers.Size(), fails ? 0 : readsOneLess ? 1 : 2);
            }
            EXPECT_THAT(Components(feature, "LayerList"), Optional(ElementsAre(first, second)));
            layers.RemoveAll();
            EXPECT_EQ(References(feature), references);
            EXPECT_EQ(References(first), 3) << "container, layup and this test";
        });
        EXPECT_GT(hits, 2);
    }
}
