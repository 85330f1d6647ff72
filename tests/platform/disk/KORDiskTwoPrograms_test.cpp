#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <functional>
#include <thread>

#include "platform/disk/KORDiskCopy.h"
#include "platform/disk/KORDoctor.h"
#include "tests/platform/disk/KORDiskTest.h"
#include "tests/platform/disk/KORFaultyDisk.h"

namespace {

using std::chrono::milliseconds;
using testing::HasSubstr;

/// A process of its own, and a word from it when it has come to a certain place.
class Program {
public:
    explicit Program(const std::function<int(const std::function<void()>& tell)>& work) {
        int ends[2];
        EXPECT_EQ(0, pipe(ends));
        process_ = fork();
        if (process_ == 0) {
            close(ends[0]);
            const auto tell = [&] { static_cast<void>(!write(ends[1], "x", 1)); };
            _exit(work(tell));
        }
        close(ends[1]);
        told_ = ends[0];
    }
    ~Program() { close(told_); }
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    void WaitForWord() const {
        char word = 0;
        EXPECT_EQ(1, read(told_, &word, 1));
    }
    int ExitCode() const {
        int status = 0;
        waitpid(process_, &status, 0);
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

private:
    pid_t process_ = 0;
    int told_ = 0;
};

class KORDiskTwoPrograms : public KORDiskTest {
protected:
    void MakeDocument() {
        auto made = Create();
        Do(made->Document(), "Make", [&] { Material(made->Document(), "Steel"); });
        Save(*made);
    }

    double Stored() { return First(OpenToRead()->Document())->GetDouble(length, 1); }

