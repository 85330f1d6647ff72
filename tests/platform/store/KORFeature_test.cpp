#include "platform/store/KORFeature.h"

#include <limits>
#include <memory>

#include "KORTestDocument.h"

namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

class KORFeatureTest : public KORTestDocument {
protected:
    const KORVar<KORFeature> feature = NewFeature("Steel");
    const KORName* const unknown = KORName::Intern("NoAttributeOfTheTest");
};

TEST_F(KORFeatureTest, StartsWithItsTypesInitialValues) {
    EXPECT_TRUE(feature->GetBoolean(flag, 0));
    EXPECT_EQ(7, feature->GetInteger(count, 0));
    EXPECT_EQ(1.5, feature->GetDouble(length, 0));
    EXPECT_EQ(KORUnicodeString(""), feature->GetString(text, 0));
    EXPECT_EQ(nullptr, feature->GetListOfDouble(numbers));
    EXPECT_EQ(nullptr, feature->GetSpecObject("Other", 0));
    EXPECT_EQ(nullptr, feature->GetListOfComponents(others));
}

TEST_F(KORFeatureTest, AnswersItsTypeNameAndAlias) {
    EXPECT_EQ(KORUnicodeString("KORTestLT"), feature->GetType());
    EXPECT_EQ(KORUnicodeString("Steel"), feature->GetName());
    EXPECT_EQ(KORUnicodeString(""), feature->GetAlias());

    feature->SetAlias("S235");

    EXPECT_EQ(KORUnicodeString("S235"), feature->GetAlias());
    EXPECT_EQ(KORUnicodeString("Steel"), feature->GetName());
}

TEST_F(KORFeatureTest, KeepsANameThatIsEmptyAndOneThatIsItsTypes) {
    EXPECT_EQ(KORUnicodeString(""), NewFeature("")->GetName());
    EXPECT_EQ(KORUnicodeString("KORTestLT"), NewFeature("KORTestLT")->GetName());
}

TEST_F(KORFeatureTest, ReadsBackWhatWasWritten) {
    const auto child = NewFeature();

    feature->SetBoolean(flag, false, 0);
    feature->SetInteger(count, -3, 0);
    feature->SetDouble(length, 0.31, 0);
    feature->SetString(text, "Datei", 0);
    feature->SetListOfDouble(numbers, KORNumbers({1.0, 2.0}));
    feature->SetComponent(other, child.Get(), 0);

    EXPECT_FALSE(feature->GetBoolean(flag, 0));
    EXPECT_EQ(-3, feature->GetInteger(count, 0));
    EXPECT_EQ(0.31, feature->GetDouble(length, 0));
    EXPECT_EQ(KORUnicodeString("Datei"), feature->GetString(text, 0));
    const std::unique_ptr<KORRawColldouble> list(feature->GetListOfDouble(numbers));
    ASSERT_EQ(2, list->Size());
    EXPECT_EQ(2.0, (*list)[2]);
    const auto read = KORISpecObject_var::Adopt(feature->GetSpecObject("Other", 0));
    EXPECT_EQ(static_cast<KORISpecObject*>(child.Get()), read.Get());
}

TEST_F(KORFeatureTest, HandsOutAShareOfAListNotACopy) {
    const KORRawColldouble given = KORNumbers({1.0, 2.0});
    feature->SetListOfDouble(numbers, given);

    const std::unique_ptr<KORRawColldouble> read(feature->GetListOfDouble(numbers));

    EXPECT_EQ(given.Data(), read->Data());
}

TEST_F(KORFeatureTest, OffersAKeyForEveryAttributeOfItsTypeAndNoOther) {
    const auto before = length->References();

    EXPECT_EQ(length, feature->GetAttrKey("Length"));
    EXPECT_EQ(before + 1, length->References());
    EXPECT_EQ(nullptr, feature->GetAttrKey("NoAttributeOfTheTest"));
    EXPECT_EQ(nullptr, feature->GetAttrKey("never interned anywhere"));
    EXPECT_EQ(nullptr, feature->GetAttrKey("KORTestLT"));
    EXPECT_EQ(nullptr, feature->GetAttrKey(nullptr));
    EXPECT_EQ(nullptr, feature->GetSpecObject(nullptr, 0));

    length->Release();
}

