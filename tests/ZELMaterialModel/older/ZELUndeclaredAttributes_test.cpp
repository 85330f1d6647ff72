#include <gtest/gtest.h>

#include "tests/ZELMaterialModel/older/ZELOlderDocument.h"

namespace {

/// What an upgrade does with attributes that today's catalog does not know, as a newer or foreign release may
/// have written them.
class ZELUndeclaredAttributes : public testing::Test {
protected:
    /// One of the older documents, with more attributes on features of it.
    static std::string With(const char* document, const std::string& type, const std::string& attributes) {
        std::string text = ZELOlderText(document);
        for (auto at = text.find("\"" + type + "\""); at != std::string::npos;
             at = text.find("\"" + type + "\"", at + 1)) {
            const std::string begin = "\"attributes\": {";
            text.insert(text.find(begin, at) + begin.size(), attributes + ", ");
        }
        return text;
    }
    static std::size_t Count(const std::string& text, const std::string& part) {
        std::size_t count = 0;
        for (auto at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++count;
        return count;
    }

    const ZELCatalogFolder catalogs_;
};

TEST_F(ZELUndeclaredAttributes, AreCopiedWithAMaterialThatMovesToItsPlatformMaterialsContainer) {
    ZELOlderDocument older(catalogs_, With("old_container_hyperelastic_on", "ZELMaterialLT",
                                           R"("Damping": 0.02, "DampingTable": [1, 2.5])"));

    const KORUpgradeReport report = older.Upgrade();

    ASSERT_EQ(1u, report.upgraded.size());
    EXPECT_EQ(S_OK, report.upgraded[0].status);
    ASSERT_NE(0u, report.upgraded[0].replacement);
    const KORFeature* copy = older.Document().Features().Find(report.upgraded[0].replacement);
    std::vector<std::string> names;
    copy->ForEachUndeclared(
        [&](const KORUnicodeString& name, const KORValue&) { names.emplace_back(name.View()); });
    EXPECT_EQ((std::vector<std::string>{"Damping", "DampingTable"}), names);
    EXPECT_NE(0u, Count(older.Text(), "\"DampingTable\": [1, 2.5]"));
}

TEST_F(ZELUndeclaredAttributes, StayOnTheOldRowsWhenScalingReplacesThem) {
    ZELOlderDocument older(catalogs_,
                           With("units_not_converted", "ZELMaterialModelRowDataLT", R"("Origin": "test 7")"));

    older.Upgrade();

    EXPECT_EQ((ZELRows{{5e5, 1e5, 2e-8, 293.15}, {4e5, 8e4, 2.5e-8, 353.15}}), older.Coefficients());
    EXPECT_EQ(2u, Count(older.Text(), "\"Origin\": \"test 7\""));
    for (const int row : {7, 8}) {
        std::size_t found = 0;
        older.Find(row)->ForEachUndeclared([&](const KORUnicodeString&, const KORValue&) { ++found; });
        EXPECT_EQ(1u, found) << row;
    }
}

}  // namespace
