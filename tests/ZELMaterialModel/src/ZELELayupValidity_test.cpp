#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/src/ZELELayupValidity.h"

#include <gmock/gmock.h>

#include "ZELMaterialModel/include/ZELILayup.h"
#include "ZELMaterialModel/include/ZELILayupLayer.h"
#include "framework/KORImplements.h"
#include "interfaces/KORISamValidity.h"
#include "tests/ZELMaterialModel/ZELLayups.h"
#include "tests/support/ZELDiagnostics.h"
#include "tests/support/ZELFaultSweep.h"
#include "tests/support/ZELStores.h"

using testing::IsEmpty;

namespace {

/// A feature of another program that is a layup and a layer; it answers what it is told to.
class Foreign final : public KORImplements<KORISpecObject, ZELILayup, ZELILayupLayer> {
public:
    Foreign(HRESULT status, const KORListValKORISpecObject_var& layers = {})
        : status_(status), layers_(layers) {}

    KORUnicodeString GetType() override { return "ForeignLT"; }
    KORUnicodeString GetName() override { return "Foreign"; }
    KORBaseUnknown* GetFeatContainer() override { return nullptr; }
    KORISpecObject* Instantiate(const KORUnicodeString&, KORIContainer*) override { return nullptr; }

    HRESULT SetLayers(const KORListValKORISpecObject_var&) override { return status_; }
    HRESULT GetLayers(KORListValKORISpecObject_var& layers) override {
        layers = layers_;
        return status_;
    }
    bool IsUnused() override { return true; }

    HRESULT SetMaterial(const KORISpecObject_var&) override { return status_; }
    HRESULT GetMaterial(KORISpecObject_var& material) override {
        material = KORISpecObject_var(static_cast<KORISpecObject*>(this));
        return status_;
    }
    HRESULT SetThickness(const double&) override { return status_; }
    HRESULT GetThickness(double&) override { return status_; }
    HRESULT SetOrientationAngle(const double&) override { return status_; }
    HRESULT GetOrientationAngle(double&) override { return status_; }
    HRESULT GetMaterialData(ZELIMaterial_var&) override { return status_; }

private:
    HRESULT status_;
    KORListValKORISpecObject_var layers_;
};

KORISpecObject_var MakeForeign(HRESULT status, const KORListValKORISpecObject_var& layers = {}) {
    return KORISpecObject_var::Adopt(new Foreign(status, layers));
}

class ZELELayupValidityTest : public ZELStoreTest {
protected:
    KORISpecObject_var Layer(const KORISpecObject_var& material) {
        auto layer = Make("ZELLayupLayerLT");
        if (material) Attach(layer, "UserMaterial", material);
        return layer;
    }
    void SetLayers(std::initializer_list<KORISpecObject_var> layers) {
        for (const auto& layer : layers) AppendComponent(layup_, "LayerList", layer);
    }
    void ExpectInvalid(const KORISpecObject_var& layup, HRESULT status = E_FAIL) {
        std::uint32_t verdict = 7;
        EXPECT_EQ(validity_->IsValid(layup, nullptr, verdict), status);
        EXPECT_EQ(verdict, 1u);
    }
    void ExpectValid(const KORISpecObject_var& layup) {
        std::uint32_t verdict = 7;
        EXPECT_EQ(validity_->IsValid(layup, nullptr, verdict), S_OK);
        EXPECT_EQ(verdict, 0u);
    }

    const ZELDiagnostics diagnostics_;
    KORISpecObject_var layup_ = Make("ZELLayupLT");
    KORISamValidity_var validity_ = layup_;
    KORISpecObject_var material_ = Make("ZELMaterialLT");
};

}  // namespace

TEST_P(ZELELayupValidityTest, IsRefusedToALayupWithoutLayers) {
    ExpectInvalid(layup_);
    SetLayers({nullptr});
    ExpectInvalid(layup_);

    EXPECT_THAT(diagnostics_.Lines(), IsEmpty());
}

TEST_P(ZELELayupValidityTest, IsGivenToALayupWhoseLayersAllHaveAMaterial) {
    SetLayers({Layer(material_), Layer(Make("ZELMaterialLT"))});

    ExpectValid(layup_);
    EXPECT_THAT(diagnostics_.Lines(), IsEmpty());
}

