#include "zelmat/materials/BehaviorAccess.h"

#include <gmock/gmock.h>

#include "ZELMaterialModel/include/ZELMaterial.h"
#include "framework/KORImplements.h"
#include "tests/zelmat/support/CardFile.h"
#include "tests/zelmat/support/CatalogFolder.h"
#include "zelmat/materials/MaterialHost.h"
#include "zelmat/materials/MaterialReader.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A material that has none of the behaviors.
class EmptyMaterial final : public KORImplements<ZELIMaterial> {
public:
    void GetElasticProperties(ZELGenHeapObjectProxy<ZELMaterialElastic>& proxy) override {
        proxy.killObject();
    }
    void GetPlasticProperties(ZELGenHeapObjectProxy<ZELMaterialPlastic>& proxy) override {
        proxy.killObject();
    }
    void GetDensityProperties(ZELGenHeapObjectProxy<ZELMaterialDensity>& proxy) override {
        proxy.killObject();
    }
    void GetThermalExpansionProperties(ZELGenHeapObjectProxy<ZELMaterialThermalExpansion>& proxy) override {
        proxy.killObject();
    }
    void GetConductivityProperties(ZELGenHeapObjectProxy<ZELMaterialConductivity>& proxy) override {
        proxy.killObject();
    }
    void GetSpecificHeatProperties(ZELGenHeapObjectProxy<ZELMaterialSpecificHeat>& proxy) override {
        proxy.killObject();
    }
    void GetUserMaterialProperties(ZELGenHeapObjectProxy<ZELUserMaterial>& proxy) override {
        proxy.killObject();
    }
    void GetHyperelasticProperties(ZELGenHeapObjectProxy<ZELHyperelastic>& proxy) override {
        proxy.killObject();
    }
    void GetGasketThicknessBehaviorProperties(
        ZELGenHeapObjectProxy<ZELGasketThicknessBehavior>& proxy) override {
        proxy.killObject();
    }
    void GetGasketTransShearElasticProperties(
        ZELGenHeapObjectProxy<ZELGasketTransverseShearElasticBehavior>& proxy) override {
        proxy.killObject();
    }
    void GetGasketMembraneElasticProperties(
        ZELGenHeapObjectProxy<ZELGasketMembraneElasticBehavior>& proxy) override {
        proxy.killObject();
    }
};

TEST(BehaviorAccess, FailsForEveryBehaviorThatTheMaterialDoesNotHave) {
    const auto material = KORVar<EmptyMaterial>::Adopt(new EmptyMaterial);
    int behaviors = 0;
    for (const auto& block : zelmat::BlockKinds()) {
        if (block.use != zelmat::BlockUse::BEHAVIOR) continue;
        ++behaviors;
        const auto answers = block.write(*material, {.kind = &block});
        ASSERT_EQ(answers.size(), 1u) << block.name;
        EXPECT_EQ(answers[0].table, nullptr) << block.name;
        EXPECT_EQ(answers[0].status, E_FAIL) << block.name;

        zelmat::Block read{.kind = &block, .enabled = false};
        EXPECT_EQ(block.read(*material, read), E_FAIL) << block.name;
        EXPECT_FALSE(read.enabled) << block.name;
    }
    EXPECT_EQ(behaviors, 11);
}

/// A new material, whose data something other than a card changes.
class ForeignData : public testing::Test {
protected:
    ForeignData() {
        zelmat::Material card;
        card.name = "x";
        material_ = host_.NewMaterial(card, findings_);
        behaviors_ = ZELIMaterial_var::Of(material_.Get());
    }

    zelmat::Block Read(const char* block) {
        const auto read = zelmat::ReadMaterial(material_.Get(), "card.json", "x", findings_);
        return *read.Find(block);
    }

    std::vector<std::string> Lines() const {
        std::vector<std::string> lines;
        for (const auto& finding : findings_.All()) lines.push_back(zelmat::FindingLine(finding));
        return lines;
    }

    zelmat::Findings findings_;
    zelmat::MaterialHost host_{CatalogFolderOfTheModule()};
    KORISpecObject_var material_;
    ZELIMaterial_var behaviors_;
};

TEST_F(ForeignData, WithAHardeningOfItsOwnIsShownByItsKeyword) {
    const auto plastic = zelmat::HandOut(*behaviors_, &ZELIMaterial::GetPlasticProperties);
    ASSERT_EQ(plastic->SetPlasticEnabled(1), S_OK);
    plastic->SetHardeningType("MixedHardening");

    const auto stored = Read("plastic");

    EXPECT_THAT(Lines(), IsEmpty());
    EXPECT_TRUE(stored.enabled);
    EXPECT_EQ(stored.values.Get<std::string>("hardening"), "MixedHardening");
    EXPECT_THAT(Rows(stored.tables.at(0)), IsEmpty());
}

TEST_F(ForeignData, WithoutAHyperelasticModelCannotBeReadBack) {
    const auto hyperelastic = zelmat::HandOut(*behaviors_, &ZELIMaterial::GetHyperelasticProperties);
    ASSERT_EQ(hyperelastic->SetHyperelasticEnabled(1), S_OK);
    ASSERT_EQ(hyperelastic->SetHyperelasticMaterialModel(nullptr), S_OK);

    Read("hyperelastic");

    EXPECT_THAT(Lines(), ElementsAre("card.json: error[not-read]: hyperelastic of x could not be read back "
                                     "(status 0x80004005)"));
}

TEST_F(ForeignData, WithoutGasketTablesCannotBeReadBack) {
    const auto gasket = zelmat::HandOut(*behaviors_, &ZELIMaterial::GetGasketThicknessBehaviorProperties);
    ASSERT_EQ(gasket->SetGasketEnabled(1), S_OK);

    Read("gasket");

    EXPECT_THAT(Lines(), ElementsAre("card.json: error[not-read]: gasket of x could not be read back (status "
                                     "0x80004005)"));
}

TEST_F(ForeignData, WithAYieldOnsetMethodOfItsOwnIsShownByItsNumber) {
    const auto gasket = zelmat::HandOut(*behaviors_, &ZELIMaterial::GetGasketThicknessBehaviorProperties);
    ASSERT_EQ(gasket->SetGasketEnabled(1), S_OK);
    ASSERT_EQ(gasket->SetGasketYieldOnsetMethodType(
                  static_cast<ZELGasketThicknessBehavior::GasketYieldOnsetMethodType>(35)),
              S_OK);

    EXPECT_EQ(Read("gasket").values.Get<std::string>("yield_onset.method"), "35");
}

}  // namespace
