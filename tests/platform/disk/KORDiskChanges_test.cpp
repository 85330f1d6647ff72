#include <functional>

#include "interfaces/KORICutAndPastable.h"
#include "tests/platform/disk/KORDiskTest.h"

namespace {

/// One way to change a document.
struct Change {
    const char* name;
    std::function<void(KORMemoryDocument&, KORFeature& first, KORFeature& second)> make;
};

void PrintTo(const Change& change, std::ostream* out) {
    *out << change.name;
}

const KORName* Key(const char* name) {
    return KORName::Intern(name);
}

/// Every way in which a document can change reaches its file, in a step and outside of any: whoever writes to
/// a feature past KORFeature::Write has to mark it, too.
class KORDiskChanges : public KORDiskTest, public testing::WithParamInterface<Change> {
protected:
    void SetUp() override {
        document_ = Create();
        Do(document_->Document(), "Make", [&] {
            const auto first = Material(document_->Document(), "First");
            const auto second = Material(document_->Document(), "Second");
            first->SetListOfDouble(numbers, KORNumbers({1.0}));
            first->AppendComponent(others, second.Get());
            first->SetUndeclared("Late", KORValue::OfDouble(1.0));
            document_->Document().AddContainer("Other");
        });
        Do(document_->Document(), "Set", [&] { First(document_->Document())->SetInteger(count, 8, 1); });
        Save(*document_);
        ASSERT_FALSE(document_->IsModified());
        document_ = nullptr;
        document_ = OpenToChange();  // no step has touched a value since
    }

    void Make() {
        const KORVar<KORFeature> first(document_->Document().Features().Find(1));
        const KORVar<KORFeature> second(document_->Document().Features().Find(2));
        GetParam().make(document_->Document(), *first, *second);
    }

    /// What is in memory after a save is what the file holds.
    void ExpectSaved() {
        EXPECT_TRUE(document_->IsModified());
        Save(*document_);
        EXPECT_FALSE(document_->IsModified());
        const std::string shown = Shown(document_->Document());
        EXPECT_NE(before_, shown);
        document_ = nullptr;
        EXPECT_EQ(shown, Shown(OpenToRead("d.zeldoc", KORDiskDocument::History::Steps)->Document()));
        EXPECT_EQ(shown, Shown(OpenToChange()->Document()));
    }

    std::unique_ptr<KORDiskDocument> document_;
    std::string before_;
};

TEST_P(KORDiskChanges, OutsideAStepAreSaved) {
    before_ = Shown(document_->Document());
    Make();
    ExpectSaved();
}

TEST_P(KORDiskChanges, InAStepAreSaved) {
    before_ = Shown(document_->Document());
    Do(document_->Document(), "Change", [&] { Make(); });
    ExpectSaved();
}

TEST_P(KORDiskChanges, AreSavedWhenTheyAreUndone) {
    Do(document_->Document(), "Change", [&] { Make(); });
    Save(*document_);
    before_ = Shown(document_->Document());
    document_->Document().Undo();
    ExpectSaved();
}

TEST_P(KORDiskChanges, AreSavedWhenTheyAreRedone) {
    Do(document_->Document(), "Change", [&] { Make(); });
    document_->Document().Undo();
    Save(*document_);
    before_ = Shown(document_->Document());
    document_->Document().Redo();
    ExpectSaved();
}

TEST_P(KORDiskChanges, AreUndoneAndRedoneInAnotherProgram) {
    const std::string original = Shown(document_->Document());
    Do(document_->Document(), "Change", [&] { Make(); });
    const std::string changed = Shown(document_->Document());
    Save(*document_);
    document_ = nullptr;
    document_ = OpenToChange();
    document_->Document().Undo();
    Save(*document_);
    document_ = nullptr;
    document_ = OpenToChange();
    std::string undone = Shown(document_->Document());
    EXPECT_EQ(original, undone.substr(0, original.size()));
    document_->Document().Redo();
    EXPECT_EQ(changed, Shown(document_->Document()));
}

TEST_P(KORDiskChanges, ThatAreRolledBackLeaveTheFileAsItIs) {
    const std::string shown = Shown(document_->Document());
    {
        const KORStep step(document_->Document(), "Change");
        Make();
    }
    Save(*document_);
    document_ = nullptr;
    EXPECT_EQ(shown, Shown(OpenToRead()->Document()));
    EXPECT_EQ(2u, OpenToRead()->Steps().size());
}

const Change kChanges[] = {
    {"Boolean", [](auto&, auto& first, auto&) { first.SetBoolean(Key("Flag"), false, 1); }},
    {"Integer", [](auto&, auto& first, auto&) { first.SetInteger(Key("Count"), 9, 1); }},
    {"Double", [](auto&, auto& first, auto&) { first.SetDouble(Key("Length"), 9.0, 1); }},
    {"String", [](auto&, auto& first, auto&) { first.SetString(Key("Text"), "new", 1); }},
    {"ListOfDoubles",
     [](auto&, auto& first, auto&) { first.SetListOfDouble(Key("Numbers"), KORNumbers({2.0})); }},
    {"Component", [](auto&, auto& first, auto& second) { first.SetComponent(Key("Other"), &second, 1); }},
    {"AppendedComponent",
     [](auto&, auto& first, auto& second) { first.AppendComponent(Key("Others"), &second); }},
    {"TwoAppendedComponents",
     [](auto&, auto& first, auto& second) {
         first.AppendComponent(Key("Others"), &second);
         first.AppendComponent(Key("Others"), nullptr);
     }},
    {"EmptiedNumbers", [](auto&, auto& first, auto&) { first.RemoveAllValues(Key("Numbers")); }},
    {"EmptiedComponents", [](auto&, auto& first, auto&) { first.RemoveAllValues(Key("Others")); }},
    {"RemovedValue", [](auto&, auto& first, auto&) { first.RemoveValue(Key("Numbers")); }},
    {"Alias", [](auto&, auto& first, auto&) { first.SetAlias("called"); }},
    {"EmptyAlias", [](auto&, auto& first, auto&) { first.SetAlias(""); }},
    {"Container",
     [](auto& document, auto& first, auto&) { first.SetContainer(document.AddContainer("Other").Get()); }},
    {"OutOfContainer", [](auto&, auto&, auto& second) { second.SetContainer(nullptr); }},
    {"Vanished", [](auto&, auto& first, auto&) { first.SetContainer(nullptr); }},
    {"Undeclared", [](auto&, auto& first, auto&) { first.SetUndeclared("Late", KORValue::OfString("x")); }},
    {"NewUndeclared",
     [](auto&, auto& first, auto&) { first.SetUndeclared("Later", KORValue::OfBoolean(true)); }},
    {"UndeclaredWithNul",
     [](auto&, auto& first, auto&) {
         first.SetUndeclared(KORUnicodeString(std::string_view("La\0te", 5)), KORValue::OfInteger(-1));
     }},
    {"RemovedUndeclared", [](auto&, auto& first, auto&) { first.RemoveUndeclared("Late"); }},
    {"NewFeature",
     [](auto& document, auto&, auto&) { document.NewPlatformFeature("KORDiskTestLT", "Third"); }},
    {"Copy",
     [](auto& document, auto& first, auto&) {
         const auto container = KORBaseUnknown_var::Adopt(document.GetFeatContainer());
         KORFeature::NewCopy(first, *container);
     }},
};

INSTANTIATE_TEST_SUITE_P(, KORDiskChanges, testing::ValuesIn(kChanges),
                         [](const auto& change) { return std::string(change.param.name); });

}  // namespace