TEST_P(ZELELayupValidityTest, IsRefusedForALayerWithoutMaterialWhereverItStands) {
    SetLayers({Layer(material_), Layer(nullptr)});
    ExpectInvalid(layup_);

    const auto other = Make("ZELLayupLT");
    AppendComponent(other, "LayerList", Layer(nullptr));
    AppendComponent(other, "LayerList", Layer(material_));
    ExpectInvalid(other);
}

TEST_P(ZELELayupValidityTest, AsksNeitherForThicknessesNorForAngles) {
    const auto layer = Layer(material_);
    SetNumber(layer, "Thickness", -1.0);
    SetNumber(layer, "OrientationAngle", 1000.0);
    SetLayers({layer, Layer(material_)});

    ExpectValid(layup_);
}

TEST_P(ZELELayupValidityTest, IsRefusedForALayerThatIsNone) {
    SetLayers({Layer(material_), Make("ZELElasticLT")});

    ExpectInvalid(layup_);
}

TEST_P(ZELELayupValidityTest, SkipsEmptyEntries) {
    SetLayers({nullptr, Layer(material_), nullptr});

    ExpectValid(layup_);
}

TEST_P(ZELELayupValidityTest, IsRefusedToWhatIsNoLayup) {
    ExpectInvalid(material_);
    ExpectInvalid(nullptr);
}

TEST_P(ZELELayupValidityTest, IsOfTheLayupThatIsGivenAndNotOfTheOneAsked) {
    SetLayers({Layer(material_)});

    ExpectInvalid(Make("ZELLayupLT"));
    ExpectValid(layup_);
}

TEST_P(ZELELayupValidityTest, PassesTheStatusOfTheLayersOn) {
    ExpectInvalid(MakeForeign(E_OUTOFMEMORY, ZELListOf({Layer(material_)})), E_OUTOFMEMORY);
}

TEST_P(ZELELayupValidityTest, FailsForALayerThatCannotTellItsMaterial) {
    ExpectInvalid(MakeForeign(S_OK, ZELListOf({Layer(material_), MakeForeign(E_OUTOFMEMORY)})));
    ExpectValid(MakeForeign(S_OK, ZELListOf({Layer(material_), MakeForeign(S_OK)})));
}

TEST_P(ZELELayupValidityTest, FailsWithoutTheLayerList) {
    Store().OmitAttribute("ZELLayupLT", "LayerList");

    ExpectInvalid(Make("ZELLayupLT"));
}

TEST_P(ZELELayupValidityTest, IsGivenToTenThousandLayersAndRefusedForTheLastOne) {
    const auto layer = Layer(material_);
    KORListValKORISpecObject_var layers;
    for (int i = 0; i < 10000; ++i) layers.Append(layer);
    ExpectValid(MakeForeign(S_OK, layers));

    layers.Append(Layer(nullptr));
    ExpectInvalid(MakeForeign(S_OK, layers));
}

TEST_P(ZELELayupValidityTest, LeavesNoReferenceBehind) {
    SetLayers({Layer(material_)});
    const long materials = References(material_);
    const long layups = References(layup_);

    ExpectValid(layup_);

    EXPECT_EQ(References(material_), materials);
    EXPECT_EQ(References(layup_), layups);
}

ZEL_ON_BOTH_STORES(ZELELayupValidityTest);

TEST(ZELELayupValidityFaults, RefuseWhicheverCallFails) {
    for (const ZELFault fault : {ZELFault::Refuse, ZELFault::SuccessWithNull, ZELFault::Throw}) {
        const int hits = ZELFaultSweep(fault, [](ZELFaultRun& run) {
            const auto layup = run.store.Make("ZELLayupLT");
            const auto layer = run.store.Make("ZELLayupLayerLT");
            const auto material = run.store.Make("ZELMaterialLT");
            AppendComponent(layup, "LayerList", layer);
            Attach(layer, "UserMaterial", material);
            const KORISamValidity_var validity = layup;
            const long layups = References(layup);
            const long materials = References(material);
            HRESULT status = S_OK;
            std::uint32_t verdict = 7;

            run.Act([&] { status = validity->IsValid(layup, nullptr, verdict); });

            EXPECT_EQ(status, run.FaultHit() && !run.Threw() ? E_FAIL : S_OK);
            EXPECT_EQ(verdict, run.FaultHit() ? 1u : 0u);
            EXPECT_EQ(References(layup), layups);
            EXPECT_EQ(References(material), materials);
        });
        EXPECT_GT(hits, 6);
    }
}
