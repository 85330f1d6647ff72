#include "zelmat/materials/CatalogPage.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

namespace {

using testing::HasSubstr;

TEST(CatalogPage, IsTheOneInTheDocuments) {
    std::ostringstream page;
    page << std::ifstream(ZELMAT_CATALOG_PAGE).rdbuf();
    EXPECT_EQ(page.str(), zelmat::CatalogPage()) << "zelmat catalog > docs/catalog.md makes it anew";
}

TEST(CatalogPage, SaysWhichAttributeTookThePlaceOfAnOldOne) {
    EXPECT_THAT(zelmat::CatalogPage(),
                HasSubstr("\n| `JohnsonCookData` | component |  |  | 1 | ZELPlasticJohnsonCookLT; of older "
                          "documents, since then `JohnsonCookData_v2` |\n"));
}

TEST(CatalogPage, SaysUnitDefaultAndReleaseOfEachAttribute) {
    EXPECT_THAT(zelmat::CatalogPage(),
                HasSubstr("\n## ZELGasketThicknessBehaviorLT\n\n"
                          "Thickness-direction behavior of a gasket. Since release 3.\n\n"));
    EXPECT_THAT(zelmat::CatalogPage(),
                HasSubstr("\n| `ZELGasketYieldOnsetMethodClosureValue` | double | m | 0 | 3 | yield onset, "
                          "closure; of the closure method |\n"));
}

}  // namespace
