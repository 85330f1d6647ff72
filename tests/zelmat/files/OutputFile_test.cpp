#include "zelmat/files/OutputFile.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <thread>

#include "tests/zelmat/support/TestFolder.h"

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

class OutputFile : public testing::Test {
protected:
    OutputFile() { fs::create_directories(folder_); }
    ~OutputFile() override {
        fs::permissions(folder_, fs::perms::owner_all);
        fs::remove_all(folder_);
    }

    std::string Path(const std::string& name) const { return folder_ + "/" + name; }

    std::string Make(const std::string& name, const std::string& text, mode_t mode = 0644) const {
        std::ofstream(Path(name), std::ios::binary) << text;
        ::chmod(Path(name).c_str(), mode);
        return Path(name);
    }

    static mode_t ModeOf(const std::string& path) {
        struct stat state {};
        ::stat(path.c_str(), &state);
        return state.st_mode & 07777;
    }

    std::vector<std::string> Names() const {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(folder_)) {
            names.push_back(entry.path().filename().string());
        }
        std::sort(names.begin(), names.end());
        return names;
    }

    bool Write(const std::string& path, const std::string& text,
               const std::vector<std::string>& inputs = {}) {
        written_ = zelmat::WriteOutputFile(path, text, inputs, findings_);
        return written_.has_value();
    }

    /// The only finding, without the path that it begins with.
    std::string Finding() const {
        if (findings_.All().size() != 1) return "not one finding";
        const auto& finding = findings_.All().front();
        return std::to_string(finding.kind == zelmat::FindingKind::UNREADABLE) + finding.code + ": " +
               finding.text;
    }

    std::string folder_ = testing::TempDir() + "zelmat-output-" + std::to_string(getpid());
    zelmat::Findings findings_;
    std::optional<zelmat::WrittenFile> written_;
};

TEST_F(OutputFile, PutsATextIntoANewFileAndLeavesNothingBesideIt) {
    EXPECT_TRUE(Write(Path("new"), "text\n"));

    EXPECT_EQ(Contents(Path("new")), "text\n");
    EXPECT_EQ(written_->backup, "");
    EXPECT_THAT(Names(), ElementsAre("new"));
    EXPECT_THAT(findings_.All(), IsEmpty());
}

TEST_F(OutputFile, GivesANewFileTheModeThatTheUsersMaskLeaves) {
    const mode_t before = ::umask(027);
    EXPECT_TRUE(Write(Path("new"), "text"));
    ::umask(before);
    EXPECT_EQ(ModeOf(Path("new")), 0640u);
}

TEST_F(OutputFile, ReplacesWhatWasThereAndKeepsItsMode) {
    Make("old", "a much longer text than the new one", 0606);
    EXPECT_TRUE(Write(Path("old"), "short"));

    EXPECT_EQ(Contents(Path("old")), "short");
    EXPECT_EQ(ModeOf(Path("old")), 0606u);
    EXPECT_THAT(Names(), ElementsAre("old"));
}

TEST_F(OutputFile, KeepsTheOwnerOfAFileThatRootReplaces) {
    if (::geteuid() != 0) GTEST_SKIP() << "only root can give a file away";
    Make("theirs", "old");
    ASSERT_EQ(::chown(Path("theirs").c_str(), 12345, 23456), 0);

    EXPECT_TRUE(Write(Path("theirs"), "new"));

    struct stat state {};
    ::stat(Path("theirs").c_str(), &state);
    EXPECT_EQ(state.st_uid, 12345u);
    EXPECT_EQ(state.st_gid, 23456u);
    EXPECT_EQ(Contents(Path("theirs")), "new");
}

TEST_F(OutputFile, GoesThroughASymbolicLinkToItsTarget) {
    Make("target", "old");
    fs::create_directories(Path("folder"));
    fs::create_symlink("../target", Path("folder/link"));

    EXPECT_TRUE(Write(Path("folder/link"), "new"));

    EXPECT_TRUE(fs::is_symlink(Path("folder/link")));
    EXPECT_EQ(Contents(Path("target")), "new");
    EXPECT_FALSE(fs::is_symlink(Path("target")));
}

TEST_F(OutputFile, MakesTheTargetOfADanglingLink) {
    fs::create_symlink("not-there", Path("link"));
    EXPECT_TRUE(Write(Path("link"), "new"));

    EXPECT_TRUE(fs::is_symlink(Path("link")));
    EXPECT_EQ(Contents(Path("not-there")), "new");
}

TEST_F(OutputFile, RefusesLinksThatLeadInACircle) {
    fs::create_symlink("b", Path("a"));
    fs::create_symlink("a", Path("b"));
    EXPECT_FALSE(Write(Path("a"), "new"));
    EXPECT_EQ(Finding(), "1not-written: cannot be written: Too many levels of symbolic links");
    EXPECT_THAT(Names(), ElementsAre("a", "b"));
}