TEST_F(KORFeatureTest, ReadsAForeignKeyAsNeverValued) {
    EXPECT_EQ(0.0, feature->GetDouble(unknown, 0));
    EXPECT_FALSE(feature->GetBoolean(unknown, 0));
    EXPECT_EQ(0, feature->GetInteger(unknown, 0));
    EXPECT_EQ(KORUnicodeString(""), feature->GetString(unknown, 0));
    EXPECT_EQ(nullptr, feature->GetListOfDouble(unknown));
    EXPECT_EQ(nullptr, feature->GetSpecObject("NoAttributeOfTheTest", 0));
    EXPECT_EQ(nullptr, feature->GetComponent(unknown, 0));
    EXPECT_EQ(nullptr, feature->GetListOfComponents(unknown));
    EXPECT_EQ(0, feature->GetListSize(unknown));
    EXPECT_EQ(0.0, feature->GetDouble(nullptr, 0));
}

TEST_F(KORFeatureTest, ReadsAKeyOfAnotherKindAsNeverValued) {
    feature->SetListOfDouble(numbers, KORNumbers({1.0}));

    EXPECT_EQ(0.0, feature->GetDouble(count, 0));
    EXPECT_EQ(0, feature->GetInteger(length, 0));
    EXPECT_FALSE(feature->GetBoolean(count, 0));
    EXPECT_EQ(nullptr, feature->GetListOfDouble(others));
    EXPECT_EQ(nullptr, feature->GetListOfComponents(numbers));
    EXPECT_EQ(nullptr, feature->GetComponent(numbers, 1));
    EXPECT_EQ(0, feature->GetListSize(length));
}

TEST_F(KORFeatureTest, IgnoresWritesUnderForeignKeysAndOtherKinds) {
    KORStep step(*document, "Edit");

    feature->SetDouble(unknown, 2.0, 0);
    feature->SetDouble(nullptr, 2.0, 0);
    feature->SetDouble(count, 2.0, 0);
    feature->SetInteger(length, 2, 0);
    feature->SetBoolean(length, true, 0);
    feature->SetString(length, "2", 0);
    feature->SetListOfDouble(others, KORNumbers({2.0}));
    feature->SetComponent(others, feature.Get(), 0);
    feature->AppendComponent(other, feature.Get());
    feature->AppendComponent(unknown, feature.Get());
    feature->RemoveAllValues(length);
    feature->RemoveAllValues(unknown);
    feature->RemoveValue(unknown);

    EXPECT_TRUE(document->Log().OpenEntries().empty());
    EXPECT_EQ(7, feature->GetInteger(count, 0));
    EXPECT_EQ(1.5, feature->GetDouble(length, 0));
    EXPECT_EQ(nullptr, feature->GetListOfComponents(others));
}

TEST_F(KORFeatureTest, TellsNeverValuedEmptyAndValuedListsApart) {
    EXPECT_EQ(nullptr, feature->GetListOfDouble(numbers));

    feature->SetListOfDouble(numbers, KORRawColldouble());
    std::unique_ptr<KORRawColldouble> list(feature->GetListOfDouble(numbers));
    ASSERT_NE(nullptr, list);
    EXPECT_EQ(0, list->Size());

    feature->SetListOfDouble(numbers, KORNumbers({1.0}));
    EXPECT_EQ(1, feature->GetListSize(numbers));

    feature->RemoveAllValues(numbers);
    list.reset(feature->GetListOfDouble(numbers));
    ASSERT_NE(nullptr, list);
    EXPECT_EQ(0, list->Size());

    feature->RemoveValue(numbers);
    EXPECT_EQ(nullptr, feature->GetListOfDouble(numbers));
}

TEST_F(KORFeatureTest, EmptyingAListThatWasNeverValuedLeavesItEmpty) {
    feature->RemoveAllValues(others);

    const std::unique_ptr<KORListValKORISpecObject_var> list(feature->GetListOfComponents(others));
    ASSERT_NE(nullptr, list);
    EXPECT_EQ(0, list->Size());
}

