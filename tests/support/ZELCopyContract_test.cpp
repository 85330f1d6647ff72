#include "tests/support/ZELStores.h"

#include <gmock/gmock.h>

#include "interfaces/KORIApplicativeContainers.h"
#include "interfaces/KORICutAndPastable.h"
#include "interfaces/KORIMaterialFeature.h"

using testing::ElementsAre;
using testing::Optional;

namespace {

KORBaseUnknown_var ContainerOf(const KORISpecObject_var& feature) {
    return KORBaseUnknown_var::Adopt(feature->GetFeatContainer());
}

/// What the module relies on where features lie in several containers, in any store.
class ZELCopyContract : public ZELStoreTest {
protected:
    ZELCopyContract() {
        Store().DefineType("TestLT", {{"Data", ZELKind::ListOfDoubles},
                                      {"Part", ZELKind::Component},
                                      {"Parts", ZELKind::ListOfComponents}});
    }
    KORISpecObject_var MakeIn(const KORIContainer_var& container) {
        return Store().MakeIn(container, "TestLT");
    }
    /// A copy of one feature, and of what it takes along, in the store's own container.
    std::vector<KORISpecObject_var> Copy(const KORISpecObject_var& feature) {
        KORListValKORISpecObject_var wanted;
        KORListValKORISpecObject_var extracted;
        KORListValKORISpecObject_var copies;
        wanted.Append(feature);
        EXPECT_EQ(KORICutAndPastable_var(other_)->Extract(wanted, extracted), S_OK);
        EXPECT_EQ(KORICutAndPastable_var(own_)->Paste(extracted, copies), S_OK);
        std::vector<KORISpecObject_var> found;
        for (int position = 1; position <= copies.Size(); ++position) found.push_back(copies[position]);
        return found;
    }

    const KORIContainer_var own_ = Store().Container();
    const KORIContainer_var other_ = Store().AddContainer("Other");
};

}  // namespace

TEST_P(ZELCopyContract, FindsAnApplicativeContainerByItsName) {
    void* found = nullptr;
    EXPECT_EQ(KORGetApplicativeContainer(Store().Document(), IID_KORIContainer, "Other", &found), S_OK);
    EXPECT_EQ(KORIContainer_var::Adopt(static_cast<KORIContainer*>(found)), other_);

    EXPECT_EQ(KORGetApplicativeContainer(Store().Document(), IID_KORIContainer, "None", &found), E_FAIL);
    EXPECT_EQ(found, nullptr);
    EXPECT_EQ(Store().AddContainer("Other"), other_) << "made once";
}

TEST_P(ZELCopyContract, MakesFeaturesInEitherContainer) {
    EXPECT_EQ(ContainerOf(MakeIn(own_)), KORBaseUnknown_var(own_));
    EXPECT_EQ(ContainerOf(MakeIn(other_)), KORBaseUnknown_var(other_));
    EXPECT_EQ(Store().LiveFeatures(), 2);
}

TEST_P(ZELCopyContract, CopiesAFeatureWithItsValues) {
    const auto feature = MakeIn(other_);
    SetList(feature, "Data", {1.0, 2.0});

    const auto copies = Copy(feature);

    ASSERT_EQ(copies.size(), 1u);
    EXPECT_NE(copies[0], feature);
    EXPECT_EQ(copies[0]->GetType(), "TestLT");
    EXPECT_EQ(ContainerOf(copies[0]), KORBaseUnknown_var(own_));
    EXPECT_THAT(List(copies[0], "Data"), Optional(ElementsAre(1.0, 2.0)));
    SetList(copies[0], "Data", {3.0});
    EXPECT_THAT(List(feature, "Data"), Optional(ElementsAre(1.0, 2.0)));
    EXPECT_EQ(ContainerOf(feature), KORBaseUnknown_var(other_)) << "the original stays";
}

TEST_P(ZELCopyContract, TakesAlongWhatIsReferencedInTheSameContainer) {
    const auto feature = MakeIn(other_);
    const auto part = MakeIn(other_);
    const auto listed = MakeIn(other_);
    const auto outside = MakeIn(own_);
    Attach(feature, "Part", part);
    Attach(part, "Part", feature);
    AppendComponent(feature, "Parts", listed);
    AppendComponent(feature, "Parts", outside);

    const auto copies = Copy(feature);

    ASSERT_EQ(copies.size(), 3u);
    const auto copiedPart = Component(copies[0], "Part");
    EXPECT_NE(copiedPart, part);
    EXPECT_EQ(Component(copiedPart, "Part"), copies[0]) << "references among the copied lead to copies";
    const auto parts = Components(copies[0], "Parts");
    ASSERT_TRUE(parts);
    ASSERT_EQ(parts->size(), 2u);
    EXPECT_NE((*parts)[0], listed);
    EXPECT_EQ((*parts)[1], outside) << "references elsewhere stay";
}

TEST_P(ZELCopyContract, ExtractsNothingThatLiesElsewhere) {
    KORListValKORISpecObject_var wanted;
    KORListValKORISpecObject_var extracted;
    wanted.Append(MakeIn(own_));

    EXPECT_EQ(KORICutAndPastable_var(other_)->Extract(wanted, extracted), E_FAIL);

    EXPECT_EQ(extracted.Size(), 0);
}