TEST_F(OutputFile, WritesAFileWithSeveralNamesInPlaceSoThatAllNamesSeeIt) {
    Make("one", "the old text, longer");
    fs::create_hard_link(Path("one"), Path("two"));

    EXPECT_TRUE(Write(Path("one"), "new"));

    EXPECT_EQ(Contents(Path("two")), "new");
    EXPECT_EQ(fs::hard_link_count(Path("one")), 2u);
    EXPECT_THAT(Names(), ElementsAre("one", "two"));
}

TEST_F(OutputFile, KeepsTheWholeCopyThatAKilledWriteInPlaceLeftUntilOneSucceeds) {
    Make("one", "half");
    fs::create_hard_link(Path("one"), Path("two"));
    Make("one.zelmat-backup", "the whole text");

    EXPECT_TRUE(Write(Path("one"), "new"));

    EXPECT_EQ(Contents(Path("two")), "new");
    EXPECT_THAT(Names(), ElementsAre("one", "two"));
}

TEST_F(OutputFile, RefusesAFileWhoseModeLetsNobodyWriteForRootToo) {
    Make("fixed", "old", 0444);
    EXPECT_FALSE(Write(Path("fixed"), "new"));

    EXPECT_EQ(Finding(), "1not-written: cannot be written: its mode does not allow writing");
    EXPECT_EQ(Contents(Path("fixed")), "old");
    EXPECT_EQ(ModeOf(Path("fixed")), 0444u);
    EXPECT_THAT(Names(), ElementsAre("fixed"));
}

TEST_F(OutputFile, KeepsWhatWasReadWhenTheOutputIsAlsoTheInput) {
    Make("card.json", "first");
    fs::create_symlink("card.json", Path("link"));

    EXPECT_TRUE(Write(Path("card.json"), "second", {Path("other"), Path("link")}));
    EXPECT_EQ(written_->backup, Path("card.json.bak"));
    EXPECT_TRUE(Write(Path("card.json"), "third", {Path("card.json")}));
    EXPECT_EQ(written_->backup, Path("card.json.bak.2"));

    EXPECT_EQ(Contents(Path("card.json")), "third");
    EXPECT_EQ(Contents(Path("card.json.bak")), "first");
    EXPECT_EQ(Contents(Path("card.json.bak.2")), "second");
}

TEST_F(OutputFile, WritesToAPipeAndLeavesItAPipe) {
    ASSERT_EQ(::mkfifo(Path("pipe").c_str(), 0600), 0);
    std::string received;
    std::thread reader([&] { received = Contents(Path("pipe")); });
    EXPECT_TRUE(Write(Path("pipe"), "through"));
    reader.join();

    EXPECT_EQ(received, "through");
    EXPECT_TRUE(fs::is_fifo(Path("pipe")));
}

TEST_F(OutputFile, SaysThatTheReaderOfAPipeWentAway) {
    ASSERT_EQ(::mkfifo(Path("pipe").c_str(), 0600), 0);
    std::thread reader([&] { ::close(::open(Path("pipe").c_str(), O_RDONLY)); });
    EXPECT_FALSE(Write(Path("pipe"), std::string(1 << 20, 'x')));
    reader.join();
    EXPECT_EQ(Finding(), "1not-written: cannot be written: Broken pipe");
}

TEST_F(OutputFile, SaysThatADeviceIsFull) {
    EXPECT_FALSE(Write("/dev/full", "text"));
    EXPECT_EQ(Finding(), "1not-written: cannot be written: No space left on device");
}

TEST_F(OutputFile, RefusesAFolder) {
    EXPECT_FALSE(Write(folder_, "text"));
    EXPECT_EQ(Finding(), "1not-written: cannot be written: is a folder");
}

TEST_F(OutputFile, SaysWhyAFolderThatIsNotThereCannotBeWrittenTo) {
    EXPECT_FALSE(Write(Path("no/such"), "text"));
    EXPECT_EQ(Finding(), "1not-written: cannot be written: No such file or directory");
}

TEST_F(OutputFile, RefusesAPathThatGoesOnBehindANul) {
    EXPECT_FALSE(Write(Path(std::string("a\0b", 3)), "text"));
    EXPECT_EQ(Finding(), "1not-written: cannot be written: the path holds a NUL character");
    EXPECT_THAT(Names(), IsEmpty());
}

