#include <gtest/gtest.h>

#include "platform/catalog/KORCatalogFile.h"
#include "platform/store/KORRoles.h"

namespace {

TEST(ZELSharedCatalog, DeclaresPropertySetsAndShellSections) {
    KORFileError error;
    const auto catalog = KORCatalogFile::Open(ZEL_SHARED_CATALOG, error);
    ASSERT_TRUE(catalog) << error.Text();
    ASSERT_EQ(2u, catalog->Types().size());
    const KORCatalogType* set = catalog->Find(KORName::Find("ZELZelmarPropertySetLT"));
    const KORCatalogType* section = catalog->Find(KORName::Find("ZELShellSectionEnhLT"));
    ASSERT_NE(nullptr, set);
    ASSERT_NE(nullptr, section);
    const auto kind = [](const KORCatalogType& type, const char* attribute) {
        return type.layout->Find(KORName::Find(attribute)).kind;
    };

    EXPECT_EQ(KORName::Find(kKORSetRole), set->layout->Role());
    EXPECT_EQ(KORAttributeKind::ListOfComponents, kind(*set, "Children"));
    EXPECT_EQ(nullptr, section->layout->Role());
    EXPECT_EQ(KORAttributeKind::Integer, kind(*section, "SectionType"));
    EXPECT_EQ(KORAttributeKind::Component, kind(*section, "Layup"));
}

}  // namespace
