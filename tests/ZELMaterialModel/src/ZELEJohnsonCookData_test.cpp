#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELEJohnsonCookData.h"

#include <gmock/gmock.h>

#include <limits>

#include "ZELMaterialModel/include/ZELIJohnsonCookData.h"
#include "tests/support/ZELFaultSweep.h"
#include "tests/support/ZELStores.h"

using testing::ElementsAre;

namespace {

/// One of the six values: where it is stored and how it is reached.
struct Accessor {
    const char* attribute;
    HRESULT (ZELIJohnsonCookData::*get)(double& value);
    HRESULT (ZELIJohnsonCookData::*set)(const double& value);
};

const std::vector<Accessor> kAccessors = {
    {"CoeffA", &ZELIJohnsonCookData::GetCoeffA, &ZELIJohnsonCookData::SetCoeffA},
    {"CoeffB", &ZELIJohnsonCookData::GetCoeffB, &ZELIJohnsonCookData::SetCoeffB},
    {"CoeffN", &ZELIJohnsonCookData::GetCoeffN, &ZELIJohnsonCookData::SetCoeffN},
    {"CoeffM", &ZELIJohnsonCookData::GetCoeffM, &ZELIJohnsonCookData::SetCoeffM},
    {"MeltingTemperature", &ZELIJohnsonCookData::GetMeltingTemperature,
     &ZELIJohnsonCookData::SetMeltingTemperature},
    {"TransitionTemperature", &ZELIJohnsonCookData::GetTransitionTemperature,
     &ZELIJohnsonCookData::SetTransitionTemperature},
};

class ZELEJohnsonCookDataTest : public ZELStoreTest {
protected:
    KORISpecObject_var feature_ = Make("ZELPlasticJohnsonCookLT");
    ZELIJohnsonCookData_var data_ = feature_;
};

}  // namespace

TEST_P(ZELEJohnsonCookDataTest, IsFoundOnJohnsonCookFeaturesOnly) {
    EXPECT_TRUE(data_);
    EXPECT_FALSE(ZELIJohnsonCookData_var(Make("ZELPlasticLT")));
}

TEST_P(ZELEJohnsonCookDataTest, StoresEachValueUnderItsOwnAttribute) {
    double next = 1.5;
    for (const Accessor& accessor : kAccessors) {
        EXPECT_EQ((*data_.*accessor.set)(next), S_OK);
        next += 1.0;
    }

    EXPECT_EQ(GetNumber(feature_, "CoeffA"), 1.5);
    EXPECT_EQ(GetNumber(feature_, "CoeffB"), 2.5);
    EXPECT_EQ(GetNumber(feature_, "CoeffN"), 3.5);
    EXPECT_EQ(GetNumber(feature_, "CoeffM"), 4.5);
    EXPECT_EQ(GetNumber(feature_, "MeltingTemperature"), 5.5);
    EXPECT_EQ(GetNumber(feature_, "TransitionTemperature"), 6.5);
}

TEST_P(ZELEJohnsonCookDataTest, ReadsEachValueFromItsOwnAttribute) {
    SetNumber(feature_, "CoeffA", 350e6);
    SetNumber(feature_, "CoeffB", 275e6);
    SetNumber(feature_, "CoeffN", 0.31);
    SetNumber(feature_, "CoeffM", 1.03);
    SetNumber(feature_, "MeltingTemperature", 1793.0);
    SetNumber(feature_, "TransitionTemperature", 298.0);

    std::vector<double> read;
    for (const Accessor& accessor : kAccessors) {
        EXPECT_EQ((*data_.*accessor.get)(read.emplace_back(-1.0)), S_OK);
    }

    EXPECT_THAT(read, ElementsAre(350e6, 275e6, 0.31, 1.03, 1793.0, 298.0));
}

TEST_P(ZELEJohnsonCookDataTest, TakesAnyNumber) {
    double read = 0.0;

    EXPECT_EQ(data_->SetCoeffA(-5.0), S_OK);
    EXPECT_EQ(data_->SetTransitionTemperature(300.0), S_OK);
    EXPECT_EQ(data_->SetMeltingTemperature(-1.0), S_OK);
    EXPECT_EQ(data_->SetCoeffM(std::numeric_limits<double>::infinity()), S_OK);

    EXPECT_EQ(data_->GetCoeffA(read), S_OK);
    EXPECT_EQ(read, -5.0);
    EXPECT_EQ(data_->GetMeltingTemperature(read), S_OK);
    EXPECT_EQ(read, -1.0);
    EXPECT_EQ(data_->GetCoeffM(read), S_OK);
    EXPECT_EQ(read, std::numeric_limits<double>::infinity());
}

TEST_P(ZELEJohnsonCookDataTest, FailsForAMissingAttributeLeavesTheArgumentAndTriesAgainOnTheNextFeature) {
    for (const Accessor& accessor : kAccessors) {
        Store().OmitAttribute("ZELPlasticJohnsonCookLT", accessor.attribute);
    }
    const ZELIJohnsonCookData_var bare = Make("ZELPlasticJohnsonCookLT");
    for (const Accessor& accessor : kAccessors) {
        double value = 7.0;

        EXPECT_EQ((*bare.*accessor.get)(value), E_FAIL) << accessor.attribute;
        EXPECT_EQ(value, 7.0) << accessor.attribute;
        EXPECT_EQ((*bare.*accessor.set)(1.0), E_FAIL) << accessor.attribute;

        EXPECT_EQ((*data_.*accessor.set)(2.0), S_OK) << accessor.attribute;
        EXPECT_EQ((*data_.*accessor.get)(value), S_OK) << accessor.attribute;
        EXPECT_EQ(value, 2.0) << accessor.attribute;
    }
}

