#include "ZELMaterialModel/ZELMaterialPropertiesModel.m/store/ZELColumns.h"

#include <gmock/gmock.h>

#include <bit>
#include <cstdint>
#include <limits>

#include "tests/ZELMaterialModel/ZELBareFeature.h"
#include "tests/ZELMaterialModel/store/ZELTwoColumns.h"
#include "tests/support/ZELStores.h"

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;

namespace {

class ZELColumns : public ZELStoreTest {
protected:
    ZELColumns() { ZELDefineTable(Store()); }

    KORISpecObject_var MakeWithout(const char* attribute) {
        Store().OmitAttribute("TableLT", attribute);
        return Make("TableLT");
    }
    static void SetLists(const KORISpecObject_var& feature, const std::vector<double>& first,
                         const std::vector<double>& second, const std::vector<double>& temperature) {
        SetList(feature, "First", first);
        SetList(feature, "Second", second);
        SetList(feature, "Temperature", temperature);
    }

    ZELTwoColumns columns_;
};

}  // namespace

TEST_P(ZELColumns, WritesOneListPerColumnWithTheTemperatureLast) {
    const auto feature = Make("TableLT");

    EXPECT_EQ(columns_.Write(feature, {{210e9, 0.3, 293.0}, {190e9, 0.31, 573.0}}, true), S_OK);

    EXPECT_THAT(List(feature, "First"), Optional(ElementsAre(210e9, 190e9)));
    EXPECT_THAT(List(feature, "Second"), Optional(ElementsAre(0.3, 0.31)));
    EXPECT_THAT(List(feature, "Temperature"), Optional(ElementsAre(293.0, 573.0)));
}

TEST_P(ZELColumns, WritesAnEmptyTemperatureListWhenNotTemperatureDependent) {
    const auto feature = Make("TableLT");
    SetList(feature, "Temperature", {1.0, 2.0});

    EXPECT_EQ(columns_.Write(feature, {{210e9, 0.3, 293.0}, {190e9, 0.31, 573.0}}, false), S_OK);

    EXPECT_THAT(List(feature, "First"), Optional(ElementsAre(210e9, 190e9)));
    EXPECT_THAT(List(feature, "Second"), Optional(ElementsAre(0.3, 0.31)));
    EXPECT_THAT(List(feature, "Temperature"), Optional(IsEmpty()));
}

TEST_P(ZELColumns, WritesAnEmptyTableAsEmptyLists) {
    const auto feature = Make("TableLT");

    EXPECT_EQ(columns_.Write(feature, {}, true), S_OK);

    EXPECT_THAT(List(feature, "First"), Optional(IsEmpty()));
    EXPECT_THAT(List(feature, "Second"), Optional(IsEmpty()));
    EXPECT_THAT(List(feature, "Temperature"), Optional(IsEmpty()));
}

TEST_P(ZELColumns, ReplacesLongerListsWhole) {
    const auto feature = Make("TableLT");
    SetLists(feature, {1.0, 2.0, 3.0}, {4.0, 5.0, 6.0}, {7.0, 8.0, 9.0});

    EXPECT_EQ(columns_.Write(feature, {{10.0, 11.0, 12.0}}, true), S_OK);

    EXPECT_THAT(List(feature, "First"), Optional(ElementsAre(10.0)));
    EXPECT_THAT(List(feature, "Second"), Optional(ElementsAre(11.0)));
    EXPECT_THAT(List(feature, "Temperature"), Optional(ElementsAre(12.0)));
}

TEST_P(ZELColumns, IgnoresNumbersBeyondTheLastColumnOfARow) {
    const auto feature = Make("TableLT");

    EXPECT_EQ(columns_.Write(feature, {{1.0, 2.0, 3.0, 4.0, 5.0, 6.0}}, true), S_OK);

    EXPECT_THAT(List(feature, "First"), Optional(ElementsAre(1.0)));
    EXPECT_THAT(List(feature, "Second"), Optional(ElementsAre(2.0)));
    EXPECT_THAT(List(feature, "Temperature"), Optional(ElementsAre(3.0)));
}

TEST_P(ZELColumns, WritesZeroForWhatANarrowRowLacks) {
    const auto feature = Make("TableLT");

    EXPECT_EQ(columns_.Write(feature, {{1.0}, {}, {2.0, 3.0}}, true), S_OK);

    EXPECT_THAT(List(feature, "First"), Optional(ElementsAre(1.0, 0.0, 2.0)));
    EXPECT_THAT(List(feature, "Second"), Optional(ElementsAre(0.0, 0.0, 3.0)));
    EXPECT_THAT(List(feature, "Temperature"), Optional(ElementsAre(0.0, 0.0, 0.0)));
}

TEST_P(ZELColumns, WritesNothingWithoutAttributeAccess) {
    const auto bare = ZELMakeBareFeature();

    EXPECT_EQ(columns_.Write(nullptr, {{1.0, 2.0, 3.0}}, true), E_NOINTERFACE);
    EXPECT_EQ(columns_.Write(bare, {{1.0, 2.0, 3.0}}, true), E_NOINTERFACE);

    EXPECT_EQ(References(bare), 1);
}

