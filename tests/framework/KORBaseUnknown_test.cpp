#include "framework/KORBaseUnknown.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "tests/framework/KORTestParts.h"
#include "tests/support/ZELAllocationFault.h"

namespace {

/// A data extension whose creation, constructor and destructor a test can enter.
class Extension final : public KORBaseUnknown {
    KORDeclareClass

public:
    Extension() {
        ++living;
        ++made;
        try {
            if (inConstructor) inConstructor(*this);
        } catch (...) {
            --living;  // no destructor follows
            throw;
        }
    }
    ~Extension() override {
        if (inDestructor) inDestructor(*this);
        --living;
    }

    int Value() { return value_; }
    void SetValue(int value) { value_ = value; }
    std::string Name() { return "extension"; }

    static inline int living = 0;
    static inline int made = 0;
    static inline std::function<void(Extension&)> inConstructor;
    static inline std::function<void(Extension&)> inDestructor;
    static inline std::function<KORBaseUnknown*()> create;

private:
    int value_ = 1;
};
KORImplementClass(Extension, KORClassKind::DataExtension, "ExtendedLT", "ExtensionModule");
KORBaseUnknown* Extension::CreateItself() {
    return create ? create() : new Extension;
}

/// Extends the same late type by another interface.
class Neighbour final : public KORBaseUnknown {
    KORDeclareClass

public:
    Neighbour() { ++living; }
    ~Neighbour() override { --living; }
    static inline int living = 0;
};
KORImplementClass(Neighbour, KORClassKind::CodeExtension, "ExtendedLT", "ExtensionModule");
KORBaseUnknown* Neighbour::CreateItself() {
    return new Neighbour;
}

template <class Implementation>
class TIEKORITestStranger final : public KORTie<KORITestStranger, Implementation> {
public:
    using KORTie<KORITestStranger, Implementation>::KORTie;
};

const KORFillDictionary kValue(Extension::MetaObject(), KORITestValue::MetaObject(),
                               &KORCreateTie<TIEKORITestValue<Extension>>, nullptr, 1);
const KORFillDictionary kName(Extension::MetaObject(), KORITestName::MetaObject(),
                              &KORCreateTie<TIEKORITestName<Extension>>, nullptr, 1);
const KORFillDictionary kStranger(Neighbour::MetaObject(), KORITestStranger::MetaObject(),
                                  &KORCreateTie<TIEKORITestStranger<Neighbour>>, nullptr, 1);

/// Holds the next object of a chain.
class Link final : public KORBaseUnknown {
public:
    explicit Link(KORBaseUnknown_var rest) : rest_(std::move(rest)) { ++living; }
    ~Link() override { --living; }
    static inline int living = 0;

private:
    KORBaseUnknown_var rest_;
};

/// A feature that extensions can be asked of; afterwards nothing of it is left.
class KORExtension : public testing::Test {
protected:
    ~KORExtension() override {
        Extension::inConstructor = nullptr;
        Extension::inDestructor = nullptr;
        Extension::create = nullptr;
        feature_ = nullptr;
        EXPECT_EQ(KORTestFeature::living, 0);
        EXPECT_EQ(Extension::living, 0);
        EXPECT_EQ(Neighbour::living, 0);
        EXPECT_EQ(KORModule::Of("ExtensionModule").LiveObjects(), 0);
    }

    HRESULT Ask(KORIID iid) {
        void* found = this;
        const HRESULT status = feature_->QueryInterface(iid, &found);
        if (SUCCEEDED(status)) {
            static_cast<KORIUnknown*>(found)->Release();
        } else {
            EXPECT_EQ(found, nullptr);
        }
        return status;
    }

    KORTestFeature_var feature_ = MakeTestFeature("ExtendedLT");
    int made_ = Extension::made;
};

}  // namespace

TEST(KORBaseUnknown, StartsWithOneReferenceAndGoesWithTheLast) {
    auto* feature = new KORTestFeature("PlainLT");

    EXPECT_EQ(feature->References(), 1);
    EXPECT_EQ(feature->AddRef(), 2u);
    EXPECT_EQ(feature->Release(), 1u);
    EXPECT_EQ(KORTestFeature::living, 1);
    EXPECT_EQ(feature->Release(), 0u);
    EXPECT_EQ(KORTestFeature::living, 0);
}

