#include "base/CheckedMath.h"

#include <gtest/gtest.h>

namespace ordalyn {
namespace {

constexpr std::int32_t kMost = 2147483647;
constexpr std::int32_t kLeast = -kMost - 1;

TEST(CheckedMath, NarrowingKeepsWhatFits) {
    EXPECT_EQ(NarrowChecked(std::int64_t{kMost}), kMost);
    EXPECT_EQ(NarrowChecked(std::int64_t{kLeast}), kLeast);
    EXPECT_THROW(NarrowChecked(std::int64_t{kMost} + 1), Overflow);
    EXPECT_THROW(NarrowChecked(std::int64_t{kLeast} - 1), Overflow);
}

TEST(CheckedMath, AddingReportsAnOverflow) {
    EXPECT_EQ(CheckedAdd(2, -5), -3);
    EXPECT_EQ(CheckedAdd(kMost - 1, 1), kMost);
    EXPECT_EQ(CheckedAdd(kLeast + 1, -1), kLeast);
    EXPECT_THROW(CheckedAdd(kMost, 1), Overflow);
    EXPECT_THROW(CheckedAdd(kLeast, -1), Overflow);
}

TEST(CheckedMath, MultiplyingReportsAnOverflow) {
    EXPECT_EQ(CheckedMultiply(46340, 46340), 2147395600);
    EXPECT_EQ(CheckedMultiply(-65536, 32768), kLeast);
    EXPECT_THROW(CheckedMultiply(65536, 32768), Overflow);
    EXPECT_THROW(CheckedMultiply(kLeast, -1), Overflow);
}

TEST(CheckedMath, HalvesAreRoundedToTheEvenNeighbour) {
    EXPECT_EQ(RoundToLong(0.5), 0);
    EXPECT_EQ(RoundToLong(1.5), 2);
    EXPECT_EQ(RoundToLong(2.5), 2);
    EXPECT_EQ(RoundToLong(3.5), 4);
    EXPECT_EQ(RoundToLong(-0.5), 0);
    EXPECT_EQ(RoundToLong(-1.5), -2);
    EXPECT_EQ(RoundToLong(-2.5), -2);
}

TEST(CheckedMath, OtherFractionsAreRoundedToTheNearest) {
    EXPECT_EQ(RoundToLong(2.4999), 2);
    EXPECT_EQ(RoundToLong(2.5001), 3);
    EXPECT_EQ(RoundToLong(-2.5001), -3);
}

TEST(CheckedMath, RoundingReportsAnOverflowOnlyAfterRounding) {
    EXPECT_EQ(RoundToLong(2147483647.4), kMost);
    EXPECT_THROW(RoundToLong(2147483647.5), Overflow);
    EXPECT_EQ(RoundToLong(-2147483648.5), kLeast);
    EXPECT_THROW(RoundToLong(-2147483648.6), Overflow);
}

TEST(CheckedMath, WhatIsNoNumberOverflows) {
    EXPECT_THROW(RoundToLong(std::numeric_limits<double>::quiet_NaN()), Overflow);
    EXPECT_THROW(RoundToLong(std::numeric_limits<double>::infinity()), Overflow);
    EXPECT_THROW(RoundToLong(-std::numeric_limits<double>::infinity()), Overflow);
    EXPECT_THROW(TruncateToLong(std::numeric_limits<double>::quiet_NaN()), Overflow);
}

TEST(CheckedMath, TruncatingCutsTowardsZero) {
    EXPECT_EQ(TruncateToLong(2.9), 2);
    EXPECT_EQ(TruncateToLong(-2.9), -2);
    EXPECT_EQ(TruncateToLong(2147483647.9), kMost);
    EXPECT_EQ(TruncateToLong(-2147483648.9), kLeast);
    EXPECT_THROW(TruncateToLong(2147483648.0), Overflow);
}

}  // namespace
}  // namespace ordalyn
