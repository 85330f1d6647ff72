#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <functional>
#include <random>
#include <thread>

#include "platform/disk/KORDoctor.h"
#include "tests/platform/disk/KORDiskTest.h"
#include "tests/platform/disk/KORFaultyDisk.h"

namespace {

using testing::AnyOf;
using testing::IsEmpty;
using testing::Optional;

/// Saves that a killed process was in the middle of.
class KORDiskKillTest : public KORDiskTest {
protected:
    /// Runs work in a process of its own; whether that lived to its end.
    static bool Survives(const std::function<void()>& work) {
        const pid_t child = fork();
        if (child == 0) {
            work();
            _exit(0);
        }
        int status = 0;
        waitpid(child, &status, 0);
        return WIFEXITED(status);
    }

    /// Twelve features, one of them with a long list, and three steps.
    void MakeDocument() {
        auto made = Create();
        Do(made->Document(), "Make", [&] {
            for (int i = 0; i < 12; ++i) Material(made->Document(), "Steel");
            KORRawColldouble list;
            for (int i = 0; i < 3000; ++i) list.Append(i);
            First(made->Document())->SetListOfDouble(numbers, list);
        });
        Do(made->Document(), "Set", [&] { First(made->Document())->SetDouble(length, 2.0, 1); });
        Do(made->Document(), "Set", [&] { First(made->Document())->SetDouble(length, 3.0, 1); });
        Save(*made);
    }

    /// Makes the file longer in one place and empties another: new features, one that goes, a longer and a
    /// shorter list.
    void Change(KORMemoryDocument& document) {
        Do(document, "Change", [&] {
            for (int i = 0; i < 5; ++i) {
                KORRawColldouble list;
                for (int value = 0; value < 2000; ++value) list.Append(value + i);
                Material(document, "Copper")->SetListOfDouble(numbers, list);
            }
            const auto first = First(document);
            first->SetListOfDouble(numbers, KORNumbers({1.0, 2.0}));
            KORVar<KORFeature>(document.Features().Find(5))->SetContainer(nullptr);
        });
    }

    std::string State() {
        auto opened = OpenToRead("d.zeldoc", KORDiskDocument::History::Steps);
        if (!opened) return "does not open";
        std::string state = Shown(opened->Document());
        while (opened->Document().Undo()) state += "--\n" + Shown(opened->Document());
        return state;
    }

