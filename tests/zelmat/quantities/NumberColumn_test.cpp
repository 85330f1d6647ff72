#include "zelmat/quantities/NumberColumn.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <limits>

namespace zelmat {
namespace {

using Texts = std::vector<std::string>;

Texts Column(const std::vector<double>& numbers) {
    return NumberColumn(numbers);
}

TEST(NumberColumn, PlainNumbersStandAtTheirDecimalPoint) {
    EXPECT_EQ(Column({210000.0, 199999.5, -0.25}), (Texts{"210000.00", "199999.50", "    -0.25"}));
    EXPECT_EQ(Column({20.0, 100.0, 1500.0}), (Texts{"  20", " 100", "1500"}));
    EXPECT_EQ(Column({0.0, 0.002, 0.05}), (Texts{"0.000", "0.002", "0.050"}));
}

TEST(NumberColumn, SmallAndWideColumnsAreScientificThroughout) {
    EXPECT_EQ(Column({1.17e-5, 1.2e-5}), (Texts{"1.17e-05", "1.20e-05"}));
    EXPECT_EQ(Column({2.1e11, 1.955e11}), (Texts{"2.100e+11", "1.955e+11"}));
    EXPECT_EQ(Column({1.0, 1e-20}), (Texts{"1e+00", "1e-20"}));
    EXPECT_EQ(Column({0.0, -1.5e-7}), (Texts{" 0.0e+00", "-1.5e-07"}));
    EXPECT_EQ(Column({1e300, 1.0}), (Texts{"1e+300", " 1e+00"}));
}

TEST(NumberColumn, AWideColumnStaysPlainWhenScientificWouldBeWider) {
    EXPECT_EQ(Column({1234567.891}), (Texts{"1234567.891"}));
    EXPECT_EQ(Column({100000.0, 7850.0}), (Texts{"100000", "  7850"}));
}

TEST(NumberColumn, EveryNumberReadsBack) {
    const std::vector<double> numbers = {0.1 + 0.2, 1.0 / 3.0, 5e-324, 1.7976931348623157e308, -2.5};
    const Texts texts = Column(numbers);
    for (std::size_t i = 0; i < numbers.size(); ++i)
        EXPECT_EQ(std::strtod(texts[i].c_str(), nullptr), numbers[i]) << texts[i];
    EXPECT_EQ(Column({0.1 + 0.2, 0.5}), (Texts{"0.30000000000000004", "0.50000000000000000"}));
}

TEST(NumberColumn, WhatIsNotFiniteIsNamed) {
    EXPECT_EQ(Column({1.25, std::nan(""), -std::numeric_limits<double>::infinity()}),
              (Texts{"1.25", " nan", "-inf"}));
}

TEST(NumberColumn, NoNumbersAreNoTexts) {
    EXPECT_EQ(Column({}), Texts());
}

}  // namespace
}  // namespace zelmat
