#include "platform/catalog/KORCatalogSet.h"

#include <gtest/gtest.h>

namespace {

std::shared_ptr<const KORCatalogFile> Catalog(const std::string& lateType) {
    KORFileError error;
    return KORCatalogFile::FromText(R"({"format": 1, "types": [{"name": ")" + lateType +
                                        R"(", "since": 1, "meaning": "x", "attributes": []}]})",
                                    "text", error);
}

TEST(KORCatalogSet, FindsTypesInTheCatalogsAddedAndInThePlatformsOwn) {
    const auto first = Catalog("KOROneLT");
    const auto second = Catalog("KORTwoLT");
    KORCatalogSet set;
    set.Add("a", first);
    set.Add("b", second);

    EXPECT_EQ(&first->Types()[0], set.Find(KORName::Intern("KOROneLT")));
    EXPECT_EQ(&second->Types()[0], set.Find(KORName::Intern("KORTwoLT")));
    EXPECT_NE(nullptr, set.Find(KORName::Intern("KORMaterialLT")));
    EXPECT_EQ(nullptr, set.Find(KORName::Intern("KORThreeLT")));
    EXPECT_EQ(nullptr, set.Find(nullptr));
}

TEST(KORCatalogSet, PrefersTheCatalogAddedFirst) {
    const auto first = Catalog("KORMaterialLT");
    KORCatalogSet set;
    set.Add("a", first);
    set.Add("b", Catalog("KORMaterialLT"));

    EXPECT_EQ(&first->Types()[0], set.Find(KORName::Intern("KORMaterialLT")));
}

TEST(KORCatalogSet, FindsWhatTheSetBehindItHoldsAlsoWhenThatIsAddedLater) {
    const auto own = Catalog("KOROneLT");
    const auto shared = Catalog("KORTwoLT");
    const auto behind = std::make_shared<KORCatalogSet>();
    KORCatalogSet set(behind);
    set.Add("own", own);

    behind->Add("one", Catalog("KOROneLT"));
    behind->Add("two", shared);

    EXPECT_EQ(&own->Types()[0], set.Find(KORName::Intern("KOROneLT")));
    EXPECT_EQ(&shared->Types()[0], set.Find(KORName::Intern("KORTwoLT")));
    EXPECT_NE(nullptr, set.Find(KORName::Intern("KORMaterialLT")));
    EXPECT_EQ(1u, set.Catalogs().size());
}

TEST(KORCatalogSet, TakesACatalogOncePerName) {
    const auto first = Catalog("KOROneLT");
    KORCatalogSet set;
    set.Add("a", first);

    set.Add("a", Catalog("KORTwoLT"));

    ASSERT_EQ(1u, set.Catalogs().size());
    EXPECT_EQ("a", set.Catalogs()[0].name);
    EXPECT_EQ(first, set.Catalogs()[0].file);
}

}  // namespace
