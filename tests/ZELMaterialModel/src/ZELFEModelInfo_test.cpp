#include <gmock/gmock.h>

#include "tests/support/ZELFaultSweep.h"
#include "tests/support/ZELMapStore.h"
#include "tests/support/ZELStores.h"
#include "tests/support/ZELTestAccess.h"
#include "tests/support/ZELTestServices.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class ZELFEModelInfo : public ZELStoreTest {
protected:
    HRESULT Get() { return ZELTestAccess::GetFEModelInfo(document_, model_, factory_); }

    KORISpecObject_var added_ = Store().AddAnalysisModel();
    ZELTestServices services_;
    KORDocument* document_ = Store().Document();
    KORISpecObject* model_ = nullptr;
    KORISamAnalysisModelFactory_var factory_;
};

}  // namespace

TEST_P(ZELFEModelInfo, IsTheModelAndTheFactoryOfTheGivenDocument) {
    const long references = References(added_);
    auto* other = new KORBaseUnknown;
    services_.Table().currentDocument = other;

    EXPECT_EQ(Get(), S_OK);

    EXPECT_EQ(document_, Store().Document()) << "the document that the user works on is not asked for";
    EXPECT_EQ(model_, added_.Get());
    EXPECT_TRUE(factory_);
    EXPECT_EQ(References(added_), references + 1) << "one for the caller";
    model_->Release();
    EXPECT_EQ(other->References(), 1);
    other->Release();
}

TEST_P(ZELFEModelInfo, FillsANullDocumentWithTheOneThatTheUserWorksOn) {
    document_ = nullptr;
    services_.Table().currentDocument = KORBaseUnknown_var::Of(Store().Document()).Get();

    EXPECT_EQ(Get(), S_OK);

    EXPECT_EQ(document_, Store().Document());
    EXPECT_EQ(model_, added_.Get());
    model_->Release();
}

TEST_P(ZELFEModelInfo, FailsWithoutAnyDocument) {
    document_ = nullptr;

    EXPECT_EQ(Get(), E_FAIL);

    EXPECT_EQ(document_, nullptr);
    EXPECT_EQ(model_, nullptr);
    EXPECT_FALSE(factory_);
}

TEST_P(ZELFEModelInfo, FailsWhenWhatTheUserWorksOnIsNoDocument) {
    document_ = nullptr;
    const auto other = KORBaseUnknown_var::Adopt(new KORBaseUnknown);
    services_.Table().currentDocument = other.Get();

    EXPECT_EQ(Get(), E_FAIL);

    EXPECT_EQ(document_, nullptr);
}

ZEL_ON_BOTH_STORES(ZELFEModelInfo);

namespace {

class ZELFEModelInfoCalls : public testing::Test {
protected:
    HRESULT Get() { return ZELTestAccess::GetFEModelInfo(document_, model_, factory_); }

    ZELMapStore store_;
    KORISpecObject_var added_ = store_.AddAnalysisModel();
    ZELTestServices services_;
    KORDocument* document_ = nullptr;
    KORISpecObject* model_ = nullptr;
    KORISamAnalysisModelFactory_var factory_;
};

}  // namespace

TEST_F(ZELFEModelInfoCalls, KeepWhatWasDoneBeforeTheStepThatFails) {
    services_.Table().currentDocument = KORBaseUnknown_var::Of(store_.Document()).Get();
    store_.Calls().Inject(ZELFault::Refuse, 1, "LoadCatalog");
    EXPECT_EQ(Get(), E_FAIL);
    EXPECT_EQ(document_, store_.Document()) << "filled in the first step";
    EXPECT_THAT(store_.Calls().Log("GetFactory"), IsEmpty());

    store_.Calls().Inject(ZELFault::Refuse, 1, "GetFactory");
    EXPECT_EQ(Get(), E_FAIL);
    EXPECT_FALSE(factory_);
    EXPECT_THAT(store_.Calls().Log("GetAnalysisModel"), IsEmpty());

    store_.Calls().Inject(ZELFault::Refuse, 1, "GetAnalysisModel");
    EXPECT_EQ(Get(), E_FAIL);
    EXPECT_TRUE(factory_);
    EXPECT_EQ(model_, nullptr);
}

TEST_F(ZELFEModelInfoCalls, PassTheStatusOfTheModelsQueryOn) {
    document_ = store_.Document();
    store_.Calls().RefuseInterface("KORAnalysisModelLT", "KORISpecObject");

    EXPECT_EQ(Get(), E_NOINTERFACE);

    EXPECT_EQ(model_, nullptr);
}

TEST(ZELFEModelInfoFaults, LeaveNoReferenceWhicheverCallFails) {
    for (const ZELFault fault : {ZELFault::Refuse, ZELFault::SuccessWithNull, ZELFault::Throw}) {
        const int hits = ZELFaultSweep(fault, [](ZELFaultRun& run) {
            const auto added = run.store.AddAnalysisModel();
            const long references = References(added);
            KORDocument* document = run.store.Document();
            KORISpecObject* model = nullptr;
            KORISamAnalysisModelFactory_var factory;
            HRESULT status = S_OK;

            run.Act([&] { status = ZELTestAccess::GetFEModelInfo(document, model, factory); });

            const bool withoutCatalog = run.FailedCall().starts_with("LoadCatalog") && SUCCEEDED(status);
            if (!run.Threw() && !withoutCatalog) {
                EXPECT_EQ(FAILED(status), run.FaultHit()) << run.FailedCall();
            }
            EXPECT_EQ(References(added), references + (model ? 1 : 0));
            if (model) model->Release();
        });
        EXPECT_GT(hits, 4);
    }
}
