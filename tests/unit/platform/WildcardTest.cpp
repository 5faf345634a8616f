#include "platform/Wildcard.h"

#include <gtest/gtest.h>

#include <string>

namespace ordalyn::platform {

TEST(Wildcard, WithoutWildcardsTheWholeNameMatchesIgnoringCase) {
    EXPECT_TRUE(MatchesWildcard("TotalCmd.log", "totalcmd.LOG"));
    EXPECT_TRUE(MatchesWildcard("\xD0\x96.log", "\xD0\xB6.log"));
    EXPECT_FALSE(MatchesWildcard("totalcmd.log", "totalcmd.lo"));
    EXPECT_FALSE(MatchesWildcard("totalcmd.lo", "totalcmd.log"));
}

TEST(Wildcard, AStarStandsForAnyCharacters) {
    EXPECT_TRUE(MatchesWildcard("x.log", "x*.log"));
    EXPECT_TRUE(MatchesWildcard("x.2024-03-01.log", "x*.log"));
    EXPECT_TRUE(MatchesWildcard("x.log.log", "x*.log"));
    EXPECT_FALSE(MatchesWildcard("x.logbook", "x*.log"));
    EXPECT_FALSE(MatchesWildcard("ax.log", "x*.log"));
    EXPECT_TRUE(MatchesWildcard("abcabd", "*ab*d"));
    EXPECT_TRUE(MatchesWildcard("", "*"));
}

TEST(Wildcard, AQuestionMarkStandsForOneCharacterOrNoneBeforeADotAndAtTheEnd) {
    EXPECT_TRUE(MatchesWildcard("x.1.log", "x.?.log"));
    EXPECT_TRUE(MatchesWildcard("x.\xE3\x82\xBD.log", "x.?.log"));
    EXPECT_FALSE(MatchesWildcard("x.12.log", "x.?.log"));
    EXPECT_TRUE(MatchesWildcard("x.log", "x?.log"));
    EXPECT_TRUE(MatchesWildcard("x", "x??"));
    EXPECT_FALSE(MatchesWildcard("xyz.log", "x?.log"));
}

TEST(Wildcard, StarDotStarMatchesEveryName) {
    EXPECT_TRUE(MatchesWildcard("noextension", "*.*"));
    EXPECT_TRUE(MatchesWildcard("a.b.c", "*.*"));
}

TEST(Wildcard, APatternThatEndsInAStarAndADotMatchesNamesWithoutExtension) {
    EXPECT_TRUE(MatchesWildcard("noextension", "no*."));
    EXPECT_FALSE(MatchesWildcard("no.extension", "no*."));
}

TEST(Wildcard, ManyStarsOverALongNameAreDecidedQuickly) {
    EXPECT_FALSE(MatchesWildcard(std::string(5000, 'a'), "*a*a*a*a*a*a*a*a*a*a*b"));
}

}  // namespace ordalyn::platform
