#include <sqlite3.h>

#include <filesystem>
#include <set>

#include "platform/disk/KORDoctor.h"
#include "tests/platform/disk/KORDiskTest.h"
#include "tests/platform/disk/KORFaultyDisk.h"

namespace {

using testing::AnyOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Optional;

struct Failure {
    const char* name;
    int code;            ///< 0: the error that fits the call
    const char* reason;  ///< a part of what the user is told
};

void PrintTo(const Failure& failure, std::ostream* out) {
    *out << failure.name;
}

/// Every call that SQLite makes to the file system fails in turn, each in its own way.
class KORDiskFailures : public KORDiskTest, public testing::WithParamInterface<Failure> {
protected:
    void MakeDocument() {
        auto made = Create();
        Do(made->Document(), "Make", [&] {
            for (int i = 0; i < 3; ++i) Material(made->Document(), "Steel");
        });
        Save(*made);
    }

    void Change(KORMemoryDocument& document) {
        Do(document, "Change", [&] {
            First(document)->SetDouble(length, 2.0, 1);
            KORRawColldouble list;
            for (int value = 0; value < 1500; ++value) list.Append(value);
            Material(document, "Copper")->SetListOfDouble(numbers, list);
        });
    }

    std::string State() { return Shown(OpenToRead()->Document()); }

    const KORFaultyDisk disk;
};

TEST_P(KORDiskFailures, OfASaveAreToldAndLeaveTheOldDocumentInTheFileAndInMemory) {
    MakeDocument();
    const std::string original = Content();
    const std::string before = State();
    std::set<std::string> hit;

    for (int n = 1;; ++n) {
        Touch("d.zeldoc", original);
        auto opened = OpenToChange();
        Change(opened->Document());
        const std::string after = Shown(opened->Document());
        KORFileError error;
        KORFaultyDisk::Arm(KORFaultyDisk::Fault::CutFail, n, false, GetParam().code);
        const bool saved = opened->Save({}, error);
        KORFaultyDisk::Disarm();
        if (!KORFaultyDisk::Hit()) break;
        hit.insert(KORFaultyDisk::What());
        if (!saved) {
            EXPECT_EQ(Path(), error.file);
            EXPECT_THAT(error.Text(), HasSubstr(GetParam().reason)) << n << ": " << KORFaultyDisk::What();
            EXPECT_EQ(before, Shown(opened->Document())) << n << ": " << KORFaultyDisk::What();
            EXPECT_TRUE(opened->Document().Undo());
            EXPECT_TRUE(opened->Document().Redo());
        }
        opened.reset();
        EXPECT_EQ(saved ? after : before, State()) << n << ": " << KORFaultyDisk::What();
        EXPECT_THAT(KORDoctor::Examine(Path(), error), Optional(IsEmpty()));
    }

    EXPECT_THAT(hit, testing::IsSupersetOf({"write", "sync", "opening of the journal", "removal"}));
}

TEST_P(KORDiskFailures, ASaveCanBeTriedAgainWithTheSameChange) {
    MakeDocument();
    auto opened = OpenToChange();
    Change(opened->Document());
    const std::string after = Shown(opened->Document());
    KORFileError error;
    KORFaultyDisk::Arm(KORFaultyDisk::Fault::Fail, 5, true, GetParam().code);
    ASSERT_FALSE(opened->Save({}, error));

    Change(opened->Document());
    Save(*opened);

    EXPECT_EQ(after, State());
}

TEST_P(KORDiskFailures, OfAnOpeningAreTold) {
    MakeDocument();
    const std::string original = Content();
    for (const bool change : {false, true}) {
        for (int n = 1;; ++n) {
            KORFileError error;
            KORFaultyDisk::Arm(KORFaultyDisk::Fault::Fail, n, false, GetParam().code);
            const auto opened = change ? KORDiskDocument::OpenToChange(*platform, Path(), error)
                                       : KORDiskDocument::OpenToRead(*platform, Path(), error);
            KORFaultyDisk::Disarm();
            if (!KORFaultyDisk::Hit()) break;
            if (!opened) {
                EXPECT_THAT(error.Text(), HasSubstr(Path())) << n << ": " << KORFaultyDisk::What();
                EXPECT_NE("", error.message);
            }
        }
    }
    EXPECT_EQ(original, Content());
}

TEST_P(KORDiskFailures, OfTheFirstSaveLeaveAnEmptyFileThatGoes) {
    for (int n = 1;; ++n) {
        KORFileError error;
        auto made = Create();
        Material(made->Document(), "Steel");
        KORFaultyDisk::Arm(KORFaultyDisk::Fault::CutFail, n, false, GetParam().code);
        const bool saved = made->Save({}, error);
        KORFaultyDisk::Disarm();
        if (!KORFaultyDisk::Hit()) break;
        made.reset();
        EXPECT_EQ(saved, std::filesystem::exists(Path())) << n << ": " << KORFaultyDisk::What();
        for (const std::string& file : Files()) std::filesystem::remove(Path(file));
    }
}

INSTANTIATE_TEST_SUITE_P(, KORDiskFailures,
                         testing::Values(Failure{"fitting", 0, "SQLite"},
                                         Failure{"full", SQLITE_FULL, "full"},
                                         Failure{"io_error", SQLITE_IOERR, "disk I/O error"},
                                         Failure{"read_only", SQLITE_READONLY, "readonly"},
                                         Failure{"busy", SQLITE_BUSY, "is in use"},
                                         Failure{"no_memory", SQLITE_NOMEM, "memory"}),
                         [](const auto& failure) { return std::string(failure.param.name); });

}  // namespace