TEST_P(ZELColumns, WritesNothingWhenTheFirstColumnIsMissing) {
    const auto feature = MakeWithout("First");

    EXPECT_EQ(columns_.Write(feature, {{1.0, 2.0, 3.0}}, true), E_FAIL);

    EXPECT_EQ(List(feature, "Second"), std::nullopt);
    EXPECT_EQ(List(feature, "Temperature"), std::nullopt);
}

TEST_P(ZELColumns, WritesTheColumnsBeforeAMissingOneAndLeavesThoseAfterIt) {
    const auto feature = MakeWithout("Second");
    SetList(feature, "Temperature", {9.0});

    EXPECT_EQ(columns_.Write(feature, {{1.0, 2.0, 3.0}}, true), E_FAIL);

    EXPECT_THAT(List(feature, "First"), Optional(ElementsAre(1.0)));
    EXPECT_THAT(List(feature, "Temperature"), Optional(ElementsAre(9.0)));
}

TEST_P(ZELColumns, NeedsTheTemperatureAttributeAlsoWhenNotTemperatureDependent) {
    const auto feature = MakeWithout("Temperature");

    EXPECT_EQ(columns_.Write(feature, {{1.0, 2.0}}, false), E_FAIL);
    EXPECT_EQ(columns_.Read(feature, false), E_FAIL);

    EXPECT_THAT(List(feature, "First"), Optional(ElementsAre(1.0)));
    EXPECT_THAT(List(feature, "Second"), Optional(ElementsAre(2.0)));
    EXPECT_EQ(ZELRowsOf(columns_.table), kZELBefore);
}

TEST_P(ZELColumns, ReadsOneRowPerValueOfTheFirstColumn) {
    const auto feature = Make("TableLT");
    SetLists(feature, {210e9, 190e9}, {0.3, 0.31}, {293.0, 573.0});

    EXPECT_EQ(columns_.Read(feature, true), S_OK);

    EXPECT_EQ(columns_.outcome, ZELColumnsRead::Consistent);
    EXPECT_EQ(ZELRowsOf(columns_.table), (ZELRows{{210e9, 0.3, 293.0}, {190e9, 0.31, 573.0}}));
}

TEST_P(ZELColumns, ReadsNoTemperatureWhenNotTemperatureDependent) {
    const auto feature = Make("TableLT");
    SetLists(feature, {210e9, 190e9}, {0.3, 0.31}, {293.0});

    EXPECT_EQ(columns_.Read(feature, false), S_OK);

    EXPECT_EQ(columns_.outcome, ZELColumnsRead::Consistent);
    EXPECT_EQ(ZELRowsOf(columns_.table), (ZELRows{{210e9, 0.3}, {190e9, 0.31}}));
}

TEST_P(ZELColumns, ReadsAnEmptyTableWhereNothingWasEverValued) {
    const auto feature = Make("TableLT");

    EXPECT_EQ(columns_.Read(feature, true), S_OK);

    EXPECT_EQ(columns_.outcome, ZELColumnsRead::Consistent);
    EXPECT_EQ(columns_.table.size(), 0);
}

TEST_P(ZELColumns, ReadsAnEmptyTableWhenTheFirstColumnWasNeverValued) {
    const auto feature = Make("TableLT");
    SetList(feature, "Second", {0.3});
    SetList(feature, "Temperature", {293.0});

    EXPECT_EQ(columns_.Read(feature, true), S_OK);

    EXPECT_EQ(columns_.outcome, ZELColumnsRead::Consistent);
    EXPECT_EQ(columns_.table.size(), 0);
}

TEST_P(ZELColumns, ReadsAnEmptyTableWhenAnotherValueColumnWasNeverValued) {
    const auto feature = Make("TableLT");
    SetList(feature, "First", {210e9});
    SetList(feature, "Temperature", {293.0});

    EXPECT_EQ(columns_.Read(feature, false), S_OK);

    EXPECT_EQ(columns_.outcome, ZELColumnsRead::Consistent);
    EXPECT_EQ(columns_.table.size(), 0);
}

TEST_P(ZELColumns, ReadsAnEmptyTableWhenTheNeededTemperatureWasNeverValued) {
    const auto feature = Make("TableLT");
    SetList(feature, "First", {210e9});
    SetList(feature, "Second", {0.3});

    EXPECT_EQ(columns_.Read(feature, true), S_OK);

    EXPECT_EQ(columns_.outcome, ZELColumnsRead::Consistent);
    EXPECT_EQ(columns_.table.size(), 0);
}

TEST_P(ZELColumns, NeedsNoTemperatureListWhenNotTemperatureDependent) {
    const auto feature = Make("TableLT");
    SetList(feature, "First", {210e9});
    SetList(feature, "Second", {0.3});

    EXPECT_EQ(columns_.Read(feature, false), S_OK);

    EXPECT_EQ(ZELRowsOf(columns_.table), (ZELRows{{210e9, 0.3}}));
}