TEST_P(ZELCopyContract, CopiesAFeatureAsOftenAsItIsGivenAndAnswersNothingElse) {
    const auto parent = Store().MakeIn(other_, "ZELMaterialLT");
    const auto child = Store().MakeIn(other_, "ZELDensityLT");
    Attach(parent, "ZELDensity", child);
    KORListValKORISpecObject_var wanted;
    wanted.Append(parent);
    wanted.Append(parent);
    KORListValKORISpecObject_var extracted;
    extracted.Append(child);  // what the caller's lists held is replaced
    KORListValKORISpecObject_var copies;
    copies.Append(child);

    EXPECT_EQ(KORICutAndPastable_var(other_)->Extract(wanted, extracted), S_OK);
    EXPECT_EQ(KORICutAndPastable_var(own_)->Paste(extracted, copies), S_OK);

    ASSERT_EQ(extracted.Size(), 3);
    ASSERT_EQ(copies.Size(), 3);
    EXPECT_NE(copies[1], copies[2]);
    EXPECT_EQ(Component(copies[1], "ZELDensity"), copies[3]);
    EXPECT_EQ(Component(copies[2], "ZELDensity"), copies[3]);
}

TEST_P(ZELCopyContract, HangsACopyOnWhatTheOriginalHangsOn) {
    const auto steel = Store().MakePlatformMaterial(own_);
    const auto data = Store().MakeIn(other_, "ZELMaterialLT");
    EXPECT_EQ(KORIMaterialFeature_var(steel)->SetApplicativeFeature("Name", data.Get()), S_OK);
    KORListValKORISpecObject_var wanted;
    wanted.Append(data);
    KORListValKORISpecObject_var extracted;
    KORListValKORISpecObject_var copies;

    EXPECT_EQ(KORICutAndPastable_var(other_)->Extract(wanted, extracted), S_OK);
    EXPECT_EQ(KORICutAndPastable_var(own_)->Paste(extracted, copies), S_OK);

    ASSERT_EQ(copies.Size(), 1);
    EXPECT_EQ(KORISpecObject_var::Adopt(copies[1]->GetFather()), steel);
}

TEST_P(ZELCopyContract, RemovesAFeatureThatLiesInTheContainer) {
    const auto feature = MakeIn(other_);

    EXPECT_EQ(KORICutAndPastable_var(own_)->Remove(feature.Get()), E_FAIL);
    EXPECT_EQ(KORICutAndPastable_var(other_)->Remove(feature.Get()), S_OK);

    EXPECT_FALSE(ContainerOf(feature));
    EXPECT_EQ(KORICutAndPastable_var(other_)->Remove(feature.Get()), E_FAIL);
}

TEST_P(ZELCopyContract, HangsAMaterialsDataOnTheMaterial) {
    const auto platformMaterial = Store().MakePlatformMaterial(own_);
    const KORIMaterialFeature_var material = platformMaterial;
    ASSERT_TRUE(material);
    const auto first = Store().MakeIn(other_, "ZELMaterialLT");
    const auto second = Store().MakeIn(other_, "ZELMaterialLT");
    const auto hanging = [&material] {
        return KORISpecObject_var::Adopt(material->GetApplicativeFeature("Name"));
    };
    const auto fatherOf = [](const KORISpecObject_var& feature) {
        return KORISpecObject_var::Adopt(feature->GetFather());
    };
    EXPECT_FALSE(hanging());
    EXPECT_FALSE(fatherOf(first));
    EXPECT_EQ(material->SetApplicativeFeature("Name", nullptr), E_FAIL);
    EXPECT_EQ(material->RemoveApplicativeFeature("Name"), E_FAIL);

    EXPECT_EQ(material->SetApplicativeFeature("Name", first.Get()), S_OK);
    EXPECT_EQ(hanging(), first);
    EXPECT_EQ(fatherOf(first), platformMaterial);

    EXPECT_EQ(material->SetApplicativeFeature("Name", second.Get()), S_OK);
    EXPECT_EQ(hanging(), second);
    EXPECT_FALSE(fatherOf(first));

    EXPECT_EQ(material->RemoveApplicativeFeature("Name"), S_OK);
    EXPECT_FALSE(hanging());
    EXPECT_FALSE(fatherOf(second));
}

TEST_P(ZELCopyContract, LeavesDataOnTheMaterialOnWhichTheyWereHungLast) {
    const auto steel = Store().MakePlatformMaterial(own_);
    const auto copper = Store().MakePlatformMaterial(own_);
    const auto data = Store().MakeIn(other_, "ZELMaterialLT");
    EXPECT_EQ(KORIMaterialFeature_var(steel)->SetApplicativeFeature("Name", data.Get()), S_OK);
    EXPECT_EQ(KORIMaterialFeature_var(copper)->SetApplicativeFeature("Name", data.Get()), S_OK);

    EXPECT_EQ(KORIMaterialFeature_var(steel)->RemoveApplicativeFeature("Name"), S_OK);

    EXPECT_EQ(KORISpecObject_var::Adopt(data->GetFather()), copper);
}

ZEL_ON_BOTH_STORES(ZELCopyContract);
