#include "platform/store/KORFeatureRegistry.h"

#include "KORTestDocument.h"
#include "platform/store/KORStep.h"

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

TEST_F(KORFeatureRegistryTest, ListsAFeatureAnewAfterEverySave) {
    const auto feature = NewFeature();
    const std::vector<std::uint32_t> listed = {1};
    for (const double value : {2.5, 3.5, 4.5}) {
        document->Features().Clean();
        EXPECT_TRUE(document->Features().Dirty().empty());
        feature->SetDouble(length, value, 0);
        feature->SetDouble(length, value + 0.1, 0);
        EXPECT_EQ(listed, document->Features().Dirty()) << value;
    }
    document->Features().Clean();
    feature->AppendComponent(others, feature.Get());
    EXPECT_EQ(listed, document->Features().Dirty());
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

/// Every way to write a feature, each of them alone since the last save.
TEST_F(KORFeatureRegistryTest, ListsAFeatureHoweverItWasWritten) {
    const auto feature = NewFeature();
    const auto target = NewFeature();
    const auto isListedAfter = [&](const auto& write) {
        document->Features().Clean();
        write();
        return document->Features().Dirty() == std::vector<std::uint32_t>{1};
    };
    EXPECT_TRUE(isListedAfter([&] { feature->SetBoolean(flag, false, 0); }));
    EXPECT_TRUE(isListedAfter([&] { feature->SetInteger(count, 8, 0); }));
    EXPECT_TRUE(isListedAfter([&] { feature->SetDouble(length, 2.5, 0); }));
    EXPECT_TRUE(isListedAfter([&] { feature->SetString(text, "words", 0); }));
    EXPECT_TRUE(isListedAfter([&] { feature->SetListOfDouble(numbers, KORNumbers({1.0})); }));
    EXPECT_TRUE(isListedAfter([&] { feature->SetComponent(other, target.Get(), 0); }));
    EXPECT_TRUE(isListedAfter([&] { feature->AppendComponent(others, target.Get()); }));  // makes the list
    EXPECT_TRUE(isListedAfter([&] { feature->AppendComponent(others, target.Get()); }));  // lengthens it
    EXPECT_TRUE(isListedAfter([&] { feature->AppendComponent(others, nullptr); }));
    EXPECT_TRUE(isListedAfter([&] { feature->RemoveAllValues(numbers); }));
    EXPECT_TRUE(isListedAfter([&] { feature->RemoveValue(numbers); }));
    EXPECT_TRUE(isListedAfter([&] { feature->SetAlias("alias"); }));
    EXPECT_TRUE(isListedAfter([&] { feature->SetUndeclared("Late", KORValue::OfDouble(1.0)); }));
    EXPECT_TRUE(isListedAfter([&] { feature->RemoveUndeclared("Late"); }));
    EXPECT_TRUE(isListedAfter([&] { feature->SetContainer(nullptr); }));
}

TEST_F(KORFeatureRegistryTest, ListsAFeatureWhoseListGrowsInsideAStep) {
    const auto feature = NewFeature();
    feature->AppendComponent(others, nullptr);
    KORStep step(*document, "Grow");
    feature->AppendComponent(others, nullptr);
    document->Features().Clean();

    feature->AppendComponent(others, nullptr);  // longer than what the step keeps already

    EXPECT_EQ((std::vector<std::uint32_t>{1}), document->Features().Dirty());
}

TEST_F(KORFeatureRegistryTest, CountsNumbersThatAreSkippedAsGiven) {
    document->Features().SkipTo(1000);
    EXPECT_EQ(1000u, document->Features().LastNumber());
    EXPECT_EQ(0u, document->Features().Size());
    EXPECT_TRUE(document->Features().Dirty().empty());
    EXPECT_EQ(nullptr, document->Features().Find(700));
    EXPECT_EQ(1001u, NewFeature()->Number());

    document->Features().SkipTo(10);

    EXPECT_EQ(1001u, document->Features().LastNumber());
    EXPECT_EQ(1002u, NewFeature()->Number());
}

TEST_F(KORFeatureRegistryTest, ListsNumbersThatAreGoneUntilTheyAreSavedAlsoWhereNothingLives) {
    for (int i = 0; i < 600; ++i) {
        const auto feature = NewFeature();
        if (i < 500) document->Remove(feature.Get());
    }

    EXPECT_EQ(600u, document->Features().Dirty().size());
    document->Features().Clean();
    EXPECT_TRUE(document->Features().Dirty().empty());
    EXPECT_EQ(nullptr, document->Features().Find(100));
    EXPECT_EQ(501u, document->Features().Find(501)->Number());
}

}  // namespace