    void ExpectSound() {
        KORFileError error;
        EXPECT_THAT(KORDoctor::Examine(Path(), error), Optional(IsEmpty())) << error.Text();
    }
};

TEST_F(KORDiskKillTest, KilledAtEachWriteOfASaveTheNextOpeningGivesTheOldOrTheNewDocument) {
    const KORFaultyDisk disk;
    MakeDocument();
    const std::string original = Content();
    const std::string before = State();
    {
        auto opened = OpenToChange();
        Change(opened->Document());
        Save(*opened);
    }
    const std::string after = State();
    ASSERT_NE(before, after);
    int kills = 0;
    int old = 0;

    for (const auto fault :
         {KORFaultyDisk::Fault::Die, KORFaultyDisk::Fault::CutDie, KORFaultyDisk::Fault::DieAfter}) {
        for (int n = 1;; ++n) {
            Touch("d.zeldoc", original);
            const bool survived = Survives([&] {
                auto opened = OpenToChange();
                Change(opened->Document());
                KORFaultyDisk::Arm(fault, n, true);
                Save(*opened);
            });
            if (survived) break;
            ++kills;
            const std::string now = State();
            ASSERT_TRUE(now == before || now == after) << "killed at call " << n << ":\n" << now;
            old += now == before ? 1 : 0;
            ExpectSound();
        }
    }
    // A journal that holds nothing to roll back may stay until the next save.
    Save(*OpenToChange());
    EXPECT_THAT(Files(), testing::ElementsAre("d.zeldoc"));

    EXPECT_GT(kills, 180);
    EXPECT_EQ(kills - 1, old);  // only once the journal is gone the new document is there
}

TEST_F(KORDiskKillTest, KilledAtEachWriteOfTheFirstSaveTheFileIsEmptyOrTheDocument) {
    const KORFaultyDisk disk;
    for (const auto fault :
         {KORFaultyDisk::Fault::Die, KORFaultyDisk::Fault::CutDie, KORFaultyDisk::Fault::DieAfter}) {
        for (int n = 1;; ++n) {
            std::filesystem::remove(Path());
            const bool survived = Survives([&] {
                auto made = Create();
                Material(made->Document(), "Steel");
                KORFaultyDisk::Arm(fault, n, true);
                Save(*made);
            });
            if (survived) break;
            KORFileError error;
            const bool whole = KORDiskDocument::OpenToRead(*platform, Path(), error) != nullptr;
            if (whole) continue;
            EXPECT_EQ(Path() + ": is empty", error.Text()) << n;
            auto anew = Create();
            ASSERT_TRUE(anew) << "killed at call " << n;
            Save(*anew);
        }
    }
}

TEST_F(KORDiskKillTest, KilledWhenItIsMadeTheEmptyFileIsMadeAnew) {
    ASSERT_FALSE(Survives([&] {
        auto made = Create();
        kill(getpid(), SIGKILL);
    }));
    EXPECT_EQ("", Content());
    KORFileError error;
    EXPECT_EQ(nullptr, KORDiskDocument::OpenToRead(*platform, Path(), error));
    EXPECT_EQ(Path() + ": is empty", error.Text());

    auto made = Create();
    Save(*made);

    EXPECT_TRUE(OpenToRead());
}

TEST_F(KORDiskKillTest, KilledWhileTheInterruptedSaveIsRolledBackItIsRolledBackTheNextTime) {
    const KORFaultyDisk disk;
    MakeDocument();
    const std::string original = Content();
    const std::string before = State();
    int calls = 0;
    {
        auto opened = OpenToChange();
        Change(opened->Document());
        KORFaultyDisk::Arm(KORFaultyDisk::Fault::Fail, 0, true);
        Save(*opened);
        calls = KORFaultyDisk::Calls();
    }
    const auto interrupt = [&] {
        Touch("d.zeldoc", original);
        ASSERT_FALSE(Survives([&] {
            auto opened = OpenToChange();
            Change(opened->Document());
            KORFaultyDisk::Arm(KORFaultyDisk::Fault::Die, calls - 4, true);  // the journal is whole by then
            Save(*opened);
        }));
        ASSERT_THAT(Files(), testing::ElementsAre("d.zeldoc", "d.zeldoc-journal"));
    };
    int kills = 0;

    for (int n = 1;; ++n) {
        interrupt();
        const bool survived = Survives([&] {
            KORFaultyDisk::Arm(KORFaultyDisk::Fault::CutDie, n, true);
            OpenToRead();
        });
        ASSERT_EQ(before, State()) << "killed at call " << n;
        ExpectSound();
        if (survived) break;
        ++kills;
    }

    EXPECT_GT(kills, 3);
}

TEST_F(KORDiskKillTest, WhatASaveAnsweredIsThereHoweverTheProcessDies) {
    {
        auto made = Create();
        Do(made->Document(), "Make", [&] {
            Material(made->Document(), "Steel");
            Material(made->Document(), "Copper");
        });
        Save(*made);
    }
    std::mt19937 random(1);
    for (int round = 0; round < 60; ++round) {
        int told[2];
        ASSERT_EQ(0, pipe(told));
        const pid_t child = fork();
        if (child == 0) {
            auto opened = OpenToChange();
            for (;;) {
                const double next = First(opened->Document())->GetDouble(length, 1) + 1.0;
                Do(opened->Document(), "Both", [&] {
                    opened->Document().ForEachFeature(
                        nullptr, [&](KORFeature& feature) { feature.SetDouble(length, next, 1); });
                });
                Save(*opened);
                if (write(told[1], &next, sizeof next) != sizeof next) _exit(1);
            }
        }
        close(told[1]);
        std::this_thread::sleep_for(std::chrono::microseconds(2000 + random() % 20000));
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
        double last = 0.0;
        while (read(told[0], &last, sizeof last) == sizeof last) {
        }
        close(told[0]);

        auto opened = OpenToRead();
        ASSERT_TRUE(opened);
        const double stored = First(opened->Document())->GetDouble(length, 1);
        EXPECT_GE(stored, last);
        EXPECT_EQ(stored, KORVar<KORFeature>(opened->Document().Features().Find(2))->GetDouble(length, 1));
        ExpectSound();
    }
}

}  // namespace
