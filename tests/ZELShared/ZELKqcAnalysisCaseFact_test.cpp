#include <gmock/gmock.h>

#include "ZELShared/ZELIKqcAnalysisCaseFact.h"
#include "ZELShared/ZELKqcAnalysisCaseFact.h"
#include "ZELShared/ZELKqcAnalysisCaseFactInst.h"
#include "framework/KORInstantiateComponent.h"
#include "tests/support/ZELAllocationFault.h"
#include "tests/support/ZELFaultSweep.h"
#include "tests/support/ZELStores.h"

using testing::ElementsAre;

namespace {

ZELIKqcAnalysisCaseFact_var NewFactory() {
    ZELIKqcAnalysisCaseFact_var factory;
    EXPECT_EQ(KORInstantiate("ZELKqcAnalysisCaseFact", factory), S_OK);
    return factory;
}

class ZELKqcAnalysisCaseFactTest : public ZELStoreTest {
protected:
    ZELIKqcAnalysisCaseFact_var factory_ = NewFactory();
};

}  // namespace

TEST_P(ZELKqcAnalysisCaseFactTest, MakesAPropertySetUnderTheAnalysisModel) {
    const auto model = Store().AddAnalysisModel();

    EXPECT_EQ(factory_->CreatePropertySet(Store().Document()), S_OK);
    EXPECT_EQ(factory_->CreatePropertySet(Store().Document()), S_OK);

    const auto children = Components(model, "Children");
    ASSERT_TRUE(children);
    ASSERT_EQ(children->size(), 2u) << "another one each time";
    EXPECT_EQ((*children)[0]->GetType(), "ZELZelmarPropertySetLT");
    EXPECT_EQ((*children)[0]->GetName(), "ZELZelmarPropertySetLT");
    EXPECT_NE((*children)[0], (*children)[1]);
}

TEST_P(ZELKqcAnalysisCaseFactTest, FailsWithoutAnAnalysisModelOrADocument) {
    EXPECT_EQ(factory_->CreatePropertySet(Store().Document()), E_FAIL);
    EXPECT_EQ(factory_->CreatePropertySet(nullptr), E_FAIL);
}

ZEL_ON_BOTH_STORES(ZELKqcAnalysisCaseFactTest);

TEST(ZELKqcAnalysisCaseFact, ComesFromItsInstanceFactoryOnly) {
    EXPECT_EQ(ZELKqcAnalysisCaseFact::CreateItself(), nullptr);

    const KORBaseUnknown_var component(NewFactory());

    EXPECT_STREQ(component->IsA(), "ZELKqcAnalysisCaseFact");
    EXPECT_TRUE(component->IsAKindOf("KORBaseUnknown"));
}

TEST(ZELKqcAnalysisCaseFact, CannotBeMadeWithoutMemory) {
    ZELKqcAnalysisCaseFactInst instances;
    void* out = &instances;
    const ZELAllocationFault fault(1);

    EXPECT_EQ(instances.CreateInstance(&out), E_OUTOFMEMORY);

    EXPECT_EQ(out, nullptr);
}

TEST(ZELKqcAnalysisCaseFactFaults, MakeASetOrFailWhicheverCallFails) {
    for (const ZELFault fault : {ZELFault::Refuse, ZELFault::SuccessWithNull, ZELFault::Throw}) {
        const int hits = ZELFaultSweep(fault, [](ZELFaultRun& run) {
            const auto model = run.store.AddAnalysisModel();
            const auto factory = NewFactory();
            const long references = References(model);
            HRESULT status = S_OK;

            run.Act([&] { status = factory->CreatePropertySet(run.store.Document()); });

            EXPECT_EQ(status, run.FaultHit() && !run.Threw() ? E_FAIL : S_OK) << run.FailedCall();
            EXPECT_EQ(run.store.LiveFeatures(), run.FaultHit() ? 1 : 2);
            EXPECT_EQ(References(model), references);
        });
        EXPECT_GT(hits, 3);
    }
}
