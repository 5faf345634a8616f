#include "settings/FindOptions.h"

#include <gtest/gtest.h>

namespace ordalyn {
namespace {

TEST(FindOptions, AreReadByPlace) {
    EXPECT_EQ(ParseFindOptions("4,1,1,0"), (FindOptions{4, 1, true, false}));
    EXPECT_EQ(ParseFindOptions("-1,0,0,1"), (FindOptions{-1, 0, false, true}));
    EXPECT_EQ(ParseFindOptions("4,1,1,0,9"), (FindOptions{4, 1, true, false}));
}

TEST(FindOptions, MissingPartsHaveNoValue) {
    EXPECT_EQ(ParseFindOptions("3,1"), (FindOptions{.historyIndex = 3, .column = 1}));
    EXPECT_EQ(ParseFindOptions(""), FindOptions{});
    EXPECT_EQ(ParseFindOptions(",0,,0"), (FindOptions{.column = 0, .selectedDateOnly = false}));
}

struct Bad {
    const char* text;
    FindOptions expected;
};
const Bad kBad[] = {
    {"one,1,1,1", {std::nullopt, 1, true, true}},
    {"99999999999,1,1,1", {std::nullopt, 1, true, true}},
    {"3,2,1,1", {3, std::nullopt, true, true}},  // there is no third column
    {"3,-1,1,1", {3, std::nullopt, true, true}},
    {"4,1,x,0", {4, 1, std::nullopt, false}},
    {"4,1,1,x", {4, 1, true, std::nullopt}},
};

TEST(FindOptions, APartThatIsNoneHasNoValueAndTheOthersAreRead) {
    for (const Bad& bad : kBad)
        EXPECT_EQ(ParseFindOptions(bad.text), bad.expected) << bad.text;
}

TEST(FindOptions, AFlagIsOnWhenItIsNotZero) {
    EXPECT_EQ(ParseFindOptions("5,0,0,7"), (FindOptions{5, 0, false, true}));
    EXPECT_EQ(ParseFindOptions("5,0,-1,0"), (FindOptions{5, 0, true, false}));
}

TEST(FindOptions, AreWrittenByPlace) {
    EXPECT_EQ(FindOptionsText({5, 1, true, false}), "5,1,1,0");
    EXPECT_EQ(FindOptionsText({-1, 0, false, true}), "-1,0,0,1");
}

TEST(FindOptions, APartWithoutAValueIsWrittenEmptyAndReadAsNone) {
    const FindOptions options{.column = 1, .wholeWord = true};
    EXPECT_EQ(FindOptionsText(options), ",1,1,");
    EXPECT_EQ(ParseFindOptions(FindOptionsText(options)), options);
}

}  // namespace
}  // namespace ordalyn
