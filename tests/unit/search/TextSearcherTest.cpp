// Looking for a text in others, letter case ignored.
#include <gtest/gtest.h>

#include <random>
#include <string>
#include <string_view>

#include "base/Text.h"
#include "search/TextSearcher.h"
#include "support/search/FoldAndCompare.h"

namespace ordalyn {
namespace {

bool Found(std::string_view needle, std::string_view text) {
    return TextSearcher(needle).FoundIn(text);
}

TEST(TextSearcher, IgnoresCaseInEveryScript) {
    EXPECT_TRUE(Found("copy", "10:15:30: COPY C:\\a.txt"));
    EXPECT_TRUE(Found("COPY", "10:15:30: copy C:\\a.txt"));
    EXPECT_TRUE(Found("übung", "D:\\ÜBUNG\\a.txt"));
    EXPECT_TRUE(Found("ÜBUNG", "D:\\übung\\a.txt"));
    EXPECT_TRUE(Found("копировать", "10:15:30: Копировать C:\\a.txt"));
    EXPECT_TRUE(Found("КОПИРОВАТЬ", "10:15:30: копировать"));
    EXPECT_TRUE(Found("ὀδυσσεύς", "ὈΔΥΣΣΕΎΣ"));
    EXPECT_TRUE(Found("եղբայր", "ԵՂԲԱՅՐ"));
    EXPECT_TRUE(Found("𐐨𐐩", "𐐀𐐁"));  // outside the first 65,536 characters
    EXPECT_FALSE(Found("übung", "ubung Übunk"));
    EXPECT_FALSE(Found("копия", "копи"));
}

TEST(TextSearcher, FindsAtBothEndsAndTheWholeText) {
    EXPECT_TRUE(Found("abc", "abcdef"));
    EXPECT_TRUE(Found("DEF", "abcdef"));
    EXPECT_TRUE(Found("abcdef", "ABCDEF"));
    EXPECT_FALSE(Found("abcdefg", "abcdef"));
    EXPECT_TRUE(Found("ё", "Ё"));
    EXPECT_FALSE(Found("ёё", "Ё"));
}

TEST(TextSearcher, TheEmptyTextIsInEveryText) {
    EXPECT_TRUE(Found("", ""));
    EXPECT_TRUE(Found("", "abc"));
    EXPECT_FALSE(Found("a", ""));
    EXPECT_FALSE(Found("ü", ""));
}

TEST(TextSearcher, SignsAreTakenAsTheyAre) {
    EXPECT_TRUE(Found(": Copy", "10:15:30: Copy C:\\a.txt"));
    EXPECT_FALSE(Found(": Copy", "10:15:30: Move C:\\Copy\\a.txt"));
    EXPECT_TRUE(Found("d:\\*.[x]?", "D:\\*.[X]?"));
    EXPECT_FALSE(Found("a*c", "abc"));
    // What differs from a letter by its case bit only.
    EXPECT_FALSE(Found("@[\\]^_", "`{|}~\x7F"));
    EXPECT_FALSE(Found("a{b", "A[B"));
}

TEST(TextSearcher, CharactersOfOtherLengthsFoldToLetters) {
    EXPECT_TRUE(Found("kilo", "\u212Ailo"));  // Kelvin sign
    EXPECT_TRUE(Found("\u212Ailo", "Kilo"));
    EXPECT_TRUE(Found("k", "\u212A"));
    EXPECT_TRUE(Found("skip", "\u017F\u212Aip"));  // long s
    EXPECT_TRUE(Found("\u017F", "S"));
    EXPECT_TRUE(Found("pass", "pa\u017F\u017F"));
    EXPECT_TRUE(Found("ß", "ẞ"));
    EXPECT_TRUE(Found("straße", "STRAẞE"));
    EXPECT_TRUE(Found("\u023A", "\u2C65"));  // two bytes and three
    EXPECT_TRUE(Found("x\u2C65\u2C65y", "X\u023A\u2C65Y"));
    EXPECT_TRUE(Found("å", "\u212B"));  // Angstrom sign
    EXPECT_TRUE(Found("ω\u00E9", "\u2126\u00C9"));
    EXPECT_TRUE(Found("μ", "µ"));
    EXPECT_FALSE(Found("k", "\u212B"));
    EXPECT_FALSE(Found("ss", "ß"));  // one character stays one character
}

TEST(TextSearcher, InvalidBytesEqualOnlyThemselvesAndHideInNoCharacter) {
    EXPECT_TRUE(Found("\xA9", "x\xA9y"));
    EXPECT_FALSE(Found("\xA9", "x\xC3\xA9y"));  // the second byte of a letter
    EXPECT_FALSE(Found("\xC3", "x\xC3\xA9y"));
    EXPECT_TRUE(Found("\xC3", "x\xC3y"));
    EXPECT_TRUE(Found("a\xFF\xFE", "..A\xFF\xFE.."));
    EXPECT_FALSE(Found("a\xFF", "A\xFE"));
}

TEST(TextSearcher, FindsAtEveryPlaceOfATextOfEveryLength) {
    for (const std::string_view needle : {"q", "ks", "Quarterly", "ünder", "ЖЖ", "k\u017F"}) {
        const TextSearcher searcher(needle);
        for (std::size_t before = 0; before < 40; ++before) {
            for (std::size_t after = 0; after < 20; ++after) {
                const std::string left(before, '.');
                const std::string right(after, 'e');
                EXPECT_TRUE(searcher.FoundIn(left + FoldCase(needle) + right)) << needle;
                const std::string cut(FoldCase(WithoutLastCharacter(needle)));
                EXPECT_FALSE(searcher.FoundIn(left + cut + "." + right)) << needle;
            }
        }
    }
}

TEST(TextSearcher, LongNeedlesAreComparedToTheirEnd) {
    const std::string needle = std::string(300, 'a') + "Щ" + std::string(300, 'b');
    std::string text = "xx" + needle + "yy";
    EXPECT_TRUE(Found(needle, text));
    EXPECT_TRUE(Found(std::string(500, 'Q'), std::string(500, 'q')));
    text[text.size() - 3] = 'c';
    EXPECT_FALSE(Found(needle, text));
    EXPECT_FALSE(Found(std::string(500, 'Q'), std::string(499, 'q')));
}

TEST(TextSearcher, KnowsEveryCharacterThatFoldsToAnother) {
    for (char32_t c = 0; c < 0x20000; ++c) {
        if (c >= 0xD800 && c < 0xE000)
            continue;
        const char32_t folded = FoldCase(c);
        const std::vector<char32_t> variants = CaseVariants(folded);
        EXPECT_EQ(variants.front(), folded);
        EXPECT_EQ(std::count(variants.begin(), variants.end(), c), 1) << std::hex << +c;
        for (const char32_t variant : variants)
            EXPECT_EQ(FoldCase(variant), folded) << std::hex << +c;
    }
}

// Texts of few different characters, chosen for their trouble, so that almost everything nearly
// fits.
TEST(TextSearcher, AgreesWithFoldingBothAndComparing) {
    constexpr std::string_view kPieces[] = {
        "a",        "A", "k",  "K", "s", "S",      "\u212A", "\u017F", "ü",
        "Ü",        "д", "Д",  "ß", "ẞ", "\u023A", "\u2C65", "\xC3",   "\xA9",
        "\xE2\x84", " ", "\\", "ς", "Σ", "𐐨",      "𐐀",      "\xF0"};
    constexpr std::uint32_t kSeed = 20240301;
    std::mt19937 random(kSeed);
    const auto make = [&](std::size_t most) {
        // All of one region, so that short texts meet.
        const std::size_t first = random() % std::size(kPieces);
        const std::size_t range = 1 + random() % 6;
        std::string text;
        for (std::size_t count = random() % most; count > 0; --count)
            text += kPieces[(first + random() % range) % std::size(kPieces)];
        return text;
    };
    int found = 0;
    for (int round = 0; round < 60000; ++round) {
        const std::string text = make(40);
        std::string needle = make(5);
        if (round % 3 == 0 && !text.empty()) {
            const std::size_t start = random() % text.size();
            needle = FoldCase(std::string_view(text).substr(start, random() % 12));
        }
        const bool expected = test::ContainsFolded(text, needle);
        found += expected ? 1 : 0;
        ASSERT_EQ(Found(needle, text), expected) << "seed " << kSeed << " round " << round << "\n"
                                                 << needle << "\n"
                                                 << text;
    }
    EXPECT_GT(found, 5000);
    EXPECT_LT(found, 55000);
}

}  // namespace
}  // namespace ordalyn
