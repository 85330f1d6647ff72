#include "platform/store/KORValue.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

KORRawColldouble Numbers(std::initializer_list<double> values) {
    KORRawColldouble list;
    for (const double value : values) list.Append(value);
    return list;
}

KORBaseUnknown_var NewObject() {
    return KORBaseUnknown_var::Adopt(new KORBaseUnknown);
}

TEST(KORValue, ThatWasNeverValuedReadsAsNothing) {
    EXPECT_EQ(KORValueState::NeverValued, KORValue(KORAttributeKind::Double).State());
    EXPECT_FALSE(KORValue(KORAttributeKind::Boolean).Boolean());
    EXPECT_EQ(0, KORValue(KORAttributeKind::Integer).Integer());
    EXPECT_EQ(0.0, KORValue(KORAttributeKind::Double).Double());
    EXPECT_EQ(KORUnicodeString(""), KORValue(KORAttributeKind::String).String());
    EXPECT_EQ(0, KORValue(KORAttributeKind::ListOfDoubles).ListOfDoubles().Size());
    EXPECT_EQ(0, KORValue(KORAttributeKind::ListOfDoubles).ListSize());
    EXPECT_EQ(nullptr, KORValue(KORAttributeKind::Component).Component());
    EXPECT_EQ(0, KORValue(KORAttributeKind::ListOfComponents).Features().Size());
    EXPECT_EQ(nullptr, KORValue(KORAttributeKind::ListOfComponents).ComponentAt(1).Get());
}

TEST(KORValue, HoldsScalarsExactly) {
    EXPECT_TRUE(KORValue::OfBoolean(true).Boolean());
    EXPECT_FALSE(KORValue::OfBoolean(false).Boolean());
    EXPECT_EQ(-2147483647 - 1, KORValue::OfInteger(-2147483647 - 1).Integer());
    EXPECT_EQ(2147483647, KORValue::OfInteger(2147483647).Integer());
    EXPECT_EQ(2.1e11, KORValue::OfDouble(2.1e11).Double());
    EXPECT_EQ(5e-324, KORValue::OfDouble(5e-324).Double());
    EXPECT_EQ(KORValueState::Valued, KORValue::OfDouble(0.0).State());
    EXPECT_EQ(KORValueState::Valued, KORValue::OfBoolean(false).State());
}

TEST(KORValue, KeepsTheTextOfAStringAfterTheCallersIsGone) {
    KORValue value(KORAttributeKind::String);
    {
        const KORUnicodeString text("Stahl \xC3\xA4");
        value = KORValue::OfString(text);
    }
    EXPECT_EQ(KORUnicodeString("Stahl \xC3\xA4"), value.String());
}

TEST(KORValue, TellsAnEmptyStringFromOneThatWasNeverValued) {
    EXPECT_EQ(KORValueState::Valued, KORValue::OfString("").State());
    EXPECT_FALSE(KORValue::OfString("").SameAs(KORValue(KORAttributeKind::String)));
}

TEST(KORValue, SharesTheCallersListOfDoubles) {
    const KORRawColldouble list = Numbers({1.0, 2.0});

    const KORValue value = KORValue::OfListOfDoubles(list);

    EXPECT_EQ(list.Data(), value.ListOfDoubles().Data());
    EXPECT_EQ(2, value.ListSize());
}

TEST(KORValue, KeepsItsListWhenTheCallerGoesOnWriting) {
    KORRawColldouble list = Numbers({1.0, 2.0});
    const KORValue value = KORValue::OfListOfDoubles(list);

    list.Append(3.0);
    KORRawColldouble handedOut = value.ListOfDoubles();
    handedOut.Append(4.0);

    EXPECT_EQ(2, value.ListOfDoubles().Size());
    EXPECT_EQ(2.0, value.ListOfDoubles()[2]);
}

TEST(KORValue, OfAListWithoutNumbersIsEmptyAlsoWhenTheListHasRoom) {
    KORRawColldouble roomy;
    roomy.Reserve(10);

    const KORValue value = KORValue::OfListOfDoubles(roomy);

    EXPECT_EQ(KORValueState::Empty, value.State());
    EXPECT_TRUE(value.SameAs(KORValue::EmptyList(KORAttributeKind::ListOfDoubles)));
    EXPECT_FALSE(value.SameAs(KORValue(KORAttributeKind::ListOfDoubles)));
}

TEST(KORValue, CountsOneReferenceOnItsComponent) {
    const auto object = NewObject();
    {
        const KORValue value = KORValue::OfComponent(object.Get());
        EXPECT_EQ(object.Get(), value.Component());
        EXPECT_EQ(2, object->References());

        const KORValue copy(value);
        EXPECT_EQ(3, object->References());
    }
    EXPECT_EQ(1, object->References());
}

