#include "settings/Placement.h"

#include <gtest/gtest.h>

#include "base/Errors.h"

namespace ordalyn {
namespace {

struct Parts {
    const char* text;
    Placement expected;
};
constexpr Parts kParts[] = {
    {"10,20,3000,4000", {10, 20, 3000, 4000}},
    {"150 ,60 twips, 3000x,4000", {150, 60, 3000, 4000}},
    {"left,top,3000,4000", {0, 0, 3000, 4000}},
    {",,3000,4000", {0, 0, 3000, 4000}},
    {"10,20,3000,4000,99", {10, 20, 3000, 4000}},
    {"-1.5,2,3000,-4000", {-1.5, 2, 3000, -4000}},
    {"100,200,3000", {100, 200, 3000, 0}},
    {"", {0, 0, 0, 0}},
};

TEST(Placement, PartsThatAreMissingOrNoNumbersAreZero) {
    for (const Parts& parts : kParts)
        EXPECT_EQ(ParsePlacement(parts.text), parts.expected) << parts.text;
}

TEST(Placement, ThereIsNoPlaceBeyond32Bits) {
    EXPECT_THROW(ParsePlacement("1e300,0,3000,4000"), Overflow);
    EXPECT_THROW(ParsePlacement("0,0,0,2147483648"), Overflow);
    EXPECT_NO_THROW(ParsePlacement("0,0,0,2147483647"));
}

TEST(Placement, IsWrittenInWholeTwips) {
    EXPECT_EQ(PlacementText({-10.75, 20.75, 3000.5, 4000}), "-10,20,3000,4000");
}

TEST(Placement, AWindowStartsNormalOrMaximisedButNeverMinimised) {
    EXPECT_EQ(ParseStartState("0"), 0);
    EXPECT_EQ(ParseStartState("1"), 0);
    EXPECT_EQ(ParseStartState("2"), 2);
    EXPECT_EQ(ParseStartState("2 maximised"), 2);
    EXPECT_EQ(ParseStartState("two"), 0);
    EXPECT_EQ(ParseStartState(""), 0);
    EXPECT_THROW(ParseStartState("3"), InvalidPropertyValue);
    EXPECT_THROW(ParseStartState("-1"), InvalidPropertyValue);
}

}  // namespace
}  // namespace ordalyn
