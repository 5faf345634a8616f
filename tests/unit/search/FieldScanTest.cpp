// Looking through the fields of many entries at once.
#include "search/FieldScan.h"

#include <gmock/gmock.h>

#include <random>
#include <string>
#include <vector>

#include "base/Errors.h"
#include "support/search/FoldAndCompare.h"

namespace ordalyn {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::int32_t> Found(const cStringArray& fields, std::string_view wanted,
                                bool wholeWord = false) {
    std::vector<std::int32_t> found;
    EXPECT_FALSE(FieldScan(fields, wanted, wholeWord)
                     .Run(
                         fields.ListCount() + 1, [](std::int32_t entry) { return entry; },
                         [&](std::int32_t number) {
                             found.push_back(number);
                             return false;
                         }));
    return found;
}

// Texts that are added one after the other stand in memory without anything between them.
class FieldScanning : public testing::Test {
  protected:
    void Add(std::initializer_list<std::string_view> texts) {
        for (const std::string_view text : texts)
            fields.AddItem(text);
    }
    cStringArray fields;
};

TEST_F(FieldScanning, TellsTheEntriesInTheirOrder) {
    Add({"copy", "move", "a copy of a copy", "COPY", "delete"});
    EXPECT_THAT(Found(fields, "copy"), ElementsAre(0, 2, 3));
    EXPECT_THAT(Found(fields, "e"), ElementsAre(1, 4));
    EXPECT_THAT(Found(fields, "delete"), ElementsAre(4));
    EXPECT_THAT(Found(fields, "nothing holds this"), IsEmpty());
}

TEST_F(FieldScanning, ATextThatReachesFromOneFieldIntoTheNextIsInNeither) {
    Add({"abc", "def", "cdx", "übu", "ng"});
    EXPECT_THAT(Found(fields, "cd"), ElementsAre(2));
    EXPECT_THAT(Found(fields, "abcdef"), IsEmpty());
    EXPECT_THAT(Found(fields, "fc"), IsEmpty());
    EXPECT_THAT(Found(fields, "übung"), IsEmpty());
}

TEST_F(FieldScanning, APlaceThatDoesNotCountHidesNoneBehindIt) {
    // "aa" stands across the fields first, then inside the second one, overlapping that.
    Add({"xa", "aab", "ü", "üü"});
    EXPECT_THAT(Found(fields, "aa"), ElementsAre(1));
    EXPECT_THAT(Found(fields, "üü"), ElementsAre(3));
}

TEST_F(FieldScanning, EmptyFieldsHoldNothing) {
    Add({"", "copy", "", "", "copy", ""});
    EXPECT_THAT(Found(fields, "copy"), ElementsAre(1, 4));
    EXPECT_THAT(Found(fields, "copy", true), ElementsAre(1, 4));
}

TEST_F(FieldScanning, WholeWordsHaveBlanksOrEndsAroundThem) {
    Add({"copy a", "copyfile copy", "copycopy", "a copy: b", "xcopy copy", "copy"});
    EXPECT_THAT(Found(fields, "COPY", true), ElementsAre(0, 1, 4, 5));
    EXPECT_THAT(Found(fields, "copy a", true), ElementsAre(0));
    EXPECT_THAT(Found(fields, "y", true), IsEmpty());
}

TEST_F(FieldScanning, WholeWordsWithBlanksOfTheirOwn) {
    Add({"a b", " b", "b ", "a  b", "  b  ", " ", ""});
    for (const std::string_view wanted : {" ", " b", "b ", "  ", " b "}) {
        std::vector<std::int32_t> expected;
        for (std::int32_t i = 0; i <= fields.ListCount(); ++i)
            if (test::ContainsFolded(" " + std::string(fields.List(i)) + " ",
                                     " " + std::string(wanted) + " "))
                expected.push_back(i);
        EXPECT_EQ(Found(fields, wanted, true), expected) << '"' << wanted << '"';
    }
}

TEST_F(FieldScanning, LooksAtTheEntriesThatItIsTold) {
    Add({"copy 0", "copy 1", "move 2", "copy 3"});
    const std::vector<std::int32_t> entries{3, 2, 0};
    std::vector<std::int32_t> found;
    FieldScan(fields, "copy", false)
        .Run(
            3, [&](std::int32_t number) { return entries[static_cast<std::size_t>(number)]; },
            [&](std::int32_t number) {
                found.push_back(number);
                return false;
            });
    EXPECT_THAT(found, ElementsAre(0, 2));
}

TEST_F(FieldScanning, StopsWhenItIsToldTo) {
    Add({"copy", "copy", "copy"});
    int asked = 0;
    EXPECT_TRUE(FieldScan(fields, "copy", false)
                    .Run(
                        3, [](std::int32_t entry) { return entry; },
                        [&](std::int32_t number) { return ++asked == 2 && number == 1; }));
    EXPECT_EQ(asked, 2);
}

TEST_F(FieldScanning, AnEntryOutsideTheListIsAnError) {
    Add({"copy"});
    FieldScan scan(fields, "copy", false);
    const auto never = [](std::int32_t) { return false; };
    EXPECT_THROW(scan.Run(
                     2, [](std::int32_t entry) { return entry * 100; }, never),
                 SubscriptOutOfRange);
    EXPECT_THROW(scan.Run(
                     1, [](std::int32_t) { return -1; }, never),
                 SubscriptOutOfRange);
}

TEST_F(FieldScanning, TheEmptyTextIsInEveryField) {
    Add({"copy", "", "move"});
    EXPECT_THAT(Found(fields, ""), ElementsAre(0, 1, 2));
    Add({"two  blanks"});
    EXPECT_THAT(Found(fields, "", true), ElementsAre(1, 3));
}

// Fields in every kind of neighbourhood: side by side, with other bytes between them (in memory
// that was lent to read a file into), far apart, in blocks of their own, out of order.
TEST(FieldScan, AgreesWithLookingAtEachFieldAlone) {
    constexpr std::string_view kPieces[] = {"a",  "K",      "s",      " ",    "ü", "Ü",
                                            "\\", "\u212A", "\u017F", "д",    "Д", "ß",
                                            "ẞ",  "b",      "k s",    "\xC3", "ab"};
    constexpr std::uint32_t kSeed = 31337;
    std::mt19937 random(kSeed);
    const auto make = [&](std::size_t most) {
        const std::size_t first = random() % std::size(kPieces);
        const std::size_t range = 1 + random() % 5;
        std::string text;
        for (std::size_t count = random() % most; count > 0; --count)
            text += kPieces[(first + random() % range) % std::size(kPieces)];
        return text;
    };
    for (int round = 0; round < 400; ++round) {
        const auto store = std::make_shared<TextStore>();
        cStringArray fields(store);
        std::vector<std::string> texts;
        const std::size_t count = random() % 40;
        constexpr std::size_t kRoom = 300000;
        char* const room = round % 2 == 0
                               ? store->Lend(std::make_unique_for_overwrite<char[]>(kRoom), kRoom)
                               : nullptr;
        if (room != nullptr)
            std::fill_n(room, kRoom, 'a');
        std::size_t at = 0;
        while (texts.size() < count) {
            const std::string text = random() % 300 == 0 ? std::string(40000, 'k') : make(12);
            const std::size_t gap = random() % 10 == 0 ? 700 : random() % 4;
            texts.push_back(text);
            if (room == nullptr || random() % 8 == 0 || at + gap + text.size() > kRoom) {
                fields.AddStored(store->Add(text));
                continue;
            }
            text.copy(room + at + gap, text.size());
            fields.AddStored(text.empty()
                                 ? TextPosition{}
                                 : store->Add(std::string_view(room + at + gap, text.size())));
            at += gap + text.size();
        }
        for (int needle = 0; needle < 12; ++needle) {
            const std::string wanted = make(4);
            const bool word = needle % 2 == 1;
            const std::string blank = word ? " " : "";
            std::vector<std::int32_t> expected;
            for (std::size_t i = 0; i < texts.size(); ++i)
                if (test::ContainsFolded(blank + texts[i] + blank, blank + wanted + blank))
                    expected.push_back(static_cast<std::int32_t>(i));
            ASSERT_EQ(Found(fields, wanted, word), expected)
                << "seed " << kSeed << " round " << round << " \"" << wanted << '"';
        }
    }
}

}  // namespace
}  // namespace ordalyn