TEST_P(ZELEJohnsonCookDataTest, GivesItsFeatureBackWithTheLastReference) {
    data_ = nullptr;
    const long references = References(feature_);

    data_ = feature_;
    data_->SetCoeffA(1.0);
    EXPECT_GT(References(feature_), references);
    data_ = nullptr;

    EXPECT_EQ(References(feature_), references);
    EXPECT_EQ(KORModule::Of("ZELMaterialModel").LiveObjects(), 0);
}

ZEL_ON_BOTH_STORES(ZELEJohnsonCookDataTest);

TEST(ZELEJohnsonCookData, IsACodeExtensionAlthoughItSitsOnALateType) {
    const KORMetaClass& record = ZELEJohnsonCookData::MetaObject();

    EXPECT_EQ(record.Kind(), KORClassKind::CodeExtension);
    EXPECT_STREQ(record.ClassName(), "ZELEJohnsonCookData");
    EXPECT_TRUE(record.IsAKindOf("KORBaseUnknown"));
}

TEST(ZELEJohnsonCookDataCalls, ResolveAKeyOnceForGetterAndSetterOfAllFeatures) {
    ZELMapStore store;
    const ZELIJohnsonCookData_var first = store.Make("ZELPlasticJohnsonCookLT");
    const ZELIJohnsonCookData_var second = store.Make("ZELPlasticJohnsonCookLT");
    double value = 0.0;

    first->SetCoeffN(0.31);
    first->GetCoeffN(value);
    second->SetCoeffN(0.5);
    second->GetMeltingTemperature(value);

    EXPECT_THAT(store.Calls().Log("GetAttrKey"),
                ElementsAre("GetAttrKey ZELPlasticJohnsonCookLT.CoeffN",
                            "GetAttrKey ZELPlasticJohnsonCookLT.MeltingTemperature"));
}

TEST(ZELEJohnsonCookDataCalls, AnswerNoInterfaceWithoutAttributeAccessAndLeaveTheArgument) {
    ZELMapStore store;
    const KORISpecObject_var feature = store.Make("ZELPlasticJohnsonCookLT");
    const ZELIJohnsonCookData_var data = feature;
    store.Calls().RefuseInterface("ZELPlasticJohnsonCookLT", "KORISpecAttrAccess");
    for (const Accessor& accessor : kAccessors) {
        double value = 7.0;

        EXPECT_EQ((*data.*accessor.get)(value), E_NOINTERFACE) << accessor.attribute;
        EXPECT_EQ(value, 7.0) << accessor.attribute;
        EXPECT_EQ((*data.*accessor.set)(1.0), E_NOINTERFACE) << accessor.attribute;
        EXPECT_EQ(GetNumber(feature, accessor.attribute), 0.0) << accessor.attribute;
    }
}

TEST(ZELEJohnsonCookDataFaults, KeepArgumentAndStoreWhicheverCallFails) {
    for (const ZELFault fault : {ZELFault::Refuse, ZELFault::SuccessWithNull, ZELFault::Throw}) {
        for (const Accessor& accessor : kAccessors) {
            const int reads = ZELFaultSweep(fault, [&](ZELFaultRun& run) {
                const auto feature = run.store.Make("ZELPlasticJohnsonCookLT");
                SetNumber(feature, accessor.attribute, 2.0);
                const ZELIJohnsonCookData_var data = feature;
                const long references = References(feature);
                HRESULT status = S_OK;
                double value = 7.0;

                run.Act([&] { status = (*data.*accessor.get)(value); });

                EXPECT_EQ(SUCCEEDED(status), !run.FaultHit() || run.Threw());
                EXPECT_EQ(status == E_FAIL, !run.Threw() && run.FailedCall().starts_with("GetAttrKey"));
                EXPECT_EQ(value, run.FaultHit() ? 7.0 : 2.0);
                EXPECT_EQ(References(feature), references);
            });
            const int writes = ZELFaultSweep(fault, [&](ZELFaultRun& run) {
                const auto feature = run.store.Make("ZELPlasticJohnsonCookLT");
                const ZELIJohnsonCookData_var data = feature;
                const long references = References(feature);
                HRESULT status = S_OK;

                run.Act([&] { status = (*data.*accessor.set)(2.0); });

                EXPECT_EQ(SUCCEEDED(status), !run.FaultHit() || run.Threw());
                EXPECT_EQ(GetNumber(feature, accessor.attribute), run.FaultHit() ? 0.0 : 2.0);
                EXPECT_EQ(References(feature), references);
            });
            EXPECT_EQ(reads, fault == ZELFault::Throw ? 4 : 3);
            EXPECT_EQ(writes, fault == ZELFault::Throw ? 4 : 3);
        }
    }
}
