#include "zelmat/materials/AttributeFacts.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace {

using zelmat::FactsOf;

TEST(AttributeFacts, AreThoseOfTheCatalog) {
    const auto facts = FactsOf("ZELThermalExpansionLT", "ReferenceTemperature");
    EXPECT_EQ(facts.title, "reference temperature");
    EXPECT_EQ(facts.kind, KORAttributeKind::Double);
    EXPECT_EQ(facts.unit, "K");
}

TEST(AttributeFacts, EndTheProgramForAnAttributeThatTheCatalogDoesNotDeclare) {
    EXPECT_THROW(FactsOf("ZELElasticLT", "OtherData"), std::logic_error);
    EXPECT_THROW(FactsOf("OtherLT", "YoungData"), std::logic_error);
}

}  // namespace