TEST(KORValue, OfANullComponentIsNeverValued) {
    EXPECT_EQ(KORValueState::NeverValued, KORValue::OfComponent(nullptr).State());
}

TEST(KORValue, AppendsComponentsToAListInAnyState) {
    const auto object = NewObject();
    KORValue never(KORAttributeKind::ListOfComponents);
    KORValue empty = KORValue::EmptyList(KORAttributeKind::ListOfComponents);

    never.Append(object.Get());
    empty.Append(nullptr);
    empty.Append(object.Get());

    EXPECT_EQ(1, never.ListSize());
    EXPECT_EQ(object.Get(), never.ComponentAt(1).Get());
    EXPECT_EQ(KORValueState::Valued, empty.State());
    EXPECT_EQ(2, empty.ListSize());
    EXPECT_EQ(nullptr, empty.ComponentAt(1).Get());
    EXPECT_EQ(object.Get(), empty.ComponentAt(2).Get());
    EXPECT_EQ(3, object->References());
}

TEST(KORValue, CopyOfAListOfComponentsIsAListOfItsOwn) {
    const auto object = NewObject();
    KORValue list(KORAttributeKind::ListOfComponents);
    list.Append(object.Get());
    KORValue copy(list);

    copy.Append(nullptr);

    EXPECT_EQ(1, list.ListSize());
    EXPECT_EQ(2, copy.ListSize());
}

TEST(KORValue, ComparesDoublesByBits) {
    EXPECT_TRUE(KORValue::OfDouble(kNaN).SameAs(KORValue::OfDouble(kNaN)));
    EXPECT_FALSE(KORValue::OfDouble(0.0).SameAs(KORValue::OfDouble(-0.0)));
    EXPECT_FALSE(KORValue::OfDouble(1.0).SameAs(KORValue::OfDouble(2.0)));
    EXPECT_FALSE(KORValue::OfDouble(0.0).SameAs(KORValue(KORAttributeKind::Double)));
}

TEST(KORValue, ComparesListsByWhatTheyHold) {
    const KORValue list = KORValue::OfListOfDoubles(Numbers({1.0, kNaN}));

    EXPECT_TRUE(list.SameAs(KORValue::OfListOfDoubles(Numbers({1.0, kNaN}))));
    EXPECT_FALSE(list.SameAs(KORValue::OfListOfDoubles(Numbers({1.0, 2.0}))));
    EXPECT_FALSE(list.SameAs(KORValue::OfListOfDoubles(Numbers({1.0}))));
    EXPECT_FALSE(list.SameAs(KORValue::EmptyList(KORAttributeKind::ListOfDoubles)));
}

TEST(KORValue, ComparesStringsByText) {
    EXPECT_TRUE(KORValue::OfString("abc").SameAs(KORValue::OfString("abc")));
    EXPECT_FALSE(KORValue::OfString("abc").SameAs(KORValue::OfString("abd")));
    EXPECT_FALSE(KORValue::OfString("abc").SameAs(KORValue::OfString("")));
}

TEST(KORValue, ComparesComponentsByIdentity) {
    const auto one = NewObject();
    const auto two = NewObject();
    KORValue list(KORAttributeKind::ListOfComponents);
    KORValue same(KORAttributeKind::ListOfComponents);
    KORValue different(KORAttributeKind::ListOfComponents);
    list.Append(one.Get());
    same.Append(one.Get());
    different.Append(two.Get());

    EXPECT_TRUE(KORValue::OfComponent(one.Get()).SameAs(KORValue::OfComponent(one.Get())));
    EXPECT_FALSE(KORValue::OfComponent(one.Get()).SameAs(KORValue::OfComponent(two.Get())));
    EXPECT_TRUE(list.SameAs(same));
    EXPECT_FALSE(list.SameAs(different));
}

TEST(KORValue, OfDifferentKindsIsNeverTheSame) {
    EXPECT_FALSE(KORValue::OfInteger(1).SameAs(KORValue::OfBoolean(true)));
}

TEST(KORValue, SwapExchangesKindStateAndStamp) {
    const auto object = NewObject();
    KORValue component = KORValue::OfComponent(object.Get());
    component.SetStamp(5);
    KORValue number = KORValue::OfDouble(1.5);

    component.Swap(number);

    EXPECT_EQ(KORAttributeKind::Double, component.Kind());
    EXPECT_EQ(1.5, component.Double());
    EXPECT_EQ(0u, component.Stamp());
    EXPECT_EQ(object.Get(), number.Component());
    EXPECT_EQ(5u, number.Stamp());
    EXPECT_EQ(2, object->References());
}

TEST(KORValue, MovedFromOwnsNothing) {
    const auto object = NewObject();
    KORValue from = KORValue::OfComponent(object.Get());

    const KORValue to(std::move(from));

    EXPECT_EQ(object.Get(), to.Component());
    EXPECT_EQ(2, object->References());
}

}  // namespace
