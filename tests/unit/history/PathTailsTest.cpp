// Which fields of a log are worth reading for a path.
#include "history/PathTails.h"

#include <gtest/gtest.h>

#include "history/PathNames.h"

namespace ordalyn {
namespace {

bool MayEnd(std::string_view path, std::string_view field) {
    PathTails tails;
    tails.AddWithFolders(PathKey(path));
    return tails.MayEnd(field);
}

TEST(PathTailsTest, FieldsThatEndInThePathOrAFolderAboveItAreRead) {
    for (const char* field : {R"(12:00:00: Copy: D:\Reports\2024\Budget.XLSX )",
                              R"(12:00:00: DeleteFolder: D:\reports\2024)",
                              R"(12:00:00: DeleteFolder: D:\reports\2024\)", R"(d:\REPORTS)"})
        EXPECT_TRUE(MayEnd(R"(D:\reports\2024\budget.xlsx)", field)) << field;
}

TEST(PathTailsTest, OthersAreNot) {
    for (const char* field :
         {"", "x", "12:00:00: ", R"(12:00:00: Copy: D:\Reports\2024\Budget.XLSX.bak )",
          R"(12:00:00: Delete: D:\other\names.xlsx)", R"(D:\reports\2023)",
          "12:00:00: Delete: D:\\\xD1\x84.txt"})
        EXPECT_FALSE(MayEnd(R"(D:\reports\2024\budget.xlsx)", field)) << field;
}

TEST(PathTailsTest, ShortPathsAreReadToo) {
    EXPECT_TRUE(MayEnd(R"(D:\a)", R"(D:\A)"));
    EXPECT_TRUE(MayEnd(R"(D:\abcd)", R"(12:00:00: Test: d:\ABCD)"));
    EXPECT_FALSE(MayEnd(R"(D:\abcd)", R"(D:\abce)"));
    EXPECT_TRUE(MayEnd(R"(D:\abcdefgh)", R"(D:\ABCDEFGH)"));
    EXPECT_FALSE(MayEnd(R"(D:\abcdefgh)", R"(D:\ABCDEFGX)"));
}

TEST(PathTailsTest, LettersBeyondAsciiStandForEachOther) {
    EXPECT_TRUE(MayEnd("D:\\\xC3\xA4", "D:\\\xC3\x84"));
    EXPECT_TRUE(
        MayEnd("D:\\folder\\m\xC3\xA4rz.txt", "12:00:00: Test: D:\\folder\\M\xC3\x84RZ.TXT"));
    EXPECT_FALSE(
        MayEnd("D:\\folder\\m\xC3\xA4rz.txt", "12:00:00: Test: D:\\folder\\M\xC3\x84RZ.TXU"));
    // A letter whose cases differ in length: the path can be shorter in the log.
    EXPECT_TRUE(
        MayEnd("D:\\abcdefghi\xC8\xBA"
               "x",
               "D:\\ABCDEFGHI\xE2\xB1\xA5X"));
    EXPECT_TRUE(
        MayEnd("D:\\abc\xE2\xB1\xA5"
               "x",
               "D:\\ABC\xC8\xBAX"));
}

TEST(PathTailsTest, LettersWithStrangersAreReadWithThem) {
    EXPECT_TRUE(MayEnd(R"(D:\tasks)", "D:\\TAS\xE2\x84\xAAS"));
    EXPECT_TRUE(MayEnd(R"(D:\tasks)", "D:\\TA\xC5\xBFKS"));
    EXPECT_TRUE(MayEnd(R"(D:\some longer name s)", "D:\\some longer name \xC5\xBF"));
    EXPECT_TRUE(MayEnd(R"(D:\some longer sname 12345)", "D:\\some longer \xC5\xBFname 12345"));
}

TEST(PathTailsTest, NothingIsReadForNoPath) {
    EXPECT_FALSE(PathTails().MayEnd(R"(12:00:00: Copy: D:\Reports)"));
    PathTails tails;
    tails.AddWithFolders(PathKey(R"(D:\reports)"));
    tails.Clear();
    EXPECT_FALSE(tails.MayEnd(R"(D:\reports)"));
}

}  // namespace
}  // namespace ordalyn
