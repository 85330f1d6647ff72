#include "platform/document/KORPlatform.h"

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

    EXPECT_TRUE(platform.OpenCatalog("a.KORfct"));
    EXPECT_EQ("", platform.CatalogError());
}

TEST_F(KORPlatformTest, SaysWhatIsWrongWithACatalogOnceOnStandardErrorAndAsOftenAsAsked) {
    const std::string expected = folder + "/a.KORfct: cannot be read: No such file or directory";
    testing::internal::CaptureStderr();

    EXPECT_FALSE(platform.OpenCatalog("a.KORfct"));
    EXPECT_FALSE(platform.OpenCatalog("a.KORfct"));

    EXPECT_EQ(expected + "\n", testing::internal::GetCapturedStderr());
    EXPECT_EQ(expected, platform.CatalogError());
}

TEST_F(KORPlatformTest, ForgetsTheErrorWhenTheNextCatalogOpens) {
    std::ofstream(folder + "/a.KORfct") << R"({"format": 1, "types": []})";
    testing::internal::CaptureStderr();
    EXPECT_FALSE(platform.OpenCatalog("b.KORfct"));
    testing::internal::GetCapturedStderr();

    EXPECT_TRUE(platform.OpenCatalog("a.KORfct"));

    EXPECT_EQ("", platform.CatalogError());
}

TEST_F(KORPlatformTest, HasServicesOfItsOwn) {
    KORPlatform second{folder};
    const KORServicesScope scope(platform.Services());

    KORServices::Current().fatalReports.push_back({"text", "source", 3});

    EXPECT_EQ(1u, platform.Services().fatalReports.size());
    EXPECT_TRUE(second.Services().fatalReports.empty());
}

}  // namespace