TEST_F(KORFeatureTest, ForgetsAScalarWhoseValueIsRemoved) {
    feature->RemoveValue(length);
    feature->RemoveValue(flag);

    EXPECT_EQ(0.0, feature->GetDouble(length, 0));
    EXPECT_FALSE(feature->GetBoolean(flag, 0));
}

TEST_F(KORFeatureTest, AppendsComponentsInOrder) {
    const auto one = NewFeature();
    const auto stranger = KORBaseUnknown_var::Adopt(new KORBaseUnknown);

    feature->AppendComponent(others, one.Get());
    feature->AppendComponent(others, nullptr);
    feature->AppendComponent(others, stranger.Get());

    EXPECT_EQ(3, feature->GetListSize(others));
    EXPECT_EQ(one.Get(), KORBaseUnknown_var::Adopt(feature->GetComponent(others, 1)).Get());
    EXPECT_EQ(nullptr, feature->GetComponent(others, 2));
    EXPECT_EQ(stranger.Get(), KORBaseUnknown_var::Adopt(feature->GetComponent(others, 3)).Get());
    EXPECT_EQ(nullptr, feature->GetComponent(others, 0));
    EXPECT_EQ(nullptr, feature->GetComponent(others, 4));
    const std::unique_ptr<KORListValKORISpecObject_var> list(feature->GetListOfComponents(others));
    ASSERT_EQ(3, list->Size());
    EXPECT_EQ(static_cast<KORISpecObject*>(one.Get()), (*list)[1].Get());
    EXPECT_FALSE((*list)[2]);
    EXPECT_FALSE((*list)[3]);
}

TEST_F(KORFeatureTest, KeepsAHandedOutListWhenItGrowsAfterwards) {
    feature->AppendComponent(others, feature.Get());
    const std::unique_ptr<KORListValKORISpecObject_var> list(feature->GetListOfComponents(others));

    feature->AppendComponent(others, feature.Get());

    EXPECT_EQ(1, list->Size());
    EXPECT_EQ(2, feature->GetListSize(others));
}

TEST_F(KORFeatureTest, HoldsOneReferenceOnItsComponentAndGivesItBack) {
    const auto child = NewFeature();
    const auto before = child->References();

    feature->SetComponent(other, child.Get(), 0);
    EXPECT_EQ(before + 1, child->References());

    const auto read = KORBaseUnknown_var::Adopt(feature->GetComponent(other, 0));
    EXPECT_EQ(before + 2, child->References());

    feature->SetComponent(other, nullptr, 0);
    EXPECT_EQ(before + 1, child->References());
    EXPECT_EQ(nullptr, feature->GetComponent(other, 0));
}

TEST_F(KORFeatureTest, AnswersAComponentThatIsNoFeatureByKeyButNotAsAFeature) {
    const auto stranger = KORBaseUnknown_var::Adopt(new KORBaseUnknown);

    feature->SetComponent(other, stranger.Get(), 0);

    EXPECT_EQ(stranger.Get(), KORBaseUnknown_var::Adopt(feature->GetComponent(other, 0)).Get());
    EXPECT_EQ(nullptr, feature->GetSpecObject("Other", 0));
    EXPECT_EQ(nullptr, feature->GetComponent(other, 1));
}

TEST_F(KORFeatureTest, LivesOnInItsContainerWithoutHandles) {
    std::uint32_t number = 0;
    {
        const auto unheld = NewFeature();
        number = unheld->Number();
        EXPECT_EQ(2, unheld->References());
    }
    EXPECT_NE(nullptr, document->Features().Find(number));
}

TEST_F(KORFeatureTest, DiesWithItsLastHandleOnceItIsOutOfItsContainer) {
    auto loose = NewFeature();
    const std::uint32_t number = loose->Number();

    loose->SetContainer(nullptr);
    EXPECT_EQ(1, loose->References());
    EXPECT_EQ(nullptr, loose->GetFeatContainer());
    EXPECT_FALSE(loose->LiesInContainer());

    loose = nullptr;
    EXPECT_EQ(nullptr, document->Features().Find(number));
}

TEST_F(KORFeatureTest, TakenOutByItsOnlyReferenceIsGone) {
    NewFeature();
    KORFeature* unheld = document->Features().Find(2);

    unheld->SetContainer(nullptr);

    EXPECT_EQ(nullptr, document->Features().Find(2));
    EXPECT_EQ(1u, document->FeatureCount());
}

