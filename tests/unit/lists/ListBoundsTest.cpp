#include "lists/ListBounds.h"

#include <gtest/gtest.h>

#include <limits>

namespace ordalyn {

namespace test {

// Bounds of a list that would take hours to fill.
struct ListBoundsInternals {
    static ListBounds Of(std::int32_t last, std::int32_t upper) {
        ListBounds bounds;
        bounds.last_ = last;
        bounds.upper_ = upper;
        return bounds;
    }
};

}  // namespace test

namespace {

constexpr std::int32_t kHighest = std::numeric_limits<std::int32_t>::max();

TEST(ListBoundsOf, ALastIndexThatCannotGrowIsAnOverflowAndStays) {
    ListBounds bounds = test::ListBoundsInternals::Of(kHighest - 1, kHighest);
    EXPECT_EQ(bounds.Grow(), kHighest);
    for (int i = 0; i < 2; ++i) {
        EXPECT_THROW(bounds.Grow(), Overflow);
        EXPECT_EQ(bounds.LastIndex(), kHighest);
        EXPECT_EQ(bounds.UpperIndex(), kHighest);
    }
    EXPECT_NO_THROW(bounds.Require(kHighest));
}

TEST(ListBoundsOf, TheLastIndexIsLookedAtBeforeTheStorage) {
    // The last index is ahead of the storage after steps that were too large for it.
    ListBounds bounds = test::ListBoundsInternals::Of(kHighest, 1);
    bounds.SetStep(2);
    EXPECT_THROW(bounds.Grow(), Overflow);
    EXPECT_EQ(bounds.UpperIndex(), 1);
}

}  // namespace
}  // namespace ordalyn