TEST_P(ZELColumns, KeepsTheRowsBeforeAShorterValueColumnEnds) {
    const auto feature = Make("TableLT");
    SetLists(feature, {1.0, 2.0, 3.0}, {4.0, 5.0}, {});

    EXPECT_EQ(columns_.Read(feature, false), S_OK);

    EXPECT_EQ(columns_.outcome, ZELColumnsRead::Inconsistent);
    EXPECT_EQ(ZELRowsOf(columns_.table), (ZELRows{{1.0, 4.0}, {2.0, 5.0}}));
}

TEST_P(ZELColumns, KeepsTheRowsBeforeAShorterTemperatureColumnEnds) {
    const auto feature = Make("TableLT");
    SetLists(feature, {1.0, 2.0, 3.0}, {4.0, 5.0, 6.0}, {293.0, 373.0});

    EXPECT_EQ(columns_.Read(feature, true), S_OK);

    EXPECT_EQ(columns_.outcome, ZELColumnsRead::Inconsistent);
    EXPECT_EQ(ZELRowsOf(columns_.table), (ZELRows{{1.0, 4.0, 293.0}, {2.0, 5.0, 373.0}}));
}

TEST_P(ZELColumns, KeepsNoRowWhenAnotherColumnIsEmpty) {
    const auto feature = Make("TableLT");
    SetLists(feature, {1.0}, {}, {293.0});

    EXPECT_EQ(columns_.Read(feature, true), S_OK);

    EXPECT_EQ(columns_.outcome, ZELColumnsRead::Inconsistent);
    EXPECT_EQ(columns_.table.size(), 0);
}

TEST_P(ZELColumns, IgnoresValuesBeyondTheFirstColumnsLength) {
    const auto feature = Make("TableLT");
    SetLists(feature, {1.0, 2.0}, {4.0, 5.0, 6.0}, {293.0, 373.0, 473.0, 573.0, 673.0});

    EXPECT_EQ(columns_.Read(feature, true), S_OK);

    EXPECT_EQ(columns_.outcome, ZELColumnsRead::Consistent);
    EXPECT_EQ(ZELRowsOf(columns_.table), (ZELRows{{1.0, 4.0, 293.0}, {2.0, 5.0, 373.0}}));
}

TEST_P(ZELColumns, ReadsAnEmptyFirstColumnAsAnEmptyTableWhateverTheOthersHold) {
    const auto feature = Make("TableLT");
    SetLists(feature, {}, {4.0}, {293.0});

    EXPECT_EQ(columns_.Read(feature, true), S_OK);

    EXPECT_EQ(columns_.outcome, ZELColumnsRead::Consistent);
    EXPECT_EQ(columns_.table.size(), 0);
}

TEST_P(ZELColumns, ReadsNothingWithoutAttributeAccess) {
    EXPECT_EQ(columns_.Read(nullptr, true), E_NOINTERFACE);
    EXPECT_EQ(columns_.Read(ZELMakeBareFeature(), true), E_NOINTERFACE);

    EXPECT_EQ(columns_.outcome, ZELColumnsRead::Consistent);
    EXPECT_EQ(ZELRowsOf(columns_.table), kZELBefore);
}

TEST_P(ZELColumns, ReadsNothingWhenAnyColumnIsMissing) {
    for (const char* missing : {"First", "Second", "Temperature"}) {
        ZELDefineTable(Store());
        const auto feature = MakeWithout(missing);
        ZELTwoColumns cold;

        EXPECT_EQ(cold.Read(feature, true), E_FAIL) << missing;

        EXPECT_EQ(cold.outcome, ZELColumnsRead::Consistent) << missing;
        EXPECT_EQ(ZELRowsOf(cold.table), kZELBefore) << missing;
    }
}

TEST_P(ZELColumns, CarriesEveryNumberBitForBit) {
    using Limits = std::numeric_limits<double>;
    const std::vector<double> odd = {
        Limits::quiet_NaN(),  -Limits::quiet_NaN(), Limits::infinity(), -Limits::infinity(), -0.0,
        Limits::denorm_min(), Limits::min() / 2,    Limits::max(),      Limits::lowest()};
    ZELRows rows;
    for (const double value : odd) rows.push_back({value, -value, value});
    const auto feature = Make("TableLT");

    EXPECT_EQ(columns_.Write(feature, rows, true), S_OK);
    EXPECT_EQ(columns_.Read(feature, true), S_OK);

    ASSERT_EQ(columns_.table.size(), 9);
    const auto bits = [](double value) { return std::bit_cast<std::uint64_t>(value); };
    for (int row = 0; row < 9; ++row) {
        const double value = odd[static_cast<std::size_t>(row)];
        EXPECT_EQ(bits(columns_.table[row][0]), bits(value)) << row;
        EXPECT_EQ(bits(columns_.table[row][1]), bits(-value)) << row;
        EXPECT_EQ(bits(columns_.table[row][2]), bits(value)) << row;
    }
}

TEST_P(ZELColumns, LeavesTheFeatureWithAsManyReferencesAsItHad) {
    const auto feature = Make("TableLT");
    const long before = References(feature);

    columns_.Write(feature, {{1.0, 2.0, 3.0}}, true);
    columns_.Read(feature, true);

    EXPECT_EQ(References(feature), before);
}

ZEL_ON_BOTH_STORES(ZELColumns);
