#include "platform/document/KORMemoryContainer.h"

#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "KORTestDocument.h"

namespace {

class KORMemoryContainerTest : public testing::Test {
protected:
    void SetUp() override {
        std::filesystem::create_directory(folder);
        std::ofstream(folder + "/Test.KORfct") << R"({"format": 1, "types": [
            {"name": "KORTestLT", "since": 1, "meaning": "x", "attributes": []}]})";
    }
    void TearDown() override { std::filesystem::remove_all(folder); }

    const std::string folder = testing::TempDir() + "KORMemoryContainer_" + std::to_string(::getpid());
    KORPlatform platform{folder};
    KORVar<KORMemoryDocument> document = KORMemoryDocument::New(platform);
    KORIContainer_var container{KORBaseUnknown_var::Adopt(document->GetFeatContainer())};
    KORICatalog_var catalog;
};

TEST_F(KORMemoryContainerTest, OpensCatalogsWhereThePlatformKeepsThem) {
    EXPECT_EQ(S_OK, AccessCatalog("Test.KORfct", "ZELMAR", container.Get(), catalog));

    ASSERT_TRUE(catalog);
    void* found = nullptr;
    ASSERT_EQ(S_OK, catalog->RetrieveStartUp("KORTestLT", "KORISpecObject", &found));
    const auto startUp = KORISpecObject_var::Adopt(static_cast<KORISpecObject*>(found));
    const auto made = KORISpecObject_var::Adopt(startUp->Instantiate("Made", container.Get()));
    EXPECT_EQ(1u, document->FeatureCount());
}

TEST_F(KORMemoryContainerTest, LeavesTheCallersCatalogAloneWhenThereIsNone) {
    ASSERT_EQ(S_OK, AccessCatalog("Test.KORfct", "ZELMAR", container.Get(), catalog));
    const KORICatalog_var before = catalog;
    testing::internal::CaptureStderr();

    EXPECT_EQ(E_FAIL, AccessCatalog("Missing.KORfct", "ZELMAR", container.Get(), catalog));

    EXPECT_EQ(folder + "/Missing.KORfct: cannot be read: No such file or directory\n",
              testing::internal::GetCapturedStderr());
    EXPECT_EQ(before, catalog);
}

TEST_F(KORMemoryContainerTest, BelongsToItsDocumentUntilThatIsClosed) {
    EXPECT_EQ(static_cast<KORDocument*>(document.Get()), container->GetDocument());

    document->Close();

    EXPECT_EQ(nullptr, container->GetDocument());
    EXPECT_EQ(E_FAIL, AccessCatalog("Test.KORfct", "ZELMAR", container.Get(), catalog));
    const auto features = KORIFeatureContainer_var(container);
    EXPECT_FALSE(features->NewFeature(KORTestLayout(), "late"));
}

TEST_F(KORMemoryContainerTest, OutlivesItsDocument) {
    document = nullptr;

    EXPECT_EQ(nullptr, container->GetDocument());
    EXPECT_EQ(1, KORBaseUnknown_var(container)->References() - 1);
}

}  // namespace
