#include "framework/KORTie.h"

#include <gmock/gmock.h>

#include <vector>

#include "tests/framework/KORTestParts.h"
#include "tests/support/ZELAllocationFault.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class Bound final : public KORBaseUnknown {
    KORDeclareClass

public:
    Bound() { ++living; }
    ~Bound() override { --living; }

    int Value() { return value_; }
    void SetValue(int value) { value_ = value; }
    std::string Name() { return "bound"; }

    static inline int living = 0;
    static inline bool canBeCreated = true;

private:
    int value_ = 1;
};
KORImplementClass(Bound, KORClassKind::DataExtension, "BoundLT", "TieModule");
KORBaseUnknown* Bound::CreateItself() {
    return canBeCreated ? new Bound : nullptr;
}

using ValueTie = TIEKORITestValue<Bound>;
using NameTie = TIEKORITestName<Bound>;

const KORFillDictionary kValue(Bound::MetaObject(), KORITestValue::MetaObject(), &KORCreateTie<ValueTie>,
                               nullptr, 1);
const KORFillDictionary kName(Bound::MetaObject(), KORITestName::MetaObject(), &KORCreateTie<NameTie>,
                              nullptr, 1);

KORTieRecord& ValueRecord() {
    return fct_RetrieveTieRecord(KORITestValue::MetaObject(), Bound::MetaObject());
}

/// Writes down the calls it is told of.
class Observer final : public KORCallObserver {
public:
    Observer() : outer_(Tie_StackCtx::Observe(this)) {}
    ~Observer() { Tie_StackCtx::Observe(outer_); }
    Observer(const Observer&) = delete;
    Observer& operator=(const Observer&) = delete;

    void Called(const KORTieRecord& binding, const char* operation, KORBaseUnknown* implementation) override {
        calls.push_back(std::string(binding.InterfaceName()) + "::" + operation + " on " +
                        implementation->IsA());
        implementations.push_back(implementation);
    }

    std::vector<std::string> calls;
    std::vector<KORBaseUnknown*> implementations;

private:
    KORCallObserver* outer_;
};

}  // namespace

TEST(KORTieRecord, DescribesABindingAndIsMadeOnce) {
    const KORTieRecord& record = ValueRecord();

    EXPECT_EQ(&record, &ValueRecord());
    EXPECT_EQ(record.Kind(), KORClassKind::TIE);
    EXPECT_EQ(record.InterfaceId(), IID_KORITestValue);
    EXPECT_STREQ(record.InterfaceName(), "KORITestValue");
    EXPECT_EQ(&record.Interface(), &KORITestValue::MetaObject());
    EXPECT_EQ(&record.Implementation(), &Bound::MetaObject());
    EXPECT_NE(&record, &fct_RetrieveTieRecord(KORITestName::MetaObject(), Bound::MetaObject()));
}

TEST(KORTie, OwnsOneReferenceOnTheImplementationItIsGiven) {
    const auto object = KORVar<Bound>::Adopt(new Bound);

    KORIUnknown* binding = KORCreateTie<ValueTie>(object.Get(), nullptr);
    EXPECT_EQ(object->References(), 2);
    EXPECT_EQ(binding->AddRef(), 2u);
    EXPECT_EQ(object->References(), 2) << "the binding's own counter";
    EXPECT_EQ(binding->Release(), 1u);

    EXPECT_EQ(binding->Release(), 0u);
    EXPECT_EQ(object->References(), 1);
}

TEST(KORTie, CreatesAnImplementationThatExtendsTheOuterObject) {
    const auto feature = MakeTestFeature("BoundLT");

    auto binding = KORVar<KORIUnknown>::Adopt(KORCreateTie<ValueTie>(nullptr, feature.Get()));

    EXPECT_EQ(Bound::living, 1);
    EXPECT_EQ(KORBaseUnknown_var::Of(binding.Get()).Get(), feature.Get());
    binding = nullptr;
    EXPECT_EQ(Bound::living, 0);
    EXPECT_EQ(feature->References(), 1);
}

TEST(KORTie, CreatesAnImplementationOfItsOwnWithoutAnOuterObject) {
    const auto binding = KORVar<KORIUnknown>::Adopt(KORCreateTie<ValueTie>(nullptr, nullptr));

    const auto object = KORGetImplementation<Bound>(binding.Get());

    ASSERT_NE(object, nullptr);
    EXPECT_EQ(object->MainObject(), object.Get());
    EXPECT_EQ(object->References(), 2);
}

TEST(KORTie, BoundToNothingRefusesEveryQuery) {
    Bound::canBeCreated = false;
    const auto binding = KORVar<KORIUnknown>::Adopt(KORCreateTie<ValueTie>(nullptr, nullptr));
    Bound::canBeCreated = true;

    ASSERT_NE(binding, nullptr);
    void* found = binding.Get();
    EXPECT_EQ(binding->QueryInterface(IID_KORITestName, &found), E_NOINTERFACE);
    EXPECT_EQ(found, nullptr);
    found = binding.Get();
    EXPECT_EQ(binding->QueryInterface(IID_KORImplementation, &found), E_NOINTERFACE);
    EXPECT_EQ(found, nullptr);
}

TEST(KORTie, IsNullWhenMemoryIsShort) {
    const auto object = KORVar<Bound>::Adopt(new Bound);
    const ZELAllocationFault fault(1);

    EXPECT_EQ(KORCreateTie<ValueTie>(object.Get(), nullptr), nullptr);

    EXPECT_EQ(object->References(), 1);
    EXPECT_EQ(KORModule::Of("TieModule").LiveObjects(), 0);
}

