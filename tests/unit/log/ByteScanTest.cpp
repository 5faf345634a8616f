#include "log/ByteScan.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

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

// Whatever stands behind the text must not matter.
bool IsUtf8Text(const std::string& text) {
    const auto followedBy = [&text](char behind) {
        const std::string padded = text + std::string(kSlack, behind);
        return IsUtf8(padded.data(), padded.data() + text.size());
    };
    const bool valid = followedBy('x');
    EXPECT_EQ(followedBy('\x80'), valid) << text;
    EXPECT_EQ(followedBy('\xC3'), valid) << text;
    EXPECT_EQ(followedBy('\xFF'), valid) << text;
    return valid;
}

TEST(ByteScan, BothWaysGiveTheSameResults) {
    constexpr unsigned kSeed = 20240301;
    SCOPED_TRACE(kSeed);
    std::mt19937 random(kSeed);
    for (int round = 0; round < 20000; ++round) {
        const std::string text = RandomText(random, random() % 100);
        SCOPED_TRACE(text);
        const char* begin = text.data();
        const char* end = begin + text.size();
        const LineEnd expected = portable::FindLineEnd(begin, end);
        const LineEnd found = FindLineEnd(begin, end);
        ASSERT_EQ(found.at - begin, expected.at - begin);
        ASSERT_EQ(found.ascii, expected.ascii);
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
    for (std::size_t length = 1; length < 70; ++length) {
        for (std::size_t at = 0; at < length; ++at) {
            std::string text(length, 'x');
            text[at] = '\n';
            const char* begin = text.data();
            ASSERT_EQ(FindLineEnd(begin, begin + length).at, begin + at);
            text[at] = '\r';
            ASSERT_EQ(FindLineEnd(begin, begin + length).at, begin + at);
            text[at] = ' ';
            ASSERT_EQ(FindByte(begin, begin + length, ' '), begin + at);
            text[at] = '\x80';
            ASSERT_FALSE(IsUtf8Text(text));
            ASSERT_FALSE(FindLineEnd(begin, begin + length).ascii);
        }
    }
}

TEST(ByteScan, FindsAnArrowAtEveryPlace) {
    for (std::size_t length = 2; length < 70; ++length) {
        for (std::size_t at = 0; at + 1 < length; ++at) {
            std::string text(length, '-');
            text[at + 1] = '>';
            const char* begin = text.data();
            ASSERT_EQ(FindArrow(begin, begin + length), begin + at);
            ASSERT_EQ(FindArrow(begin, begin + at + 1), begin + at + 1) << "half an arrow";
        }
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
    int valid = 0;
    for (int round = 0; round < 20000; ++round) {
        std::string text;
        for (std::size_t pieces = random() % 60; pieces > 0; --pieces)
            text += kPieces[random() % (round % 2 == 0 ? 5 : std::size(kPieces))];
        if (random() % 2 == 0)
            text.insert(random() % (text.size() + 1), kBroken[random() % std::size(kBroken)]);
        const bool expected = portable::IsUtf8(text.data(), text.data() + text.size());
        valid += expected ? 1 : 0;
        ASSERT_EQ(IsUtf8Text(text), expected) << text;
    }
    EXPECT_GT(valid, 5000);
    EXPECT_LT(valid, 15000);
}

TEST(ByteScan, OnlyBytesBeforeTheLineEndMakeALineNonAscii) {
    const std::string text = "abc\n\xC3\xA4" + std::string(20, 'x');
    EXPECT_TRUE(FindLineEnd(text.data(), text.data() + text.size()).ascii);
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
