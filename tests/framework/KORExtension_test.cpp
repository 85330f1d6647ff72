// An extension: when it is built, what it shares, and what it keeps alive.

#include "tests/framework/KORTestExtension.h"

TEST_F(KORExtension, IsBuiltAtTheFirstQueryAndSharedWhileItLives) {
    const KORITestValue_var first = feature_;
    ASSERT_NE(first, nullptr);
    first->SetValue(7850);
    EXPECT_EQ(KORTestExtension::living, 1);
    EXPECT_EQ(feature_->References(), 2) << "the extension owns its feature";

    const KORITestValue_var second = feature_;

    EXPECT_EQ(second, first);
    EXPECT_EQ(second->Value(), 7850);
    EXPECT_EQ(KORTestExtension::made, made_ + 1);
    EXPECT_EQ(feature_->References(), 2);
}

TEST_F(KORExtension, IsBuiltAnewAfterTheLastRelease) {
    KORITestValue_var value = feature_;
    value->SetValue(9);

    value = nullptr;
    EXPECT_EQ(KORTestExtension::living, 0);
    EXPECT_EQ(feature_->References(), 1);

    value = KORITestValue_var(feature_);
    EXPECT_EQ(value->Value(), 1);
    EXPECT_EQ(KORTestExtension::made, made_ + 2);
}

TEST_F(KORExtension, IsOneObjectBehindItsTwoInterfaces) {
    KORITestValue_var value = feature_;
    value->SetValue(5);
    KORITestName_var name = value;
    ASSERT_NE(name, nullptr);
    EXPECT_EQ(name->Name(), "extension");
    EXPECT_EQ(KORTestExtension::made, made_ + 1);

    value = nullptr;
    EXPECT_EQ(KORTestExtension::living, 1) << "the other interface holds it";

    value = name;
    EXPECT_EQ(value->Value(), 5);
}

TEST_F(KORExtension, IsAnotherObjectForAnotherClassOnTheSameFeature) {
    const KORITestValue_var value = feature_;
    const KORITestStranger_var stranger = value;

    ASSERT_NE(stranger, nullptr);
    EXPECT_EQ(KORGetImplementation<KORTestNeighbour>(value.Get()), nullptr);
    EXPECT_NE(KORGetImplementation<KORTestNeighbour>(stranger.Get()), nullptr);
    EXPECT_EQ(feature_->References(), 3);
}

TEST_F(KORExtension, IsNotSharedBetweenFeatures) {
    const auto otherFeature = MakeTestFeature("ExtendedLT");
    const KORITestValue_var value = feature_;
    const KORITestValue_var other = otherFeature;

    value->SetValue(2);

    EXPECT_EQ(other->Value(), 1);
    EXPECT_NE(value, other);
}

TEST_F(KORExtension, KeepsItsFeatureAlive) {
    KORITestValue_var value = feature_;
    KORTestFeature* raw = feature_.Get();

    feature_ = nullptr;
    EXPECT_EQ(KORTestFeature::living, 1);
    EXPECT_EQ(KORBaseUnknown_var(value).Get(), raw);

    value = nullptr;
    EXPECT_EQ(KORTestFeature::living, 0);
}

TEST_F(KORExtension, HasTheIdentityOfItsFeature) {
    const KORITestValue_var value = feature_;
    const auto extension = KORGetImplementation<KORTestExtension>(value.Get());

    EXPECT_EQ(KORBaseUnknown_var(value).Get(), feature_.Get());
    EXPECT_EQ(KORBaseUnknown_var(extension).Get(), feature_.Get());
    EXPECT_EQ(extension->MainObject(), feature_.Get());
    EXPECT_EQ(KORITestValue_var(extension), value);
}

TEST_F(KORExtension, IsHeldByItsImplementationHandleAlone) {
    auto extension = KORGetImplementation<KORTestExtension>(KORITestValue_var(feature_).Get());
    ASSERT_NE(extension, nullptr);
    EXPECT_EQ(KORTestExtension::living, 1);
    EXPECT_EQ(extension->References(), 1);
    extension->SetValue(6);

    EXPECT_EQ(KORITestValue_var(feature_)->Value(), 6) << "a new binding over the living extension";
    EXPECT_EQ(KORTestExtension::made, made_ + 1);
}

