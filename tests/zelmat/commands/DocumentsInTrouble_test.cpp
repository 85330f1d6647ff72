#include <gmock/gmock.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <filesystem>
#include <functional>
#include <thread>

#include "platform/store/KORStep.h"
#include "tests/zelmat/support/CatalogFolder.h"
#include "tests/zelmat/support/DocumentFolder.h"
#include "zelmat/documents/DocumentToChange.h"
#include "zelmat/materials/NewMaterial.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

constexpr uid_t kNobody = 65534;
/// Does something in a process of its own; the process's number.
pid_t Start(const std::function<int()>& work) {
    const pid_t child = ::fork();
    if (child == 0) ::_exit(work());
    return child;
}

int ExitOf(pid_t child) {
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

class DocumentsInTrouble : public DocumentFolder {
protected:
    std::string Card(const std::string& name) const {
        return File(name + ".json", R"({"name": ")" + name + "\"}");
    }

    /// A card that makes a document grow by far more than a page.
    std::string LargeCard() const {
        return File("large.json", R"({"name": "Large", "description": ")" + std::string(200000, 'x') + "\"}");
    }

    /// Does something in a process of its own where no file may become larger than this.
    static pid_t StartWithRoomFor(rlim_t bytes, const std::function<int()>& work) {
        return Start([&] {
            const rlimit limit{bytes, bytes};
            return ::setrlimit(RLIMIT_FSIZE, &limit) == 0 ? work() : -1;
        });
    }

    /// Runs a command where no file may become larger than the document is by now.
    int RunWithoutRoom(const std::vector<std::string>& arguments) const {
        return ExitOf(StartWithRoomFor(std::filesystem::file_size(document_),
                                       [&] { return RunZelmat(arguments).exitCode; }));
    }

    /// Adds the material A as another program would, and does the work after the lock is taken and before
    /// that is saved; what the work answers.
    template <class Work>
    pid_t WhileItIsChanged(Work work) const {
        zelmat::Findings findings;
        const auto changed = zelmat::DocumentToChange::Open(document_, CatalogFolderOfTheModule(), findings);
        EXPECT_TRUE(changed);
        KORStep step(changed->Document(), "Add A");
        EXPECT_TRUE(zelmat::AddMaterial(changed->Document(), {.file = {}, .name = "A"}, nullptr, findings));
        step.Commit();
        const pid_t answer = work();
        EXPECT_TRUE(changed->Save({}, findings));
        return answer;
    }

    /// Runs a command as a user who may write nothing here.
    int RunAsNobody(const std::vector<std::string>& arguments) const {
        return ExitOf(Start([&] {
            if (::getuid() == 0 && (::setgid(kNobody) != 0 || ::setuid(kNobody) != 0)) return -1;
            return RunZelmat(arguments).exitCode;
        }));
    }

    std::size_t FilesThere() const {
        const auto folder = std::filesystem::path(document_).parent_path();
        return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(folder), {}));
    }

    const std::string document_ = NewDocument();
};

TEST_F(DocumentsInTrouble, KeepTheChangesOfAllWhoChangeThemAtOnce) {
    const std::vector<std::string> names = {"A", "B", "C", "D", "E"};
    std::vector<pid_t> running;
    for (const std::string& name : names) {
        running.push_back(Start([this, card = Card(name)] {
            return RunZelmat({"add", document_, card}).exitCode;
        }));
    }
    for (const pid_t child : running) EXPECT_EQ(ExitOf(child), 0);

    EXPECT_THAT(Names(document_), testing::UnorderedElementsAreArray(names));
    EXPECT_THAT(Run({"undo", document_, "5"}), HasSubstr("undone: step 1: Add "));
}

TEST_F(DocumentsInTrouble, KeepEveryNumberThatManySetAtOnce) {
    constexpr int kPrograms = 4, kChanges = 3;
    std::vector<std::string> add = {"add", document_};
    for (int i = 0; i < kPrograms; ++i) add.push_back(Card("M" + std::to_string(i)));
    Run(add);
    std::vector<pid_t> running;
    for (int i = 0; i < kPrograms; ++i) {
        running.push_back(Start([this, name = "M" + std::to_string(i)] {
            for (int change = 1; change <= kChanges; ++change) {
                const std::string density = "density=" + std::to_string(1000 * change) + " kg/m3";
                if (RunZelmat({"set", document_, name, density}).exitCode != 0) return 1;
            }
            return 0;
        }));
    }
    for (const pid_t child : running) EXPECT_EQ(ExitOf(child), 0);

    EXPECT_THAT(Run({"find", document_, "density>=3000kg/m3 and density<=3000kg/m3"}), HasSubstr("found: 4"));
    EXPECT_THAT(Run({"undo", document_, "13"}), HasSubstr("undone: step 1: Add 4 materials"));
}

TEST_F(DocumentsInTrouble, AreChangedBySomebodyWhoWaitedUntilAnotherHadSaved) {
    const pid_t waiting = WhileItIsChanged([&] {
        const std::string card = Card("B");
        const pid_t second = Start([&] { return RunZelmat({"add", document_, card}).exitCode; });
        std::this_thread::sleep_for(std::chrono::milliseconds(500));  // for it to come to the lock
        EXPECT_EQ(::waitpid(second, nullptr, WNOHANG), 0);
        return second;
    });

    EXPECT_EQ(ExitOf(waiting), 0);
    EXPECT_THAT(Names(document_), ElementsAre("A", "B"));
}

