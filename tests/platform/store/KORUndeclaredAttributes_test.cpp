#include "platform/store/KORUndeclaredAttributes.h"

#include <stdexcept>

#include "KORTestDocument.h"

namespace {

/// What a feature holds beside its late type's attributes "Flag", "Count", ...
class KORUndeclaredAttributesTest : public KORTestDocument {
protected:
    /// "name" or "name=number", in the order of the visit.
    static std::vector<std::string> Of(const KORFeature& feature) {
        std::vector<std::string> all;
        feature.ForEachUndeclared([&](const KORUnicodeString& name, const KORValue& value) {
            std::string text(name.View());
            if (value.State() == KORValueState::Valued && value.Kind() == KORAttributeKind::Integer) {
                text += "=" + std::to_string(value.Integer());
            }
            all.push_back(text);
        });
        return all;
    }
    using Names = std::vector<std::string>;

    const KORUnicodeString damping = "Damping";
    const KORUnicodeString tint = "Tint";
};

TEST_F(KORUndeclaredAttributesTest, AreVisitedInTheOrderInWhichTheirNamesCame) {
    const auto feature = NewFeature();
    EXPECT_EQ(Names{}, Of(*feature));

    feature->SetUndeclared(tint, KORValue::OfString("red"));
    feature->SetUndeclared(damping, KORValue::OfInteger(3));
    feature->SetUndeclared(tint, KORValue(KORAttributeKind::Double));

    EXPECT_EQ((Names{"Tint", "Damping=3"}), Of(*feature));
}

TEST_F(KORUndeclaredAttributesTest, AreReachedByNoKey) {
    const auto feature = NewFeature();

    feature->SetUndeclared(damping, KORValue::OfInteger(3));

    EXPECT_EQ(nullptr, feature->GetAttrKey("Damping"));
    EXPECT_EQ(0, feature->GetInteger(KORName::Intern("Damping"), 0));
}

TEST_F(KORUndeclaredAttributesTest, AreGoneWhenTheyAreRemovedAndOnlyThen) {
    const auto feature = NewFeature();
    feature->SetUndeclared(damping, KORValue::OfInteger(3));
    feature->SetUndeclared(tint, KORValue::OfInteger(4));

    feature->RemoveUndeclared(damping);
    feature->RemoveUndeclared("Unheard");

    EXPECT_EQ(Names{"Tint=4"}, Of(*feature));
}

TEST_F(KORUndeclaredAttributesTest, AreUndoneAndRedoneLikeAllOthers) {
    const auto feature = NewFeature();
    feature->SetUndeclared(tint, KORValue::OfInteger(1));
    {
        KORStep step(*document, "Edit");
        feature->SetUndeclared(damping, KORValue::OfInteger(2));
        feature->SetUndeclared(damping, KORValue::OfInteger(3));
        feature->RemoveUndeclared(tint);
        step.Commit();
    }
    EXPECT_EQ(Names{"Damping=3"}, Of(*feature));
    ASSERT_EQ(2u, document->Log().Steps()[0].entries.size());
    EXPECT_STREQ("Damping", document->Log().Steps()[0].entries[0].AttributeName());

    EXPECT_TRUE(document->Undo());
    EXPECT_EQ(Names{"Tint=1"}, Of(*feature));

    EXPECT_TRUE(document->Redo());
    EXPECT_EQ(Names{"Damping=3"}, Of(*feature));
}

TEST_F(KORUndeclaredAttributesTest, AreRolledBackLikeAllOthers) {
    const auto feature = NewFeature();
    {
        KORStep step(*document, "Edit");
        feature->SetUndeclared(damping, KORValue::OfInteger(2));
    }

    EXPECT_EQ(Names{}, Of(*feature));
}

TEST_F(KORUndeclaredAttributesTest, MarkTheirFeatureAsChangedOnlyWhenTheyChange) {
    const auto feature = NewFeature();
    feature->SetUndeclared(damping, KORValue::OfInteger(2));
    document->Features().Clean();

    feature->SetUndeclared(damping, KORValue::OfInteger(2));
    EXPECT_TRUE(document->Features().Dirty().empty());

    feature->SetUndeclared(damping, KORValue::OfInteger(3));
    EXPECT_EQ(std::vector<std::uint32_t>{1}, document->Features().Dirty());
}

TEST_F(KORUndeclaredAttributesTest, StayWithAFeatureThatIsRemovedAndComesBack) {
    const auto feature = NewFeature();
    feature->SetUndeclared(damping, KORValue::OfInteger(2));
    {
        KORStep step(*document, "Remove");
        feature->SetContainer(nullptr);
        step.Commit();
    }
    EXPECT_EQ(Names{"Damping=2"}, Of(*feature));

    EXPECT_TRUE(document->Undo());

    EXPECT_EQ(Names{"Damping=2"}, Of(*feature));
}

TEST_F(KORUndeclaredAttributesTest, AreCopiedAndTheCopiesAreTheCopysOwn) {
    const auto original = NewFeature();
    original->SetUndeclared(damping, KORValue::OfInteger(2));
    original->SetUndeclared(tint, KORValue::OfInteger(4));
    original->RemoveUndeclared(tint);

    const auto copy = KORFeature::NewCopy(*original, *container);
    original->SetUndeclared(damping, KORValue::OfInteger(9));

    EXPECT_EQ(Names{"Damping=2"}, Of(*copy));
}

TEST_F(KORUndeclaredAttributesTest, OfACopyAreNoChangesOfTheirOwnInTheStepThatMadeIt) {
    const auto original = NewFeature();
    original->SetUndeclared(damping, KORValue::OfInteger(2));
    KORStep step(*document, "Copy");

    const auto copy = KORFeature::NewCopy(*original, *container);
    copy->SetUndeclared(damping, KORValue::OfInteger(3));

    EXPECT_EQ(1u, document->Log().OpenEntries().size());
    step.Commit();
}

TEST_F(KORUndeclaredAttributesTest, HoldReferencesUntilTheFeatureIsGone) {
    const auto target = NewFeature();
    EXPECT_EQ(2, target->References());
    {
        const auto feature = NewFeature();
        feature->SetUndeclared("Next", KORValue::OfComponent(target.Get()));
        EXPECT_EQ(3, target->References());
        feature->SetContainer(nullptr);
    }

    EXPECT_EQ(2, target->References());
    EXPECT_EQ(1u, document->Features().Size());
}

TEST_F(KORUndeclaredAttributesTest, LetFeaturesGoThatReferenceEachOtherWhenTheDocumentIsClosed) {
    const auto first = NewFeature();
    const auto second = NewFeature();
    first->SetUndeclared("Next", KORValue::OfComponent(second.Get()));
    second->SetUndeclared("Next", KORValue::OfComponent(first.Get()));

    document->Close();

    EXPECT_EQ(1, first->References());
    EXPECT_EQ(1, second->References());
    EXPECT_EQ(Names{}, Of(*first));
    first->SetUndeclared("Next", KORValue::OfInteger(1));
    EXPECT_EQ(Names{}, Of(*first));
}

TEST_F(KORUndeclaredAttributesTest, LetAChainOfFeaturesGoWithItsFirst) {
    auto first = NewFeature();
    for (int link = 0; link < 100; ++link) {
        const auto before = NewFeature();
        before->SetUndeclared("Next", KORValue::OfComponent(first.Get()));
        first->SetContainer(nullptr);
        first = before;
    }
    first->SetContainer(nullptr);
    EXPECT_EQ(101u, document->Features().Size());

    first = nullptr;

    EXPECT_EQ(0u, document->Features().Size());
}

TEST_F(KORUndeclaredAttributesTest, AreComponentsThatTheFeatureConsistsOf) {
    const auto target = NewFeature();
    const auto feature = NewFeature();
    feature->SetUndeclared("Next", KORValue::OfComponent(target.Get()));
    std::vector<KORBaseUnknown*> found;

    feature->ForEachComponent([&](KORBaseUnknown& component) { found.push_back(&component); });

    EXPECT_EQ(std::vector<KORBaseUnknown*>{target.Get()}, found);
}

TEST_F(KORUndeclaredAttributesTest, AreAtMostAsManyAsThereAreSlots) {
    const auto feature = NewFeature();
    for (int number = 1; number <= 32768; ++number) {
        feature->SetUndeclared(KORUnicodeString(std::string_view(std::to_string(number))),
                               KORValue::OfInteger(number));
    }

    EXPECT_THROW(feature->SetUndeclared("OneMore", KORValue::OfInteger(1)), std::length_error);

    feature->SetUndeclared("32768", KORValue::OfInteger(7));
    EXPECT_EQ("32768=7", Of(*feature).back());
    EXPECT_EQ(32768u, Of(*feature).size());
}

TEST_F(KORUndeclaredAttributesTest, CostNothingWhereThereAreNone) {
    EXPECT_EQ(sizeof(KORAttributeReads<KORFeature, KORILinkableObject, KORIAlias>) + sizeof(void*) + 8,
              sizeof(KORFeature));
}

TEST_F(KORUndeclaredAttributesTest, HaveSlotsThatAreVisitedBehindThoseOfTheType) {
    const auto feature = NewFeature();
    const std::string_view odd("a\0b", 3);
    feature->SetUndeclared(KORUnicodeString(odd), KORValue::OfDouble(2.0));
    feature->SetUndeclared("Gone", KORValue::OfDouble(3.0));
    feature->RemoveUndeclared("Gone");

    std::vector<std::string> visited;
    feature->ForEachSlot([&](KORSlot slot) {
        const bool absent = feature->At(slot).State() == KORValueState::Absent;
        visited.push_back(std::string(feature->SlotText(slot)) + (absent ? " absent" : ""));
    });

    EXPECT_EQ((std::vector<std::string>{"Flag", "Count", "Length", "Text", "Numbers", "Other", "Others",
                                        std::string(odd), "Gone absent"}),
              visited);
    const KORSlot slot = feature->UndeclaredSlot(KORUnicodeString(odd));
    EXPECT_GE(slot, KORLayout::kFirstUndeclared);
    EXPECT_EQ(2.0, feature->At(slot).Double());
    EXPECT_STREQ("a", feature->SlotName(slot));
}

}  // namespace
