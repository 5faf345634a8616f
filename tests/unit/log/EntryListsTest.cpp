#include "log/EntryLists.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/Errors.h"

namespace ordalyn {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(EntryLists, AnEntryIsOneElementOfEachList) {
    EntryLists entries;
    entries.SetFile("x.log");
    entries.Add({"d", "t: Copy a ", "b"});
    entries.Add({"", "; c", ""});
    EXPECT_EQ(entries.EntryFiles().ListCount(), 1);
    EXPECT_EQ(entries.EntryDates().ListCount(), 1);
    EXPECT_EQ(entries.EntrySources().ListCount(), 1);
    EXPECT_EQ(entries.EntryTargets().ListCount(), 1);
    EXPECT_EQ(entries.EntryFiles().List(1), "x.log");
    EXPECT_EQ(entries.EntryDates().List(0), "d");
    EXPECT_EQ(entries.EntryDates().List(1), "");
    EXPECT_EQ(entries.EntrySources().List(0), "t: Copy a ");
    EXPECT_EQ(entries.EntrySources().List(1), "; c");
    EXPECT_EQ(entries.EntryTargets().List(0), "b");
}

TEST(EntryLists, AnAppendedEntryHasNoFile) {
    EntryLists entries;
    entries.Add({"d", "t: a", ""});
    entries.AddWithoutFile({"d", "t: b", ""});
    EXPECT_EQ(entries.EntryFiles().ListCount(), 0);
    EXPECT_EQ(entries.EntryFiles().List(1), "") << "a slot of the storage";
    EXPECT_EQ(entries.EntrySources().ListCount(), 1);
}

TEST(EntryLists, ListsGrowInStepsOfTwoThousand) {
    EntryLists entries;
    for (int i = 0; i < 3; ++i)
        entries.Add({"d", "t: a", ""});
    for (const cStringArray* list : {&entries.EntryFiles(), &entries.EntryDates(),
                                     &entries.EntrySources(), &entries.EntryTargets()}) {
        EXPECT_EQ(list->List(2001), "");
        EXPECT_THROW(list->List(2002), SubscriptOutOfRange);
    }
    entries.Clear();
    EXPECT_EQ(entries.EntryFiles().List(2000), "");
    EXPECT_THROW(entries.EntryFiles().List(2001), SubscriptOutOfRange);
}

TEST(EntryLists, FreeExtraItemsLeavesTheFilesAlone) {
    EntryLists entries;
    for (int i = 0; i < 3; ++i)
        entries.Add({"d", "t: a", ""});
    entries.FreeExtraItems();
    EXPECT_EQ(entries.EntryFiles().List(3), "");
    EXPECT_THROW(entries.EntryDates().List(3), SubscriptOutOfRange);
    EXPECT_THROW(entries.EntrySources().List(3), SubscriptOutOfRange);
    EXPECT_THROW(entries.EntryTargets().List(3), SubscriptOutOfRange);
}

TEST(EntryLists, FreeExtraItemsWithoutEntriesFails) {
    EntryLists entries;
    EXPECT_THROW(entries.FreeExtraItems(), SubscriptOutOfRange);
}

TEST(EntryLists, ClearEmptiesAllFourAndStartsANewStore) {
    EntryLists entries;
    entries.AddWithoutFile({"d", "t: a", "b"});
    const StringListView sources = entries.EntrySources().Snapshot();
    entries.Clear();
    EXPECT_EQ(entries.EntryFiles().ListCount(), -1);
    EXPECT_EQ(entries.EntryFiles().UpperIndex(), 1) << "a list that was empty keeps its storage";
    EXPECT_EQ(entries.EntryDates().ListCount(), -1);
    EXPECT_EQ(entries.EntrySources().ListCount(), -1);
    EXPECT_EQ(entries.EntryTargets().ListCount(), -1);
    entries.Add({"e", "u: c", "d"});
    EXPECT_EQ(sources.List(0), "t: a");
    EXPECT_EQ(entries.EntrySources().List(0), "u: c");
}

TEST(EntryLists, EachEntryHasTheFileThatWasSetBeforeIt) {
    EntryLists entries;
    entries.Add({"d", "t: a", ""});
    entries.SetFile("x.log");
    entries.Add({"d", "t: b", ""});
    entries.SetFile("y.log");
    entries.Add({"d", "t: c", ""});
    EXPECT_EQ(entries.EntryFiles().List(0), "");
    EXPECT_EQ(entries.EntryFiles().List(1), "x.log");
    EXPECT_EQ(entries.EntryFiles().List(2), "y.log");
    entries.Clear();
    entries.Add({"d", "t: d", ""});
    EXPECT_EQ(entries.EntryFiles().List(0), "y.log") << "clearing changes nothing about it";
}

TEST(EntryLists, SwapExchangesEverything) {
    EntryLists a;
    EntryLists b;
    a.SetFile("a.log");
    a.Add({"d", "t: a", "x"});
    b.SetFile("b.log");
    a.Swap(b);
    EXPECT_EQ(a.EntrySources().ListCount(), -1);
    EXPECT_FALSE(a.HasDates());
    EXPECT_TRUE(b.HasDates());
    EXPECT_EQ(b.FileOf(0), "a.log");
    EXPECT_EQ(b.EntryTargets().List(0), "x");
    a.Add({"", "t: b", ""});
    EXPECT_FALSE(a.HasDates());
    EXPECT_EQ(a.FileOf(0), "b.log");
    b.Add({"d", "t: c", "y"});
    EXPECT_EQ(b.EntryDates().Position(0), b.EntryDates().Position(1));
}

TEST(EntryLists, TheLastEntryCanBeReplacedWhateverStandsBeforeIt) {
    for (const int before : {0, 1, 5, 255, 256, 257}) {
        SCOPED_TRACE(before);
        EntryLists entries;
        for (int i = 0; i <= before; ++i)
            entries.Add({"d", "t: same", ""});
        entries.ReplaceLast({"e", "t: other", "z"});
        entries.Add({"d", "t: same", ""});
        for (int i = 0; i < before; ++i)
            ASSERT_EQ(entries.EntryDates().List(i), "d");
        EXPECT_EQ(entries.EntryDates().List(before), "e");
        EXPECT_EQ(entries.EntrySources().List(before), "t: other");
        EXPECT_EQ(entries.EntryTargets().List(before), "z");
        EXPECT_EQ(entries.EntryDates().List(before + 1), "d");
    }
}

}  // namespace
}  // namespace ordalyn
