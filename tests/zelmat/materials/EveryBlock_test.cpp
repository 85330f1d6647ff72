#include <gmock/gmock.h>

#include "tests/zelmat/support/CardFile.h"
#include "tests/zelmat/support/CatalogFolder.h"
#include "zelmat/materials/MaterialHost.h"
#include "zelmat/materials/MaterialReader.h"
#include "zelmat/materials/MaterialWriter.h"

namespace {

using zelmat::Block;
using zelmat::BlockKind;
using zelmat::Setting;
using zelmat::SettingKind;
using zelmat::Value;

/// A value that a new material does not have, told from its siblings by a number.
Value Other(const Setting& setting, int number) {
    switch (setting.kind) {
        case SettingKind::FLAG:
            return true;
        case SettingKind::COUNT:
            return setting.most < 100 ? setting.most / 2 : 100 + number;
        case SettingKind::NUMBER:
            return 300.0 + number;
        case SettingKind::TEXT:
        case SettingKind::UNREAD:
            break;
    }
    return setting.choices.empty() ? std::string("text") : setting.choices.front();
}

/// A block with every setting that is stored and every table, all numbers different but for those that a
/// behavior holds against a bound.
Block FullBlock(const BlockKind& kind) {
    Block block{.kind = &kind};
    int number = 0;
    for (const Setting& setting : kind.settings) {
        if (setting.stored) block.values.Set(setting.name, Other(setting, ++number));
    }
    for (const auto& tableKind : kind.tables) {
        zelmat::Table table = zelmat::EmptyTable(tableKind, block.values, true);
        const auto form = tableKind.form(block.values);
        for (zelmat::Column& column : table.columns) {
            const bool ratio = column.kind.name == "poissons_ratio";
            for (int row = 0; row < (form->singleRow ? 1 : 3); ++row) {
                column.values.push_back(ratio ? 0.1 * row : row == 0 ? 0.0 : 1000.0 * ++number);
            }
            if (column.kind.name == "shear_stiffness") column.values.front() = 1.0;
        }
        block.tables.push_back(std::move(table));
    }
    return block;
}

class EveryBlock : public testing::TestWithParam<std::string> {};

TEST_P(EveryBlock, GivesBackEverySettingAndEveryNumberThatWentIn) {
    const BlockKind& kind = *zelmat::FindBlockKind(GetParam());
    const Block given = FullBlock(kind);
    zelmat::Findings findings;
    zelmat::MaterialHost host(CatalogFolderOfTheModule());
    const zelmat::Material material{.file = "doc", .name = "x"};
    const auto feature = host.NewMaterial(material, findings);

    zelmat::WriteBlocks(feature.Get(), material, {&given}, findings);
    const auto read = zelmat::ReadMaterial(feature.Get(), "doc", "x", findings);

    for (const auto& finding : findings.All()) ADD_FAILURE() << zelmat::FindingLine(finding);
    const Block* stored = read.Find(kind.name);
    ASSERT_NE(stored, nullptr);
    EXPECT_TRUE(stored->enabled);
    for (const Setting& setting : kind.settings) {
        if (!setting.stored) continue;
        ASSERT_NE(stored->values.Find(setting.name), nullptr) << setting.name;
        EXPECT_EQ(*stored->values.Find(setting.name), *given.values.Find(setting.name)) << setting.name;
    }
    ASSERT_EQ(stored->tables.size(), given.tables.size());
    for (std::size_t at = 0; at < given.tables.size(); ++at) {
        EXPECT_EQ(stored->tables[at].kind, given.tables[at].kind);
        EXPECT_EQ(Rows(stored->tables[at]), Rows(given.tables[at]));
    }
}

std::vector<std::string> Behaviors() {
    std::vector<std::string> names;
    for (const BlockKind& kind : zelmat::BlockKinds()) {
        if (kind.use == zelmat::BlockUse::BEHAVIOR) names.push_back(kind.name);
    }
    return names;
}

INSTANTIATE_TEST_SUITE_P(Blocks, EveryBlock, testing::ValuesIn(Behaviors()),
                         [](const auto& each) { return each.param; });

}  // namespace
