#include <bit>
#include <limits>
#include <map>
#include <random>
#include <variant>

#include "platform/disk/KORDoctor.h"
#include "tests/platform/disk/KORDiskTest.h"

namespace {

using testing::IsEmpty;
using testing::Optional;

/// What a document is to hold, as simply as can be: every value as text, every state before a step kept
/// whole.
class Model {
public:
    struct Feature {
        std::string name;
        std::string alias = "none";
        int container = 1;  ///< 0: in none
        std::map<std::string, std::string> values;
    };
    using State = std::map<std::uint32_t, Feature>;

    State state;

    void Commit(State before) {
        steps_.resize(done_);
        steps_.push_back(std::move(before));
        ++done_;
        after_.resize(done_);
    }
    bool Undo() {
        if (done_ == 0) return false;
        after_.resize(steps_.size());
        after_[done_ - 1] = std::exchange(state, steps_[done_ - 1]);
        --done_;
        return true;
    }
    bool Redo() {
        if (done_ == steps_.size()) return false;
        state = after_[done_++];
        return true;
    }
    void KeepLast(std::size_t most) {
        while (steps_.size() > most && done_ > 0) {
            steps_.erase(steps_.begin());
            after_.erase(after_.begin());
            --done_;
        }
    }
    std::size_t Done() const { return done_; }

    std::string Shown() const {
        std::string shown;
        for (const auto& [number, feature] : state) {
            if (feature.container == 0) continue;
            shown += std::to_string(number) + " " + feature.name + " alias " + feature.alias + " in " +
                     std::to_string(feature.container);
            for (const auto& [key, value] : feature.values) shown += " " + key + "=" + value;
            shown += "\n";
        }
        return shown;
    }

private:
    std::vector<State> steps_;  ///< the state before each
    std::vector<State> after_;
    std::size_t done_ = 0;
};

/// A document in a file and the model, under the same random commands.
class KORDiskSession : public KORDiskTest, public testing::WithParamInterface<int> {
protected:
    void Start() {
        disk_ = Create();
        disk_->Document().AddContainer("One");
        disk_->Document().AddContainer("Two");
    }

    std::uint32_t Below(std::uint32_t bound) { return static_cast<std::uint32_t>(random_() % bound); }

    KORVar<KORFeature> Any() {
        std::vector<std::uint32_t> listed;
        for (const auto& [number, feature] : model_.state) {
            if (feature.container != 0) listed.push_back(number);
        }
        if (listed.empty()) return nullptr;
        return KORVar<KORFeature>(
            disk_->Document().Features().Find(listed[Below(static_cast<std::uint32_t>(listed.size()))]));
    }

    KORBaseUnknown* Container(int number) {
        const KORDiskContainers containers(disk_->Document());
        return containers.At(static_cast<std::uint64_t>(number));
    }

    void New() {
        static const char* const kNames[] = {"KORDiskTestLT", "Steel", "", "a longer instance name"};
        const KORUnicodeString name(kNames[Below(4)]);
        const int container = 1 + static_cast<int>(Below(3));
        const KORCatalogType* type = platform->SharedCatalogs()->Find(KORName::Find("KORDiskTestLT"));
        const auto made = KORFeature::New(disk_->Document(), type->layout, name, *Container(container));
        Model::Feature feature;
        feature.name = std::string(name.View());
        feature.container = container;
        feature.values = {{"Flag", "true"},     {"Count", "7"},     {"Length", "1.5"},  {"Text", "''"},
                          {"Numbers", "never"}, {"Other", "never"}, {"Others", "never"}};
        model_.state[made->Number()] = feature;
    }

    double Number() {
        static const double kOdd[] = {0.0,
                                      -0.0,
                                      std::numeric_limits<double>::infinity(),
                                      std::bit_cast<double>(0x7FF8000000001234u),
                                      std::bit_cast<double>(0xFFF0000000000001u),
                                      std::numeric_limits<double>::denorm_min(),
                                      1e300,
                                      0.1};
        return Below(2) == 0 ? kOdd[Below(8)] : static_cast<double>(Below(1000)) / 8;
    }

