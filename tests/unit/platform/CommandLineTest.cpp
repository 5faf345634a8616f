#include "platform/CommandLine.h"

#include <gtest/gtest.h>

namespace ordalyn::platform {

TEST(CommandLine, AProgramAloneLeavesNothing) {
    EXPECT_EQ(BehindProgramName("Ordalyn.exe"), "");
    EXPECT_EQ(BehindProgramName("\"C:\\Program Files\\Ordalyn.exe\""), "");
    EXPECT_EQ(BehindProgramName("\"C:\\Program Files\\Ordalyn.exe\"  "), "");
    EXPECT_EQ(BehindProgramName(""), "");
}

TEST(CommandLine, TheNameEndsAtTheFirstBlankOutsideQuotes) {
    EXPECT_EQ(BehindProgramName("C:\\o\\Ordalyn.exe c:\\a.log"), "c:\\a.log");
    EXPECT_EQ(BehindProgramName("\"C:\\Program Files\\Ordalyn.exe\" c:\\a.log"), "c:\\a.log");
    EXPECT_EQ(BehindProgramName("C:\\\"Program Files\"\\Ordalyn.exe c:\\a.log"), "c:\\a.log");
    EXPECT_EQ(BehindProgramName("Ordalyn.exe\tc:\\a.log"), "c:\\a.log");
}

TEST(CommandLine, TheRestStaysAsWrittenButForBlanksAtItsEnds) {
    EXPECT_EQ(BehindProgramName("\"o.exe\"   \"c:\\my logs\\tc.log\" "), "\"c:\\my logs\\tc.log\"");
    EXPECT_EQ(BehindProgramName("o.exe c:\\my  logs\\tc.log"), "c:\\my  logs\\tc.log");
    EXPECT_EQ(BehindProgramName("o.exe \"a\" \"b\""), "\"a\" \"b\"");
}

TEST(CommandLine, AnOpenQuoteTakesEverythingIntoTheName) {
    EXPECT_EQ(BehindProgramName("\"C:\\o.exe c:\\a.log"), "");
}

}  // namespace ordalyn::platform
