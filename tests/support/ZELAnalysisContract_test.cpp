#include <gmock/gmock.h>

#include "interfaces/KORIAnalysisDocument.h"
#include "interfaces/KORISamAnalysisEntity.h"
#include "interfaces/KORISamAnalysisSet.h"
#include "tests/support/ZELStores.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr const char* kSet = "ZELZelmarPropertySetLT";
constexpr const char* kLayup = "ZELLayupLT";
constexpr const char* kSection = "ZELShellSectionEnhLT";

template <class Handle>
std::vector<KORISpecObject_var> Entries(const KORListVal<Handle>& list) {
    std::vector<KORISpecObject_var> entries;
    for (int position = 1; position <= list.Size(); ++position) entries.emplace_back(list[position]);
    return entries;
}

/// What the module relies on in the analysis side of any store's document.
class ZELAnalysisContract : public ZELStoreTest {
protected:
    KORIAnalysisDocument_var Analysis() { return KORIAnalysisDocument_var::Of(Store().Document()); }
    KORISpecObject_var Create(const char* lateType, KORISpecObject* model) {
        const auto factory = KORISamAnalysisModelFactory_var::Adopt(Analysis()->GetFactory());
        return KORISpecObject_var(
            KORBaseUnknown_var::Adopt(factory->CreateEntity(lateType, "Entity", model)));
    }
    KORISpecObject_var Create(const char* lateType) { return Create(lateType, model_.Get()); }
    std::vector<KORISpecObject_var> Scan(const char* lateType, int mode) {
        return Entries(KORISamAnalysisScan_var(model_)->Scan(lateType, mode));
    }

    KORISpecObject_var model_ = Store().AddAnalysisModel();
    HRESULT loaded_ = Analysis()->LoadCatalog("ZELMaterialPropertiesCatalog.KORfct");
};

}  // namespace

TEST_P(ZELAnalysisContract, HasOneModel) {
    EXPECT_EQ(Store().AddAnalysisModel(), model_);
    EXPECT_EQ(KORISpecObject_var(KORISamAnalysisModel_var::Adopt(Analysis()->GetAnalysisModel())), model_);
    EXPECT_TRUE(KORISamAnalysisScan_var(model_));
    EXPECT_FALSE(KORISamAnalysisSet_var(model_));
}

TEST_P(ZELAnalysisContract, LoadsCatalogsThatThereAre) {
    EXPECT_EQ(loaded_, S_OK);
    EXPECT_EQ(Analysis()->LoadCatalog("Missing.KORfct"), E_FAIL);
}

TEST_P(ZELAnalysisContract, PutsANewEntityUnderTheModel) {
    const auto layup = Create(kLayup);

    ASSERT_TRUE(layup);
    EXPECT_EQ(layup->GetType(), kLayup);
    EXPECT_EQ(layup->GetName(), "Entity");
    EXPECT_THAT(Scan(kLayup, 1), ElementsAre(layup));
    EXPECT_EQ(References(layup), 3) << "container, model and this test";
}

TEST_P(ZELAnalysisContract, MakesNoEntityWithoutATypeOrAModel) {
    EXPECT_EQ(Create("MissingLT"), nullptr);
    EXPECT_EQ(Create(kLayup, nullptr), nullptr);
    EXPECT_THAT(Scan(kLayup, 3), IsEmpty());
}

TEST_P(ZELAnalysisContract, MovesAChildFromTheModelIntoASet) {
    const auto set = Create(kSet);
    const auto layup = Create(kLayup);
    const auto section = Create(kSection);

    KORISamAnalysisSet_var(set)->AddChild(layup);
    KORISamAnalysisSet_var(set)->AddChild(section);

    EXPECT_THAT(Components(model_, "Children"), testing::Optional(ElementsAre(set)));
    EXPECT_THAT(Entries(KORISamAnalysisSet_var(set)->GetFeatures(kLayup)), ElementsAre(layup));
    EXPECT_THAT(Entries(KORISamAnalysisSet_var(set)->GetFeatures(kSection)), ElementsAre(section));
    EXPECT_THAT(Entries(KORISamAnalysisSet_var(set)->GetFeatures(kSet)), IsEmpty());
}

TEST_P(ZELAnalysisContract, ScansTheModelItsSetsOrBoth) {
    const auto own = Create(kLayup);
    const auto set = Create(kSet);
    const auto inSet = Create(kLayup);
    KORISamAnalysisSet_var(set)->AddChild(inSet);

    EXPECT_THAT(Scan(kLayup, 1), ElementsAre(own));
    EXPECT_THAT(Scan(kLayup, 2), ElementsAre(inSet));
    EXPECT_THAT(Scan(kLayup, 3), ElementsAre(own, inSet));
    EXPECT_THAT(Scan(kSet, 3), ElementsAre(set));
}

TEST_P(ZELAnalysisContract, FindsNothingInAScanOfAnUnknownMode) {
    Create(kLayup);

    EXPECT_THAT(Scan(kLayup, 0), IsEmpty());
    EXPECT_THAT(Scan(kLayup, 4), IsEmpty());
    EXPECT_THAT(Scan(kLayup, -1), IsEmpty());
}

TEST_P(ZELAnalysisContract, TellsTheParentSetsOfALayup) {
    const auto first = Create(kSet);
    const auto second = Create(kSet);
    const auto layup = Create(kLayup);
    EXPECT_THAT(Entries(KORISamAnalysisEntity_var(layup)->GetParentSets()), IsEmpty());

    KORISamAnalysisSet_var(second)->AddChild(layup);
    KORISamAnalysisSet_var(first)->AddChild(layup);

    EXPECT_THAT(Entries(KORISamAnalysisEntity_var(layup)->GetParentSets()), ElementsAre(first, second));
}

TEST_P(ZELAnalysisContract, HoldsOnlyLayupsForEntities) {
    EXPECT_TRUE(KORISamAnalysisEntity_var(Create(kLayup)));
    EXPECT_FALSE(KORISamAnalysisEntity_var(Create(kSection)));
    EXPECT_FALSE(KORISamAnalysisEntity_var(Make("ZELLayupLayerLT")));
    EXPECT_FALSE(KORISamAnalysisSet_var(Create(kLayup)));
}

ZEL_ON_BOTH_STORES(ZELAnalysisContract);
