#include "log/LineReader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

#include "base/Text.h"
#include "log/ByteScan.h"
#include "support/log/SimpleLines.h"
#include "unit/log/ScriptedFiles.h"

namespace ordalyn {
namespace {

using namespace std::string_literals;
using test::Latin1CodePages;
using test::ScriptedFiles;
using testing::ElementsAre;
using testing::IsEmpty;

const std::string kMark = "\xEF\xBB\xBF";
const std::string kReplacement = "\xEF\xBF\xBD";

std::vector<std::string> ReadAll(const std::string& bytes, std::size_t mostAtOnce) {
    ScriptedFiles files;
    Latin1CodePages codePages;
    files.Put("x.log", bytes);
    files.mostAtOnce = mostAtOnce;
    LineReader reader(files.OpenForReading("x.log"), codePages);
    std::vector<std::string> lines;
    while (const auto line = reader.Next())
        lines.emplace_back(*line);
    EXPECT_EQ(CountFileLines(files, "x.log"), static_cast<std::int32_t>(lines.size()) + 1);

    // Read into a store's memory, every line must stay where it is.
    TextStore store;
    LineReader storing(files.OpenForReading("x.log"), codePages, &store);
    std::vector<TextPosition> positions;
    while (const auto line = storing.Next())
        positions.push_back(store.Add(*line));
    EXPECT_EQ(positions.size(), lines.size());
    for (std::size_t i = 0; i < positions.size() && i < lines.size(); ++i)
        EXPECT_TRUE(store.Text(positions[i]) == lines[i]) << "line " << i;
    return lines;
}

// The lines, which must not depend on where the pieces end in which the file arrives.
std::vector<std::string> Lines(const std::string& bytes) {
    std::vector<std::string> lines = ReadAll(bytes, 1'000'000'000);
    for (const std::size_t pieces : {1U, 2U, 3U, 5U, 16U})
        EXPECT_EQ(ReadAll(bytes, pieces), lines) << "in pieces of " << pieces;
    return lines;
}

std::string Utf16(std::u16string_view text, bool littleEndian) {
    std::string bytes;
    for (const char16_t unit : text) {
        const char low = static_cast<char>(unit & 0xFFU);
        const char high = static_cast<char>(unit >> 8U);
        bytes += littleEndian ? low : high;
        bytes += littleEndian ? high : low;
    }
    return bytes;
}

TEST(LineReader, AnEmptyFileHasNoLines) {
    EXPECT_THAT(Lines(""), IsEmpty());
}

TEST(LineReader, AFileOfAMarkAloneHasNoLines) {
    EXPECT_THAT(Lines(kMark), IsEmpty());
    EXPECT_THAT(Lines("\xFF\xFE"), IsEmpty());
    EXPECT_THAT(Lines("\xFE\xFF"), IsEmpty());
}

TEST(LineReader, LinesEndWithCrLfOrLfOrCr) {
    EXPECT_THAT(Lines("a\r\nb\nc\rd\r\n"), ElementsAre("a", "b", "c", "d"));
    EXPECT_THAT(Lines("a\n\rb"), ElementsAre("a", "", "b"));
    EXPECT_THAT(Lines("a\r\r\nb"), ElementsAre("a", "", "b"));
    EXPECT_THAT(Lines("\r\n\r\n\n\r"), ElementsAre("", "", "", ""));
}

TEST(LineReader, TheLastLineNeedsNoEnd) {
    EXPECT_THAT(Lines("a\nb"), ElementsAre("a", "b"));
    EXPECT_THAT(Lines("a\nb\n"), ElementsAre("a", "b"));
    EXPECT_THAT(Lines("a"), ElementsAre("a"));
    EXPECT_THAT(Lines(" "), ElementsAre(" "));
}

TEST(LineReader, NoByteEndsAFileEarly) {
    const std::string line =
        "a\0b\x1A"
        "c\x0B\x0C\x1B"s;
    EXPECT_THAT(Lines(line + "\r\nd"), ElementsAre(line, "d"));
}

TEST(LineReader, AMarkAtTheStartIsNoText) {
    EXPECT_THAT(Lines(kMark + "a\nb"), ElementsAre("a", "b"));
    EXPECT_THAT(Lines(kMark + "\nb"), ElementsAre("", "b"));
}

TEST(LineReader, AMarkInFrontOfALaterLineIsNoText) {
    EXPECT_THAT(Lines("a\r\n" + kMark + "b\r\n" + kMark + kMark + "c"), ElementsAre("a", "b", "c"));
    EXPECT_THAT(Lines(kMark + "a\r\n" + kMark + "b"), ElementsAre("a", "b"));
    EXPECT_THAT(Lines("a\r\n" + kMark + "\xE4"), ElementsAre("a", "\xC3\xA4"));
    EXPECT_THAT(Lines(kMark + kMark + "a"), ElementsAre("a"));
}

TEST(LineReader, HalfAMarkIsText) {
    EXPECT_THAT(Lines("\xEF\xBB"), ElementsAre("\xC3\xAF\xC2\xBB"));
    EXPECT_THAT(Lines("\xEF"), ElementsAre("\xC3\xAF"));
    EXPECT_THAT(Lines("\xFF"), ElementsAre("\xC3\xBF"));
}

TEST(LineReader, WithoutAMarkEachLineIsJudgedAlone) {
    EXPECT_THAT(Lines("\xE4\r\n\xC3\xA4\r\n\xC3\r\nplain\r\n\xC3\xA4\xE4"),
                ElementsAre("\xC3\xA4",                    // the code page's a-umlaut
                            "\xC3\xA4",                    // UTF-8's
                            "\xC3\x83",                    // half a UTF-8 character is none
                            "plain",                       //
                            "\xC3\x83\xC2\xA4\xC3\xA4"));  // nor are two with a wrong third
}

TEST(LineReader, UnmarkedUtf8HasToBeStrict) {
    // An overlong form, a surrogate, a value above the last character.
    EXPECT_THAT(Lines("\xC0\xAF"), ElementsAre("\xC3\x80\xC2\xAF"));
    EXPECT_THAT(Lines("\xED\xA0\x80"), ElementsAre("\xC3\xAD\xC2\xA0\xC2\x80"));
    EXPECT_THAT(Lines("\xF4\x90\x80\x80"), ElementsAre("\xC3\xB4\xC2\x90\xC2\x80\xC2\x80"));
    EXPECT_THAT(Lines("\xF0\x9F\x98\x80"), ElementsAre("\xF0\x9F\x98\x80"));
}

TEST(LineReader, InvalidPartsOfAMarkedFileAreReplaced) {
    EXPECT_THAT(Lines(kMark + "a\xE4z\n\xC3\xA4\n\xF0\x9F\x98"),
                ElementsAre("a" + kReplacement + "z", "\xC3\xA4", kReplacement));
}

TEST(LineReader, ReadsUtf16OfBothByteOrders) {
    const std::u16string text = u"\uFEFFa\u00E4\u20AC\U0001F600\r\n\r\uFEFFb\n\u0A0D\u0D0A\u0020";
    for (const bool littleEndian : {true, false})
        EXPECT_THAT(Lines(Utf16(text, littleEndian)),
                    ElementsAre("a\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80", "", "b",
                                "\xE0\xA8\x8D\xE0\xB4\x8A "));
}

TEST(LineReader, InvalidPartsOfUtf16AreReplaced) {
    const std::string mark = "\xFF\xFE";
    const auto unit = [](int value) {
        return std::string{static_cast<char>(value & 0xFF), static_cast<char>(value >> 8)};
    };
    EXPECT_THAT(Lines(mark + unit(0xD800) + unit('a')), ElementsAre(kReplacement + "a"));
    EXPECT_THAT(Lines(mark + unit(0xDC00) + unit('a')), ElementsAre(kReplacement + "a"));
    EXPECT_THAT(Lines(mark + unit(0xD800) + unit(0xD801) + unit(0xDC00)),
                ElementsAre(kReplacement + "\xF0\x90\x90\x80"));
    EXPECT_THAT(Lines(mark + unit('a') + unit(0xD800)), ElementsAre("a" + kReplacement));
    EXPECT_THAT(Lines(mark + unit('a') + "b"), ElementsAre("a" + kReplacement));
    EXPECT_THAT(Lines(mark + unit(0xD800) + "b"), ElementsAre(kReplacement + kReplacement));
}

TEST(LineReader, ALineOfManyMegabytesWorks) {
    std::string line;
    line.assign(12'000'000, 'x');
    const std::vector<std::string> lines = ReadAll("a\n" + line + "\r\nb", 100'000);
    ASSERT_EQ(lines.size(), 3U);
    EXPECT_EQ(lines[0], "a");
    EXPECT_TRUE(lines[1] == line);
    EXPECT_EQ(lines[2], "b");
}

TEST(LineReader, LinesAtTheEndsOfBlocksAreWhole) {
    // One line end moves over the border between the blocks in which a file is read.
    constexpr std::size_t kBlock = TextStore::kLeastLoan;
    for (const std::string& end : {std::string("\n"), std::string("\r\n"), std::string("\r")}) {
        for (std::size_t before = kBlock - 4; before < kBlock + 4; ++before) {
            const std::string first(before, 'x');
            const std::vector<std::string> lines =
                ReadAll(Join({first, "\xC3\xA4", "z"}, end), 1'000'000'000);
            ASSERT_EQ(lines.size(), 3U);
            ASSERT_TRUE(lines[0] == first);
            ASSERT_EQ(lines[1], "\xC3\xA4");
            ASSERT_EQ(lines[2], "z");
        }
    }
}

TEST(LineReader, LineEndsAtTheEndOfASearchAreWhole) {
    // One line end moves over every place at which the search for line ends may pause.
    for (std::size_t pause = 1024; pause <= 65536; pause *= 2) {
        for (std::size_t before = pause - 3; before <= pause + 1; ++before) {
            const std::string first(before, 'x');
            const std::vector<std::string> lines =
                ReadAll(Join({first, "", "\xC3\xA4", "z"}, "\r\n"), 1'000'000'000);
            ASSERT_EQ(lines.size(), 4U);
            ASSERT_TRUE(lines[0] == first);
            ASSERT_EQ(lines[1], "");
            ASSERT_EQ(lines[2], "\xC3\xA4");
            ASSERT_EQ(lines[3], "z");
        }
    }
}

TEST(LineReader, ManyLineEndsInARowAreAllSeen) {
    const std::vector<std::string> lines = ReadAll(std::string(100'000, '\n'), 1'000'000'000);
    EXPECT_EQ(lines.size(), 100'000U);
}

TEST(LineReader, TheSlackBehindADecodedLineIsThere) {
    const std::string text(100, '\xE4');
    for (const std::string& bytes : {text + "\n", text, kMark + text}) {
        ScriptedFiles files;
        Latin1CodePages codePages;
        files.Put("x.log", bytes);
        LineReader reader(files.OpenForReading("x.log"), codePages);
        const std::string_view line = *reader.Next();
        const std::string slack(line.data() + line.size(), bytescan::kSlack);
        EXPECT_EQ(slack.size(), bytescan::kSlack);
    }
}

TEST(LineReader, IntoAStoreNothingIsCopied) {
    ScriptedFiles files;
    Latin1CodePages codePages;
    files.Put("x.log", kMark + "first\r\n\xC3\xA4");
    TextStore store;
    LineReader reader(files.OpenForReading("x.log"), codePages, &store);
    const std::string_view first = *reader.Next();
    const std::size_t footprint = store.Footprint();
    EXPECT_EQ(store.Text(store.Add(first)).data(), first.data());
    const std::string_view second = *reader.Next();
    EXPECT_EQ(store.Text(store.Add(second)).data(), second.data());
    EXPECT_EQ(first, "first");
    EXPECT_EQ(store.Footprint(), footprint);
}

TEST(LineReader, SkipPassesOverALine) {
    ScriptedFiles files;
    Latin1CodePages codePages;
    files.Put("x.log", "a\r\n\r\nc");
    LineReader reader(files.OpenForReading("x.log"), codePages);
    EXPECT_TRUE(reader.Skip());
    EXPECT_TRUE(reader.Skip());
    EXPECT_EQ(reader.Next(), "c");
    EXPECT_FALSE(reader.Skip());
    EXPECT_EQ(reader.Next(), std::nullopt);
}

TEST(LineReader, AgreesWithASimpleReaderOnRandomBytes) {
    constexpr unsigned kSeed = 7;
    SCOPED_TRACE(kSeed);
    std::mt19937 random(kSeed);
    static const std::string kBytes =
        "ab -> ;\r\n\r\n\n\xEF\xBB\xBF\xC3\xA4\xE4\xFF\xFE\0\x1A\xD8"s;
    static const std::string kStarts[] = {"", kMark, "\xFF\xFE", "\xFE\xFF"};
    for (int round = 0; round < 3000; ++round) {
        std::string bytes = kStarts[random() % 4];
        for (std::size_t length = random() % 60; length > 0; --length)
            bytes += kBytes[random() % kBytes.size()];
        Latin1CodePages codePages;
        ASSERT_EQ(ReadAll(bytes, 1 + random() % 20), test::SimpleLines(bytes, codePages));
    }
}

TEST(CountFileLines, AnswersOneMoreThanTheLines) {
    ScriptedFiles files;
    files.Put("empty", "");
    files.Put("one", "a");
    files.Put("ended", "a\r\nb\r\n");
    files.Put("blank", "\n\n\n");
    EXPECT_EQ(CountFileLines(files, "empty"), 1);
    EXPECT_EQ(CountFileLines(files, "one"), 2);
    EXPECT_EQ(CountFileLines(files, "ended"), 3);
    EXPECT_EQ(CountFileLines(files, "blank"), 4);
    EXPECT_EQ(files.openNow, 0);
}

TEST(CountFileLines, ReportsAFileThatCannotBeRead) {
    ScriptedFiles files;
    EXPECT_THROW(CountFileLines(files, "missing"), FileError);
    files.Put("x.log", "a\nb\nc\n");
    files.failAfter = 2;
    files.mostAtOnce = 2;
    EXPECT_THROW(CountFileLines(files, "x.log"), FileError);
    EXPECT_EQ(files.openNow, 0);
}

// What is read into memory that is made ready beforehand, and what it needs of it.
TEST(LineReader, ReadsIntoBlocksThatAreReady) {
    constexpr std::size_t kLines = 900;
    ScriptedFiles files;
    const std::string body(10'000, 'x');
    std::string text;
    for (std::size_t i = 0; i < kLines; ++i)
        text.append(std::to_string(i)).append(body).append("\n");
    const std::size_t whole = text.size() / TextStore::kLeastLoan;
    files.Put("x.log", std::move(text));
    std::set<const char*> blocks;
    ReadyBlocks ready(TextStore::kLeastLoan, {.processors = 2, .allocate = [&](std::size_t size) {
                                                  auto block =
                                                      std::make_unique_for_overwrite<char[]>(size);
                                                  blocks.insert(block.get());
                                                  return block;
                                              }});
    EXPECT_EQ(CountFileLines(files, "x.log", &ready), static_cast<std::int32_t>(kLines) + 1);
    EXPECT_EQ(blocks.size(), whole);
    Latin1CodePages codePages;
    TextStore store;
    LineReader reader(files.OpenForReading("x.log"), codePages, &store, &ready);
    std::size_t line = 0;
    std::size_t inBlocks = 0;
    while (const auto next = reader.Next()) {
        ASSERT_EQ(*next, std::to_string(line++) + body);
        const auto above = blocks.upper_bound(next->data());
        if (above != blocks.begin() && next->data() < *std::prev(above) + TextStore::kLeastLoan)
            ++inBlocks;
    }
    EXPECT_EQ(line, kLines);
    // The worker may have kept one.
    EXPECT_GT(inBlocks, kLines * 9 / 10);

    files.Put("long.log", std::string(3 * TextStore::kLeastLoan, 'y'));
    CountFileLines(files, "long.log", &ready);
    LineReader longLine(files.OpenForReading("long.log"), codePages, &store, &ready);
    EXPECT_EQ(longLine.Next()->size(), 3 * TextStore::kLeastLoan) << "does not fit into a block";
}

}  // namespace
}  // namespace ordalyn
