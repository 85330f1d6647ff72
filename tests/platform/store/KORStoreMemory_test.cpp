// What the store is like after an operation for which there was no memory. A program of its own, since it
// replaces the allocation functions of its process.

#include <functional>
#include <new>

#include "KORTestDocument.h"
#include "tests/support/ZELFailingAllocation.h"

namespace {

class KORStoreMemory : public KORTestDocument {
protected:
    /// Runs an operation of a step once for each allocation that it makes, failing that one. `state` tells
    /// what the operation changes; it has to be as before or as afterwards, and undo has to lead back.
    void FailEachAllocation(const std::function<void()>& operation,
                            const std::function<std::string()>& state) {
        const std::string before = state();
        operation();
        const std::string after = state();
        SetBack();
        ASSERT_EQ(before, state());
        bool failed = true;
        for (int n = 1; failed; ++n) {
            failed = RunWithFault(operation, n);
            EXPECT_TRUE(state() == before || state() == after) << "allocation " << n << ": " << state();
            const std::string found = state();
            if (document->CanUndo()) {
                EXPECT_TRUE(document->Undo());
                EXPECT_EQ(before, state()) << "allocation " << n;
                EXPECT_TRUE(document->Redo());
                EXPECT_EQ(found, state()) << "allocation " << n;
                EXPECT_TRUE(document->Undo());
            }
            ASSERT_EQ(before, state());
            document->Log().Clear();
        }
    }

    /// Whether an allocation failed; whatever was done by then is committed.
    bool RunWithFault(const std::function<void()>& operation, int n) {
        KORStep step(*document, "Edit");
        bool failed = false;
        try {
            const ZELFailingAllocation fault(n);
            operation();
        } catch (const std::bad_alloc&) {
            failed = true;
        }
        step.Commit();
        return failed;
    }

    void SetBack() {
        feature->SetString(text, "", 0);
        feature->RemoveValue(numbers);
        feature->RemoveValue(others);
        feature->SetAlias("");
        feature->RemoveUndeclared("Colour");
    }

    std::string Entries() const {
        const std::unique_ptr<KORListValKORISpecObject_var> listed(feature->GetListOfComponents(others));
        if (!listed) return "never valued";
        std::string entries;
        for (int position = 1; position <= listed->Size(); ++position) {
            const auto entry = KORBaseUnknown_var::Adopt(feature->GetComponent(others, position));
            entries += (*listed)[position] ? "feature " : entry ? "other " : "nothing ";
        }
        return entries;
    }

    const KORVar<KORFeature> feature = NewFeature();
    const KORBaseUnknown_var stranger = KORBaseUnknown_var::Adopt(new KORBaseUnknown);
};

TEST_F(KORStoreMemory, LeavesAListWithTheComponentOrWithout) {
    for (KORBaseUnknown* const component : {static_cast<KORBaseUnknown*>(feature.Get()), stranger.Get()}) {
        FailEachAllocation([&] { feature->AppendComponent(others, component); }, [&] { return Entries(); });
    }
}

// A list that this step has made already grows where it is.
TEST_F(KORStoreMemory, LeavesAListThatGrowsInPlaceWhole) {
    const auto second = KORBaseUnknown_var::Adopt(new KORBaseUnknown);
    for (int before = 0; before <= 1; ++before) {
        for (int n = 1; n <= 4; ++n) {
            KORStep step(*document, "Edit");
            const auto created = NewFeature();
            if (before == 1) created->AppendComponent(others, stranger.Get());
            bool failed = false;
            try {
                const ZELFailingAllocation fault(n);
                created->AppendComponent(others, stranger.Get());
            } catch (const std::bad_alloc&) {
                failed = true;
            }
            if (failed && before == 0) {
                EXPECT_EQ(nullptr, created->GetListOfComponents(others)) << "never valued";
            }

            created->AppendComponent(others, second.Get());

            const int size = created->GetListSize(others);
            EXPECT_EQ(failed ? before + 1 : before + 2, size);
            EXPECT_EQ(second, KORBaseUnknown_var::Adopt(created->GetComponent(others, size)));
        }
    }
}

TEST_F(KORStoreMemory, LeavesATextAnAliasAndNumbersAsTheyWereOrAreToBe) {
    const auto alias = [&] { return std::string(feature->GetAlias().View()); };
    const auto stored = [&] { return std::string(feature->GetString(text, 0).View()); };
    const auto size = [&] { return std::to_string(feature->GetListSize(numbers)); };

    FailEachAllocation([&] { feature->SetString(text, "a text", 0); }, stored);
    FailEachAllocation([&] { feature->SetAlias("an alias"); }, alias);
    FailEachAllocation([&] { feature->SetListOfDouble(numbers, KORNumbers({1.0, 2.0})); }, size);
}

TEST_F(KORStoreMemory, LeavesUndeclaredAttributesAsTheyWereOrAreToBe) {
    const auto colour = [&] {
        std::string told = "none";
        feature->ForEachUndeclared([&](const KORUnicodeString& name, const KORValue& value) {
            told = std::string(name.View()) + "=" + std::string(value.String().View());
        });
        return told;
    };

    FailEachAllocation([&] { feature->SetUndeclared("Colour", KORValue::OfString("red")); }, colour);
}

TEST_F(KORStoreMemory, LeavesADocumentWithTheNewFeatureOrWithout) {
    const auto features = [&] { return std::to_string(document->FeatureCount()); };
    const std::size_t alive = document->Features().Size();
    for (int n = 1;; ++n) {
        const std::string before = features();
        const bool failed = RunWithFault([&] { NewFeature("with a name of its own"); }, n);
        if (!failed) break;
        EXPECT_EQ(before, features()) << "allocation " << n;
        EXPECT_EQ(alive, document->Features().Size()) << "allocation " << n;
        EXPECT_FALSE(document->CanUndo()) << "allocation " << n;
    }
    EXPECT_EQ("2", features());
}

// The list of components is the last value that a copy takes over, and the only one that needs memory.
TEST_F(KORStoreMemory, GivesBackWhatACopyReferencesThatCannotBeMade) {
    feature->SetComponent(other, stranger.Get(), 0);
    feature->AppendComponent(others, stranger.Get());
    feature->SetString(text, "a text of its own, longer than any that lies in the string itself", 0);
    const std::int32_t references = stranger->References();
    const std::size_t alive = document->Features().Size();
    bool failed = true;
    int failures = 0;
    for (int n = 1; failed; ++n) {
        failed = RunWithFault([&] { KORFeature::NewCopy(*feature, *container); }, n);
        if (!failed) break;
        ++failures;
        EXPECT_EQ(references, stranger->References()) << "allocation " << n;
        EXPECT_EQ(alive, document->Features().Size()) << "allocation " << n;
    }
    EXPECT_GE(failures, 2);
    EXPECT_EQ(references + 2, stranger->References());
}

}  // namespace
