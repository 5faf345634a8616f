#include "lists/TextStore.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

#include "lists/ChunkedVector.h"

namespace ordalyn {
namespace {

char* Lend(TextStore& store, std::size_t size) {
    return store.Lend(std::make_unique_for_overwrite<char[]>(size), size);
}

TEST(TextStore, TheEmptyTextNeedsNoStore) {
    TextStore store;
    EXPECT_EQ(store.Add(""), TextPosition{});
    EXPECT_EQ(store.Text({}), "");
    EXPECT_EQ(store.Footprint(), 0U);
}

TEST(TextStore, KeepsEveryTextWhileMoreArrive) {
    TextStore store;
    std::vector<TextPosition> positions;
    std::vector<std::string_view> views;
    // Some five megabytes: many blocks, with texts that do not fit into what is left of one.
    for (int i = 0; i < 20000; ++i) {
        positions.push_back(
            store.Add(std::string(static_cast<std::size_t>(i % 500), 'a') + std::to_string(i)));
        views.push_back(store.Text(positions.back()));
    }
    for (int i = 0; i < 20000; ++i) {
        const std::string expected =
            std::string(static_cast<std::size_t>(i % 500), 'a') + std::to_string(i);
        ASSERT_EQ(store.Text(positions[static_cast<std::size_t>(i)]), expected);
        ASSERT_EQ(views[static_cast<std::size_t>(i)], expected) << "a text has moved";
    }
}

TEST(TextStore, KeepsBytesOfEveryKind) {
    TextStore store;
    const std::string text("a\0b\xFF\x1A", 5);
    EXPECT_EQ(store.Text(store.Add(text)), text);
}

TEST(TextStore, KeepsTextsAroundTheSizesAtWhichStoringChanges) {
    TextStore store;
    constexpr std::size_t kBlock = std::size_t{1} << 18U;
    constexpr std::size_t kLong = (std::size_t{1} << 24U) - 1;  // no longer fits into a position
    std::vector<std::string> texts;
    std::vector<TextPosition> positions;
    for (const std::size_t size :
         {kBlock / 8 - 1, kBlock / 8, kBlock / 8 + 1, kBlock - 1, kBlock, kBlock + 1, kLong - 1,
          kLong, kLong + 1, std::size_t{30} * 1000 * 1000}) {
        std::string text(size, 'x');
        text.front() = 'a';
        text.back() = 'z';
        texts.push_back(std::move(text));
        positions.push_back(store.Add(texts.back()));
        texts.emplace_back("between");
        positions.push_back(store.Add("between"));
    }
    for (std::size_t i = 0; i < texts.size(); ++i)
        ASSERT_TRUE(store.Text(positions[i]) == texts[i]) << "length " << texts[i].size();
}

TEST(TextStore, LongTextsDoNotWasteTheBlockThatIsBeingFilled) {
    TextStore store;
    store.Add("first");
    const std::size_t before = store.Footprint();
    for (int i = 0; i < 10; ++i) {
        store.Add(std::string(100'000, 'x'));
        store.Add("short");
    }
    EXPECT_LT(store.Footprint() - before, std::size_t{1'010'000});
}

TEST(TextStore, WhatLiesInLentMemoryIsNotCopied) {
    TextStore store;
    store.Add("before");
    char* lent = Lend(store, TextStore::kLeastLoan);
    std::copy_n("one two", 7, lent);
    const std::size_t footprint = store.Footprint();
    const TextPosition one = store.Add({lent, 3});
    const TextPosition two = store.Add({lent + 4, 3});
    const TextPosition last = store.Add({lent + TextStore::kLeastLoan - 1, 1});
    EXPECT_EQ(store.Text(one).data(), lent);
    EXPECT_EQ(store.Text(two), "two");
    EXPECT_EQ(store.Text(last).data(), lent + TextStore::kLeastLoan - 1);
    EXPECT_EQ(store.Add(std::string_view(lent, 3).substr(3)), TextPosition{});
    EXPECT_EQ(store.Footprint(), footprint);
}

TEST(TextStore, ANewLoanKeepsTheTextsOfTheOldOne) {
    TextStore store;
    char* first = Lend(store, TextStore::kLeastLoan);
    std::copy_n("one", 3, first);
    const TextPosition one = store.Add({first, 3});
    char* second = Lend(store, 3 * TextStore::kLeastLoan);
    std::copy_n("two", 3, second + 2 * TextStore::kLeastLoan);
    const TextPosition two = store.Add({second + 2 * TextStore::kLeastLoan, 3});
    const TextPosition three = store.Add("three");
    EXPECT_EQ(store.Text(one), "one");
    EXPECT_EQ(store.Text(two), "two");
    EXPECT_EQ(store.Text(three), "three");
    // What lies in an older loan is copied like any other text.
    const TextPosition again = store.Add({first, 3});
    EXPECT_EQ(store.Text(again), "one");
    EXPECT_NE(store.Text(again).data(), first);
}

TEST(TextStore, ALentTextTooLongForAPositionIsStillKept) {
    TextStore store;
    const std::size_t size = std::size_t{1} << 24U;
    char* lent = Lend(store, size);
    std::memset(lent, 'x', size);
    const TextPosition position = store.Add({lent, size});
    EXPECT_EQ(store.Text(position).size(), size);
}

TEST(ChunkedVector, KeepsDifferentValues) {
    ChunkedVector<int> values;
    for (int i = 0; i < 100'000; ++i)
        values.Append(i);
    EXPECT_EQ(values.Size(), 100'000U);
    for (int i = 0; i < 100'000; ++i)
        ASSERT_EQ(values[static_cast<std::size_t>(i)], i);
}

TEST(ChunkedVector, KeepsRunsOfEqualValuesThatChangeAnywhere) {
    for (const int run : {1, 2, 255, 256, 257, 300, 511, 513, 10'000}) {
        ChunkedVector<int> values;
        for (int i = 0; i < 20'000; ++i)
            values.Append(i / run);
        for (int i = 0; i < 20'000; ++i)
            ASSERT_EQ(values[static_cast<std::size_t>(i)], i / run) << "runs of " << run;
    }
}

}  // namespace
}  // namespace ordalyn
