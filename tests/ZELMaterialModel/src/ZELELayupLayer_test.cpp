#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELELayupLayer.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>

#include "ZELMaterialModel/include/ZELILayupLayer.h"
#include "tests/support/ZELFaultSweep.h"
#include "tests/support/ZELStores.h"

using testing::ElementsAre;

namespace {

constexpr ZELFault kFaults[] = {ZELFault::Refuse, ZELFault::SuccessWithNull, ZELFault::Throw};

/// One of the two numbers of a layer: where it is stored and how it is reached.
struct Number {
    const char* attribute;
    HRESULT (ZELILayupLayer::*get)(double& value);
    HRESULT (ZELILayupLayer::*set)(const double& value);
};

const std::vector<Number> kNumbers = {
    {"Thickness", &ZELILayupLayer::GetThickness, &ZELILayupLayer::SetThickness},
    {"OrientationAngle", &ZELILayupLayer::GetOrientationAngle, &ZELILayupLayer::SetOrientationAngle},
};

class ZELELayupLayerTest : public ZELStoreTest {
protected:
    KORISpecObject_var feature_ = Make("ZELLayupLayerLT");
    ZELILayupLayer_var layer_ = feature_;
    KORISpecObject_var material_ = Make("ZELMaterialLT");  // any feature will do
};

}  // namespace

TEST_P(ZELELayupLayerTest, IsFoundOnLayersOnly) {
    EXPECT_TRUE(layer_);
    EXPECT_FALSE(ZELILayupLayer_var(Make("ZELLayupLT")));
}

TEST_P(ZELELayupLayerTest, StoresThicknessAndAngleAsTheyAreGiven) {
    EXPECT_EQ(layer_->SetThickness(0.000125), S_OK);
    EXPECT_EQ(layer_->SetOrientationAngle(-45.0), S_OK);

    EXPECT_EQ(GetNumber(feature_, "Thickness"), 0.000125);
    EXPECT_EQ(GetNumber(feature_, "OrientationAngle"), -45.0);
}

TEST_P(ZELELayupLayerTest, ReadsThicknessAndAngleFromTheStore) {
    SetNumber(feature_, "Thickness", 0.002);
    SetNumber(feature_, "OrientationAngle", 90.0);
    double thickness = 0.0;
    double angle = 0.0;

    EXPECT_EQ(layer_->GetThickness(thickness), S_OK);
    EXPECT_EQ(layer_->GetOrientationAngle(angle), S_OK);

    EXPECT_EQ(thickness, 0.002);
    EXPECT_EQ(angle, 90.0);
}

TEST_P(ZELELayupLayerTest, TakesAnyNumber) {
    for (const Number& number : kNumbers) {
        double read = 0.0;
        for (const double value : {0.0, -1.0, 720.0, std::numeric_limits<double>::infinity()}) {
            EXPECT_EQ((*layer_.*number.set)(value), S_OK);
            EXPECT_EQ((*layer_.*number.get)(read), S_OK);
            EXPECT_EQ(read, value) << number.attribute;
        }
        EXPECT_EQ((*layer_.*number.set)(std::nan("")), S_OK);
        EXPECT_EQ((*layer_.*number.get)(read), S_OK);
        EXPECT_TRUE(std::isnan(read)) << number.attribute;
    }
}

TEST_P(ZELELayupLayerTest, FailsForAMissingNumberAndLeavesTheArgument) {
    for (const Number& number : kNumbers) Store().OmitAttribute("ZELLayupLayerLT", number.attribute);
    const ZELILayupLayer_var bare = Make("ZELLayupLayerLT");
    for (const Number& number : kNumbers) {
        double value = 7.0;

        EXPECT_EQ((*bare.*number.get)(value), E_FAIL) << number.attribute;
        EXPECT_EQ(value, 7.0) << number.attribute;
        EXPECT_EQ((*bare.*number.set)(1.0), E_FAIL) << number.attribute;

        EXPECT_EQ((*layer_.*number.set)(2.0), S_OK) << "another layer has it";
    }
}

