#include "KORTestDocument.h"

namespace {

/// Features of a late type that hang on others: attributes "Father", which is that, "Part" and "Parts".
class KORFeatureCopyTest : public KORTestDocument {
protected:
    KORVar<KORFeature> NewHanging() {
        return KORFeature::New(*document, hangingLayout, "Hanging", *container);
    }

    static std::vector<KORBaseUnknown*> ComponentsOf(const KORFeature& feature) {
        std::vector<KORBaseUnknown*> found;
        feature.ForEachComponent([&](KORBaseUnknown& component) { found.push_back(&component); });
        return found;
    }

    const KORLayoutHandle hangingLayout = KORHangingLayout();
    const KORName* const father = KORName::Intern("Father");
    const KORName* const part = KORName::Intern("Part");
    const KORName* const parts = KORName::Intern("Parts");
};

TEST_F(KORFeatureCopyTest, HasTheOriginalsNameAliasAndValues) {
    const auto original = NewFeature("Steel");
    original->SetAlias("S235");
    original->SetDouble(length, 2.5, 0);
    original->SetListOfDouble(numbers, KORNumbers({1.0, 2.0}));
    original->SetString(text, "a", 0);
    original->RemoveAllValues(others);
    original->RemoveValue(flag);

    const auto copy = KORFeature::NewCopy(*original, *container);

    EXPECT_EQ(2u, copy->Number());
    EXPECT_EQ(KORUnicodeString("Steel"), copy->GetName());
    EXPECT_EQ(KORUnicodeString("S235"), copy->GetAlias());
    EXPECT_EQ(2.5, copy->GetDouble(length, 0));
    EXPECT_EQ(7, copy->GetInteger(count, 0));
    EXPECT_EQ(KORUnicodeString("a"), copy->GetString(text, 0));
    EXPECT_EQ(KORValueState::NeverValued, copy->At(copy->Layout().Find(flag).slot).State());
    EXPECT_EQ(KORValueState::Empty, copy->At(copy->Layout().Find(others).slot).State());
    EXPECT_EQ(KORValueState::NeverValued, copy->At(copy->Layout().Find(other).slot).State());
    EXPECT_EQ(container, KORBaseUnknown_var::Adopt(copy->GetFeatContainer()));
}

TEST_F(KORFeatureCopyTest, SharesItsListsWithTheOriginalUntilOneIsWritten) {
    const auto original = NewFeature();
    original->SetListOfDouble(numbers, KORNumbers({1.0, 2.0}));

    const auto copy = KORFeature::NewCopy(*original, *container);

    const KORSlot slot = copy->Layout().Find(numbers).slot;
    EXPECT_EQ(original->At(slot).ListOfDoubles().Data(), copy->At(slot).ListOfDoubles().Data());
    copy->SetListOfDouble(numbers, KORNumbers({3.0}));
    EXPECT_EQ(2, original->GetListSize(numbers));
}

TEST_F(KORFeatureCopyTest, ReferencesWhatTheOriginalReferences) {
    const auto target = NewFeature();
    const auto original = NewFeature();
    original->SetComponent(other, target.Get(), 0);

    const auto copy = KORFeature::NewCopy(*original, *container);

    EXPECT_EQ(target.Get(), KORBaseUnknown_var::Adopt(copy->GetComponent(other, 0)).Get());
    EXPECT_EQ(4, target->References());  // container, test, original, copy
}

TEST_F(KORFeatureCopyTest, IsUndoneAndRedoneAsOneChange) {
    const auto original = NewFeature();
    original->SetAlias("A");
    {
        KORStep step(*document, "Copy");
        const auto copy = KORFeature::NewCopy(*original, *container);
        copy->SetAlias("B");
        copy->SetDouble(length, 9.0, 0);
        step.Commit();
    }
    EXPECT_EQ(1u, document->Log().Steps()[0].entries.size());

    EXPECT_TRUE(document->Undo());
    EXPECT_EQ(1u, document->FeatureCount());
    EXPECT_TRUE(document->Redo());

    EXPECT_EQ(KORUnicodeString("B"), document->Features().Find(2)->GetAlias());
    EXPECT_EQ(9.0, document->Features().Find(2)->GetDouble(length, 0));
    EXPECT_EQ(KORUnicodeString("A"), original->GetAlias());
}

TEST_F(KORFeatureCopyTest, HangsOnWhatItsFatherAttributeReferences) {
    const auto base = NewFeature();
    const auto hanging = NewHanging();
    EXPECT_EQ(nullptr, hanging->GetFather());
    EXPECT_EQ(nullptr, base->GetFather());

    hanging->SetComponent(father, base.Get(), 0);

    EXPECT_EQ(base, KORVar<KORFeature>(KORISpecObject_var::Adopt(hanging->GetFather())));
    EXPECT_EQ(3, base->References());
    document->Close();
    EXPECT_EQ(nullptr, hanging->GetFather());
}

TEST_F(KORFeatureCopyTest, HangsOnNothingWhenNoAttributeIsTheFather) {
    std::vector<KORAttribute> attributes;
    attributes.push_back({father, KORValue(KORAttributeKind::Component)});
    const auto odd = std::make_shared<KORLayout>(KORName::Intern("KOROddLT"), std::move(attributes));
    const auto base = NewFeature();

    const auto feature = KORFeature::New(*document, odd, "odd", *container);
    feature->SetComponent(father, base.Get(), 0);

    EXPECT_EQ(0, odd->FatherSlot());
    EXPECT_EQ(nullptr, feature->GetFather());
}

TEST_F(KORFeatureCopyTest, ConsistsOfItsComponentsButNotOfItsFather) {
    const auto base = NewFeature();
    const auto one = NewFeature();
    const auto object = KORBaseUnknown_var::Adopt(new KORBaseUnknown);
    const auto hanging = NewHanging();
    hanging->SetComponent(father, base.Get(), 0);
    hanging->SetComponent(part, one.Get(), 0);
    hanging->AppendComponent(parts, object.Get());
    hanging->AppendComponent(parts, nullptr);
    hanging->AppendComponent(parts, base.Get());

    EXPECT_EQ((std::vector<KORBaseUnknown*>{one.Get(), object.Get(), base.Get()}), ComponentsOf(*hanging));
    EXPECT_EQ(2, object->References());
}

TEST_F(KORFeatureCopyTest, WithoutComponentsConsistsOfItself) {
    const auto feature = NewFeature();
    feature->RemoveAllValues(others);

    EXPECT_TRUE(ComponentsOf(*feature).empty());
}

}  // namespace