    /// Adds 1 to what is stored.
    bool AddOne() {
        KORFileError error;
        auto opened = KORDiskDocument::OpenToChange(*platform, Path(), error);
        if (!opened) return false;
        const auto first = First(opened->Document());
        Do(opened->Document(), "Add",
           [&] { first->SetDouble(length, first->GetDouble(length, 1) + 1.0, 1); });
        return opened->Save({}, error);
    }
};

TEST_F(KORDiskTwoPrograms, OneReadsWhileTheOtherHasItOpenToChange) {
    MakeDocument();
    auto changing = OpenToChange();
    First(changing->Document())->SetDouble(length, 9.0, 1);
    const Program reader([&](const auto&) { return Stored() == 1.5 ? 0 : 1; });

    EXPECT_EQ(0, reader.ExitCode());

    Save(*changing);
    EXPECT_EQ(9.0, Stored());
}

TEST_F(KORDiskTwoPrograms, AReaderKeepsNobodyFromSaving) {
    MakeDocument();
    const auto reading = OpenToRead();
    const Program writer([&](const auto&) { return AddOne() ? 0 : 1; });

    EXPECT_EQ(0, writer.ExitCode());

    EXPECT_EQ(1.5, First(reading->Document())->GetDouble(length, 1));
    EXPECT_EQ(2.5, Stored());
}

TEST_F(KORDiskTwoPrograms, NoUpdateIsLostWhenManyChangeAtOnce) {
    MakeDocument();
    std::vector<std::unique_ptr<Program>> programs;
    for (int i = 0; i < 4; ++i) {
        programs.push_back(std::make_unique<Program>([&](const auto&) {
            for (int change = 0; change < 15; ++change) {
                if (!AddOne()) return 1;
            }
            return 0;
        }));
    }
    for (const auto& program : programs) EXPECT_EQ(0, program->ExitCode());

    EXPECT_EQ(61.5, Stored());
    EXPECT_EQ(61u, OpenToRead()->Steps().size());
}

TEST_F(KORDiskTwoPrograms, TheSecondWaitsUntilTheFirstHasSavedAndThenSeesIt) {
    MakeDocument();
    const Program first([&](const auto& tell) {
        auto opened = OpenToChange();
        tell();
        std::this_thread::sleep_for(milliseconds(300));
        First(opened->Document())->SetDouble(length, 9.0, 1);
        Save(*opened);
        return 0;
    });
    first.WaitForWord();

    auto second = OpenToChange();

    EXPECT_EQ(9.0, First(second->Document())->GetDouble(length, 1));
    EXPECT_EQ(0, first.ExitCode());
}

TEST_F(KORDiskTwoPrograms, TheSecondIsToldAfterFiveSecondsThatItIsInUse) {
    MakeDocument();
    auto first = OpenToChange();
    KORFileError error;

    EXPECT_EQ(nullptr, KORDiskDocument::OpenToChange(*platform, Path(), error));

    EXPECT_THAT(error.Text(), HasSubstr("is in use: another program has held its lock for 5 s"));
}

TEST_F(KORDiskTwoPrograms, ASecondSaveAfterAnotherProgramSavedIsRefusedAndReadsItAnew) {
    MakeDocument();
    auto first = OpenToChange();
    Save(*first);
    const Program second([&](const auto&) { return AddOne() ? 0 : 1; });
    ASSERT_EQ(0, second.ExitCode());
    First(first->Document())->SetDouble(length, 9.0, 1);
    KORFileError error;

    EXPECT_FALSE(first->Save({}, error));

    EXPECT_EQ(Path() + ": was changed by another program since it was read", error.Text());
    EXPECT_EQ(2.5, First(first->Document())->GetDouble(length, 1));
    First(first->Document())->SetDouble(length, 10.0, 1);
    Save(*first);
    EXPECT_EQ(10.0, Stored());
}

TEST_F(KORDiskTwoPrograms, ASecondSaveThatDoesNotGetTheLockKeepsWhatItHasAndCanBeTriedAgain) {
    MakeDocument();
    auto first = OpenToChange();
    Save(*first);
    First(first->Document())->SetDouble(length, 9.0, 1);
    KORFileError error;
    {
        const auto second = OpenToChange();

        EXPECT_FALSE(first->Save({}, error));
    }
    EXPECT_THAT(error.Text(), HasSubstr("is in use"));
    EXPECT_EQ(9.0, First(first->Document())->GetDouble(length, 1));
    Save(*first);
    EXPECT_EQ(9.0, Stored());
}

TEST_F(KORDiskTwoPrograms, WhoWaitedWhileItWasCompactedChangesTheNewFile) {
    MakeDocument();
    const Program second([&](const auto& tell) {
        auto opened = OpenToChange();
        tell();
        std::this_thread::sleep_for(milliseconds(200));
        return 0;
    });
    second.WaitForWord();
    const Program third([&](const auto&) { return AddOne() ? 0 : 1; });
    KORFileError error;
    for (int i = 0; i < 5; ++i) ASSERT_TRUE(KORDiskCopy::Compact(Path(), error)) << error.Text();

    EXPECT_EQ(0, third.ExitCode());
    EXPECT_EQ(0, second.ExitCode());

    EXPECT_EQ(2.5, Stored());
    EXPECT_THAT(KORDoctor::Examine(Path(), error), testing::Optional(testing::IsEmpty()));
}

TEST_F(KORDiskTwoPrograms, OfTwoThatMakeTheSameDocumentOneIsRefused) {
    auto first = Create();
    const Program second([&](const auto&) {
        KORFileError error;
        return KORDiskDocument::Create(*platform, Path(), error) == nullptr ? 0 : 1;
    });
    std::this_thread::sleep_for(milliseconds(100));
    Save(*first);
    EXPECT_EQ(0, second.ExitCode());
    EXPECT_TRUE(OpenToRead());
}

/// As somebody without the rights of root, who may do everything.
class KORDiskRights : public KORDiskTwoPrograms {
protected:
    static constexpr uid_t kNobody = 65534;

    template <class Work>
    int AsNobody(Work&& work) {
        const Program program([&](const auto&) {
            if (getuid() == 0 && setuid(kNobody) != 0) return 99;
            return work();
        });
        return program.ExitCode();
    }

    std::string Folder() const { return std::filesystem::path(Path()).parent_path(); }

