#include "framework/KORVar.h"

#include <gtest/gtest.h>

#include <utility>

#include "framework/KORImplements.h"
#include "tests/framework/KORTestParts.h"

namespace {

/// Implements two interfaces itself.
class Both final : public KORImplements<KORITestValue, KORITestName> {
public:
    int Value() override { return value_; }
    void SetValue(int value) override { value_ = value; }
    std::string Name() override { return "both"; }

private:
    int value_ = 4;
};

}  // namespace

TEST(KORVar, TakesAReferenceOfItsOwnOnARawPointer) {
    const auto feature = MakeTestFeature("HeldLT");
    {
        const KORTestFeature_var handle(feature.Get());
        EXPECT_EQ(feature->References(), 2);
        const KORTestFeature_var copy = handle;
        EXPECT_EQ(feature->References(), 3);
    }
    EXPECT_EQ(feature->References(), 1);
}

TEST(KORVar, AdoptsTheCallersReferenceAndGivesItsOwnOut) {
    auto* raw = new KORTestFeature("HeldLT");
    EXPECT_EQ(raw->References(), 1);

    auto handle = KORTestFeature_var::Adopt(raw);
    EXPECT_EQ(raw->References(), 1);

    KORTestFeature* detached = handle.Detach();
    EXPECT_EQ(detached, raw);
    EXPECT_EQ(handle, nullptr);
    EXPECT_EQ(raw->References(), 1);
    EXPECT_EQ(raw->Release(), 0u);
    EXPECT_EQ(KORTestFeature::living, 0);
}

TEST(KORVar, IsNullByDefaultAndFromNull) {
    const KORTestFeature_var none;
    const KORTestFeature_var null = nullptr;
    const KORTestFeature_var raw(static_cast<KORTestFeature*>(nullptr));
    const KORTestFeature_var named = NULL_var;

    EXPECT_FALSE(none);
    EXPECT_EQ(null, nullptr);
    EXPECT_EQ(raw.Get(), nullptr);
    EXPECT_EQ(named, none);
    EXPECT_EQ(KORITestValue_var(none), nullptr);
    EXPECT_EQ(KORITestValue_var::Of(static_cast<KORTestFeature*>(nullptr)), nullptr);
}

TEST(KORVar, DestroysTheObjectWithTheLastHandle) {
    auto first = MakeTestFeature("HeldLT");
    auto second = first;

    first = nullptr;
    EXPECT_EQ(KORTestFeature::living, 1);
    second = nullptr;
    EXPECT_EQ(KORTestFeature::living, 0);
}

TEST(KORVar, GivesBackWhatItHeldWhenItIsAssigned) {
    const auto first = MakeTestFeature("HeldLT");
    const auto second = MakeTestFeature("HeldLT");
    KORTestFeature_var handle = first;

    handle = second;
    EXPECT_EQ(first->References(), 1);
    EXPECT_EQ(second->References(), 2);

    const KORTestFeature_var& same = handle;
    handle = same;
    EXPECT_EQ(second->References(), 2);
    EXPECT_EQ(handle, second);
}

TEST(KORVar, MovesWithoutCounting) {
    auto handle = MakeTestFeature("HeldLT");
    KORTestFeature* raw = handle.Get();

    const KORTestFeature_var moved = std::move(handle);

    EXPECT_EQ(moved.Get(), raw);
    EXPECT_EQ(raw->References(), 1);
    EXPECT_EQ(handle, nullptr);  // NOLINT(bugprone-use-after-move): this is what is tested
}

TEST(KORVar, AsksForTheOtherInterfaceWhenItIsConverted) {
    const auto object = KORVar<Both>::Adopt(new Both);
    const KORITestValue_var value = object;
    const KORITestName_var name = value;

    ASSERT_NE(value, nullptr);
    ASSERT_NE(name, nullptr);
    EXPECT_EQ(value->Value(), 4);
    EXPECT_EQ(name->Name(), "both");
    EXPECT_EQ(object->References(), 3);
    EXPECT_EQ(KORITestName_var::Of(value.Get()), name);
    EXPECT_EQ(object->References(), 3);
}

TEST(KORVar, IsNullWhenTheObjectLacksTheInterface) {
    const auto object = KORVar<Both>::Adopt(new Both);

    const KORITestStranger_var stranger = object;

    EXPECT_EQ(stranger, nullptr);
    EXPECT_EQ(object->References(), 1);
}
