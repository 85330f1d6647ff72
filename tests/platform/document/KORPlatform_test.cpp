#include "platform/document/KORMemoryDocument.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

namespace {

class KORPlatformTest : public testing::Test {
protected:
    void SetUp() override { std::filesystem::create_directory(folder); }
    void TearDown() override { std::filesystem::remove_all(folder); }

    /// Of its own for every case: a process parses a path once.
    const std::string folder = testing::TempDir() + "KORPlatform_" +
                               testing::UnitTest::GetInstance()->current_test_info()->name() +
                               std::to_string(::getpid());
    KORPlatform platform{folder};
};

TEST_F(KORPlatformTest, OpensCatalogsOfItsFolder) {
    std::ofstream(folder + "/a.KORfct") << R"({"format": 1, "types": []})";
    KORFileError error;

    EXPECT_TRUE(platform.OpenCatalog("a.KORfct", error)) << error.Text();
}

TEST_F(KORPlatformTest, TellsItsCallerAndNobodyElseWhatIsWrongWithACatalog) {
    testing::internal::CaptureStderr();
    KORFileError error;

    EXPECT_FALSE(platform.OpenCatalog("a.KORfct", error));

    EXPECT_EQ(folder + "/a.KORfct: cannot be read: No such file or directory", error.Text());
    EXPECT_EQ("", testing::internal::GetCapturedStderr());
}

TEST_F(KORPlatformTest, OpensNothingOutsideOfItsFolder) {
    std::filesystem::create_directory(folder + "/inner");
    std::ofstream(folder + "/a.KORfct") << R"({"format": 1, "types": []})";
    const std::string absolute = folder + "/a.KORfct";
    const std::string_view nul("a.KORfct\0", 9);

    for (const std::string_view name :
         {std::string_view(absolute), std::string_view("inner/../a.KORfct"), std::string_view("../a.KORfct"),
          std::string_view("./a.KORfct"), std::string_view(".."), std::string_view("."),
          std::string_view("inner/"), nul}) {
        KORFileError error;
        EXPECT_FALSE(platform.OpenCatalog(name, error)) << name;
        EXPECT_EQ(std::string(name) + ": expected the name of a file in the catalog folder", error.Text());
    }
    KORFileError error;
    EXPECT_FALSE(platform.OpenCatalog("", error));
    EXPECT_EQ("expected the name of a file in the catalog folder", error.Text());
}

TEST_F(KORPlatformTest, ReportsWhatTheModuleCannotBeToldOnceOnStandardError) {
    const auto document = KORMemoryDocument::New(platform);
    const std::string expected = folder + "/a.KORfct: cannot be read: No such file or directory";
    testing::internal::CaptureStderr();

    EXPECT_FALSE(document->OpenCatalog("a.KORfct"));
    EXPECT_FALSE(document->OpenCatalog("a.KORfct"));

    EXPECT_EQ(expected + "\n", testing::internal::GetCapturedStderr());
}

TEST_F(KORPlatformTest, HasServicesOfItsOwn) {
    KORPlatform second{folder};
    const KORServicesScope scope(platform.Services());

    KORServices::Current().fatalReports.push_back({"text", "source", 3});

    EXPECT_EQ(1u, platform.Services().fatalReports.size());
    EXPECT_TRUE(second.Services().fatalReports.empty());
}

}  // namespace
