#include "platform/document/KORUnlistedFeatures.h"

#include "KORTestDocument.h"

namespace {

class KORUnlistedFeaturesTest : public KORTestDocument {
protected:
    /// The numbers that are unlisted after the step, which stands open.
    std::vector<std::uint32_t> Find() {
        KORUnlistedFeatures unlisted;
        unlisted.Suspect(document->Log().OpenEntries(), 5);
        std::vector<std::uint32_t> found;
        for (const auto& [feature, cause] : unlisted.Find(*document)) {
            EXPECT_EQ(5u, cause);
            found.push_back(feature);
        }
        return found;
    }
    using Numbers = std::vector<std::uint32_t>;

    const KORVar<KORFeature> root = NewFeature();  // 1
    const KORVar<KORFeature> part = NewFeature();  // 2
    const KORVar<KORFeature> leaf = NewFeature();  // 3
};

TEST_F(KORUnlistedFeaturesTest, AreNoneWhereNothingChanged) {
    const KORStep step(*document, "Nothing");

    EXPECT_EQ(Numbers{}, Find());
}

TEST_F(KORUnlistedFeaturesTest, AreWhatWasTakenOutOfAnAttributeAndWhatItConsistsOf) {
    root->SetComponent(other, part.Get(), 0);
    part->AppendComponent(others, leaf.Get());
    const KORStep step(*document, "Take out");

    root->SetComponent(other, nullptr, 0);

    EXPECT_EQ((Numbers{2, 3}), Find());
}

TEST_F(KORUnlistedFeaturesTest, AreNotWhatAnotherFeatureStillLists) {
    root->SetComponent(other, part.Get(), 0);
    part->SetComponent(other, leaf.Get(), 0);
    const auto holder = NewFeature();
    holder->AppendComponent(others, part.Get());
    const KORStep step(*document, "Take out");

    root->SetComponent(other, nullptr, 0);

    EXPECT_EQ(Numbers{}, Find());
}

TEST_F(KORUnlistedFeaturesTest, AreEntriesThatAListLost) {
    root->AppendComponent(others, part.Get());
    root->AppendComponent(others, nullptr);
    root->AppendComponent(others, leaf.Get());
    const KORStep step(*document, "Reset");

    root->RemoveAllValues(others);
    root->AppendComponent(others, leaf.Get());

    EXPECT_EQ((Numbers{2}), Find());
}

TEST_F(KORUnlistedFeaturesTest, AreNewFeaturesThatNothingLists) {
    const KORStep step(*document, "Create");
    const auto loose = NewFeature();
    const auto listed = NewFeature();
    root->SetComponent(other, listed.Get(), 0);

    EXPECT_EQ((Numbers{4}), Find());
}

TEST_F(KORUnlistedFeaturesTest, AreThePartsOfWhatWasRemovedButNotTheRemovedItself) {
    root->SetComponent(other, part.Get(), 0);
    part->SetComponent(other, root.Get(), 0);
    const KORStep step(*document, "Remove");

    EXPECT_EQ(S_OK, document->Remove(root.Get()));

    EXPECT_EQ((Numbers{2}), Find());
}

TEST_F(KORUnlistedFeaturesTest, AreFeaturesThatOnlyListEachOther) {
    root->SetComponent(other, part.Get(), 0);
    part->SetComponent(other, leaf.Get(), 0);
    leaf->SetComponent(other, part.Get(), 0);
    const KORStep step(*document, "Take out");

    root->SetComponent(other, nullptr, 0);

    EXPECT_EQ((Numbers{2, 3}), Find());
}

TEST_F(KORUnlistedFeaturesTest, AreNoOtherObjectsOrOtherAttributes) {
    const auto object = KORBaseUnknown_var::Adopt(new KORBaseUnknown);
    root->SetComponent(other, object.Get(), 0);
    const KORStep step(*document, "Change");

    root->SetComponent(other, nullptr, 0);
    root->SetDouble(length, 2.0, 0);

    EXPECT_EQ(Numbers{}, Find());
}

}  // namespace