TEST_F(KORExtension, IsReachedOnlyByItsOwnClass) {
    const KORITestValue_var value = feature_;

    EXPECT_EQ(KORGetImplementation<KORTestExtension>(feature_.Get()), nullptr)
        << "the feature implements itself";
    EXPECT_EQ(KORGetImplementation<KORTestExtension>(static_cast<KORITestValue*>(nullptr)), nullptr);
    EXPECT_EQ(feature_->References(), 2);
}

TEST_F(KORExtension, MayAskItsFeatureWhileItIsBeingBuilt) {
    KORBaseUnknown* identity = nullptr;
    KORITestStranger_var neighbour;
    KORTestExtension::inConstructor = [&](KORTestExtension& extension) {
        identity = KORBaseUnknown_var::Of(&extension).Get();
        neighbour = KORITestStranger_var::Of(&extension);
    };

    const KORITestValue_var value = feature_;

    ASSERT_NE(value, nullptr);
    EXPECT_EQ(identity, feature_.Get());
    ASSERT_NE(neighbour, nullptr) << "creations nest";
    EXPECT_EQ(KORBaseUnknown_var(neighbour).Get(), feature_.Get());
}

TEST_F(KORExtension, IsNotAnsweredWhileItIsBeingBuilt) {
    HRESULT own = S_OK;
    HRESULT sibling = S_OK;
    KORTestExtension::inConstructor = [&](KORTestExtension&) {
        own = Ask(IID_KORITestValue);
        sibling = Ask(IID_KORITestName);
    };

    const KORITestValue_var value = feature_;

    EXPECT_NE(value, nullptr);
    EXPECT_EQ(own, E_NOINTERFACE);
    EXPECT_EQ(sibling, E_NOINTERFACE) << "the same class";
    EXPECT_EQ(KORTestExtension::made, made_ + 1);
    EXPECT_NE(KORITestName_var(feature_), nullptr) << "once it is built";
}

TEST_F(KORExtension, OfAnotherFeatureCanBeBuiltMeanwhile) {
    const auto otherFeature = MakeTestFeature("ExtendedLT");
    KORITestValue_var other;
    KORTestExtension::inConstructor = [&](KORTestExtension&) {
        KORTestExtension::inConstructor = nullptr;
        other = KORITestValue_var(otherFeature);
    };

    const KORITestValue_var value = feature_;

    ASSERT_NE(other, nullptr);
    EXPECT_EQ(KORBaseUnknown_var(other).Get(), otherFeature.Get());
    EXPECT_EQ(KORBaseUnknown_var(value).Get(), feature_.Get());
}

TEST_F(KORExtension, IsTheFirstObjectConstructedInItsCreation) {
    KORTestFeature_var inside;
    KORTestExtension::inConstructor = [&](KORTestExtension&) { inside = MakeTestFeature("PlainLT"); };

    const KORITestValue_var value = feature_;

    ASSERT_NE(value, nullptr);
    EXPECT_EQ(inside->MainObject(), inside.Get()) << "later objects are their own";
    EXPECT_EQ(KORBaseUnknown_var(value).Get(), feature_.Get());
    EXPECT_EQ(MakeTestFeature("PlainLT")->References(), 1);
}

TEST_F(KORExtension, AnswersTheRootOfAllInterfacesWithItsFeature) {
    const KORITestValue_var value = feature_;

    EXPECT_EQ(KORVar<KORIUnknown>::Of(value.Get()).Get(), feature_.Get());
    EXPECT_EQ(KORVar<KORIUnknown>::Of(KORGetImplementation<KORTestExtension>(value.Get()).Get()).Get(),
              feature_.Get());
}

TEST_F(KORExtension, BuiltOutsideOfAQueryExtendsNothingAndOffersNothing) {
    const auto alone = KORVar<KORTestExtension>::Adopt(new KORTestExtension);
    void* found = alone.Get();

    EXPECT_EQ(alone->MainObject(), alone.Get());
    EXPECT_EQ(alone->QueryInterface(IID_KORITestValue, &found), E_NOINTERFACE);
    EXPECT_EQ(found, nullptr);
    EXPECT_EQ(KORTestExtension::made, made_ + 1);
}
