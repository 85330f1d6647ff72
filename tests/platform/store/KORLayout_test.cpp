#include "platform/store/KORLayout.h"

#include <gtest/gtest.h>

namespace {

std::vector<KORAttribute> TwoAttributes() {
    std::vector<KORAttribute> attributes;
    attributes.push_back({KORName::Intern("Second of the pool"), KORValue::OfDouble(2.5)});
    attributes.push_back({KORName::Intern("Thickness"), KORValue::OfInteger(3)});
    return attributes;
}

TEST(KORLayout, PutsAttributesBehindTheContainer) {
    const KORLayout layout(KORName::Intern("SomeLT"), TwoAttributes());

    EXPECT_EQ(1, layout.Find(KORName::Find("Second of the pool")).slot);
    EXPECT_EQ(2, layout.Find(KORName::Find("Thickness")).slot);
    EXPECT_EQ(KORAttributeKind::Integer, layout.Find(KORName::Find("Thickness")).kind);
    EXPECT_EQ(3, layout.SlotCount());
}

TEST(KORLayout, FindsNoNameItDoesNotDeclare) {
    const KORName* earlier = KORName::Intern("interned before the attributes");
    const KORLayout layout(KORName::Intern("SomeLT"), TwoAttributes());
    const KORName* later = KORName::Intern("interned after the attributes");

    EXPECT_EQ(0, layout.Find(earlier).slot);
    EXPECT_EQ(0, layout.Find(later).slot);
    EXPECT_EQ(0, layout.Find(KORName::Intern("SomeLT")).slot);
}

TEST(KORLayout, WithoutAttributesFindsNothing) {
    const KORLayout layout(KORName::Intern("SomeLT"), {});

    EXPECT_EQ(0, layout.Find(KORName::Intern("Thickness")).slot);
    EXPECT_EQ(1, layout.SlotCount());
}

TEST(KORLayout, KnowsInitialValuesBySlot) {
    const KORLayout layout(KORName::Intern("SomeLT"), TwoAttributes());

    EXPECT_EQ(2.5, layout.Initial(1).Double());
    EXPECT_EQ(3, layout.Initial(2).Integer());
}

TEST(KORLayout, NamesEverySlotForReports) {
    const KORLayout layout(KORName::Intern("SomeLT"), TwoAttributes());

    EXPECT_STREQ("Name", layout.SlotName(KORLayout::kName));
    EXPECT_STREQ("Alias", layout.SlotName(KORLayout::kAlias));
    EXPECT_STREQ("Container", layout.SlotName(0));
    EXPECT_STREQ("Thickness", layout.SlotName(2));
}

TEST(KORLayout, HasANumberOfItsOwnAlsoUnderTheSameName) {
    const KORLayout one(KORName::Intern("SomeLT"), {});
    const KORLayout two(KORName::Intern("SomeLT"), {});

    EXPECT_EQ(one.Ordinal() + 1, two.Ordinal());
}

TEST(KORLayout, OfATypeThatNoCatalogDeclaresHasNoAttributesAndIsOnePerName) {
    const KORName* const name = KORName::Intern("KORNobodysLT");

    const KORLayoutHandle layout = KORLayout::OfUndeclaredType(name);

    EXPECT_EQ(name, layout->Name());
    EXPECT_TRUE(layout->Attributes().empty());
    EXPECT_EQ(layout, KORLayout::OfUndeclaredType(name));
    EXPECT_NE(layout, KORLayout::OfUndeclaredType(KORName::Intern("KORNobodysOtherLT")));
}

}  // namespace
