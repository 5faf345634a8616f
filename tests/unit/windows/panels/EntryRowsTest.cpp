#include "windows/panels/EntryRows.h"

#include <gtest/gtest.h>

namespace ordalyn {
namespace {

TEST(EntryRows, ShowsTimeOperationAndTarget) {
    EntryLists entries;
    entries.Add({"01.03.2024", "10:15:30: Copy C:\\a.txt ", "D:\\a.txt"});
    const EntryRows rows(entries);
    EXPECT_EQ(rows.Text(0, EntryRows::kTime), "10:15:30");
    EXPECT_EQ(rows.Text(0, EntryRows::kOperation), "Copy C:\\a.txt ");
    EXPECT_EQ(rows.Text(0, EntryRows::kTarget), "D:\\a.txt");
}

TEST(EntryRows, ACommentHasNoTime) {
    EntryLists entries;
    entries.Add({"", ";  hello", ""});
    const EntryRows rows(entries);
    EXPECT_EQ(rows.Text(0, EntryRows::kTime), "");
    EXPECT_EQ(rows.Text(0, EntryRows::kOperation), " hello");
    EXPECT_EQ(rows.Text(0, EntryRows::kTarget), "");
}

TEST(EntryRows, WhatIsNoEntryIsEmpty) {
    EntryLists entries;
    entries.Add({"d", "t: a", "b"});
    const EntryRows rows(entries);
    for (const std::int32_t tag : {-1, 1, 2000, 2'000'000'000})
        for (const int field : {0, 1, 2})
            EXPECT_EQ(rows.Text(tag, field), "");
}

TEST(EntryRows, ASourceWithoutATimeIsShownWhole) {
    EntryLists entries;
    entries.Add({"d", "word", ""});
    entries.Add({"d", " blank first", "x"});
    const EntryRows rows(entries);
    EXPECT_EQ(rows.Text(0, EntryRows::kTime), "");
    EXPECT_EQ(rows.Text(0, EntryRows::kOperation), "word");
    EXPECT_EQ(rows.Text(1, EntryRows::kTime), "");
    EXPECT_EQ(rows.Text(1, EntryRows::kOperation), " blank first");
    EXPECT_EQ(rows.Text(1, EntryRows::kTarget), "x");
}

TEST(EntryRows, OldRowsStayWhenTheListsAreClearedOrGrow) {
    EntryLists entries;
    entries.Add({"d", "t: old", "o"});
    const EntryRows rows(entries);
    entries.Add({"d", "t: later", "l"});
    EXPECT_EQ(rows.Text(1, EntryRows::kOperation), "");
    entries.Clear();
    entries.Add({"d", "t: new", "n"});
    EXPECT_EQ(rows.Text(0, EntryRows::kOperation), "old");
    EXPECT_EQ(rows.Text(0, EntryRows::kTarget), "o");
}

}  // namespace
}  // namespace ordalyn