TEST_P(ZELELayupLayerTest, HoldsItsMaterial) {
    const long references = References(material_);
    KORISpecObject_var read;

    EXPECT_EQ(layer_->SetMaterial(material_), S_OK);
    EXPECT_EQ(layer_->GetMaterial(read), S_OK);

    EXPECT_EQ(Component(feature_, "UserMaterial"), material_);
    EXPECT_EQ(read, material_);
    EXPECT_EQ(References(material_), references + 2) << "the layer and this test";
}

TEST_P(ZELELayupLayerTest, LeavesTheCallersHandleAloneWithoutAMaterial) {
    KORISpecObject_var empty;
    KORISpecObject_var held = material_;

    EXPECT_EQ(layer_->GetMaterial(empty), S_OK);
    EXPECT_EQ(layer_->GetMaterial(held), S_OK);

    EXPECT_EQ(empty, nullptr);
    EXPECT_EQ(held, material_);
}

TEST_P(ZELELayupLayerTest, ReplacesAndGivesUpItsMaterial) {
    const long references = References(material_);
    const auto other = Make("ZELMaterialLT");
    layer_->SetMaterial(material_);

    EXPECT_EQ(layer_->SetMaterial(other), S_OK);
    EXPECT_EQ(Component(feature_, "UserMaterial"), other);
    EXPECT_EQ(References(material_), references);

    EXPECT_EQ(layer_->SetMaterial(nullptr), S_OK);
    EXPECT_EQ(Component(feature_, "UserMaterial"), nullptr);
}

TEST_P(ZELELayupLayerTest, FailsForAMissingMaterialAttribute) {
    Store().OmitAttribute("ZELLayupLayerLT", "UserMaterial");
    const ZELILayupLayer_var bare = Make("ZELLayupLayerLT");
    KORISpecObject_var held = material_;
    ZELIMaterial_var data;

    EXPECT_EQ(bare->SetMaterial(material_), E_FAIL);
    EXPECT_EQ(bare->GetMaterial(held), E_FAIL);
    EXPECT_EQ(bare->GetMaterialData(data), E_FAIL);

    EXPECT_EQ(held, material_);
    EXPECT_EQ(data, nullptr);
}

TEST_P(ZELELayupLayerTest, GivesItsFeatureBackWithTheLastReference) {
    layer_ = nullptr;
    const long references = References(feature_);

    layer_ = feature_;
    layer_->SetThickness(1.0);
    EXPECT_GT(References(feature_), references);
    layer_ = nullptr;

    EXPECT_EQ(References(feature_), references);
    EXPECT_EQ(KORModule::Of("ZELMaterialModel").LiveObjects(), 0);
}

ZEL_ON_BOTH_STORES(ZELELayupLayerTest);

TEST(ZELELayupLayer, FailsWithoutAFeature) {
    const auto alone = KORBaseUnknown_var::Adopt(ZELELayupLayer::CreateItself());
    auto& layer = static_cast<ZELELayupLayer&>(*alone);
    double value = 7.0;
    KORISpecObject_var material;

    EXPECT_EQ(layer.SetThickness(1.0), E_FAIL);
    EXPECT_EQ(layer.GetThickness(value), E_FAIL);
    EXPECT_EQ(layer.GetMaterial(material), E_FAIL);
    EXPECT_EQ(value, 7.0);
}

TEST(ZELELayupLayerCalls, FailWithoutAttributeAccessAndLeaveTheArgument) {
    ZELMapStore store;
    const ZELILayupLayer_var layer = store.Make("ZELLayupLayerLT");
    const auto material = store.Make("ZELMaterialLT");
    store.Calls().RefuseInterface("ZELLayupLayerLT", "KORISpecAttrAccess");
    KORISpecObject_var held = material;

    for (const Number& number : kNumbers) {
        double value = 7.0;
        EXPECT_EQ((*layer.*number.get)(value), E_FAIL) << number.attribute;
        EXPECT_EQ(value, 7.0) << number.attribute;
        EXPECT_EQ((*layer.*number.set)(1.0), E_FAIL) << number.attribute;
    }
    EXPECT_EQ(layer->SetMaterial(material), E_FAIL);
    EXPECT_EQ(layer->GetMaterial(held), E_FAIL);
    EXPECT_EQ(held, material);
}

