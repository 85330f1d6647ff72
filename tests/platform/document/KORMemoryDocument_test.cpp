#include "platform/document/KORMemoryDocument.h"

#include "KORTestDocument.h"

namespace {

using KORMemoryDocumentTest = KORTestDocument;

std::vector<std::uint32_t> NumbersOf(const KORMemoryDocument& document, const char* lateType) {
    std::vector<std::uint32_t> numbers;
    document.ForEachFeature(lateType ? KORName::Intern(lateType) : nullptr,
                            [&](KORFeature& feature) { numbers.push_back(feature.Number()); });
    return numbers;
}

TEST_F(KORMemoryDocumentTest, StartsEmptyWithOneContainer) {
    EXPECT_EQ(0u, document->FeatureCount());
    EXPECT_EQ(1, document->References());
    EXPECT_EQ(container.Get(), KORBaseUnknown_var::Adopt(document->GetFeatContainer()).Get());
}

TEST_F(KORMemoryDocumentTest, IsFoundBehindTheDocumentInterface) {
    const KORDocument_var asDocument(document);

    EXPECT_EQ(document, KORVar<KORMemoryDocument>(asDocument));
}

TEST_F(KORMemoryDocumentTest, ListsTheFeaturesOfALateTypeInNumberOrder) {
    const KORLayoutHandle second = KORTestLayout("KORSecondLT");
    const auto one = NewFeature();
    const auto two = KORFeature::New(*document, second, "second", *container);
    const auto three = NewFeature();
    const auto removed = NewFeature();
    EXPECT_EQ(S_OK, document->Remove(removed.Get()));

    EXPECT_EQ((std::vector<std::uint32_t>{1, 3}), NumbersOf(*document, "KORTestLT"));
    EXPECT_EQ((std::vector<std::uint32_t>{2}), NumbersOf(*document, "KORSecondLT"));
    EXPECT_EQ((std::vector<std::uint32_t>{1, 2, 3}), NumbersOf(*document, nullptr));
    EXPECT_EQ(3u, document->FeatureCount());
    EXPECT_EQ(4u, document->Features().Size());
}

TEST_F(KORMemoryDocumentTest, LetsAVisitorRemoveWhatItVisits) {
    NewFeature();
    NewFeature();

    document->ForEachFeature(nullptr, [&](KORFeature& feature) { document->Remove(&feature); });

    EXPECT_EQ(0u, document->Features().Size());
}

TEST_F(KORMemoryDocumentTest, RemovesAFeatureFromItsContainerOnly) {
    const auto parent = NewFeature();
    auto child = NewFeature();
    parent->SetComponent(other, child.Get(), 0);
    const std::uint32_t number = child->Number();

    EXPECT_EQ(S_OK, document->Remove(child.Get()));
    child = nullptr;

    EXPECT_EQ(1u, document->FeatureCount());
    const auto kept = KORISpecObject_var::Adopt(parent->GetSpecObject("Other", 0));
    EXPECT_EQ(number, KORVar<KORFeature>(kept)->Number());
    EXPECT_EQ(nullptr, kept->GetFeatContainer());
}

TEST_F(KORMemoryDocumentTest, RefusesToRemoveWhatDoesNotLieInIt) {
    const auto second = KORMemoryDocument::New(platform);
    const auto foreign = second->NewPlatformFeature("KORMaterialLT", "Steel");
    const auto twice = NewFeature();
    EXPECT_EQ(S_OK, document->Remove(twice.Get()));

    EXPECT_EQ(E_FAIL, document->Remove(twice.Get()));
    EXPECT_EQ(E_FAIL, document->Remove(foreign.Get()));
    EXPECT_EQ(E_FAIL, document->Remove(nullptr));
    EXPECT_EQ(1u, second->FeatureCount());
}

TEST_F(KORMemoryDocumentTest, MakesFeaturesOfThePlatformsOwnTypes) {
    const auto material = document->NewPlatformFeature("KORMaterialLT", "Steel");

    ASSERT_TRUE(material);
    EXPECT_EQ(KORUnicodeString("KORMaterialLT"), material->GetType());
    EXPECT_EQ(KORUnicodeString("Steel"), material->GetName());
    EXPECT_FALSE(document->NewPlatformFeature("KORTestLT", "Steel"));
    EXPECT_FALSE(document->NewPlatformFeature("KORNoSuchLT", "Steel"));
}

TEST_F(KORMemoryDocumentTest, LetsGoOfFeaturesThatReferenceEachOtherWhenItIsClosed) {
    const auto watched = KORBaseUnknown_var::Adopt(new KORBaseUnknown);
    {
        const auto one = NewFeature();
        const auto two = NewFeature();
        one->SetComponent(other, two.Get(), 0);
        two->SetComponent(other, one.Get(), 0);
        two->AppendComponent(others, two.Get());
        one->AppendComponent(others, watched.Get());
        document->Remove(one.Get());
        document->Remove(two.Get());
    }
    EXPECT_EQ(2u, document->Features().Size());
    EXPECT_EQ(2, watched->References());

    document->Close();

    EXPECT_EQ(0u, document->Features().Size());
    EXPECT_EQ(1, watched->References());
}

TEST_F(KORMemoryDocumentTest, AnswersNothingOnceItIsClosed) {
    NewFeature();
    {
        KORStep step(*document, "Create");
        NewFeature();
        step.Commit();
    }

    document->Close();
    document->Close();

    EXPECT_EQ(nullptr, document->GetFeatContainer());
    EXPECT_EQ(0u, document->FeatureCount());
    EXPECT_FALSE(document->CanUndo());
    EXPECT_FALSE(document->NewPlatformFeature("KORMaterialLT", "late"));
    EXPECT_EQ(1, document->References());
}

TEST_F(KORMemoryDocumentTest, HoldsManyFeatures) {
    for (int i = 0; i < 20000; ++i) NewFeature();

    EXPECT_EQ(20000u, document->FeatureCount());
    EXPECT_EQ(20000u, document->Features().Find(20000)->Number());
    EXPECT_EQ(20001u, NewFeature()->Number());
}

}  // namespace
