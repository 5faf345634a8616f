#include "lists/cLongArray.h"

#include <gtest/gtest.h>

#include <limits>

#include "base/Errors.h"

namespace ordalyn {
namespace {

constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();

TEST(LongList, ListCountIsTheLastIndex) {
    cLongArray list;
    EXPECT_EQ(list.ListCount(), -1);
    list.AddItem(5);
    EXPECT_EQ(list.ListCount(), 0);
    list.AddItem(kLeast);
    list.AddItem(kMost);
    EXPECT_EQ(list.ListCount(), 2);
    EXPECT_EQ(list.List(0), 5);
    EXPECT_EQ(list.List(1), kLeast);
    EXPECT_EQ(list.List(2), kMost);
}

TEST(LongList, AddItemWithoutAValueAppendsZero) {
    cLongArray list;
    list.AddItem();
    EXPECT_EQ(list.List(0), 0);
}

TEST(LongList, ASlotWithoutANumberIsATypeMismatch) {
    cLongArray list;
    EXPECT_THROW(list.List(0), TypeMismatch);
    EXPECT_THROW(list.List(1), TypeMismatch);
    EXPECT_THROW(list.List(2), SubscriptOutOfRange);
    EXPECT_THROW(list.List(-1), SubscriptOutOfRange);
    list.AddItem(1);
    EXPECT_EQ(list.List(0), 1);
    EXPECT_THROW(list.List(1), TypeMismatch);
}

TEST(LongList, GrowsByItsStep) {
    cLongArray list;
    list.InitialCount(365);
    for (int i = 0; i < 3; ++i)
        list.AddItem(i);
    EXPECT_THROW(list.List(3), TypeMismatch);
    EXPECT_THROW(list.List(366), TypeMismatch);
    EXPECT_THROW(list.List(367), SubscriptOutOfRange);
}

TEST(LongList, AStepBelowOneCountsAsOne) {
    cLongArray list;
    list.InitialCount(-7);
    for (int i = 0; i < 3; ++i)
        list.AddItem(i);
    EXPECT_THROW(list.List(3), SubscriptOutOfRange);
}

TEST(LongList, ClearGivesAStorageOfTheStepWithoutNumbers) {
    cLongArray list;
    list.InitialCount(1000);
    list.AddItem(1);
    list.Clear();
    EXPECT_EQ(list.ListCount(), -1);
    EXPECT_THROW(list.List(0), TypeMismatch);
    EXPECT_THROW(list.List(1000), TypeMismatch);
    EXPECT_THROW(list.List(1001), SubscriptOutOfRange);
}

TEST(LongList, ClearOfAnEmptyListLeavesTheStorage) {
    cLongArray list;
    list.InitialCount(1000);
    list.Clear();
    EXPECT_THROW(list.List(2), SubscriptOutOfRange);
}

TEST(LongList, FreeExtraItemsCutsTheStorageToTheItems) {
    cLongArray list;
    EXPECT_THROW(list.FreeExtraItems(), SubscriptOutOfRange);
    list.InitialCount(100);
    for (int i = 0; i < 3; ++i)
        list.AddItem(i * 10);
    list.FreeExtraItems();
    EXPECT_EQ(list.List(2), 20);
    EXPECT_THROW(list.List(3), SubscriptOutOfRange);
}

TEST(LongList, AStorageThatCannotGrowIsAnOverflow) {
    cLongArray list;
    list.InitialCount(kMost);
    list.AddItem(1);
    list.AddItem(2);
    EXPECT_THROW(list.AddItem(3), Overflow);
    EXPECT_EQ(list.ListCount(), 2);
    EXPECT_EQ(list.List(1), 2);
    list.InitialCount(10);
    list.AddItem(4);
    EXPECT_EQ(list.List(3), 4);
    EXPECT_THROW(list.List(2), TypeMismatch) << "the slot of the item that failed";
}

}  // namespace
}  // namespace ordalyn
