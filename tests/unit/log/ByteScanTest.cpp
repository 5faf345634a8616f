#include "log/ByteScan.h"

#include <gtest/gtest.h>

#include <numeric>
#include <random>
#include <string>
#include <vector>

#include "support/log/PaddedLine.h"

namespace ordalyn::bytescan {
namespace {

using namespace std::string_literals;

// Texts of the characters that matter, at all lengths around the size of a block.
std::string RandomText(std::mt19937& random, std::size_t length) {
    static const std::string kBytes = "abcdefghijklmnopqrstuvw  --->>\r\n\n\0\x7F\x80\xFF"s;
    // Rare and frequent ones, so that nothing is found in some texts.
    const std::size_t kinds = random() % 4 == 0 ? kBytes.size() : 23;
    std::string text(length, 'x');
    for (char& c : text)
        c = random() % 8 == 0 ? kBytes[random() % kBytes.size()] : kBytes[random() % kinds];
    return text;
}

using LineEnds = std::vector<std::uint32_t>;

// The places that one of the two searches for line ends notes.
template <typename Search>
LineEnds Places(const std::string& text, Search search) {
    LineEnds places(text.size());
    places.resize(search(text.data(), text.data() + text.size(), places.data()));
    return places;
}

// Neither what stands behind the text nor how much ASCII is before it may matter.
bool IsUtf8Text(const std::string& text) {
    const auto judged = [](const std::string& bytes, std::string_view behind) {
        const test::PaddedLine padded(bytes, behind);
        return IsUtf8(padded.begin(), padded.end());
    };
    const bool valid = judged(text, "x");
    const std::string manyMore(600, 'x');
    for (const std::string_view behind : {"x", "\x80", "\xC3", "\xFF"}) {
        EXPECT_EQ(judged(text, behind), valid) << text;
        EXPECT_EQ(judged(manyMore + text, behind), valid) << "behind many: " << text;
        EXPECT_EQ(judged(text + manyMore, behind), valid) << "before many: " << text;
    }
    return valid;
}

TEST(ByteScan, BothWaysGiveTheSameResults) {
    constexpr unsigned kSeed = 20240301;
    SCOPED_TRACE(kSeed);
    std::mt19937 random(kSeed);
    for (int round = 0; round < 6000; ++round) {
        const std::string text = RandomText(random, random() % 300);
        SCOPED_TRACE(text);
        const test::PaddedLine padded(text);
        const char* begin = padded.begin();
        const char* end = padded.end();
        ASSERT_EQ(Places(text, FindLineEnds), Places(text, portable::FindLineEnds));
        ASSERT_EQ(FindByte(begin, end, ' ') - begin, portable::FindByte(begin, end, ' ') - begin);
        ASSERT_EQ(FindArrow(begin, end) - begin, portable::FindArrow(begin, end) - begin);
        ASSERT_EQ(FindMarks(begin, end).blank - begin,
                  portable::FindMarks(begin, end).blank - begin);
        ASSERT_EQ(FindMarks(begin, end).arrow - begin,
                  portable::FindMarks(begin, end).arrow - begin);
        for (const bool afterCr : {false, true})
            ASSERT_EQ(CountLineEnds(begin, end, afterCr),
                      portable::CountLineEnds(begin, end, afterCr));
        ASSERT_EQ(IsUtf8Text(text), portable::IsUtf8(begin, end));
    }
}

TEST(ByteScan, FindsAByteAtEveryPlace) {
    for (std::uint32_t length = 1; length < 140; ++length) {
        for (std::uint32_t at = 0; at < length; ++at) {
            std::string text(length, 'x');
            text[at] = '\n';
            ASSERT_EQ(Places(text, FindLineEnds), LineEnds{at});
            text[at] = '\r';
            ASSERT_EQ(Places(text, FindLineEnds), LineEnds{at});
            text[at] = ' ';
            ASSERT_EQ(FindByte(text.data(), text.data() + length, ' '), text.data() + at);
            text[at] = '\x80';
            ASSERT_FALSE(IsUtf8Text(text));
            text[at] = '\xC3';
            ASSERT_FALSE(IsUtf8Text(text));
            text[at] = '\xC0';
            ASSERT_FALSE(IsUtf8Text(text));
        }
    }
}

TEST(ByteScan, FindsAllLineEndsOfABlock) {
    for (std::uint32_t length = 0; length < 200; ++length) {
        LineEnds all(length);
        std::iota(all.begin(), all.end(), 0U);
        ASSERT_EQ(Places(std::string(length, '\n'), FindLineEnds), all);
    }
}

TEST(ByteScan, FindsAnArrowAtEveryPlace) {
    for (std::size_t length = 2; length < 300; ++length) {
        for (std::size_t at = 0; at + 1 < length; ++at) {
            std::string text(length, '-');
            text[at + 1] = '>';
            const test::PaddedLine padded(text);
            ASSERT_EQ(FindArrow(padded.begin(), padded.end()), padded.begin() + at);
            const test::PaddedLine half(text.substr(0, at + 1), text.substr(at + 1));
            ASSERT_EQ(FindArrow(half.begin(), half.end()), half.end()) << "half an arrow";
        }
    }
}

TEST(ByteScan, AHeadAloneIsNoArrow) {
    for (std::size_t heads = 1; heads < 200; ++heads) {
        const test::PaddedLine alone(std::string(heads, '>'));
        ASSERT_EQ(FindArrow(alone.begin(), alone.end()), alone.end());
        const test::PaddedLine before(std::string(heads, '>') + "->");
        ASSERT_EQ(FindArrow(before.begin(), before.end()), before.end() - 2);
    }
}

TEST(ByteScan, OnlyAnArrowBehindTheFirstBlankCounts) {
    for (std::size_t before = 0; before < 150; ++before) {
        const test::PaddedLine line(std::string(before, '-') + "-> " + std::string(before, 'x') +
                                    "->");
        ASSERT_EQ(FindMarks(line.begin(), line.end()).blank, line.begin() + before + 2);
        ASSERT_EQ(FindMarks(line.begin(), line.end()).arrow, line.end() - 2);
        const test::PaddedLine noBlank(std::string(before, 'x') + "->x");
        ASSERT_EQ(FindMarks(noBlank.begin(), noBlank.end()).blank, noBlank.end());
        ASSERT_EQ(FindMarks(noBlank.begin(), noBlank.end()).arrow, noBlank.end());
    }
}

TEST(ByteScan, JudgesUtf8AsTheDecoderDoes) {
    constexpr unsigned kSeed = 99;
    SCOPED_TRACE(kSeed);
    std::mt19937 random(kSeed);
    static const std::string kPieces[] = {"a",
                                          "abcdefgh",
                                          "\xC3\xA4",
                                          "\xD0\x94",
                                          "\xE2\x82\xAC",
                                          "\xE0\xA4\x85",
                                          "\xED\x9F\xBF",
                                          "\xEF\xBF\xBD",
                                          "\xF0\x9F\x98\x80"};
    static const std::string kBroken[] = {
        "\x80",     "\xC3",         "\xE2\x82",     "\xC0\x80",
        "\xC1\xBF", "\xE0\x80\x80", "\xED\xA0\x80", "\xF4\x90\x80\x80",
        "\xF8",     "\xFF",         "\xF0\x9F\x98", "\xE2"};
    // Characters of up to two bytes, those that need no look at their second byte, and all.
    const std::size_t kinds[] = {4, 5, std::size(kPieces)};
    int valid = 0;
    for (int round = 0; round < 6000; ++round) {
        std::string text;
        for (std::size_t pieces = random() % 60; pieces > 0; --pieces)
            text += kPieces[random() % kinds[round % 3]];
        if (random() % 2 == 0)
            text.insert(random() % (text.size() + 1), kBroken[random() % std::size(kBroken)]);
        const bool expected = portable::IsUtf8(text.data(), text.data() + text.size());
        valid += expected ? 1 : 0;
        ASSERT_EQ(IsUtf8Text(text), expected) << text;
    }
    EXPECT_GT(valid, 1500);
    EXPECT_LT(valid, 4500);
}

// Texts that are judged in pieces, what is wrong at and around the ends of these.
TEST(ByteScan, JudgesLongTextsAsTheDecoderDoes) {
    static const std::string kTexts[] = {"abcdefg", "\xD0\x94", "\xE0\xB8\x81", "\xF0\x9F\x98\x80"};
    static const std::string kOthers[] = {"",
                                          "\x80",
                                          "\xC3",
                                          "\xC3\xA4",
                                          "\xC1\xBF",
                                          "\xE2\x82",
                                          "\xE2\x82\xAC",
                                          "\xE0\x9F\xBF",
                                          "\xED\xA0\x80",
                                          "\xED\x9F\xBF",
                                          "\xF0\x9F",
                                          "\xF0\x8F\xBF\xBF",
                                          "\xF4\x90\x80\x80",
                                          "\xF4\x8F\xBF\xBF",
                                          "\xF5\x80\x80\x80"};
    for (const std::string& character : kTexts) {
        std::string text;
        while (text.size() < 4200)
            text += character;
        for (const std::size_t at :
             {0, 15, 16, 2040, 2044, 2046, 2047, 2048, 2049, 4095, 4096, 4200}) {
            for (const std::string& other : kOthers) {
                // Between two characters, and in the middle of one.
                for (const std::size_t place : {at / character.size() * character.size(), at}) {
                    std::string whole = text;
                    whole.insert(std::min(place, text.size()), other);
                    const test::PaddedLine padded(whole, "\x80");
                    ASSERT_EQ(IsUtf8(padded.begin(), padded.end()),
                              portable::IsUtf8(padded.begin(), padded.end()))
                        << character << " with " << other << " at " << place;
                }
            }
        }
    }
}

TEST(ByteScan, ATrailByteFarBehindItsLeadIsNone) {
    for (std::size_t before = 0; before < 70; ++before)
        for (std::size_t between = 1; between < 140; ++between)
            ASSERT_FALSE(
                IsUtf8Text(std::string(before, 'x') + "\xC3" + std::string(between, 'x') + "\x80"));
}

TEST(ByteScan, CountsManyLineEndsInOneBlock) {
    const std::string feeds(100'000, '\n');
    EXPECT_EQ(CountLineEnds(feeds.data(), feeds.data() + feeds.size(), false), 100'000U);
    EXPECT_EQ(CountLineEnds(feeds.data(), feeds.data() + feeds.size(), true), 99'999U);
    std::string pairs;
    for (int i = 0; i < 50'000; ++i)
        pairs += "\r\n";
    EXPECT_EQ(CountLineEnds(pairs.data(), pairs.data() + pairs.size(), false), 50'000U);
    EXPECT_EQ(CountLineEnds(pairs.data() + 1, pairs.data() + pairs.size(), true), 49'999U);
}

}  // namespace
}  // namespace ordalyn::bytescan
