#include "KORTestDocument.h"
#include "interfaces/KORIMaterialFeature.h"
#include "interfaces/KORIMaterialSupport.h"

namespace {

/// A platform material, and features that can hang on it.
class KORMaterialExtensionTest : public KORTestDocument {
protected:
    KORVar<KORFeature> NewHanging() {
        return KORFeature::New(*document, hangingLayout, "Hanging", *container);
    }
    static KORVar<KORFeature> FatherOf(const KORVar<KORFeature>& feature) {
        return KORVar<KORFeature>(KORISpecObject_var::Adopt(feature->GetFather()));
    }
    KORVar<KORFeature> Hanging(const char* name) {
        return KORVar<KORFeature>(KORISpecObject_var::Adopt(feature->GetApplicativeFeature(name)));
    }

    const KORLayoutHandle hangingLayout = KORHangingLayout();
    const KORVar<KORFeature> material = document->NewPlatformFeature("KORMaterialLT", "Steel");
    const KORIMaterialFeature_var feature{material};
};

TEST_F(KORMaterialExtensionTest, HasNothingHangingOnItAtFirst) {
    ASSERT_TRUE(feature);
    EXPECT_EQ(nullptr, feature->GetApplicativeFeature("Data"));
    EXPECT_EQ(E_FAIL, feature->RemoveApplicativeFeature("Data"));
    EXPECT_EQ(1u, document->FeatureCount());
}

TEST_F(KORMaterialExtensionTest, HangsFeaturesUnderNames) {
    const auto one = NewHanging();
    const auto two = NewHanging();

    EXPECT_EQ(S_OK, feature->SetApplicativeFeature("One", one.Get()));
    EXPECT_EQ(S_OK, feature->SetApplicativeFeature("Two", two.Get()));

    EXPECT_EQ(one, Hanging("One"));
    EXPECT_EQ(two, Hanging("Two"));
    EXPECT_FALSE(Hanging("Three"));
    EXPECT_EQ(material, FatherOf(one));
    EXPECT_EQ(material, FatherOf(two));
    EXPECT_EQ(3, one->References());  // container, entry, test
    EXPECT_EQ(5u, document->FeatureCount());
}

TEST_F(KORMaterialExtensionTest, ReplacesWhatHungUnderTheName) {
    const auto old = NewHanging();
    const auto fresh = NewHanging();
    EXPECT_EQ(S_OK, feature->SetApplicativeFeature("Data", old.Get()));

    EXPECT_EQ(S_OK, feature->SetApplicativeFeature("Data", fresh.Get()));

    EXPECT_EQ(fresh, Hanging("Data"));
    EXPECT_FALSE(FatherOf(old));
    EXPECT_EQ(material, FatherOf(fresh));
    EXPECT_TRUE(old->LiesInContainer());
    EXPECT_EQ(1, material->GetListSize(KORName::Intern("ApplicativeData")));
}

TEST_F(KORMaterialExtensionTest, KeepsTheFatherWhenTheSameFeatureIsHungAgain) {
    const auto data = NewHanging();
    EXPECT_EQ(S_OK, feature->SetApplicativeFeature("Data", data.Get()));

    EXPECT_EQ(S_OK, feature->SetApplicativeFeature("Data", data.Get()));

    EXPECT_EQ(data, Hanging("Data"));
    EXPECT_EQ(material, FatherOf(data));
}

TEST_F(KORMaterialExtensionTest, TakesFeaturesOffAndLeavesThemInTheirContainer) {
    const auto one = NewHanging();
    const auto two = NewHanging();
    EXPECT_EQ(S_OK, feature->SetApplicativeFeature("One", one.Get()));
    EXPECT_EQ(S_OK, feature->SetApplicativeFeature("Two", two.Get()));

    EXPECT_EQ(S_OK, feature->RemoveApplicativeFeature("One"));

    EXPECT_FALSE(Hanging("One"));
    EXPECT_EQ(two, Hanging("Two"));
    EXPECT_FALSE(FatherOf(one));
    EXPECT_TRUE(one->LiesInContainer());
    EXPECT_EQ(2, one->References());
    EXPECT_EQ(4u, document->FeatureCount());  // material, two features, one entry
}

TEST_F(KORMaterialExtensionTest, LeavesTheFatherOfWhatHangsOnAnotherMaterialByNow) {
    const auto data = NewHanging();
    const auto second = document->NewPlatformFeature("KORMaterialLT", "Iron");
    EXPECT_EQ(S_OK, feature->SetApplicativeFeature("Data", data.Get()));
    EXPECT_EQ(S_OK, KORIMaterialFeature_var(second)->SetApplicativeFeature("Data", data.Get()));

    EXPECT_EQ(S_OK, feature->RemoveApplicativeFeature("Data"));

    EXPECT_EQ(second, FatherOf(data));
}

TEST_F(KORMaterialExtensionTest, HangsFeaturesThatKnowNoFather) {
    const auto data = NewFeature();

    EXPECT_EQ(S_OK, feature->SetApplicativeFeature("Data", data.Get()));

    EXPECT_EQ(data, Hanging("Data"));
    EXPECT_FALSE(FatherOf(data));
    EXPECT_EQ(S_OK, feature->RemoveApplicativeFeature("Data"));
}

TEST_F(KORMaterialExtensionTest, RefusesNullAndMaterialsOutsideOfContainers) {
    const auto data = NewHanging();

    EXPECT_EQ(E_FAIL, feature->SetApplicativeFeature("Data", nullptr));
    material->SetContainer(nullptr);
    EXPECT_EQ(E_FAIL, feature->SetApplicativeFeature("Data", data.Get()));

    EXPECT_FALSE(Hanging("Data"));
    EXPECT_FALSE(FatherOf(data));
    EXPECT_EQ(1u, document->FeatureCount());
}

TEST_F(KORMaterialExtensionTest, IsUndoneWithTheDocument) {
    const auto data = NewHanging();
    {
        KORStep step(*document, "Hang");
        EXPECT_EQ(S_OK, feature->SetApplicativeFeature("Data", data.Get()));
        step.Commit();
    }

    EXPECT_TRUE(document->Undo());
    EXPECT_FALSE(Hanging("Data"));
    EXPECT_FALSE(FatherOf(data));
    EXPECT_TRUE(document->Redo());

    EXPECT_EQ(data, Hanging("Data"));
    EXPECT_EQ(material, FatherOf(data));
}

TEST_F(KORMaterialExtensionTest, IsCopiedWithWhatHangsOnIt) {
    const auto data = NewHanging();
    EXPECT_EQ(S_OK, feature->SetApplicativeFeature("Data", data.Get()));
    const KORICutAndPastable_var cut(container);
    KORListValKORISpecObject_var wanted;
    wanted.Append(KORISpecObject_var(material));
    KORListValKORISpecObject_var extracted;
    KORListValKORISpecObject_var copies;

    EXPECT_EQ(S_OK, cut->Extract(wanted, extracted));
    EXPECT_EQ(S_OK, cut->Paste(extracted, copies));

    ASSERT_EQ(3, copies.Size());
    const KORIMaterialFeature_var copy(copies[1]);
    const auto hanging = KORISpecObject_var::Adopt(copy->GetApplicativeFeature("Data"));
    EXPECT_FALSE(hanging == KORISpecObject_var(data));
    EXPECT_EQ(copies[1], KORISpecObject_var::Adopt(hanging->GetFather()));
}

TEST_F(KORMaterialExtensionTest, IsItsOwnSupport) {
    const auto data = NewHanging();
    EXPECT_EQ(S_OK, feature->SetApplicativeFeature("Data", data.Get()));
    const KORIMaterialSupport_var supported(material);
    ASSERT_TRUE(supported);

    const auto support = KORBaseUnknown_var::Adopt(supported->GetSupport());
    const KORIApplicativeHolder_var holder(support);

    ASSERT_TRUE(holder);
    EXPECT_EQ(static_cast<KORBaseUnknown*>(material.Get()), support.Get());
    EXPECT_EQ(KORBaseUnknown_var(data), KORBaseUnknown_var::Adopt(holder->FindApplicative("Data")));
    EXPECT_EQ(nullptr, holder->FindApplicative("Other"));
}

}  // namespace