TEST(ZELELayupLayerCalls, ResolveTheKeyEachTimeAndGiveItBack) {
    ZELMapStore store;
    const ZELILayupLayer_var layer = store.Make("ZELLayupLayerLT");
    const long keys = store.KeyReferences();
    double value = 0.0;

    layer->SetThickness(1.0);
    layer->GetThickness(value);
    layer->SetMaterial(nullptr);

    EXPECT_THAT(store.Calls().Log("GetAttrKey"),
                ElementsAre("GetAttrKey ZELLayupLayerLT.Thickness", "GetAttrKey ZELLayupLayerLT.Thickness",
                            "GetAttrKey ZELLayupLayerLT.UserMaterial"));
    EXPECT_EQ(store.KeyReferences(), keys);
}

TEST(ZELELayupLayerFaults, KeepArgumentAndStoreWhicheverCallFails) {
    for (const ZELFault fault : kFaults) {
        for (const Number& number : kNumbers) {
            const int reads = ZELFaultSweep(fault, [&](ZELFaultRun& run) {
                const auto feature = run.store.Make("ZELLayupLayerLT");
                SetNumber(feature, number.attribute, 2.0);
                const ZELILayupLayer_var layer = feature;
                const long references = References(feature);
                HRESULT status = S_OK;
                double value = 7.0;

                run.Act([&] { status = (*layer.*number.get)(value); });

                EXPECT_EQ(status, run.FaultHit() && !run.Threw() ? E_FAIL : S_OK);
                EXPECT_EQ(value, run.FaultHit() ? 7.0 : 2.0);
                EXPECT_EQ(References(feature), references);
            });
            const int writes = ZELFaultSweep(fault, [&](ZELFaultRun& run) {
                const auto feature = run.store.Make("ZELLayupLayerLT");
                const ZELILayupLayer_var layer = feature;
                const long references = References(feature);
                HRESULT status = S_OK;

                run.Act([&] { status = (*layer.*number.set)(2.0); });

                EXPECT_EQ(status, run.FaultHit() && !run.Threw() ? E_FAIL : S_OK);
                EXPECT_EQ(GetNumber(feature, number.attribute), run.FaultHit() ? 0.0 : 2.0);
                EXPECT_EQ(References(feature), references);
            });
            EXPECT_EQ(reads, fault == ZELFault::Throw ? 4 : 3);
            EXPECT_EQ(writes, fault == ZELFault::Throw ? 4 : 3);
        }
    }
}

TEST(ZELELayupLayerFaults, LeaveNoReferenceOnTheMaterial) {
    for (const ZELFault fault : kFaults) {
        const int reads = ZELFaultSweep(fault, [](ZELFaultRun& run) {
            const auto feature = run.store.Make("ZELLayupLayerLT");
            const auto material = run.store.Make("ZELMaterialLT");
            Attach(feature, "UserMaterial", material);
            const ZELILayupLayer_var layer = feature;
            const long references = References(material);
            HRESULT status = S_OK;
            KORISpecObject_var read;

            run.Act([&] { status = layer->GetMaterial(read); });

            EXPECT_EQ(read == material, !run.FaultHit());
            if (FAILED(status)) {
                EXPECT_EQ(status, E_FAIL);
            }
            read = nullptr;
            EXPECT_EQ(References(material), references);
        });
        const int writes = ZELFaultSweep(fault, [](ZELFaultRun& run) {
            const auto feature = run.store.Make("ZELLayupLayerLT");
            const auto material = run.store.Make("ZELMaterialLT");
            const ZELILayupLayer_var layer = feature;
            const long references = References(material);

            run.Act([&] { static_cast<void>(layer->SetMaterial(material)); });

            EXPECT_EQ(Component(feature, "UserMaterial") == material, !run.FaultHit());
            EXPECT_EQ(References(material), references + (run.FaultHit() ? 0 : 1));
        });
        EXPECT_GT(reads, 3);
        EXPECT_GE(writes, 3);
    }
}
