#include "framework/KORInstantiateComponent.h"

#include <gtest/gtest.h>

#include "framework/TIEKORICreateInstance.h"
#include "tests/framework/KORTestParts.h"
#include "tests/support/ZELAllocationFault.h"

namespace {

/// A component that only its instance factory creates.
class Component final : public KORBaseUnknown {
    KORDeclareClass

public:
    Component() { ++living; }
    ~Component() override { --living; }

    int Value() { return 6; }
    void SetValue(int) {}

    static inline int living = 0;
};
KORImplementClass(Component, KORClassKind::Component, "KORnull", "ComponentModule");
KORBaseUnknown* Component::CreateItself() {
    return nullptr;
}

class ComponentInst final : public KORBaseUnknown {
    KORDeclareClass

public:
    HRESULT
    CreateInstance(void** out) {
        *out = forgetful ? nullptr : static_cast<KORBaseUnknown*>(new (std::nothrow) Component);
        return *out || forgetful ? S_OK : E_OUTOFMEMORY;
    }

    static inline bool forgetful = false;  ///< reports success without an instance
    static inline bool canBeCreated = true;
};
KORImplementClass(ComponentInst, KORClassKind::CodeExtension, "Component", "ComponentModule");
KORBaseUnknown* ComponentInst::CreateItself() {
    return canBeCreated ? new ComponentInst : nullptr;
}

const KORFillDictionary kComponent(Component::MetaObject(), KORITestValue::MetaObject(),
                                   &KORCreateTie<TIEKORITestValue<Component>>, nullptr, 1);
const KORFillDictionary kFactory(ComponentInst::MetaObject(), KORICreateInstance::MetaObject(),
                                 &KORCreateTie<TIEKORICreateInstance<ComponentInst>>, nullptr, 1);

/// Instantiates into an output that is not null before.
HRESULT Instantiate(const char* component, KORIID iid, void** out) {
    static int before = 0;
    *out = &before;
    return KORInstantiateComponent(component, iid, out);
}

class KORInstantiateComponentTest : public testing::Test {
protected:
    ~KORInstantiateComponentTest() override {
        ComponentInst::forgetful = false;
        ComponentInst::canBeCreated = true;
        EXPECT_EQ(Component::living, 0);
        EXPECT_EQ(KORModule::Of("ComponentModule").LiveObjects(), 0);
    }
};

}  // namespace

TEST_F(KORInstantiateComponentTest, AnswersAnInterfaceOfANewComponent) {
    void* found = nullptr;
    ASSERT_EQ(Instantiate("Component", IID_KORITestValue, &found), S_OK);
    const auto value = KORITestValue_var::Adopt(static_cast<KORITestValue*>(found));

    EXPECT_EQ(value->Value(), 6);
    const auto component = KORGetImplementation<Component>(value.Get());
    ASSERT_NE(component, nullptr);
    EXPECT_EQ(component->References(), 2) << "its binding and this handle";
    EXPECT_EQ(KORBaseUnknown_var(value).Get(), component.Get()) << "it is its own main object";
}

TEST_F(KORInstantiateComponentTest, AnswersATypedHandleThatHoldsTheOnlyReference) {
    KORITestValue_var value;

    ASSERT_EQ(KORInstantiate("Component", value), S_OK);

    EXPECT_EQ(value->Value(), 6);
    value = nullptr;
    EXPECT_EQ(Component::living, 0);
}

TEST_F(KORInstantiateComponentTest, EmptiesTheTypedHandleWhenItFails) {
    KORITestStranger_var stranger;
    EXPECT_EQ(KORInstantiate("Component", stranger), E_NOINTERFACE);
    EXPECT_EQ(stranger, nullptr);

    KORITestValue_var value;
    ASSERT_EQ(KORInstantiate("Component", value), S_OK);
    EXPECT_EQ(KORInstantiate("a component that was never named", value), E_FAIL);
    EXPECT_EQ(value, nullptr);
}

TEST_F(KORInstantiateComponentTest, MakesAnotherComponentEachTime) {
    void* first = nullptr;
    void* second = nullptr;
    ASSERT_EQ(Instantiate("Component", IID_KORITestValue, &first), S_OK);
    ASSERT_EQ(Instantiate("Component", IID_KORITestValue, &second), S_OK);

    EXPECT_NE(first, second);
    EXPECT_EQ(Component::living, 2);
    static_cast<KORITestValue*>(first)->Release();
    static_cast<KORITestValue*>(second)->Release();
}

TEST_F(KORInstantiateComponentTest, LetsAComponentBeExtendedLikeAFeature) {
    void* found = nullptr;
    ASSERT_EQ(Instantiate("Component", IID_KORITestValue, &found), S_OK);
    const auto value = KORITestValue_var::Adopt(static_cast<KORITestValue*>(found));

    const KORICreateInstance_var factory = value;

    ASSERT_NE(factory, nullptr);
    EXPECT_EQ(KORICreateInstance_var::Of(value.Get()), factory);
    EXPECT_EQ(KORBaseUnknown_var(factory), KORBaseUnknown_var(value));
}

TEST_F(KORInstantiateComponentTest, FailsForAComponentThatNobodyOffers) {
    void* found = nullptr;

    EXPECT_EQ(Instantiate("a component that was never named", IID_KORITestValue, &found), E_FAIL);
    EXPECT_EQ(found, nullptr);
    EXPECT_EQ(Instantiate("KORITestValue", IID_KORITestValue, &found), E_FAIL);
    EXPECT_EQ(found, nullptr);
}

TEST_F(KORInstantiateComponentTest, FailsForAnInterfaceThatTheComponentLacks) {
    void* found = nullptr;

    EXPECT_EQ(Instantiate("Component", IID_KORITestStranger, &found), E_NOINTERFACE);

    EXPECT_EQ(found, nullptr);
}

TEST_F(KORInstantiateComponentTest, PassesTheFactorysFailureOn) {
    void* found = nullptr;
    const ZELAllocationFault fault(2);  // the first is the factory's binding

    EXPECT_EQ(Instantiate("Component", IID_KORITestValue, &found), E_OUTOFMEMORY);

    EXPECT_TRUE(fault.Hit());
    EXPECT_EQ(found, nullptr);
}

TEST_F(KORInstantiateComponentTest, FailsWhenThereIsNoMemoryForTheFactorysBinding) {
    void* found = nullptr;
    const ZELAllocationFault fault(1);

    EXPECT_EQ(Instantiate("Component", IID_KORITestValue, &found), E_OUTOFMEMORY);

    EXPECT_EQ(found, nullptr);
}

TEST_F(KORInstantiateComponentTest, FailsWhenTheFactoryCannotBeCreated) {
    ComponentInst::canBeCreated = false;
    void* found = nullptr;

    EXPECT_EQ(Instantiate("Component", IID_KORITestValue, &found), E_FAIL);

    EXPECT_EQ(found, nullptr);
}

TEST_F(KORInstantiateComponentTest, FailsWhenTheFactoryMakesNothing) {
    ComponentInst::forgetful = true;
    void* found = nullptr;

    EXPECT_EQ(Instantiate("Component", IID_KORITestValue, &found), E_FAIL);

    EXPECT_EQ(found, nullptr);
}
