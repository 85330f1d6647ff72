#include "platform/catalog/KORPlatformCatalog.h"

#include <gtest/gtest.h>

namespace {

constexpr struct {
    const char* lateType;
    const char* attribute;
    KORAttributeKind kind;
} kDeclared[] = {
    {"KORMaterialLT", "ApplicativeData", KORAttributeKind::ListOfComponents},
    {"KORApplicativeDataLT", "Name", KORAttributeKind::String},
    {"KORApplicativeDataLT", "Data", KORAttributeKind::Component},
    {"KORAnalysisModelLT", "Children", KORAttributeKind::ListOfComponents},
};

TEST(KORPlatformCatalog, DeclaresWhatThePlatformKeepsInFeatures) {
    for (const auto& [lateType, attribute, kind] : kDeclared) {
        const KORCatalogType* type = KORPlatformCatalog().Find(KORName::Intern(lateType));
        ASSERT_NE(nullptr, type) << lateType;
        const KORLayout::Place place = type->layout->Find(KORName::Intern(attribute));
        EXPECT_NE(0, place.slot) << lateType << " " << attribute;
        EXPECT_EQ(kind, place.kind) << lateType << " " << attribute;
    }
    EXPECT_EQ(3u, KORPlatformCatalog().Types().size());
}

}  // namespace
