#include "platform/store/KORFeaturePlaces.h"

#include "KORTestDocument.h"

namespace {

using KORFeaturePlacesTest = KORTestDocument;

TEST_F(KORFeaturePlacesTest, KnowsTheFirstPlaceAFeatureWasGiven) {
    const auto one = NewFeature();
    const auto two = NewFeature();
    KORFeaturePlaces places;

    EXPECT_TRUE(places.Add(one.Get(), 7));
    EXPECT_FALSE(places.Add(one.Get(), 8));

    EXPECT_EQ(7u, places.Find(one.Get()));
    EXPECT_EQ(std::nullopt, places.Find(two.Get()));
    EXPECT_TRUE(places.Contains(one.Get()));
    EXPECT_FALSE(places.Contains(two.Get()));
    EXPECT_EQ(1u, places.Size());
}

TEST_F(KORFeaturePlacesTest, GrowsWithItsFeaturesAndHoldsNone) {
    std::vector<KORVar<KORFeature>> features;
    for (int i = 0; i < 1000; ++i) features.push_back(NewFeature());
    KORFeaturePlaces places;

    for (std::uint32_t i = 0; i < 1000; ++i) EXPECT_TRUE(places.Add(features[i].Get(), 2 * i));

    EXPECT_EQ(1000u, places.Size());
    EXPECT_EQ(0u, places.Find(features[0].Get()));
    EXPECT_EQ(1998u, places.Find(features[999].Get()));
    EXPECT_EQ(2, features[0]->References());  // the container's and the test's
}

}  // namespace
