#include "zelmat/files/WholeFile.h"

#include <gmock/gmock.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>

namespace {

using testing::ElementsAre;

class WholeFile : public testing::Test {
protected:
    WholeFile() { std::filesystem::create_directories(folder_); }
    ~WholeFile() override { std::filesystem::remove_all(folder_); }

    std::string Path(const std::string& name) const { return folder_ + "/" + name; }

    static std::string Contents(const std::string& path) {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    std::vector<std::string> Names() const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(folder_)) {
            names.push_back(entry.path().filename().string());
        }
        return names;
    }

    std::string folder_ = testing::TempDir() + "zelmat-whole-" + std::to_string(getpid());
    std::string reason_;
};

TEST_F(WholeFile, PutsATextIntoANewFileAndLeavesNothingBesideIt) {
    EXPECT_TRUE(zelmat::WriteWholeFile(Path("new"), "text\n", reason_));

    EXPECT_EQ(Contents(Path("new")), "text\n");
    EXPECT_EQ(reason_, "");
    EXPECT_THAT(Names(), ElementsAre("new"));
}

TEST_F(WholeFile, ReplacesWhatWasThere) {
    std::ofstream(Path("old")) << "a much longer text than the new one";
    EXPECT_TRUE(zelmat::WriteWholeFile(Path("old"), "short", reason_));

    EXPECT_EQ(Contents(Path("old")), "short");
    EXPECT_THAT(Names(), ElementsAre("old"));
}

TEST_F(WholeFile, SaysWhyAFolderThatIsNotThereCannotBeWrittenTo) {
    EXPECT_FALSE(zelmat::WriteWholeFile(Path("no/such"), "text", reason_));
    EXPECT_EQ(reason_, "No such file or directory");
}

TEST_F(WholeFile, LeavesNothingBehindWhenItCannotTakeThePlace) {
    std::filesystem::create_directories(Path("folder/inside"));
    EXPECT_FALSE(zelmat::WriteWholeFile(Path("folder"), "text", reason_));

    EXPECT_EQ(reason_, "Is a directory");
    EXPECT_THAT(Names(), ElementsAre("folder"));
}

TEST_F(WholeFile, NeverWritesThroughWhatLiesBesideItAlready) {
    std::filesystem::create_symlink(Path("elsewhere"), Path("new.part-" + std::to_string(getpid())));
    EXPECT_FALSE(zelmat::WriteWholeFile(Path("new"), "text", reason_));
    EXPECT_EQ(reason_, "File exists");
    EXPECT_FALSE(std::filesystem::exists(Path("elsewhere")));
}

}  // namespace
