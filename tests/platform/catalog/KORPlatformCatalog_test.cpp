#include "platform/catalog/KORPlatformCatalog.h"

#include <gtest/gtest.h>

namespace {

TEST(KORPlatformCatalog, HasThePlatformsMaterial) {
    const KORCatalogType* material = KORPlatformCatalog().Find(KORName::Intern("KORMaterialLT"));

    ASSERT_NE(nullptr, material);
    const KORLayout::Place data = material->layout->Find(KORName::Intern("ApplicativeData"));
    EXPECT_NE(0, data.slot);
    EXPECT_EQ(KORAttributeKind::ListOfComponents, data.kind);
}

}  // namespace