TEST(KORBaseUnknown, AnswersItselfAsItsIdentity) {
    const auto feature = MakeTestFeature("PlainLT");

    EXPECT_EQ(KORBaseUnknown_var::Of(feature.Get()).Get(), feature.Get());
    EXPECT_EQ(feature->MainObject(), feature.Get());
    EXPECT_EQ(feature->References(), 1);
}

TEST(KORBaseUnknown, AnswersTheRootOfAllInterfacesWithItsIdentity) {
    const auto feature = MakeTestFeature("RootLT");

    const auto root = KORVar<KORIUnknown>::Of(feature.Get());

    EXPECT_EQ(root.Get(), static_cast<KORIUnknown*>(feature.Get()));
    EXPECT_EQ(feature->References(), 2);
}

TEST(KORBaseUnknown, GoesWithALongChainOfObjectsThatHoldEachOther) {
    KORBaseUnknown_var chain;
    for (int i = 0; i < 100'000; ++i) chain = KORBaseUnknown_var::Adopt(new Link(std::move(chain)));
    ASSERT_EQ(Link::living, 100'000);

    chain = nullptr;

    EXPECT_EQ(Link::living, 0);
}

TEST(KORBaseUnknown, RefusesInterfacesThatNobodyImplementsOnItsType) {
    const auto feature = MakeTestFeature("PlainLT");
    void* found = feature.Get();

    EXPECT_EQ(feature->QueryInterface(IID_KORITestValue, &found), E_NOINTERFACE);

    EXPECT_EQ(found, nullptr);
    EXPECT_EQ(feature->References(), 1);
}

TEST_F(KORExtension, IsBuiltAtTheFirstQueryAndSharedWhileItLives) {
    const KORITestValue_var first = feature_;
    ASSERT_NE(first, nullptr);
    first->SetValue(7850);
    EXPECT_EQ(Extension::living, 1);
    EXPECT_EQ(feature_->References(), 2) << "the extension owns its feature";

    const KORITestValue_var second = feature_;

    EXPECT_EQ(second, first);
    EXPECT_EQ(second->Value(), 7850);
    EXPECT_EQ(Extension::made, made_ + 1);
    EXPECT_EQ(feature_->References(), 2);
}

TEST_F(KORExtension, IsBuiltAnewAfterTheLastRelease) {
    KORITestValue_var value = feature_;
    value->SetValue(9);

    value = nullptr;
    EXPECT_EQ(Extension::living, 0);
    EXPECT_EQ(feature_->References(), 1);

    value = KORITestValue_var(feature_);
    EXPECT_EQ(value->Value(), 1);
    EXPECT_EQ(Extension::made, made_ + 2);
}

TEST_F(KORExtension, IsOneObjectBehindItsTwoInterfaces) {
    KORITestValue_var value = feature_;
    value->SetValue(5);
    KORITestName_var name = value;
    ASSERT_NE(name, nullptr);
    EXPECT_EQ(name->Name(), "extension");
    EXPECT_EQ(Extension::made, made_ + 1);

    value = nullptr;
    EXPECT_EQ(Extension::living, 1) << "the other interface holds it";

    value = name;
    EXPECT_EQ(value->Value(), 5);
}

TEST_F(KORExtension, IsAnotherObjectForAnotherClassOnTheSameFeature) {
    const KORITestValue_var value = feature_;
    const KORITestStranger_var stranger = value;

    ASSERT_NE(stranger, nullptr);
    EXPECT_EQ(KORGetImplementation<Neighbour>(value.Get()), nullptr);
    EXPECT_NE(KORGetImplementation<Neighbour>(stranger.Get()), nullptr);
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
    const auto extension = KORGetImplementation<Extension>(value.Get());

    EXPECT_EQ(KORBaseUnknown_var(value).Get(), feature_.Get());
    EXPECT_EQ(KORBaseUnknown_var(extension).Get(), feature_.Get());
    EXPECT_EQ(extension->MainObject(), feature_.Get());
    EXPECT_EQ(KORITestValue_var(extension), value);
}

TEST_F(KORExtension, IsHeldByItsImplementationHandleAlone) {
    auto extension = KORGetImplementation<Extension>(KORITestValue_var(feature_).Get());
    ASSERT_NE(extension, nullptr);
    EXPECT_EQ(Extension::living, 1);
    EXPECT_EQ(extension->References(), 1);
    extension->SetValue(6);

    EXPECT_EQ(KORITestValue_var(feature_)->Value(), 6) << "a new binding over the living extension";
    EXPECT_EQ(Extension::made, made_ + 1);
}

TEST_F(KORExtension, IsReachedOnlyByItsOwnClass) {
    const KORITestValue_var value = feature_;

    EXPECT_EQ(KORGetImplementation<Extension>(feature_.Get()), nullptr) << "the feature implements itself";
    EXPECT_EQ(KORGetImplementation<Extension>(static_cast<KORITestValue*>(nullptr)), nullptr);
    EXPECT_EQ(feature_->References(), 2);
}

TEST_F(KORExtension, MayAskItsFeatureWhileItIsBeingBuilt) {
    KORBaseUnknown* identity = nullptr;
    KORITestStranger_var neighbour;
    Extension::inConstructor = [&](Extension& extension) {
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
    Extension::inConstructor = [&](Extension&) {
        own = Ask(IID_KORITestValue);
        sibling = Ask(IID_KORITestName);
    };

    const KORITestValue_var value = feature_;

    EXPECT_NE(value, nullptr);
    EXPECT_EQ(own, E_NOINTERFACE);
    EXPECT_EQ(sibling, E_NOINTERFACE) << "the same class";
    EXPECT_EQ(Extension::made, made_ + 1);
    EXPECT_NE(KORITestName_var(feature_), nullptr) << "once it is built";
}

TEST_F(KORExtension, OfAnotherFeatureCanBeBuiltMeanwhile) {
    const auto otherFeature = MakeTestFeature("ExtendedLT");
    KORITestValue_var other;
    Extension::inConstructor = [&](Extension&) {
        Extension::inConstructor = nullptr;
        other = KORITestValue_var(otherFeature);
    };

    const KORITestValue_var value = feature_;

    ASSERT_NE(other, nullptr);
    EXPECT_EQ(KORBaseUnknown_var(other).Get(), otherFeature.Get());
    EXPECT_EQ(KORBaseUnknown_var(value).Get(), feature_.Get());
}

TEST_F(KORExtension, IsTheFirstObjectConstructedInItsCreation) {
    KORTestFeature_var inside;
    Extension::inConstructor = [&](Extension&) { inside = MakeTestFeature("PlainLT"); };

    const KORITestValue_var value = feature_;

    ASSERT_NE(value, nullptr);
    EXPECT_EQ(inside->MainObject(), inside.Get()) << "later objects are their own";
    EXPECT_EQ(KORBaseUnknown_var(value).Get(), feature_.Get());
    EXPECT_EQ(MakeTestFeature("PlainLT")->References(), 1);
}

TEST_F(KORExtension, IsRefusedWhenItCannotBeCreated) {
    Extension::create = [] { return nullptr; };

    EXPECT_EQ(Ask(IID_KORITestValue), E_NOINTERFACE);
    EXPECT_EQ(feature_->References(), 1);

    Extension::create = nullptr;
    EXPECT_EQ(Ask(IID_KORITestValue), S_OK) << "the failure is not remembered";
}

TEST_F(KORExtension, IsRefusedWhenThereIsNoMemoryForItsBinding) {
    const ZELAllocationFault fault(1);

    EXPECT_EQ(Ask(IID_KORITestValue), E_OUTOFMEMORY);

    EXPECT_EQ(Extension::made, made_);
    EXPECT_EQ(feature_->References(), 1);
}

TEST_F(KORExtension, LeavesNothingBehindWhenItsConstructorThrows) {
    Extension::inConstructor = [](Extension&) { throw std::runtime_error("no data"); };
    void* found = nullptr;

    EXPECT_THROW(static_cast<void>(feature_->QueryInterface(IID_KORITestValue, &found)), std::runtime_error);

    EXPECT_EQ(found, nullptr);
    EXPECT_EQ(feature_->References(), 1);
    EXPECT_EQ(Extension::living, 0);
    EXPECT_EQ(MakeTestFeature("PlainLT")->References(), 1) << "nothing is taken for the extension any more";
    Extension::inConstructor = nullptr;
    EXPECT_EQ(Ask(IID_KORITestValue), S_OK);
}

TEST_F(KORExtension, LeavesNothingBehindWhenItsCreationThrowsBeforeAnyObject) {
    Extension::create = []() -> KORBaseUnknown* { throw std::runtime_error("no object"); };
    void* found = nullptr;

    EXPECT_THROW(static_cast<void>(feature_->QueryInterface(IID_KORITestValue, &found)), std::runtime_error);

    EXPECT_EQ(MakeTestFeature("PlainLT")->MainObject()->References(), 1);
    Extension::create = nullptr;
    EXPECT_EQ(Ask(IID_KORITestValue), S_OK);
}

TEST_F(KORExtension, IsNoLongerFoundFromItsOwnDestructor) {
    int valueOfAnother = 0;
    bool isAnother = false;
    Extension::inDestructor = [&](Extension& dying) {
        Extension::inDestructor = nullptr;
        const KORITestValue_var another = KORITestValue_var::Of(&dying);
        valueOfAnother = another->Value();
        isAnother = KORGetImplementation<Extension>(another.Get()).Get() != &dying;
    };
    KORITestValue_var value = feature_;
    value->SetValue(9);

    value = nullptr;

    EXPECT_TRUE(isAnother);
    EXPECT_EQ(valueOfAnother, 1);
    EXPECT_EQ(Extension::living, 0);
    EXPECT_EQ(feature_->References(), 1);
}

TEST_F(KORExtension, SurvivesHandlesOnItselfMadeInItsDestructor) {
    Extension::inDestructor = [](Extension& dying) { const KORBaseUnknown_var handle(&dying); };
    KORITestValue_var value = feature_;

    value = nullptr;

    EXPECT_EQ(Extension::living, 0);
    EXPECT_EQ(feature_->References(), 1);
}

TEST_F(KORExtension, MayBeTheLastToHoldItsFeature) {
    KORITestValue_var value = feature_;
    feature_ = nullptr;
    int identities = 0;
    Extension::inDestructor = [&](Extension& dying) {
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
    EXPECT_EQ(Extension::living, 1);
}

TEST_F(KORExtension, IsFoundByItsQueryWhenItsConstructorRaisesTheGeneration) {
    Extension::inConstructor = [this](Extension&) { ++feature_->generation; };

    const KORITestValue_var value = feature_;

    ASSERT_NE(value, nullptr);
    EXPECT_EQ(KORITestValue_var(feature_), value) << "it knows the data as they are";
    EXPECT_EQ(KORITestName_var(feature_)->Name(), "extension");
    EXPECT_EQ(Extension::living, 1);
}

TEST_F(KORExtension, AnswersTheRootOfAllInterfacesWithItsFeature) {
    const KORITestValue_var value = feature_;

    EXPECT_EQ(KORVar<KORIUnknown>::Of(value.Get()).Get(), feature_.Get());
    EXPECT_EQ(KORVar<KORIUnknown>::Of(KORGetImplementation<Extension>(value.Get()).Get()).Get(),
              feature_.Get());
}

TEST_F(KORExtension, BuiltOutsideOfAQueryExtendsNothingAndOffersNothing) {
    const auto alone = KORVar<Extension>::Adopt(new Extension);
    void* found = alone.Get();

    EXPECT_EQ(alone->MainObject(), alone.Get());
    EXPECT_EQ(alone->QueryInterface(IID_KORITestValue, &found), E_NOINTERFACE);
    EXPECT_EQ(found, nullptr);
    EXPECT_EQ(Extension::made, made_ + 1);
}