TEST_F(OutputFile, DoesNotReplaceADocument) {
    const std::string document("SQLite format 3\0 and a history", 30);
    Make("lab.zeldoc", document);
    fs::create_symlink("lab.zeldoc", Path("link"));

    for (const char* name : {"lab.zeldoc", "link"}) {
        findings_ = {};
        EXPECT_FALSE(Write(Path(name), "text", {Path("lab.zeldoc")}));
        EXPECT_EQ(Finding(),
                  "1not-written: cannot be written: is a document, which a file of another form "
                  "does not replace");
    }
    EXPECT_EQ(Contents(Path("lab.zeldoc")), document);
    EXPECT_THAT(Names(), ElementsAre("lab.zeldoc", "link"));
    findings_ = {};
    Make("short", "SQLite format 3");
    EXPECT_TRUE(Write(Path("short"), "text"));
}

TEST_F(OutputFile, IsRefusedWhereTheNameOfTheBackupWouldBeTooLong) {
    const std::string name(252, 'x');
    Make(name, "old");

    EXPECT_FALSE(Write(Path(name), "new", {Path(name)}));
    EXPECT_EQ(Finding(), "1not-written: cannot be written: File name too long");
    EXPECT_EQ(Contents(Path(name)), "old");
    EXPECT_THAT(Names(), ElementsAre(name));
}

TEST_F(OutputFile, LeavesTheOldFileWholeWhenTheDiskIsFull) {
    Make("old", "old");
    const std::string large(1 << 16, 'x');
    const pid_t child = ::fork();
    if (child == 0) {
        // A limit on the size of files stands in for the full disk.
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{4096, 4096};
        ::setrlimit(RLIMIT_FSIZE, &limit);
        const bool refused = !zelmat::WriteOutputFile(Path("old"), large, {}, findings_);
        ::_exit(refused && Finding() == "1not-written: cannot be written: File too large" ? 0 : 1);
    }
    int status = -1;
    ::waitpid(child, &status, 0);

    EXPECT_EQ(status, 0);
    EXPECT_EQ(Contents(Path("old")), "old");
    EXPECT_THAT(Names(), ElementsAre("old"));
}

TEST_F(OutputFile, LeavesAFileWithSeveralNamesWholeWhenTheDiskIsFull) {
    Make("one", "old");
    fs::create_hard_link(Path("one"), Path("two"));
    const std::string large(1 << 16, 'x');
    const pid_t child = ::fork();
    if (child == 0) {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{4096, 4096};
        ::setrlimit(RLIMIT_FSIZE, &limit);
        ::_exit(zelmat::WriteOutputFile(Path("one"), large, {}, findings_) ? 1 : 0);
    }
    int status = -1;
    ::waitpid(child, &status, 0);

    EXPECT_EQ(status, 0);
    EXPECT_EQ(Contents(Path("two")), "old");
    EXPECT_THAT(Names(), ElementsAre("one", "two"));
}

TEST_F(OutputFile, RemovesWhatAKilledWriteLeftAndNothingThatIsBeingWritten) {
    // Names of leftovers belong to the target's name: a first write shows which.
    Make("card", "old");
    const pid_t child = ::fork();
    if (child == 0) {
        const rlimit limit{4096, 4096};
        ::setrlimit(RLIMIT_FSIZE, &limit);  // the kernel kills at the first byte beyond it
        static_cast<void>(zelmat::WriteOutputFile(Path("card"), std::string(1 << 16, 'x'), {}, findings_));
        ::_exit(0);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    ASSERT_TRUE(WIFSIGNALED(status));
    ASSERT_EQ(Names().size(), 2u);
    const std::string left = Names().front();
    EXPECT_EQ(Contents(Path("card")), "old");

    const std::string writing = left + "9";
    const int other = ::open(Path(writing).c_str(), O_WRONLY | O_CREAT, 0600);
    ASSERT_EQ(::flock(other, LOCK_EX), 0);
    EXPECT_TRUE(Write(Path("card"), "new"));

    EXPECT_EQ(Contents(Path("card")), "new");
    EXPECT_THAT(Names(), UnorderedElementsAre("card", writing));
    ::close(other);
}

TEST_F(OutputFile, IsWholeBeforeASignalEndsTheProgram) {
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        const std::string text(1 << 24, 'x');
        const pid_t child = ::fork();
        if (child == 0) {
            while (true) static_cast<void>(zelmat::WriteOutputFile(Path("file"), text, {}, findings_));
        }
        while (!fs::exists(Path("file"))) std::this_thread::yield();
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
        ::kill(child, signal);
        int status = 0;
        ::waitpid(child, &status, 0);

        EXPECT_EQ(WTERMSIG(status), signal);
        EXPECT_EQ(fs::file_size(Path("file")), text.size());
        EXPECT_THAT(Names(), ElementsAre("file"));
    }
}

}  // namespace
