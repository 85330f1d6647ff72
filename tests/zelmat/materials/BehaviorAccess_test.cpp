#include "zelmat/materials/BehaviorAccess.h"

#include <gmock/gmock.h>

#include "ZELMaterialModel/include/ZELMaterial.h"
#include "tests/zelmat/support/CardFile.h"
#include "tests/zelmat/support/CatalogFolder.h"
#include "zelmat/findings/DiagnosticLines.h"
#include "zelmat/materials/MaterialHost.h"
#include "zelmat/materials/MaterialReader.h"

extern "C" KORIUnknown* CreateTIEZELIMaterialZELMaterial(KORBaseUnknown* implementation,
                                                         KORBaseUnknown* outer);

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// An implementation that hangs on no feature has none of the behaviors.
ZELIMaterial_var MaterialWithoutBehaviors() {
    zelmat::Findings findings;
    const zelmat::DiagnosticLines said(findings, "card.json", "x");  // that it could not be constructed
    const auto bare = KORBaseUnknown_var::Adopt(ZELMaterial::CreateItself());
    return ZELIMaterial_var(
        KORVar<KORIUnknown>::Adopt(CreateTIEZELIMaterialZELMaterial(bare.Get(), nullptr)));
}

TEST(BehaviorAccess, FailsForEveryBehaviorThatTheMaterialDoesNotHave) {
    const ZELIMaterial_var material = MaterialWithoutBehaviors();
    ASSERT_TRUE(material);
    for (const auto& block : zelmat::BlockKinds()) {
        if (block.use != zelmat::BlockUse::BEHAVIOR) continue;
        const auto answers = block.write(*material, {.kind = &block});
        ASSERT_EQ(answers.size(), 1u) << block.name;
        EXPECT_EQ(answers[0].table, nullptr) << block.name;
        EXPECT_EQ(answers[0].status, E_FAIL) << block.name;

        zelmat::Block read{.kind = &block, .enabled = false};
        EXPECT_EQ(block.read(*material, read), E_FAIL) << block.name;
        EXPECT_FALSE(read.enabled) << block.name;
    }
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
