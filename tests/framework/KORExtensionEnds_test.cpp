// An extension that cannot be built, that is being destroyed, or that is out of date.

#include <stdexcept>

#include "tests/framework/KORTestExtension.h"
#include "tests/support/ZELAllocationFault.h"

TEST_F(KORExtension, IsRefusedWhenItCannotBeCreated) {
    KORTestExtension::create = [] { return nullptr; };

    EXPECT_EQ(Ask(IID_KORITestValue), E_NOINTERFACE);
    EXPECT_EQ(feature_->References(), 1);

    KORTestExtension::create = nullptr;
    EXPECT_EQ(Ask(IID_KORITestValue), S_OK) << "the failure is not remembered";
}

TEST_F(KORExtension, IsRefusedWhenThereIsNoMemoryForItsBinding) {
    const ZELAllocationFault fault(1);

    EXPECT_EQ(Ask(IID_KORITestValue), E_OUTOFMEMORY);

    EXPECT_EQ(KORTestExtension::made, made_);
    EXPECT_EQ(feature_->References(), 1);
}

TEST_F(KORExtension, LeavesNothingBehindWhenItsConstructorThrows) {
    KORTestExtension::inConstructor = [](KORTestExtension&) { throw std::runtime_error("no data"); };
    void* found = nullptr;

    EXPECT_THROW(static_cast<void>(feature_->QueryInterface(IID_KORITestValue, &found)), std::runtime_error);

    EXPECT_EQ(found, nullptr);
    EXPECT_EQ(feature_->References(), 1);
    EXPECT_EQ(KORTestExtension::living, 0);
    EXPECT_EQ(MakeTestFeature("PlainLT")->References(), 1) << "nothing is taken for the extension any more";
    KORTestExtension::inConstructor = nullptr;
    EXPECT_EQ(Ask(IID_KORITestValue), S_OK);
}

TEST_F(KORExtension, LeavesNothingBehindWhenItsCreationThrowsBeforeAnyObject) {
    KORTestExtension::create = []() -> KORBaseUnknown* { throw std::runtime_error("no object"); };
    void* found = nullptr;

    EXPECT_THROW(static_cast<void>(feature_->QueryInterface(IID_KORITestValue, &found)), std::runtime_error);

    EXPECT_EQ(MakeTestFeature("PlainLT")->MainObject()->References(), 1);
    KORTestExtension::create = nullptr;
    EXPECT_EQ(Ask(IID_KORITestValue), S_OK);
}

TEST_F(KORExtension, IsNoLongerFoundFromItsOwnDestructor) {
    int valueOfAnother = 0;
    bool isAnother = false;
    KORTestExtension::inDestructor = [&](KORTestExtension& dying) {
        KORTestExtension::inDestructor = nullptr;
        const KORITestValue_var another = KORITestValue_var::Of(&dying);
        valueOfAnother = another->Value();
        isAnother = KORGetImplementation<KORTestExtension>(another.Get()).Get() != &dying;
    };
    KORITestValue_var value = feature_;
    value->SetValue(9);

    value = nullptr;

    EXPECT_TRUE(isAnother);
    EXPECT_EQ(valueOfAnother, 1);
    EXPECT_EQ(KORTestExtension::living, 0);
    EXPECT_EQ(feature_->References(), 1);
}

TEST_F(KORExtension, SurvivesHandlesOnItselfMadeInItsDestructor) {
    KORTestExtension::inDestructor = [](KORTestExtension& dying) { const KORBaseUnknown_var handle(&dying); };
    KORITestValue_var value = feature_;

    value = nullptr;

    EXPECT_EQ(KORTestExtension::living, 0);
    EXPECT_EQ(feature_->References(), 1);
}

TEST_F(KORExtension, MayBeTheLastToHoldItsFeature) {
    KORITestValue_var value = feature_;
    feature_ = nullptr;
    int identities = 0;
    KORTestExtension::inDestructor = [&](KORTestExtension& dying) {
        if (KORBaseUnknown_var(dying.MainObject())) ++identities;
    };

    value = nullptr;

    EXPECT_EQ(identities, 1);
    EXPECT_EQ(KORTestFeature::living, 0);
}

TEST_F(KORExtension, OfAnOlderGenerationIsNotAnsweredAgain) {
    const KORITestValue_var old = feature_;
    old->SetValue(3);

    ++feature_->generation;
    const KORITestValue_var fresh = feature_;

    ASSERT_NE(fresh, nullptr);
    EXPECT_NE(fresh, old);
    EXPECT_EQ(fresh->Value(), 1);
    EXPECT_EQ(old->Value(), 3) << "its holders still have it";
    EXPECT_EQ(KORITestValue_var::Of(old.Get()), fresh) << "also when the old one is asked";
    EXPECT_EQ(feature_->References(), 3);
}

TEST_F(KORExtension, OfAnOlderGenerationGoesWithoutTakingTheNewOneAlong) {
    KORITestValue_var old = feature_;
    ++feature_->generation;
    const KORITestValue_var fresh = feature_;

    old = nullptr;

    EXPECT_EQ(KORITestValue_var(feature_), fresh);
    EXPECT_EQ(KORTestExtension::living, 1);
}

TEST_F(KORExtension, IsFoundByItsQueryWhenItsConstructorRaisesTheGeneration) {
    KORTestExtension::inConstructor = [this](KORTestExtension&) { ++feature_->generation; };

    const KORITestValue_var value = feature_;

    ASSERT_NE(value, nullptr);
    EXPECT_EQ(KORITestValue_var(feature_), value) << "it knows the data as they are";
    EXPECT_EQ(KORITestName_var(feature_)->Name(), "extension");
    EXPECT_EQ(KORTestExtension::living, 1);
}