    void Set(KORFeature& feature, std::map<std::string, std::string>& values) {
        switch (Below(14)) {
            case 0: {
                const bool value = Below(2) == 0;
                feature.SetBoolean(flag, value, 1);
                values["Flag"] = value ? "true" : "false";
                break;
            }
            case 1: {
                const int value = static_cast<int>(random_());
                feature.SetInteger(count, value, 1);
                values["Count"] = std::to_string(value);
                break;
            }
            case 2:
                SetTo(feature, values, "Length", KORValue::OfDouble(Number()));
                break;
            case 3: {
                static const std::string_view kTexts[] = {"", "x", std::string_view("a\0b", 3),
                                                          "\xC3\xA4\xFF", "''"};
                SetTo(feature, values, "Text", KORValue::OfString(KORUnicodeString(kTexts[Below(5)])));
                break;
            }
            case 4:
            case 5:
                SetTo(feature, values, "Numbers", Numbers());
                break;
            case 6:
                SetTo(feature, values, "Other", KORValue::OfComponent(Any().Get()));
                break;
            case 7:
            case 8: {
                const auto target = Below(4) == 0 ? nullptr : Any();
                feature.AppendComponent(others, target.Get());
                values["Others"] = KORShownValue(feature.At(SlotOf("Others")));
                break;
            }
            case 9:
                feature.RemoveAllValues(Below(2) == 0 ? numbers : others);
                values["Numbers"] = KORShownValue(feature.At(SlotOf("Numbers")));
                values["Others"] = KORShownValue(feature.At(SlotOf("Others")));
                break;
            case 10: {
                static const char* const kKeys[] = {"Flag",    "Count", "Length", "Text",
                                                    "Numbers", "Other", "Others"};
                const char* const key = kKeys[Below(7)];
                feature.RemoveValue(KORName::Intern(key));
                values[key] = "never";
                break;
            }
            case 11: {
                const std::string key = "Late" + std::to_string(Below(3));
                if (Below(3) == 0) {
                    feature.RemoveUndeclared(KORUnicodeString(std::string_view(key)));
                    values.erase("+" + key);
                } else {
                    KORValue value = Below(2) == 0 ? KORValue::OfDouble(Number()) : Numbers();
                    values["+" + key] = KORShownValue(value);
                    feature.SetUndeclared(KORUnicodeString(std::string_view(key)), std::move(value));
                }
                break;
            }
            case 12: {
                KORValue value(KORAttributeKind::Component);
                if (Below(2) == 0) value = KORValue::OfComponent(Any().Get());
                values["+Link"] = KORShownValue(value);
                feature.SetUndeclared("Link", std::move(value));
                break;
            }
            default: {
                const std::string alias = "alias " + std::to_string(Below(4));
                feature.SetAlias(KORUnicodeString(std::string_view(alias)));
                model_.state[feature.Number()].alias = alias;
            }
        }
    }

    KORValue Numbers() {
        KORRawColldouble list;
        for (std::uint32_t i = Below(6); i > 0; --i) list.Append(Number());
        return Below(6) == 0 ? KORValue(KORAttributeKind::ListOfDoubles) : KORValue::OfListOfDoubles(list);
    }

    KORSlot SlotOf(const char* key) {
        const KORCatalogType* type = platform->SharedCatalogs()->Find(KORName::Find("KORDiskTestLT"));
        return type->layout->Find(KORName::Intern(key)).slot;
    }

    void SetTo(KORFeature& feature, std::map<std::string, std::string>& values, const char* key,
               KORValue value) {
        values[key] = KORShownValue(value);
        feature.Write(SlotOf(key), std::move(value));
    }