TEST(KORTie, CountsAsAnObjectOfItsModule) {
    const auto feature = MakeTestFeature("BoundLT");
    KORITestValue_var value = feature;
    const KORITestName_var name = feature;

    EXPECT_EQ(KORModule::Of("TieModule").LiveObjects(), 2);
    value = nullptr;
    EXPECT_EQ(KORModule::Of("TieModule").LiveObjects(), 1);
}

TEST(KORTie, QueriesTheComponentAndAnswersItsImplementation) {
    const auto feature = MakeTestFeature("BoundLT");
    const KORITestValue_var value = feature;

    EXPECT_EQ(KORBaseUnknown_var(value).Get(), feature.Get());
    EXPECT_EQ(KORITestName_var(value)->Name(), "bound");
    void* implementation = nullptr;
    ASSERT_EQ(value->QueryInterface(IID_KORImplementation, &implementation), S_OK);
    const auto held = KORBaseUnknown_var::Adopt(static_cast<KORBaseUnknown*>(implementation));
    EXPECT_STREQ(held->IsA(), "Bound");
    EXPECT_EQ(held->References(), 2) << "the binding and this handle";
}

TEST(KORTie, LeavesTheOtherBindingsOfItsImplementationWhenItGoes) {
    const auto feature = MakeTestFeature("BoundLT");
    KORITestValue_var value = feature;
    KORITestName_var name = feature;

    value = nullptr;  // the older of the two
    EXPECT_EQ(KORITestName_var(feature), name);
    value = KORITestValue_var(feature);
    name = nullptr;
    EXPECT_EQ(KORITestValue_var(feature), value);
    EXPECT_EQ(Bound::living, 1);
}

TEST(KORTie, OffersNoLateBoundCalls) {
    const auto feature = MakeTestFeature("BoundLT");
    const KORITestValue_var value = feature;
    std::uint32_t count = 9;
    const char* const names[] = {"Value"};
    std::int32_t ids[] = {9};
    void* info = nullptr;

    EXPECT_EQ(value->GetTypeInfoCount(&count), S_OK);
    EXPECT_EQ(count, 0u);
    EXPECT_EQ(value->GetTypeInfo(0, 0, &info), E_NOTIMPL);
    EXPECT_EQ(value->GetIDsOfNames(names, 1, ids), E_NOTIMPL);
    EXPECT_EQ(value->Invoke(1, nullptr, nullptr), E_NOTIMPL);
}

TEST(KORTie, CallsTheImplementationWithoutAContextUntilSomebodyObserves) {
    const auto feature = MakeTestFeature("BoundLT");
    const KORITestValue_var value = feature;

    value->SetValue(12);

    EXPECT_EQ(value->Value(), 12);
    EXPECT_EQ(ValueRecord().context, nullptr);
    EXPECT_FALSE(Tie_StackCtx::IsObserved());
}

TEST(KORTie, ReportsObservedCallsInOrderAndMakesThem) {
    const auto feature = MakeTestFeature("BoundLT");
    Observer observer;
    const KORITestValue_var value = feature;
    const KORITestName_var name = feature;

    value->SetValue(12);
    EXPECT_EQ(name->Name(), "bound");
    EXPECT_EQ(value->Value(), 12);

    EXPECT_THAT(observer.calls, ElementsAre("KORITestValue::SetValue on Bound", "KORITestName::Name on Bound",
                                            "KORITestValue::Value on Bound"));
    EXPECT_NE(ValueRecord().context, nullptr);
}

TEST(KORTie, ReportsTheImplementationThatIsCalled) {
    const auto first = MakeTestFeature("BoundLT");
    const auto second = MakeTestFeature("BoundLT");
    Observer observer;
    const KORITestValue_var one = first;
    const KORITestValue_var other = second;

    one->SetValue(2);
    other->SetValue(3);

    EXPECT_EQ(one->Value(), 2);
    EXPECT_EQ(other->Value(), 3);
    EXPECT_THAT(observer.implementations, ElementsAre(KORGetImplementation<Bound>(one.Get()).Get(),
                                                      KORGetImplementation<Bound>(other.Get()).Get(),
                                                      KORGetImplementation<Bound>(one.Get()).Get(),
                                                      KORGetImplementation<Bound>(other.Get()).Get()));
}

TEST(KORTie, GoesOnCallingThroughItsContextWhenNobodyObservesAnyMore) {
    const auto feature = MakeTestFeature("BoundLT");
    KORITestValue_var value;
    const Tie_StackCtx* context = nullptr;
    {
        const Observer observer;
        value = KORITestValue_var(feature);
        context = ValueRecord().context;
    }
    ASSERT_NE(context, nullptr);

    value->SetValue(12);

    EXPECT_EQ(value->Value(), 12);
    EXPECT_FALSE(Tie_StackCtx::IsObserved());

    const auto another = MakeTestFeature("BoundLT");
    EXPECT_EQ(KORITestValue_var(another)->Value(), 1);
    EXPECT_EQ(ValueRecord().context, context) << "it lives as long as the record";
}

TEST(Tie_StackCtx, ReportsToTheLastObserverOnly) {
    const auto feature = MakeTestFeature("BoundLT");
    const Observer outer;
    const KORITestValue_var value = feature;
    {
        Observer inner;
        value->Value();
        EXPECT_THAT(inner.calls, ElementsAre("KORITestValue::Value on Bound"));
    }
    EXPECT_THAT(outer.calls, IsEmpty());

    value->Value();

    EXPECT_THAT(outer.calls, ElementsAre("KORITestValue::Value on Bound"));
}
