#include "KORTestDocument.h"

namespace {

class KORMemoryContainerCopies : public KORTestDocument {
protected:
    static KORListValKORISpecObject_var List(std::initializer_list<KORFeature*> features) {
        KORListValKORISpecObject_var list;
        for (KORFeature* feature : features) list.Append(KORISpecObject_var(feature));
        return list;
    }
    static std::uint32_t NumberOf(KORBaseUnknown* reference) {
        return KORVar<KORFeature>(KORBaseUnknown_var::Adopt(reference))->Number();
    }

    const KORVar<KORMemoryContainer> second = document->AddContainer("Second");
    const KORICutAndPastable_var own{container};
    const KORICutAndPastable_var target{KORBaseUnknown_var(second.Get())};
    KORListValKORISpecObject_var extracted;
    KORListValKORISpecObject_var copies;
};

TEST_F(KORMemoryContainerCopies, TakeAlongWhatIsReferencedInTheSameContainer) {
    const auto root = NewFeature();    // 1
    const auto direct = NewFeature();  // 2
    const auto listed = NewFeature();  // 3
    const auto below = NewFeature();   // 4
    const auto foreign = KORFeature::New(*document, layout, "Foreign", *second);
    root->SetComponent(other, direct.Get(), 0);
    root->AppendComponent(others, listed.Get());
    root->AppendComponent(others, nullptr);
    root->AppendComponent(others, foreign.Get());
    root->AppendComponent(others, root.Get());
    direct->SetComponent(other, below.Get(), 0);
    below->SetComponent(other, direct.Get(), 0);

    EXPECT_EQ(S_OK, own->Extract(List({root.Get()}), extracted));

    EXPECT_EQ((std::vector<std::uint32_t>{1, 2, 3, 4}), KORNumbersOf(extracted));
}

TEST_F(KORMemoryContainerCopies, HaveWhatTheirLateTypesDoNotDeclareAndTakeAlongWhatThatReferences) {
    const auto root = NewFeature();    // 1
    const auto part = NewFeature();    // 2
    const auto listed = NewFeature();  // 3
    const auto foreign = KORFeature::New(*document, layout, "Foreign", *second);
    KORValue all = KORValue::EmptyList(KORAttributeKind::ListOfComponents);
    for (KORFeature* entry : {listed.Get(), foreign.Get(), static_cast<KORFeature*>(nullptr)})
        all.Append(entry);
    root->SetUndeclared("Damping", KORValue::OfDouble(0.02));
    root->SetUndeclared("Next", KORValue::OfComponent(part.Get()));
    root->SetUndeclared("All", std::move(all));
    EXPECT_EQ(S_OK, own->Extract(List({root.Get()}), extracted));

    EXPECT_EQ(S_OK, target->Paste(extracted, copies));

    ASSERT_EQ((std::vector<std::uint32_t>{5, 6, 7}), KORNumbersOf(copies));
    const KORVar<KORFeature> copy(copies[1]);
    const KORUndeclaredAttributes& attributes = document->UndeclaredOf(copy->Number());
    EXPECT_EQ(0.02, attributes.At(attributes.Find("Damping")).Double());
    EXPECT_EQ(KORVar<KORFeature>(copies[2]).Get(), attributes.At(attributes.Find("Next")).Component());
    const KORValue& list = attributes.At(attributes.Find("All"));
    ASSERT_EQ(3, list.ListSize());
    EXPECT_EQ(KORBaseUnknown_var(copies[3]), list.ComponentAt(1));
    EXPECT_EQ(KORBaseUnknown_var(foreign.Get()), list.ComponentAt(2));
    EXPECT_FALSE(list.ComponentAt(3));
}

TEST_F(KORMemoryContainerCopies, ReferenceEachOtherAndElsewhereWhatTheOriginalsReference) {
    const auto root = NewFeature();
    const auto part = NewFeature();
    const auto foreign = KORFeature::New(*document, layout, "Foreign", *second);
    const auto object = KORBaseUnknown_var::Adopt(new KORBaseUnknown);
    root->SetComponent(other, part.Get(), 0);
    for (KORBaseUnknown* entry : {static_cast<KORBaseUnknown*>(part.Get()),
                                  static_cast<KORBaseUnknown*>(foreign.Get()), object.Get()}) {
        root->AppendComponent(others, entry);
    }
    root->AppendComponent(others, nullptr);
    part->SetComponent(other, foreign.Get(), 0);
    EXPECT_EQ(S_OK, own->Extract(List({root.Get()}), extracted));

    EXPECT_EQ(S_OK, target->Paste(extracted, copies));

    ASSERT_EQ((std::vector<std::uint32_t>{4, 5}), KORNumbersOf(copies));
    const KORVar<KORFeature> copy(copies[1]);
    EXPECT_EQ(5u, NumberOf(copy->GetComponent(other, 0)));
    EXPECT_EQ(4, copy->GetListSize(others));
    EXPECT_EQ(5u, NumberOf(copy->GetComponent(others, 1)));
    EXPECT_EQ(3u, NumberOf(copy->GetComponent(others, 2)));
    EXPECT_EQ(object, KORBaseUnknown_var::Adopt(copy->GetComponent(others, 3)));
    EXPECT_EQ(nullptr, copy->GetComponent(others, 4));
    EXPECT_EQ(3u, NumberOf(KORVar<KORFeature>(copies[2])->GetComponent(other, 0)));
    EXPECT_EQ(2u, NumberOf(root->GetComponent(other, 0)));  // the original is as it was
    EXPECT_EQ(KORBaseUnknown_var(second.Get()), KORBaseUnknown_var::Adopt(copy->GetFeatContainer()));
    EXPECT_EQ(5u, document->FeatureCount());
}

TEST_F(KORMemoryContainerCopies, OfAPartAloneStillReferenceTheOriginals) {
    const auto root = NewFeature();
    const auto part = NewFeature();
    root->SetComponent(other, part.Get(), 0);

    EXPECT_EQ(S_OK, own->Paste(List({root.Get()}), copies));

    EXPECT_EQ((std::vector<std::uint32_t>{3}), KORNumbersOf(copies));
    EXPECT_EQ(2u, NumberOf(KORVar<KORFeature>(copies[1])->GetComponent(other, 0)));
}

TEST_F(KORMemoryContainerCopies, AreMadeAsOftenAsAFeatureIsGiven) {
    const auto row = NewFeature();

    EXPECT_EQ(S_OK, own->Extract(List({row.Get(), row.Get()}), extracted));
    EXPECT_EQ(S_OK, own->Paste(extracted, copies));

    EXPECT_EQ((std::vector<std::uint32_t>{1, 1}), KORNumbersOf(extracted));
    EXPECT_EQ((std::vector<std::uint32_t>{2, 3}), KORNumbersOf(copies));
}

TEST_F(KORMemoryContainerCopies, AreTakenAwayByUndo) {
    const auto root = NewFeature();
    const auto part = NewFeature();
    root->SetComponent(other, part.Get(), 0);
    root->AppendComponent(others, part.Get());
    EXPECT_EQ(S_OK, own->Extract(List({root.Get()}), extracted));
    {
        KORStep step(*document, "Copy");
        EXPECT_EQ(S_OK, own->Paste(extracted, copies));
        step.Commit();
    }
    copies = {};
    EXPECT_EQ(4u, document->FeatureCount());

    EXPECT_TRUE(document->Undo());
    EXPECT_EQ(2u, document->FeatureCount());
    EXPECT_TRUE(document->Redo());

    EXPECT_EQ(4u, document->FeatureCount());
    EXPECT_EQ(4u, NumberOf(document->Features().Find(3)->GetComponent(other, 0)));
    EXPECT_EQ(4u, NumberOf(document->Features().Find(3)->GetComponent(others, 1)));
}

TEST_F(KORMemoryContainerCopies, LeaveNoReferencesBehind) {
    const auto root = NewFeature();
    const auto part = NewFeature();
    root->SetComponent(other, part.Get(), 0);

    EXPECT_EQ(S_OK, own->Extract(List({root.Get()}), extracted));
    EXPECT_EQ(S_OK, own->Paste(extracted, copies));
    extracted = {};

    EXPECT_EQ(2, root->References());                               // container, test
    EXPECT_EQ(3, part->References());                               // and the root
    EXPECT_EQ(2, KORVar<KORFeature>(copies[1])->References() - 1);  // container, list
}

TEST_F(KORMemoryContainerCopies, AreNotMadeOfWhatLiesElsewhere) {
    const auto foreign = KORFeature::New(*document, layout, "Foreign", *second);
    const auto mine = NewFeature();
    extracted = List({mine.Get()});

    EXPECT_EQ(E_FAIL, own->Extract(List({mine.Get(), foreign.Get()}), extracted));
    EXPECT_EQ(E_FAIL, own->Extract(List({nullptr}), extracted));

    EXPECT_EQ((std::vector<std::uint32_t>{2}), KORNumbersOf(extracted));
}

TEST_F(KORMemoryContainerCopies, AreNotMadeOfOtherDocumentsFeatures) {
    const auto elsewhere = KORMemoryDocument::New(platform);
    const auto foreign = elsewhere->NewPlatformFeature("KORMaterialLT", "Steel");
    const auto mine = NewFeature();

    EXPECT_EQ(E_FAIL, own->Paste(List({mine.Get(), foreign.Get()}), copies));
    EXPECT_EQ(E_FAIL, own->Paste(List({nullptr}), copies));

    EXPECT_EQ(1u, document->FeatureCount());
    EXPECT_EQ(0, copies.Size());
}

TEST_F(KORMemoryContainerCopies, AreNotMadeOnceTheDocumentIsClosed) {
    const auto mine = NewFeature();
    extracted = List({mine.Get()});

    document->Close();

    EXPECT_EQ(E_FAIL, own->Extract(List({mine.Get()}), copies));
    EXPECT_EQ(E_FAIL, own->Paste(extracted, copies));
    EXPECT_EQ(E_FAIL, own->Remove(mine.Get()));
}

TEST_F(KORMemoryContainerCopies, OfNothingAreNone) {
    EXPECT_EQ(S_OK, own->Extract({}, extracted));
    EXPECT_EQ(S_OK, own->Paste(extracted, copies));

    EXPECT_EQ(0, copies.Size());
}

TEST_F(KORMemoryContainerCopies, OfHangingDataLeaveTheFatherWhereItIs) {
    const auto base = NewFeature();
    const auto hanging = KORFeature::New(*document, KORHangingLayout(), "Hanging", *container);
    hanging->SetComponent(KORName::Intern("Father"), base.Get(), 0);
    base->SetComponent(other, hanging.Get(), 0);

    EXPECT_EQ(S_OK, own->Extract(List({hanging.Get()}), extracted));
    EXPECT_EQ((std::vector<std::uint32_t>{2}), KORNumbersOf(extracted));

    // The whole, however, is copied with what hangs on it.
    EXPECT_EQ(S_OK, own->Extract(List({base.Get()}), extracted));
    EXPECT_EQ(S_OK, own->Paste(extracted, copies));
    ASSERT_EQ((std::vector<std::uint32_t>{3, 4}), KORNumbersOf(copies));
    EXPECT_EQ(copies[1], KORISpecObject_var::Adopt(copies[2]->GetFather()));
}

TEST_F(KORMemoryContainerCopies, AreRemovedFromTheirContainerOnly) {
    const auto root = NewFeature();
    const auto part = NewFeature();
    root->SetComponent(other, part.Get(), 0);
    KORStep step(*document, "Remove");

    EXPECT_EQ(E_FAIL, target->Remove(root.Get()));
    EXPECT_EQ(E_FAIL, own->Remove(nullptr));
    EXPECT_EQ(S_OK, own->Remove(root.Get()));
    EXPECT_EQ(E_FAIL, own->Remove(root.Get()));

    EXPECT_EQ(1u, document->FeatureCount());
    EXPECT_TRUE(part->LiesInContainer());
    step.Commit();
    EXPECT_TRUE(document->Undo());
    EXPECT_TRUE(root->LiesInContainer());
}

TEST_F(KORMemoryContainerCopies, OfAnotherContainersFeaturesComeHere) {
    const auto foreign = KORFeature::New(*document, layout, "Foreign", *second);
    EXPECT_EQ(S_OK, target->Extract(List({foreign.Get()}), extracted));

    EXPECT_EQ(S_OK, own->Paste(extracted, copies));

    EXPECT_EQ(container, KORBaseUnknown_var::Adopt(copies[1]->GetFeatContainer()));
}

}  // namespace
