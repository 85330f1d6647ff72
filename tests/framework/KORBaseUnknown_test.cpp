#include "framework/KORBaseUnknown.h"

#include <gtest/gtest.h>

#include "tests/framework/KORTestParts.h"

namespace {

/// Holds the next object of a chain.
class Link final : public KORBaseUnknown {
public:
    explicit Link(KORBaseUnknown_var rest) : rest_(std::move(rest)) { ++living; }
    ~Link() override { --living; }
    static inline int living = 0;

private:
    KORBaseUnknown_var rest_;
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
