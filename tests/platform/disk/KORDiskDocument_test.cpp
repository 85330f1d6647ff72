#include "platform/disk/KORDiskDocument.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "tests/platform/disk/KORDiskTest.h"

namespace {

using testing::HasSubstr;
using testing::IsEmpty;

class KORDiskDocumentTest : public KORDiskTest {};

TEST_F(KORDiskDocumentTest, IsReadAsItWasSaved) {
    {
        auto made = Create();
        KORStep step(made->Document(), "Make");
        const auto material = Material(made->Document(), "Steel");
        const auto air = Material(made->Document(), "Air");
        material->SetDouble(length, 205e9, 1);
        material->SetString(text, KORUnicodeString(std::string_view("with\0NUL", 8)), 1);
        material->SetListOfDouble(numbers, KORNumbers({1.0, -0.0, 3.5}));
        material->AppendComponent(others, air.Get());
        material->AppendComponent(others, nullptr);
        material->SetComponent(other, material.Get(), 1);
        step.Commit();
        Save(*made);
    }

    auto opened = OpenToRead();

    EXPECT_EQ(
        "1 KORDiskTestLT 'Steel' in 1: Flag=true Count=7 Length=2.05e+11 Text='with\\0NUL' "
        "Numbers=[1 -0 3.5] Other=#1 Others=[#2 #0]\n"
        "2 KORDiskTestLT 'Air' in 1: Flag=true Count=7 Length=1.5 Text='' Numbers=never Other=never "
        "Others=never\n",
        Shown(opened->Document()));
}

TEST_F(KORDiskDocumentTest, UndoesAndRedoesWhatAnotherProgramSaved) {
    {
        auto made = Create();
        Do(made->Document(), "Make", [&] { Material(made->Document(), "Steel"); });
        Do(made->Document(), "Set", [&] { First(made->Document())->SetDouble(length, 2.0, 1); });
        Save(*made);
    }
    {
        auto opened = OpenToChange();
        EXPECT_EQ(2.0, First(opened->Document())->GetDouble(length, 1));
        ASSERT_TRUE(opened->Document().Undo());
        EXPECT_EQ(1.5, First(opened->Document())->GetDouble(length, 1));
        ASSERT_TRUE(opened->Document().Undo());
        EXPECT_EQ(nullptr, First(opened->Document()));
        EXPECT_FALSE(opened->Document().Undo());
        Save(*opened);
    }
    EXPECT_EQ(nullptr, First(OpenToRead()->Document()));

    auto opened = OpenToChange();
    ASSERT_TRUE(opened->Document().Redo());
    ASSERT_TRUE(opened->Document().Redo());
    EXPECT_FALSE(opened->Document().Redo());

    EXPECT_EQ(2.0, First(opened->Document())->GetDouble(length, 1));
}

TEST_F(KORDiskDocumentTest, TellsWhatItsStepsWere) {
    auto made = Create();
    Do(made->Document(), "Make", [&] { Material(made->Document(), "Steel"); });
    Save(*made, {"ada", "zel new"});
    Do(made->Document(), "Set", [&] { First(made->Document())->SetDouble(length, 2.0, 1); });
    Save(*made, {"bob", "zel set"});
    made->Document().Undo();
    Save(*made, {"eve", "zel undo"});

    const auto steps = OpenToRead()->Steps();

    ASSERT_EQ(2u, steps.size());
    EXPECT_EQ("Make", steps[0].name);
    EXPECT_EQ("ada", steps[0].user);
    EXPECT_EQ("zel new", steps[0].command);
    EXPECT_TRUE(steps[0].done);
    EXPECT_EQ(20u, steps[0].time.size());
    EXPECT_EQ("bob", steps[1].user);
    EXPECT_FALSE(steps[1].done);
}

TEST_F(KORDiskDocumentTest, NothingIsWrittenWhereNothingHasChanged) {
    auto made = Create();
    Do(made->Document(), "Make", [&] { Material(made->Document(), "Steel"); });
    Save(*made);
    const std::string before = Content();

    Save(*made);
    made = nullptr;
    Save(*OpenToChange());

    EXPECT_EQ(before, Content());
}

TEST_F(KORDiskDocumentTest, AReferenceToWhatIsNoFeatureOfTheDocumentIsNotSaved) {
    auto made = Create();
    Do(made->Document(), "Make", [&] { Material(made->Document(), "Steel"); });
    Save(*made);
    const auto foreign = KORMemoryDocument::New(*platform);
    const auto stranger = Material(*foreign, "Stranger");
    for (const bool list : {false, true}) {
        const KORBaseUnknown_var container = KORBaseUnknown_var::Adopt(foreign->GetFeatContainer());
        if (list) {
            First(made->Document())->AppendComponent(others, container.Get());
        } else {
            First(made->Document())->SetComponent(other, stranger.Get(), 1);
        }
        KORFileError error;
        EXPECT_FALSE(made->Save({}, error));
        EXPECT_EQ(Path() + ": cannot be saved: feature 1, \"" + (list ? "Others" : "Other") +
                      "\": references what is no feature of the document",
                  error.Text());
        EXPECT_THAT(Shown(made->Document()), HasSubstr("Other=never Others=never"));
    }
    foreign->Close();
}

TEST_F(KORDiskDocumentTest, ASaveInAStepOrOfWhatWasOpenedToReadIsRefusedWithoutHarm) {
    auto made = Create();
    KORFileError error;
    {
        KORStep step(made->Document(), "Make");
        Material(made->Document(), "Steel");
        EXPECT_FALSE(made->Save({}, error));
        EXPECT_EQ(Path() + ": cannot be saved in the middle of a step", error.Text());
        step.Commit();
    }
    Save(*made);
    auto opened = OpenToRead();
    EXPECT_FALSE(opened->Save({}, error));
    EXPECT_EQ(Path() + ": was opened to be read only", error.Text());
    EXPECT_EQ(1u, opened->Document().FeatureCount());
}

TEST_F(KORDiskDocumentTest, ADocumentThatIsNeverSavedLeavesNoFile) {
    Create();
    EXPECT_THAT(Files(), IsEmpty());
}

TEST_F(KORDiskDocumentTest, WhatIsThereIsNotMadeAnew) {
    Touch("text", "x");
    std::filesystem::create_directory(Path("folder"));
    std::filesystem::create_symlink(Path("nowhere"), Path("link"));
    Save(*Create());
    KORFileError error;
    for (const char* name : {"text", "folder", "d.zeldoc"}) {
        EXPECT_EQ(nullptr, KORDiskDocument::Create(*platform, Path(name), error)) << name;
        EXPECT_EQ(Path(name) + ": exists already", error.Text());
    }
    EXPECT_EQ(nullptr, KORDiskDocument::Create(*platform, Path("link"), error));
    EXPECT_EQ(nullptr, KORDiskDocument::Create(*platform, Path("no/such/folder"), error));
    EXPECT_EQ(Path("no/such/folder") + ": cannot be made: No such file or directory", error.Text());
    EXPECT_EQ("x", Content("text"));
    EXPECT_EQ(4u, Files().size());
}

}  // namespace
