// How much of its history a document in a file keeps, and what its steps and numbers are then.

#include "tests/platform/disk/KORDiskTest.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

using KORDiskHistory = KORDiskTest;

TEST_F(KORDiskHistory, NumbersOfFeaturesAndStepsAreNeverGivenTwice) {
    {
        auto made = Create();
        Do(made->Document(), "Make", [&] { Material(made->Document(), "Steel"); });
        Do(made->Document(), "Make", [&] { Material(made->Document(), "Steel"); });
        made->Document().Undo();
        made->Document().Undo();
        Do(made->Document(), "Make", [&] { Material(made->Document(), "Steel"); });
        made->Document().Undo();
        made->SetHistoryBounds(0, 0);
        made->Document().Log().Clear();
        Save(*made);
    }
    auto opened = OpenToChange();
    EXPECT_EQ(0u, opened->Document().Features().Size());

    opened->SetHistoryBounds(10, 1000);
    Do(opened->Document(), "Make", [&] { Material(opened->Document(), "Steel"); });
    Save(*opened);

    EXPECT_EQ(4u, First(opened->Document())->Number());
    ASSERT_EQ(1u, opened->Steps().size());
    EXPECT_EQ(4u, opened->Steps()[0].number);
}

TEST_F(KORDiskHistory, AHistoryWithinItsBytesForgetsTheOldestAndKeepsTheLastHoweverLarge) {
    auto made = Create();
    made->SetHistoryBounds(1000, 5000);
    Do(made->Document(), "Make", [&] { Material(made->Document(), "Steel"); });
    for (int i = 0; i < 10; ++i) {
        Do(made->Document(), "Set", [&] {
            KORRawColldouble list;
            for (int value = 0; value < 100; ++value) list.Append(value + i);
            First(made->Document())->SetListOfDouble(numbers, list);
        });
        Save(*made);
    }
    EXPECT_EQ(6u, made->Steps().size());  // of some 800 bytes each
    EXPECT_EQ(6u, OpenToRead()->Steps().size());

    Do(made->Document(), "Large", [&] {
        KORRawColldouble list;
        for (int value = 0; value < 10000; ++value) list.Append(value);
        First(made->Document())->SetListOfDouble(numbers, list);
    });
    Do(made->Document(), "Set", [&] { First(made->Document())->RemoveAllValues(numbers); });
    Save(*made);

    ASSERT_EQ(1u, made->Steps().size());
    EXPECT_EQ("Set", made->Steps()[0].name);
    EXPECT_EQ(1000, OpenToRead()->MostSteps());
    EXPECT_EQ(5000, OpenToRead()->MostBytes());
}

TEST_F(KORDiskHistory, ARemovedFeatureCountsAsLongAsItCanComeBack) {
    auto made = Create();
    made->SetHistoryBounds(1000, 100000);
    Do(made->Document(), "Make", [&] {
        KORRawColldouble list;
        for (int value = 0; value < 20000; ++value) list.Append(value);
        Material(made->Document(), "Large")->SetListOfDouble(numbers, list);
    });
    Do(made->Document(), "Remove", [&] { First(made->Document())->SetContainer(nullptr); });
    Save(*made);
    EXPECT_THAT(Rows("SELECT name, bytes>160000 FROM steps"), ElementsAre("Remove|1"));

    Do(made->Document(), "Make", [&] { Material(made->Document(), "Small"); });
    Save(*made);

    EXPECT_THAT(Rows("SELECT name FROM steps"), ElementsAre("Make"));
    EXPECT_THAT(Rows("SELECT number FROM features"), ElementsAre("2"));
}

TEST_F(KORDiskHistory, GoesToAnyStepThatIsKept) {
    auto made = Create();
    Do(made->Document(), "Make", [&] { Material(made->Document(), "Steel"); });
    for (const double value : {2.0, 3.0}) {
        Do(made->Document(), "Set", [&] { First(made->Document())->SetDouble(length, value, 1); });
    }
    Save(*made);

    auto opened = OpenToRead("d.zeldoc", KORDiskDocument::History::Steps);
    ASSERT_TRUE(opened->GoToStep(2));
    EXPECT_EQ(2.0, First(opened->Document())->GetDouble(length, 1));
    ASSERT_TRUE(opened->GoToStep(3));
    EXPECT_EQ(3.0, First(opened->Document())->GetDouble(length, 1));
    ASSERT_TRUE(opened->GoToStep(0));
    EXPECT_EQ(nullptr, First(opened->Document()));
    EXPECT_FALSE(opened->GoToStep(4));

    EXPECT_FALSE(OpenToRead()->GoToStep(2));
}

TEST_F(KORDiskHistory, UndoGivesANameAndAnAliasBackInAnotherProgram) {
    {
        auto made = Create();
        Do(made->Document(), "Make", [&] {
            Material(made->Document(), "KORDiskTestLT");
            Material(made->Document(), "KORDiskTestLT");
        });
        Do(made->Document(), "Call", [&] { First(made->Document())->SetAlias("Steel"); });
        made->Document().Undo();
        Save(*made);
    }
    auto opened = OpenToChange();

    opened->Document().Redo();

    EXPECT_THAT(Shown(opened->Document()), HasSubstr("1 KORDiskTestLT 'KORDiskTestLT' called 'Steel'"));
    EXPECT_THAT(Shown(opened->Document()), HasSubstr("2 KORDiskTestLT 'KORDiskTestLT' in 1"));
    opened->Document().Undo();
    EXPECT_THAT(Shown(opened->Document()), testing::Not(HasSubstr("Steel")));
}

}  // namespace
