#include "platform/disk/KORDiskCopy.h"

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "platform/disk/KORDoctor.h"
#include "platform/disk/KORFileBeside.h"
#include "tests/platform/disk/KORDiskTest.h"

namespace {

using testing::HasSubstr;
using testing::IsEmpty;

class KORDiskCopyTest : public KORDiskTest {
protected:
    /// With a long list that was taken out again: the file has room to give back.
    void MakeDocument() {
        auto made = Create();
        Do(made->Document(), "Make", [&] {
            Material(made->Document(), "Steel");
            KORRawColldouble list;
            for (int i = 0; i < 50000; ++i) list.Append(i);
            Material(made->Document(), "Long")->SetListOfDouble(numbers, list);
        });
        made->SetHistoryBounds(1, 1 << 30);
        Save(*made);
        Do(made->Document(), "Remove", [&] {
            made->Document().ForEachFeature(nullptr, [&](KORFeature& feature) {
                if (feature.Number() == 2) feature.SetContainer(nullptr);
            });
        });
        Save(*made);
        Do(made->Document(), "Set", [&] { First(made->Document())->SetDouble(length, 2.0, 1); });
        Save(*made);
    }
};

TEST_F(KORDiskCopyTest, ACompactDocumentHoldsTheSameInLessRoom) {
    MakeDocument();
    const auto before = std::filesystem::file_size(Path());
    const std::string shown = Shown(OpenToRead()->Document());
    chmod(Path().c_str(), 0640);
    KORFileError error;

    ASSERT_TRUE(KORDiskCopy::Compact(Path(), error)) << error.Text();

    EXPECT_LT(std::filesystem::file_size(Path()), before / 4);
    EXPECT_EQ(shown, Shown(OpenToRead()->Document()));
    EXPECT_EQ(1u, OpenToRead()->Steps().size());
    EXPECT_TRUE(OpenToChange()->Document().Undo());
    struct stat status {};
    ASSERT_EQ(0, stat(Path().c_str(), &status));
    EXPECT_EQ(0640u, status.st_mode & 07777u);
    EXPECT_THAT(Files(), testing::ElementsAre("d.zeldoc"));
}

TEST_F(KORDiskCopyTest, WhoWaitedForTheLockChangesTheCompactDocumentAndNotTheOldOne) {
    MakeDocument();
    KORFileError error;
    auto opened = OpenToChange();
    opened.reset();
    ASSERT_TRUE(KORDiskCopy::Compact(Path(), error)) << error.Text();

    auto changed = OpenToChange();
    First(changed->Document())->SetDouble(length, 4.0, 1);
    Save(*changed);

    EXPECT_EQ(4.0, First(OpenToRead()->Document())->GetDouble(length, 1));
}

TEST_F(KORDiskCopyTest, ASaveAfterTheDocumentWasReplacedIsRefused) {
    MakeDocument();
    auto changed = OpenToChange();
    Save(*changed);
    KORFileError error;
    ASSERT_TRUE(KORDiskCopy::Compact(Path(), error)) << error.Text();
    First(changed->Document())->SetDouble(length, 4.0, 1);

    EXPECT_FALSE(changed->Save({}, error));

    EXPECT_THAT(error.Text(), HasSubstr("was changed by another program since it was read"));
}

TEST_F(KORDiskCopyTest, ACopyHoldsTheSameWithItsHistory) {
    MakeDocument();
    KORFileError error;

    ASSERT_TRUE(KORDiskCopy::To(Path(), Path("copy.zeldoc"), error)) << error.Text();

    EXPECT_EQ(Shown(OpenToRead()->Document()), Shown(OpenToRead("copy.zeldoc")->Document()));
    EXPECT_TRUE(OpenToChange("copy.zeldoc")->Document().Undo());
    EXPECT_THAT(KORDoctor::Examine(Path("copy.zeldoc"), error), testing::Optional(IsEmpty()));
}

TEST_F(KORDiskCopyTest, ACopyReplacesNothing) {
    MakeDocument();
    KORFileError error;
    Touch("taken");
    std::filesystem::create_symlink(Path("nowhere"), Path("link"));

    EXPECT_FALSE(KORDiskCopy::To(Path(), Path("taken"), error));
    EXPECT_EQ(Path("taken") + ": exists already", error.Text());
    EXPECT_FALSE(KORDiskCopy::To(Path(), Path("link"), error));
    EXPECT_FALSE(KORDiskCopy::To(Path(), Path(), error));
    EXPECT_FALSE(KORDiskCopy::To(Path(), Path("no/folder"), error));

    EXPECT_THAT(Files(), testing::ElementsAre("d.zeldoc", "link", "taken"));
}

TEST_F(KORDiskCopyTest, WhatKilledOnesLeftBesideItGoesAndNothingElse) {
    MakeDocument();
    const std::string own = std::to_string(getpid());
    for (const char* left :
         {".d.zeldoc.12.tmp", ".d.zeldoc.12.tmp-journal", ".d.zeldoc.15.tmp-journal", ".copy.zeldoc.7.tmp"}) {
        Touch(left, "unfinished");
    }
    Touch(".d.zeldoc." + own + ".tmp");  // of a program that had this one's number
    const std::vector<std::string> foreign = {
        ".d.zeldoc..tmp", ".d.zeldoc.1x.tmp",    ".d.zeldoc.12",   ".d.zeldoc.1x.tmp-journal",
        ".d.zeldoc.tmp",  ".other.zeldoc.1.tmp", "d.zeldoc.12.tmp"};
    for (const std::string& name : foreign) Touch(name, "somebody's");
    std::filesystem::create_symlink(Path("d.zeldoc"), Path(".d.zeldoc.13.tmp"));
    std::filesystem::create_directory(Path(".d.zeldoc.14.tmp"));
    KORFileError error;

    ASSERT_TRUE(KORDiskCopy::Compact(Path(), error)) << error.Text();

    std::vector<std::string> there = {".copy.zeldoc.7.tmp", ".d.zeldoc.13.tmp", ".d.zeldoc.14.tmp",
                                      "d.zeldoc"};
    there.insert(there.end(), foreign.begin(), foreign.end());
    EXPECT_THAT(Files(), testing::UnorderedElementsAreArray(there));
    ASSERT_TRUE(KORDiskCopy::To(Path(), Path("copy.zeldoc"), error)) << error.Text();
    EXPECT_THAT(Files(), testing::Not(testing::Contains(".copy.zeldoc.7.tmp")));
}

TEST_F(KORDiskCopyTest, WhatAProgramThatRunsIsWritingStays) {
    KORFileBeside writing(Path());
    ASSERT_TRUE(writing.Make());
    const std::string journal = writing.Path() + "-journal";
    std::ofstream(journal) << "its own";
    const std::string name = std::filesystem::path(writing.Path()).filename();
    const pid_t second = fork();
    if (second == 0) {
        KORFileBeside beside(Path());
        _exit(beside.Make() && access(writing.Path().c_str(), F_OK) == 0 && access(journal.c_str(), F_OK) == 0
                  ? 0
                  : 1);
    }
    int status = 0;
    waitpid(second, &status, 0);

    EXPECT_EQ(0, status);
    EXPECT_THAT(Files(), testing::Contains(name));
}

TEST_F(KORDiskCopyTest, WhatIsNoDocumentIsNeitherCompactedNorCopied) {
    Touch("d.zeldoc", "no document at all");
    KORFileError error;

    EXPECT_FALSE(KORDiskCopy::Compact(Path(), error));
    EXPECT_EQ(Path() + ": is no document", error.Text());
    EXPECT_FALSE(KORDiskCopy::To(Path(), Path("copy"), error));
    EXPECT_EQ(Path() + ": is no document", error.Text());

    EXPECT_THAT(Files(), testing::ElementsAre("d.zeldoc"));
}

}  // namespace
