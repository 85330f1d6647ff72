#include "platform/store/KORComponentList.h"

#include <gtest/gtest.h>

#include "KORTestDocument.h"

namespace {

using KORComponentListTest = KORTestDocument;

TEST_F(KORComponentListTest, KeepsFeaturesOtherObjectsAndNullsInOrder) {
    const auto feature = NewFeature();
    const auto stranger = KORBaseUnknown_var::Adopt(new KORBaseUnknown);
    KORComponentList list;

    list.Append(feature.Get());
    list.Append(nullptr);
    list.Append(stranger.Get());

    EXPECT_EQ(3, list.Size());
    EXPECT_EQ(static_cast<KORBaseUnknown*>(feature.Get()), list.At(1).Get());
    EXPECT_EQ(nullptr, list.At(2).Get());
    EXPECT_EQ(stranger.Get(), list.At(3).Get());
}

TEST_F(KORComponentListTest, HandsOutEmptyHandlesForWhatIsNoFeature) {
    const auto feature = NewFeature();
    const auto stranger = KORBaseUnknown_var::Adopt(new KORBaseUnknown);
    KORComponentList list;
    list.Append(stranger.Get());
    list.Append(feature.Get());

    const auto features = list.Features();

    EXPECT_EQ(2, features.Size());
    EXPECT_FALSE(features[1]);
    EXPECT_EQ(static_cast<KORISpecObject*>(feature.Get()), features[2].Get());
}

TEST_F(KORComponentListTest, AnswersNullOutsideItsPositions) {
    KORComponentList list;
    list.Append(NewFeature().Get());

    EXPECT_EQ(nullptr, list.At(0).Get());
    EXPECT_EQ(nullptr, list.At(-1).Get());
    EXPECT_EQ(nullptr, list.At(2).Get());
}

TEST_F(KORComponentListTest, DiffersWhenOnlyOneOfThemHoldsAStranger) {
    const auto stranger = KORBaseUnknown_var::Adopt(new KORBaseUnknown);
    KORComponentList withNull;
    KORComponentList withStranger;
    withNull.Append(nullptr);
    withStranger.Append(stranger.Get());

    EXPECT_FALSE(withNull.SameAs(withStranger));
    EXPECT_TRUE(withStranger.SameAs(KORComponentList(withStranger)));
}

TEST_F(KORComponentListTest, HandingTheListOutCountsNoEntry) {
    const auto feature = NewFeature();
    KORComponentList list;
    list.Append(feature.Get());
    const auto before = feature->References();

    const auto features = list.Features();

    EXPECT_EQ(before, feature->References());
}

}  // namespace
