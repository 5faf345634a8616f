#include "lists/cStringArray.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "base/Errors.h"

namespace ordalyn {
namespace {

// The highest index that can be read, as a caller sees it.
std::int32_t StorageEnd(const cStringArray& list) {
    std::int32_t index = 0;
    try {
        for (;; ++index)
            list.List(index);
    } catch (const SubscriptOutOfRange&) {
        return index - 1;
    }
}

void AddMany(cStringArray& list, int count) {
    for (int i = 0; i < count; ++i)
        list.AddItem(std::to_string(i));
}

TEST(StringList, ListCountIsTheLastIndex) {
    cStringArray list;
    EXPECT_EQ(list.ListCount(), -1);
    list.AddItem("a");
    EXPECT_EQ(list.ListCount(), 0);
    list.AddItem("b");
    EXPECT_EQ(list.ListCount(), 1);
    EXPECT_EQ(list.List(0), "a");
    EXPECT_EQ(list.List(1), "b");
}

TEST(StringList, ANewListHasTwoEmptySlots) {
    const cStringArray list;
    EXPECT_EQ(list.List(0), "");
    EXPECT_EQ(list.List(1), "");
    EXPECT_THROW(list.List(2), SubscriptOutOfRange);
    EXPECT_THROW(list.List(-1), SubscriptOutOfRange);
    EXPECT_THROW(list.List(std::numeric_limits<std::int32_t>::min()), SubscriptOutOfRange);
    EXPECT_EQ(list.UpperIndex(), 1);
}

TEST(StringList, AddItemWithoutAValueAppendsTheEmptyText) {
    cStringArray list;
    list.AddItem();
    EXPECT_EQ(list.ListCount(), 0);
    EXPECT_EQ(list.List(0), "");
}

TEST(StringList, GrowsByOneSlotUnlessToldOtherwise) {
    cStringArray list;
    AddMany(list, 2);
    EXPECT_EQ(StorageEnd(list), 1);
    list.AddItem("third");
    EXPECT_EQ(StorageEnd(list), 2);
    list.AddItem("fourth");
    EXPECT_EQ(StorageEnd(list), 3);
}

TEST(StringList, GrowsByTheStepOnTopOfTheFirstTwoSlots) {
    cStringArray list;
    list.InitialCount(10);
    EXPECT_EQ(StorageEnd(list), 1) << "setting the step leaves the storage alone";
    AddMany(list, 2);
    EXPECT_EQ(StorageEnd(list), 1);
    list.AddItem("third");
    EXPECT_EQ(StorageEnd(list), 11);
    AddMany(list, 9);  // 12 items: full
    EXPECT_EQ(StorageEnd(list), 11);
    list.AddItem("one more");
    EXPECT_EQ(StorageEnd(list), 21);
    EXPECT_EQ(list.List(12), "one more");
    EXPECT_EQ(list.List(13), "");
}

TEST(StringList, AStepBelowOneCountsAsOne) {
    for (const std::int32_t step : {0, -1, -2000, std::numeric_limits<std::int32_t>::min()}) {
        cStringArray list;
        list.InitialCount(step);
        AddMany(list, 3);
        EXPECT_EQ(StorageEnd(list), 2) << step;
        list.Clear();
        EXPECT_EQ(StorageEnd(list), 1) << step;
    }
}

TEST(StringList, ClearGivesAStorageOfTheStep) {
    cStringArray list;
    list.InitialCount(1000);
    list.AddItem("a");
    list.Clear();
    EXPECT_EQ(list.ListCount(), -1);
    EXPECT_EQ(StorageEnd(list), 1000);
    EXPECT_EQ(list.List(0), "") << "nothing of the old items is left";
    AddMany(list, 1001);
    EXPECT_EQ(StorageEnd(list), 1000);
    list.AddItem("one more");
    EXPECT_EQ(StorageEnd(list), 2000);
}

TEST(StringList, ClearOfAnEmptyListLeavesTheStorage) {
    cStringArray list;
    list.InitialCount(1000);
    list.Clear();
    EXPECT_EQ(StorageEnd(list), 1);
    list.AddItem("a");
    list.Clear();
    list.InitialCount(5);
    list.Clear();
    EXPECT_EQ(StorageEnd(list), 1000);
}

TEST(StringList, FreeExtraItemsCutsTheStorageToTheItems) {
    cStringArray list;
    list.InitialCount(100);
    list.AddItem("a");
    list.AddItem("b");
    list.AddItem("c");
    list.FreeExtraItems();
    EXPECT_EQ(list.List(2), "c");
    EXPECT_THROW(list.List(3), SubscriptOutOfRange);
    EXPECT_EQ(list.ListCount(), 2);
    list.AddItem("d");
    EXPECT_EQ(list.List(3), "d");
    EXPECT_EQ(StorageEnd(list), 102);
}

TEST(StringList, FreeExtraItemsOfAnEmptyListFails) {
    cStringArray list;
    EXPECT_THROW(list.FreeExtraItems(), SubscriptOutOfRange);
    EXPECT_EQ(StorageEnd(list), 1);
    list.AddItem("a");
    list.Clear();
    EXPECT_THROW(list.FreeExtraItems(), SubscriptOutOfRange);
}

TEST(StringList, AStorageThatCannotGrowIsAnOverflow) {
    cStringArray list;
    list.InitialCount(std::numeric_limits<std::int32_t>::max());
    list.AddItem("a");
    list.AddItem("b");
    EXPECT_THROW(list.AddItem("c"), Overflow);
    EXPECT_EQ(list.ListCount(), 2) << "the last index has grown before the storage could not";
    EXPECT_THROW(list.List(2), SubscriptOutOfRange);
    EXPECT_EQ(list.List(1), "b");
    // One slot more does not reach the last index, two do.
    list.InitialCount(1);
    EXPECT_THROW(list.AddItem("d"), SubscriptOutOfRange);
    list.InitialCount(2);
    list.AddItem("e");
    EXPECT_EQ(list.List(2), "");
    EXPECT_EQ(list.List(3), "");
    EXPECT_EQ(list.List(4), "e");
}

TEST(StringList, TheStorageOfTheLargestStepIsNotAllocated) {
    cStringArray list;
    list.InitialCount(std::numeric_limits<std::int32_t>::max());
    list.AddItem("a");
    list.Clear();
    EXPECT_EQ(list.List(std::numeric_limits<std::int32_t>::max()), "");
    list.AddItem("b");
    EXPECT_EQ(list.List(0), "b");
}

TEST(StringList, AMillionItemsAreAppendedWithoutCopyingThem) {
    cStringArray list;
    list.InitialCount(2000);
    list.AddItem("first");
    const char* first = list.List(0).data();
    AddMany(list, 1'000'000);
    EXPECT_EQ(list.ListCount(), 1'000'000);
    EXPECT_EQ(list.List(0).data(), first);
    EXPECT_EQ(list.List(1'000'000), "999999");
    EXPECT_EQ(list.UpperIndex(), 1'000'001) << "two slots and 500 steps";
}

TEST(StringList, TextsOfManyMegabytesWork) {
    cStringArray list;
    std::string text;
    text.assign(20'000'000, 'x');
    list.AddItem(text);
    list.AddItem("next");
    EXPECT_TRUE(list.List(0) == text);
    EXPECT_EQ(list.List(1), "next");
}

TEST(StringList, EqualTextsInARowAreStoredOnce) {
    cStringArray list;
    list.AddItem("01.03.2024");
    list.AddItem(std::string("01.03.2024"));
    list.AddItem("");
    list.AddItem("01.03.2024");
    list.AddItem("02.03.2024");
    EXPECT_EQ(list.Position(0), list.Position(1));
    EXPECT_EQ(list.Position(0), list.Position(3)) << "an empty text between changes nothing";
    EXPECT_NE(list.Position(0), list.Position(4));
    EXPECT_EQ(list.List(2), "");
    EXPECT_THROW(list.Position(5), SubscriptOutOfRange);
}

TEST(StringList, TextsThatDifferInOneByteAreDifferent) {
    for (std::size_t size = 1; size < 40; ++size) {
        for (std::size_t at = 0; at < size; ++at) {
            cStringArray list;
            const std::string first(size, 'x');
            std::string second = first;
            second[at] = 'y';
            list.AddItem(first);
            list.AddItem(second);
            ASSERT_EQ(list.List(0), first);
            ASSERT_EQ(list.List(1), second);
        }
    }
}

TEST(StringList, ASnapshotKeepsWhatWasThereWhenTheListIsCleared) {
    cStringArray list;
    list.InitialCount(10);
    list.AddItem("old");
    const StringListView view = list.Snapshot();
    list.Clear();
    list.AddItem("new");
    EXPECT_EQ(view.ListCount(), 0);
    EXPECT_EQ(view.List(0), "old");
    EXPECT_EQ(list.List(0), "new");
}

TEST(StringList, ASnapshotDoesNotShowWhatIsAppendedLater) {
    cStringArray list;
    list.InitialCount(10);
    list.AddItem("a");
    list.AddItem("b");
    list.AddItem("c");
    const StringListView view = list.Snapshot();
    list.AddItem("d");
    EXPECT_EQ(view.ListCount(), 2);
    EXPECT_EQ(view.List(3), "");
    EXPECT_EQ(view.List(11), "");
    EXPECT_THROW(view.List(12), SubscriptOutOfRange);
    EXPECT_THROW(view.List(-1), SubscriptOutOfRange);
    EXPECT_EQ(view.ListOrEmpty(2), "c");
    EXPECT_EQ(view.ListOrEmpty(12), "");
    EXPECT_EQ(view.ListOrEmpty(-1), "");
}

TEST(StringList, ASnapshotOutlivesItsList) {
    StringListView view;
    EXPECT_EQ(view.ListCount(), -1);
    EXPECT_EQ(view.ListOrEmpty(0), "");
    {
        cStringArray list;
        list.AddItem("kept");
        view = list.Snapshot();
    }
    EXPECT_EQ(view.List(0), "kept");
}

TEST(StringList, ListsShareAStoreAndLeaveItTogether) {
    const auto first = std::make_shared<TextStore>();
    cStringArray a(first);
    cStringArray b(first);
    a.AddItem("x");
    b.AddItem("y");
    EXPECT_EQ(first->Text(a.Position(0)), "x");
    EXPECT_EQ(first->Text(b.Position(0)), "y");
    const std::weak_ptr<TextStore> watched = first;
    const auto second = std::make_shared<TextStore>();
    a.Clear(second);
    b.Clear(second);
    EXPECT_EQ(watched.use_count(), 1) << "the lists still hold the store that they left";
    b.AddItem("z");
    EXPECT_EQ(second->Text(b.Position(0)), "z");
}

}  // namespace
}  // namespace ordalyn