    void TearDown() override { chmod(Folder().c_str(), 0700); }
};

TEST_F(KORDiskRights, AReadOnlyFileInAReadOnlyFolderIsReadAndNotChanged) {
    MakeDocument();
    chmod(Path().c_str(), 0444);
    chmod(Folder().c_str(), 0555);

    EXPECT_EQ(0, AsNobody([&] {
                  KORFileError error;
                  const auto opened = KORDiskDocument::OpenToRead(*platform, Path(), error);
                  if (!opened || First(opened->Document())->GetDouble(length, 1) != 1.5) return 1;
                  if (KORDiskDocument::OpenToChange(*platform, Path(), error)) return 2;
                  return error.Text() == Path() + ": is read-only" ? 0 : 3;
              }));
}

TEST_F(KORDiskRights, AFileInAReadOnlyFolderIsReadAndNotChanged) {
    MakeDocument();
    chmod(Path().c_str(), 0666);
    chmod(Folder().c_str(), 0555);

    EXPECT_EQ(
        0, AsNobody([&] {
            KORFileError error;
            if (!KORDiskDocument::OpenToRead(*platform, Path(), error)) return 1;
            if (KORDiskDocument::OpenToChange(*platform, Path(), error)) return 2;
            return error.Text() ==
                           Path() + ": cannot be changed: nothing can be written beside it: Permission denied"
                       ? 0
                       : 3;
        }));
}

TEST_F(KORDiskRights, AFileThatNobodyMayReadIsTold) {
    MakeDocument();
    chmod(Path().c_str(), 0000);
    chmod(Folder().c_str(), 0755);

    EXPECT_EQ(0, AsNobody([&] {
                  KORFileError error;
                  if (KORDiskDocument::OpenToRead(*platform, Path(), error)) return 1;
                  return error.Text() == Path() + ": cannot be read: Permission denied" ? 0 : 3;
              }));
}

TEST_F(KORDiskRights, AnInterruptedSaveThatCannotBeRolledBackIsTold) {
    for (const mode_t file : {0444u, 0666u}) {
        std::filesystem::remove(Path());
        MakeDocument();
        int calls = 0;
        const auto save = [&](double value, int dieAt) {
            const KORFaultyDisk disk;
            auto opened = OpenToChange();
            First(opened->Document())->SetDouble(length, value, 1);
            KORFaultyDisk::Arm(KORFaultyDisk::Fault::Die, dieAt, true);
            Save(*opened);
            calls = KORFaultyDisk::Calls();
        };
        save(9.0, 0);
        const Program killed([&](const auto&) {
            save(10.0, calls - 1);
            return 0;
        });
        ASSERT_EQ(-1, killed.ExitCode());
        ASSERT_THAT(Files(), testing::Contains("d.zeldoc-journal"));
        chmod(Path().c_str(), file);
        chmod((Path() + "-journal").c_str(), 0444);
        chmod(Folder().c_str(), 0555);

        EXPECT_EQ(0, AsNobody([&] {
                      KORFileError error;
                      if (KORDiskDocument::OpenToRead(*platform, Path(), error)) return 1;
                      return error.message ==
                                     "an interrupted save has to be rolled back first, and that needs leave "
                                     "to write the file "
                                     "and its folder"
                                 ? 0
                                 : 3;
                  }));
        chmod(Folder().c_str(), 0700);
        EXPECT_EQ(9.0, Stored());
    }
}

TEST_F(KORDiskRights, AFileWithSeveralNamesIsReadAndNotChanged) {
    MakeDocument();
    std::filesystem::create_hard_link(Path(), Path("second.zeldoc"));
    KORFileError error;

    EXPECT_TRUE(OpenToRead());
    EXPECT_EQ(nullptr, KORDiskDocument::OpenToChange(*platform, Path(), error));

    EXPECT_EQ(Path() + ": has 2 names (hard links): it can be read, and a copy of it can be changed",
              error.Text());
}

TEST_F(KORDiskRights, ALinkToADocumentIsFollowed) {
    MakeDocument();
    std::filesystem::create_directory(Path("elsewhere"));
    std::filesystem::create_symlink(Path(), Path("elsewhere/link.zeldoc"));
    auto opened = OpenToChange("elsewhere/link.zeldoc");
    First(opened->Document())->SetDouble(length, 9.0, 1);
    Save(*opened);
    opened = nullptr;
    KORFileError error;
    ASSERT_TRUE(KORDiskCopy::Compact(Path("elsewhere/link.zeldoc"), error)) << error.Text();

    EXPECT_EQ(9.0, Stored());
    EXPECT_TRUE(std::filesystem::is_symlink(Path("elsewhere/link.zeldoc")));
}

}  // namespace