TEST_F(KORFeatureTest, AnswersItsContainerAndDocument) {
    const auto answered = KORBaseUnknown_var::Adopt(feature->GetFeatContainer());

    EXPECT_EQ(container.Get(), answered.Get());
    EXPECT_EQ(static_cast<KORDocument*>(document.Get()), feature->GetDocument());
}

TEST_F(KORFeatureTest, IsReachedThroughAllItsInterfaces) {
    const auto spec = KORISpecObject_var(feature);
    const auto access = KORISpecAttrAccess_var(spec);
    const auto linkable = KORILinkableObject_var(access);
    const auto alias = KORIAlias_var(linkable);
    const auto again = KORVar<KORFeature>(alias);

    EXPECT_EQ(1.5, access->GetDouble(length, 0));
    EXPECT_EQ(static_cast<KORDocument*>(document.Get()), linkable->GetDocument());
    EXPECT_EQ(feature, again);
    EXPECT_EQ(feature.Get(), KORBaseUnknown_var(spec).Get());
}

TEST_F(KORFeatureTest, IsNoStartUp) {
    const auto own = KORIContainer_var::Of(container.Get());

    EXPECT_EQ(nullptr, feature->Instantiate("Copy", own.Get()));
}

TEST_F(KORFeatureTest, OutlivesItsDocumentAsNeverValued) {
    const auto child = NewFeature();
    feature->SetString(text, "abc", 0);
    feature->SetComponent(other, child.Get(), 0);
    feature->SetAlias("alias");

    document = nullptr;

    EXPECT_EQ(0.0, feature->GetDouble(length, 0));
    EXPECT_EQ(KORUnicodeString(""), feature->GetString(text, 0));
    EXPECT_EQ(KORUnicodeString(""), feature->GetAlias());
    EXPECT_EQ(KORUnicodeString("KORTestLT"), feature->GetType());
    EXPECT_EQ(nullptr, feature->GetComponent(other, 0));
    EXPECT_EQ(nullptr, feature->GetFeatContainer());
    EXPECT_EQ(nullptr, feature->GetDocument());
    EXPECT_EQ(nullptr, feature->StoreDocument());
    EXPECT_EQ(1, feature->References());
    EXPECT_EQ(1, child->References());
}

TEST_F(KORFeatureTest, IgnoresWritesOnceItsDocumentIsClosed) {
    document->Close();

    feature->SetDouble(length, 2.0, 0);
    feature->AppendComponent(others, feature.Get());
    feature->SetAlias("late");
    feature->SetContainer(container.Get());

    EXPECT_EQ(0.0, feature->GetDouble(length, 0));
    EXPECT_EQ(0, feature->GetListSize(others));
    EXPECT_EQ(KORUnicodeString(""), feature->GetAlias());
    EXPECT_FALSE(feature->LiesInContainer());
}

TEST_F(KORFeatureTest, GoesWithALongChainOfFeaturesThatReferenceEachOther) {
    const std::size_t before = document->Features().Size();
    KORVar<KORFeature> head = NewFeature();
    for (int i = 1; i < 100'000; ++i) {
        auto next = NewFeature();
        next->SetComponent(other, head.Get(), 0);
        head->SetContainer(nullptr);
        head = std::move(next);
    }
    head->SetContainer(nullptr);
    ASSERT_EQ(document->Features().Size(), before + 100'000);

    head = nullptr;

    EXPECT_EQ(document->Features().Size(), before);
}

TEST_F(KORFeatureTest, WritingTheSameValueAgainChangesNothing) {
    feature->SetDouble(length, kNaN, 0);
    feature->SetListOfDouble(numbers, KORNumbers({1.0, kNaN}));
    document->Features().Clean();
    KORStep step(*document, "Edit");

    feature->SetDouble(length, kNaN, 0);
    feature->SetListOfDouble(numbers, KORNumbers({1.0, kNaN}));
    feature->SetBoolean(flag, true, 0);
    feature->SetString(text, "", 0);
    feature->SetComponent(other, nullptr, 0);

    EXPECT_TRUE(document->Log().OpenEntries().empty());
    EXPECT_TRUE(document->Features().Dirty().empty());
}

}  // namespace
