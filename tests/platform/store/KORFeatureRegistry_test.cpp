#include "platform/store/KORFeatureRegistry.h"

#include "KORTestDocument.h"

namespace {

using KORFeatureRegistryTest = KORTestDocument;

TEST_F(KORFeatureRegistryTest, NumbersFeaturesFromOneOn) {
    EXPECT_EQ(1u, NewFeature()->Number());
    EXPECT_EQ(2u, NewFeature()->Number());
}

TEST_F(KORFeatureRegistryTest, NeverGivesANumberAgain) {
    auto feature = NewFeature();
    document->Remove(feature.Get());
    feature = nullptr;

    EXPECT_EQ(nullptr, document->Features().Find(1));
    EXPECT_EQ(2u, NewFeature()->Number());
}

TEST_F(KORFeatureRegistryTest, FindsLivingFeaturesOnly) {
    const auto feature = NewFeature();

    EXPECT_EQ(feature.Get(), document->Features().Find(1));
    EXPECT_EQ(nullptr, document->Features().Find(0));
    EXPECT_EQ(nullptr, document->Features().Find(2));
    EXPECT_EQ(nullptr, document->Features().Find(4000000000u));
    EXPECT_EQ(1u, document->Features().Size());
}

TEST_F(KORFeatureRegistryTest, VisitsFeaturesInTheOrderOfTheirNumbersAcrossGaps) {
    for (int i = 0; i < 1000; ++i) {
        const auto feature = NewFeature();
        if (i != 2 && i != 998) document->Remove(feature.Get());
    }
    document->Features().Clean();

    std::vector<std::uint32_t> visited;
    document->Features().ForEach([&](KORFeature& feature) { visited.push_back(feature.Number()); });

    EXPECT_EQ((std::vector<std::uint32_t>{3, 999}), visited);
}

TEST_F(KORFeatureRegistryTest, ListsWhatIsNewChangedOrGoneSinceTheLastSave) {
    const auto unchanged = NewFeature();
    const auto changed = NewFeature();
    auto gone = NewFeature();
    document->Features().Clean();
    EXPECT_TRUE(document->Features().Dirty().empty());

    changed->SetDouble(length, 2.5, 0);
    unchanged->SetDouble(length, 1.5, 0);
    document->Remove(gone.Get());
    gone = nullptr;
    const auto created = NewFeature();

    EXPECT_EQ((std::vector<std::uint32_t>{2, 3, 4}), document->Features().Dirty());
}

TEST_F(KORFeatureRegistryTest, ListsWhatUndoAndRedoChange) {
    const auto feature = NewFeature();
    {
        KORStep step(*document, "Edit");
        feature->SetDouble(length, 2.5, 0);
        step.Commit();
    }
    document->Features().Clean();

    document->Undo();
    EXPECT_EQ((std::vector<std::uint32_t>{1}), document->Features().Dirty());

    document->Features().Clean();
    document->Redo();
    EXPECT_EQ((std::vector<std::uint32_t>{1}), document->Features().Dirty());
}

}  // namespace