TEST_F(DocumentsInTrouble, AreReadWhileAnotherChangesThemAndNotChangedWhenThatTakesLong) {
    Run({"add", document_, Card("B")});
    WhileItIsChanged([&] {
        EXPECT_THAT(Run({"list", document_}), HasSubstr("materials: 1"));
        EXPECT_THAT(
            Refusal(3, {"undo", document_}),
            testing::StartsWith("a.zeldoc: error[unreadable]: is in use: another program has held its "
                                "lock for 5 s"));
        return 0;
    });
    EXPECT_THAT(Names(document_), ElementsAre("B", "A"));
}

TEST_F(DocumentsInTrouble, AreTheOldOnesAfterACommandThatWasKilledInItsSave) {
    Run({"add", document_, Card("A")});

    // As the program does it, but for what it does with the signal: here it kills in the middle of a write.
    const pid_t child = StartWithRoomFor(std::filesystem::file_size(document_), [this] {
        zelmat::Findings findings;
        const auto changed = zelmat::DocumentToChange::Open(document_, CatalogFolderOfTheModule(), findings);
        KORStep step(changed->Document(), "Add many");
        for (int i = 0; i < 50; ++i) {
            const std::string name = "M" + std::to_string(i);
            if (!zelmat::AddMaterial(changed->Document(), {.file = {}, .name = name}, nullptr, findings))
                return 1;
        }
        step.Commit();
        return changed->Save({}, findings) ? 0 : 2;
    });
    int status = 0;
    ::waitpid(child, &status, 0);
    ASSERT_TRUE(WIFSIGNALED(status)) << status;
    EXPECT_EQ(WTERMSIG(status), SIGXFSZ);

    EXPECT_THAT(Names(document_), ElementsAre("A"));
    EXPECT_THAT(Run({"doctor", document_}), HasSubstr("sound"));
    Run({"add", document_, LargeCard()});
    EXPECT_THAT(Names(document_), ElementsAre("A", "Large"));
}

TEST_F(DocumentsInTrouble, AreTheOldOnesWhenTheDiskIsFull) {
    Run({"add", document_, Card("A")});
    const std::string before = Contents(document_);

    EXPECT_EQ(RunWithoutRoom({"add", document_, LargeCard()}), 3);

    EXPECT_THAT(Names(document_), ElementsAre("A"));
    EXPECT_TRUE(Contents(document_) == before);
    EXPECT_THAT(Run({"doctor", document_}), HasSubstr("sound"));
}

TEST_F(DocumentsInTrouble, LeaveNothingBesideThemWhenACommandFindsNoRoom) {
    Run({"add", document_, LargeCard()});
    const std::string folder = std::filesystem::path(document_).parent_path().string();
    const std::size_t files = FilesThere();
    const auto with = [&](const std::vector<std::string>& arguments) {
        return ExitOf(StartWithRoomFor(4096, [&] { return RunZelmat(arguments).exitCode; }));
    };

    EXPECT_EQ(with({"compact", document_}), 3);
    EXPECT_EQ(with({"copy", document_, folder + "/b.zeldoc"}), 3);
    EXPECT_EQ(with({"new", folder + "/c.zeldoc"}), 3);
    EXPECT_EQ(with({"extract", document_, "Large", "--output", folder + "/d.json"}), 3);

    EXPECT_EQ(FilesThere(), files);
    EXPECT_THAT(Names(document_), ElementsAre("Large"));
}

TEST_F(DocumentsInTrouble, CanBeLookedAtAndNotChangedWhereNothingMayBeWritten) {
    Run({"add", document_, Card("A")});
    const std::string card = Card("B");
    const auto folder = std::filesystem::path(document_).parent_path();
    using std::filesystem::perms;
    const perms look = perms::owner_read | perms::group_read | perms::others_read;
    const perms enter = perms::owner_exec | perms::group_exec | perms::others_exec;
    std::filesystem::permissions(document_, look);
    std::filesystem::permissions(folder, look | enter);
    if (RunAsNobody({"help"}) != 0) {
        std::filesystem::permissions(folder, perms::owner_all);
        GTEST_SKIP() << "another user cannot run the program";
    }
    const std::string before = Contents(document_);

    EXPECT_EQ(RunAsNobody({"list", document_}), 0);
    EXPECT_EQ(RunAsNobody({"log", document_}), 0);
    EXPECT_EQ(RunAsNobody({"doctor", document_}), 0);
    EXPECT_EQ(RunAsNobody({"add", document_, card}), 3);
    EXPECT_EQ(RunAsNobody({"undo", document_}), 3);

    EXPECT_TRUE(Contents(document_) == before);
    std::filesystem::permissions(folder, perms::owner_all);
}

TEST_F(DocumentsInTrouble, AreRefusedAndLeftAloneWhenTheirLastBytesAreGone) {
    Run({"add", document_, Card("A"), Card("B")});
    std::filesystem::resize_file(document_, std::filesystem::file_size(document_) - 100);
    const std::string before = Contents(document_);
    const std::size_t files = FilesThere();

    EXPECT_THAT(Refusal(3, {"list", document_}), HasSubstr("a.zeldoc: error["));
    EXPECT_THAT(Refusal(3, {"rename", document_, "A", "C"}), HasSubstr("a.zeldoc: error["));

    EXPECT_TRUE(Contents(document_) == before);
    EXPECT_EQ(FilesThere(), files);
}

}  // namespace