    /// One command inside a step.
    void Change() {
        const auto feature = Any();
        if (!feature || Below(6) == 0) return New();
        Model::Feature& known = model_.state[feature->Number()];
        if (Below(8) == 0) {
            known.container = static_cast<int>(Below(4));
            feature->SetContainer(Container(known.container));
        } else {
            Set(*feature, known.values);
        }
    }

    void Step() {
        const auto before = model_.state;
        KORStep step(disk_->Document(), "Step");
        for (std::uint32_t i = 1 + Below(4); i > 0; --i) Change();
        const bool changed = !disk_->Document().Log().OpenEntries().empty();
        if (Below(10) == 0) {
            model_.state = before;
            return;
        }
        step.Commit();
        if (changed) model_.Commit(before);
    }

    void Command() {
        switch (Below(20)) {
            case 0:
            case 1:
            case 2:
                ASSERT_EQ(model_.Undo(), disk_->Document().Undo());
                break;
            case 3:
            case 4:
                ASSERT_EQ(model_.Redo(), disk_->Document().Redo());
                break;
            case 5:
                Save(*disk_);
                model_.KeepLast(most_);
                break;
            case 6:
                Save(*disk_);
                model_.KeepLast(most_);
                disk_ = nullptr;
                disk_ = OpenToChange();
                ASSERT_TRUE(disk_);
                break;
            default:
                Step();
        }
    }

    /// The features in containers as the model shows them.
    std::string ShownListed(KORMemoryDocument& document) {
        const KORDiskContainers containers(document);
        std::string shown;
        document.ForEachFeature(nullptr, [&](KORFeature& feature) {
            const KORValue& alias = feature.At(KORLayout::kAlias);
            shown += std::to_string(feature.Number()) + " " + std::string(feature.GetName().View()) +
                     " alias " +
                     (alias.State() == KORValueState::Valued ? std::string(alias.String().View()) : "none") +
                     " in " + std::to_string(*containers.NumberOf(feature.At(KORLayout::kContainer)));
            std::map<std::string, std::string> values;
            feature.ForEachSlot([&](KORSlot slot) {
                if (feature.At(slot).State() == KORValueState::Absent) return;
                const bool declared = slot < KORLayout::kFirstUndeclared;
                values[(declared ? "" : "+") + std::string(feature.SlotText(slot))] =
                    KORShownValue(feature.At(slot));
            });
            for (const auto& [key, value] : values) shown += " " + key + "=" + value;
            shown += "\n";
        });
        return shown;
    }

