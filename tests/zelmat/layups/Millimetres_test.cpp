#include "zelmat/layups/Millimetres.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

using zelmat::Millimetres;

TEST(Millimetres, AreWrittenWithoutTheNoiseOfSums) {
    EXPECT_EQ(Millimetres(0.000125), "0.125");
    EXPECT_EQ(Millimetres(0.1 + 0.2), "300");
    EXPECT_EQ(Millimetres(-0.0005), "-0.5");
    EXPECT_EQ(Millimetres(1.084e-19), "0");
    EXPECT_EQ(Millimetres(-1.084e-19), "0") << "no minus zero";
    EXPECT_EQ(Millimetres(0.000127 * 3), "0.381");
}

TEST(Millimetres, LeaveTheNoiseOfSumsOutOfMetresToo) {
    EXPECT_EQ(zelmat::WithoutNoiseOfSums(0.000127 * 3), 0.000381);
    EXPECT_FALSE(std::signbit(zelmat::WithoutNoiseOfSums(-1.084e-19)));
}

}  // namespace
