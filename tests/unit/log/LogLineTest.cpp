#include "log/LogLine.h"

#include <gtest/gtest.h>

#include "base/Errors.h"
#include "support/log/PaddedLine.h"

namespace ordalyn {
namespace {

void ExpectSplit(std::string_view line, std::string_view date, std::string_view source,
                 std::string_view target) {
    SCOPED_TRACE(line);
    const test::PaddedLine padded(line);
    const LogLine parts = SplitOperationLine(padded);
    EXPECT_EQ(parts.date, date);
    EXPECT_EQ(parts.source, source);
    EXPECT_EQ(parts.target, target);
}

TEST(LogLine, SplitsAnOperationWithSourceAndTarget) {
    ExpectSplit("d t: Copy x -> y", "d", "t: Copy x ", "y");
    ExpectSplit("01.03.2024 10:15:30: Copy C:\\a.txt -> D:\\a.txt", "01.03.2024",
                "10:15:30: Copy C:\\a.txt ", "D:\\a.txt");
}

TEST(LogLine, TheCharacterBehindTheArrowIsDroppedWhateverItIs) {
    ExpectSplit("d t: Copy x->yz", "d", "t: Copy x", "z");
    ExpectSplit("d t: Copy x->y", "d", "t: Copy x", "");
    ExpectSplit("d t: Copy x->", "d", "t: Copy x", "");
    ExpectSplit("d t: Copy x ->  y", "d", "t: Copy x ", " y");
    // One character, not one byte.
    ExpectSplit("d t: Copy x->\xC3\xA4z", "d", "t: Copy x", "z");
    ExpectSplit("d t: Copy x->\xF0\x9F\x98\x80z", "d", "t: Copy x", "z");
}

TEST(LogLine, SplitsAtTheFirstArrow) {
    ExpectSplit("d t: Copy a -> b -> c", "d", "t: Copy a ", "b -> c");
    ExpectSplit("d t: Copy a->->b", "d", "t: Copy a", ">b");
    ExpectSplit("d t: Copy a--> b", "d", "t: Copy a-", "b");
    ExpectSplit("d t: Copy a- > b", "d", "t: Copy a- > b", "");
}

TEST(LogLine, ALineWithoutAnArrowHasNoTarget) {
    ExpectSplit("d t: Delete x", "d", "t: Delete x", "");
}

TEST(LogLine, AnArrowInsideTheDateIsNoArrow) {
    ExpectSplit("d->e t: Copy x", "d->e", "t: Copy x", "");
    ExpectSplit("d->e t: Copy x -> y", "d->e", "t: Copy x ", "y");
}

TEST(LogLine, AnArrowRightBehindTheDateGivesAnEmptySource) {
    ExpectSplit("d -> x", "d", "", "x");
}

TEST(LogLine, OnlyABlankSeparates) {
    EXPECT_THROW(SplitOperationLine(test::PaddedLine("garbage")), MalformedText);
    EXPECT_THROW(SplitOperationLine(test::PaddedLine("d\tt:\tCopy")), MalformedText);
    EXPECT_THROW(SplitOperationLine(test::PaddedLine("")), MalformedText);
    ExpectSplit("d\te t: x", "d\te", "t: x", "");
    ExpectSplit("d  t: x", "d", " t: x", "");
}

TEST(LogLine, ASemicolonInFrontMakesAComment) {
    EXPECT_TRUE(IsCommentLine(";"));
    EXPECT_TRUE(IsCommentLine("; hello"));
    EXPECT_FALSE(IsCommentLine("a; hello"));
    EXPECT_FALSE(IsCommentLine(""));
}

TEST(LogLine, ACommentsSourceHasABlankMore) {
    EXPECT_EQ(CommentSource(";x"), "; x");
    EXPECT_EQ(CommentSource("; hello"), ";  hello");
    EXPECT_EQ(CommentSource(";"), "; ");
    EXPECT_EQ(CommentSource(";a -> b"), "; a -> b");
}

TEST(LogLine, TheTimeIsTheFirstWordWithoutItsLastCharacter) {
    EXPECT_EQ(TimeText("10:15:30: Copy C:\\a.txt "), "10:15:30");
    EXPECT_EQ(TimeText("t: x"), "t");
    EXPECT_EQ(TimeText(": x"), "");
    EXPECT_EQ(TimeText(";  hello"), "");
    EXPECT_EQ(TimeText("10\xE6\x97\xB6 x"), "10") << "a character of several bytes";
}

TEST(LogLine, ASourceWithoutATimeIsAllOperation) {
    for (const std::string_view source : {"", "word", "10:15:30:", " word", " two words", " "}) {
        SCOPED_TRACE(source);
        EXPECT_EQ(TimeText(source), "");
        EXPECT_EQ(OperationText(source), source);
    }
}

TEST(LogLine, TheOperationIsWhatStandsBehindTheFirstBlank) {
    EXPECT_EQ(OperationText("10:15:30: Copy C:\\a.txt "), "Copy C:\\a.txt ");
    EXPECT_EQ(OperationText(";  hello"), " hello");
    EXPECT_EQ(OperationText("; "), "");
    EXPECT_EQ(OperationText(""), "");
}

}  // namespace
}  // namespace ordalyn