    std::mt19937 random_{static_cast<std::uint32_t>(GetParam())};
    Model model_;
    std::unique_ptr<KORDiskDocument> disk_;
    std::size_t most_ = 1000;
};

TEST_P(KORDiskSession, HoldsWhatTheModelHoldsAfterEverySaveUndoRedoAndReopening) {
    Start();
    for (int command = 0; command < 1000; ++command) {
        Command();
        if (HasFatalFailure()) return;
        ASSERT_EQ(model_.Shown(), ShownListed(disk_->Document())) << "after command " << command;
    }
    Save(*disk_);
    KORFileError error;
    EXPECT_THAT(KORDoctor::Examine(Path(), error), Optional(IsEmpty())) << error.Text();
}

TEST_P(KORDiskSession, UndoingEveryStepGivesTheFirstDocumentAndRedoingThemTheLastOne) {
    Start();
    for (int command = 0; command < 300; ++command) {
        if (Below(10) == 0) {
            Save(*disk_);
            disk_ = nullptr;
            disk_ = OpenToChange();
        }
        Step();
    }
    Save(*disk_);
    disk_ = nullptr;
    disk_ = OpenToChange();
    const std::string last = ShownListed(disk_->Document());
    ASSERT_EQ(model_.Shown(), last);

    while (disk_->Document().Undo()) {
        ASSERT_TRUE(model_.Undo());
        ASSERT_EQ(model_.Shown(), ShownListed(disk_->Document()));
    }
    EXPECT_EQ("", ShownListed(disk_->Document()));
    Save(*disk_);
    disk_ = nullptr;
    disk_ = OpenToChange();
    while (disk_->Document().Redo()) {
        ASSERT_TRUE(model_.Redo());
        ASSERT_EQ(model_.Shown(), ShownListed(disk_->Document()));
    }

    EXPECT_EQ(last, ShownListed(disk_->Document()));
}

TEST_P(KORDiskSession, ForgetsTheOldestStepsBeyondItsBoundsAndIsRightAboutTheOthers) {
    Start();
    most_ = 7;
    disk_->SetHistoryBounds(7, 1 << 30);
    for (int command = 0; command < 400; ++command) {
        Command();
        if (HasFatalFailure()) return;
        ASSERT_EQ(model_.Shown(), ShownListed(disk_->Document())) << "after command " << command;
    }
    Save(*disk_);
    EXPECT_LE(disk_->Steps().size(), 7u);
    KORFileError error;
    EXPECT_THAT(KORDoctor::Examine(Path(), error), Optional(IsEmpty())) << error.Text();
}

/// Writes outside a step are no steps, and undo goes over them: a document in a file does with them what one
/// in memory does that is never saved.
TEST_P(KORDiskSession, DoesWithWritesOutsideStepsWhatADocumentInMemoryDoes) {
    Start();
    const auto twin = KORMemoryDocument::New(*platform);
    twin->AddContainer("One");
    twin->AddContainer("Two");
    KORMemoryDocument* const twinDocument = twin.Get();
    const auto both = [&](const auto& work) {
        work(disk_->Document());
        work(*twinDocument);
    };
    for (int command = 0; command < 700; ++command) {
        const std::uint32_t number =
            1 + Below(std::max<std::uint32_t>(1, twinDocument->Features().LastNumber()));
        const std::uint32_t target =
            1 + Below(std::max<std::uint32_t>(1, twinDocument->Features().LastNumber()));
        const std::uint32_t what = Below(16);
        const double value = Number();
        const auto write = [&](KORMemoryDocument& document) {
            const KORVar<KORFeature> feature(document.Features().Find(number));
            const KORVar<KORFeature> other_(document.Features().Find(target));
            if (what < 4 || !feature || !feature->LiesInContainer()) {
                Material(document, "Steel");
            } else if (what < 8) {
                feature->SetDouble(length, value, 1);
            } else if (what < 10) {
                feature->SetUndeclared("Late", KORValue::OfDouble(value));
            } else if (what < 12 && other_ && other_->LiesInContainer()) {
                feature->AppendComponent(others, other_.Get());
            } else if (what == 12) {
                feature->SetContainer(nullptr);
            } else if (what == 13) {
                feature->SetContainer(document.AddContainer("Two").Get());
            } else if (other_ && other_->LiesInContainer()) {
                feature->SetComponent(other, other_.Get(), 1);
            }
        };
        switch (Below(10)) {
            case 0:
            case 1:
                both([](KORMemoryDocument& document) { document.Undo(); });
                break;
            case 2:
                both([](KORMemoryDocument& document) { document.Redo(); });
                break;
            case 3:
                Save(*disk_);
                break;
            case 4:
                Save(*disk_);
                disk_ = nullptr;
                disk_ = OpenToChange();
                ASSERT_TRUE(disk_);
                break;
            case 5:
            case 6:
                both(write);
                break;
            default:
                both([&](KORMemoryDocument& document) { Do(document, "Step", [&] { write(document); }); });
        }
        ASSERT_EQ(ShownListed(*twinDocument), ShownListed(disk_->Document())) << "after command " << command;
        ASSERT_EQ(twinDocument->Log().Done(), disk_->Document().Log().Done());
    }
    twin->Close();
    KORFileError error;
    Save(*disk_);
    EXPECT_THAT(KORDoctor::Examine(Path(), error), Optional(IsEmpty())) << error.Text();
}

INSTANTIATE_TEST_SUITE_P(, KORDiskSession, testing::Range(0, 2));

}  // namespace
