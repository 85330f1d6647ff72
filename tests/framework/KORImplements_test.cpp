#include "framework/KORImplements.h"

#include <gtest/gtest.h>

#include "tests/framework/KORTestParts.h"

namespace {

class Both final : public KORImplements<KORITestValue, KORITestName> {
public:
    int Value() override { return 5; }
    void SetValue(int) override {}
    std::string Name() override { return "both"; }
};

}  // namespace

TEST(KORImplements, CountsAllItsInterfacesOnOneObject) {
    const auto object = KORVar<Both>::Adopt(new Both);
    KORITestValue* value = object.Get();
    KORITestName* name = object.Get();

    EXPECT_EQ(value->AddRef(), 2u);
    EXPECT_EQ(name->AddRef(), 3u);
    EXPECT_EQ(object->References(), 3);
    EXPECT_EQ(name->Release(), 2u);
    EXPECT_EQ(value->Release(), 1u);
}

TEST(KORImplements, AnswersItsInterfacesAndItsIdentityFromAnyOfThem) {
    const auto object = KORVar<Both>::Adopt(new Both);
    KORITestName* name = object.Get();

    EXPECT_EQ(KORITestValue_var::Of(name).Get(), static_cast<KORITestValue*>(object.Get()));
    EXPECT_EQ(KORBaseUnknown_var::Of(name).Get(), static_cast<KORBaseUnknown*>(object.Get()));
    EXPECT_EQ(object->MainObject(), object.Get());
    void* found = name;
    EXPECT_EQ(name->QueryInterface(IID_KORITestStranger, &found), E_NOINTERFACE);
    EXPECT_EQ(found, nullptr);
}

TEST(KORImplements, OffersNoLateBoundCalls) {
    const auto object = KORVar<Both>::Adopt(new Both);
    KORITestName* name = object.Get();
    std::uint32_t count = 9;
    const char* const names[] = {"Name"};
    std::int32_t ids[] = {9};
    void* info = nullptr;

    EXPECT_EQ(name->GetTypeInfoCount(&count), S_OK);
    EXPECT_EQ(count, 0u);
    EXPECT_EQ(name->GetTypeInfo(0, 0, &info), E_NOTIMPL);
    EXPECT_EQ(name->GetIDsOfNames(names, 1, ids), E_NOTIMPL);
    EXPECT_EQ(name->Invoke(1, nullptr, nullptr), E_NOTIMPL);
}
