// Numbers in texts: strict where a setting must be one, forgiving where only the beginning counts.
#include <gtest/gtest.h>

#include "base/Errors.h"
#include "base/Text.h"

namespace ordalyn {
namespace {

TEST(TextNumbers, ReadsWholeNumbers) {
    EXPECT_EQ(ToLong("0"), 0);
    EXPECT_EQ(ToLong("5"), 5);
    EXPECT_EQ(ToLong("+5"), 5);
    EXPECT_EQ(ToLong("-5"), -5);
    EXPECT_EQ(ToLong("007"), 7);
    EXPECT_EQ(ToLong("2147483647"), 2147483647);
    EXPECT_EQ(ToLong("-2147483648"), -2147483647 - 1);
}

TEST(TextNumbers, BlanksAroundANumberDoNotMatter) {
    EXPECT_EQ(ToLong("  12  "), 12);
    EXPECT_THROW(ToLong("1 2"), TypeMismatch);
    EXPECT_THROW(ToLong("\t5"), TypeMismatch);
    EXPECT_THROW(ToLong("- 5"), TypeMismatch);
}

TEST(TextNumbers, FractionsAreRoundedHalvesToEven) {
    EXPECT_EQ(ToLong("1.5"), 2);
    EXPECT_EQ(ToLong("2.5"), 2);
    EXPECT_EQ(ToLong("-1.5"), -2);
    EXPECT_EQ(ToLong("-.5"), 0);
    EXPECT_EQ(ToLong("5."), 5);
    EXPECT_EQ(ToLong("2.4"), 2);
}

TEST(TextNumbers, ExponentsAreUnderstood) {
    EXPECT_EQ(ToLong("1e3"), 1000);
    EXPECT_EQ(ToLong("1E3"), 1000);
    EXPECT_EQ(ToLong("+1.25e+2"), 125);
    EXPECT_EQ(ToLong("25e-1"), 2);
    EXPECT_THROW(ToLong("1e"), TypeMismatch);
    EXPECT_THROW(ToLong("e3"), TypeMismatch);
}

TEST(TextNumbers, AnythingElseIsAMismatch) {
    for (const char* text :
         {"",     " ",        "x",   "5x",  "x5",     "+-5",  "-+5", "++5",   "--5",
          "+",    "-",        ".",   "+.",  "0x10",   "&H10", "1,5", "1.2.3", "inf",
          "-inf", "infinity", "nan", "NAN", "nan(1)", "+inf", "5-",  "\u0665"})
        EXPECT_THROW(ToLong(text), TypeMismatch) << text;
    EXPECT_THROW(ToLong(std::string_view("5\0", 2)), TypeMismatch);
}

TEST(TextNumbers, WhatDoesNotFitOverflows) {
    for (const char* text : {"2147483648", "2147483647.5", "-2147483649", "99999999999999999999",
                             "1e10", "1e308", "1e309", "-1e400", "1e99999999999999999999"})
        EXPECT_THROW(ToLong(text), Overflow) << text;
    EXPECT_EQ(ToLong("2147483647.4"), 2147483647);
}

TEST(TextNumbers, WhatIsTooSmallForEveryNumberIsNought) {
    EXPECT_EQ(ToLong("1e-400"), 0);
    EXPECT_EQ(ToLong("-1e-400"), 0);
    EXPECT_EQ(ToLong("1e-99999999999999999999"), 0);
    EXPECT_EQ(ToLong("0e400"), 0);
    EXPECT_EQ(ToLong("0." + std::string(400, '0') + "1"), 0);
}

TEST(TextNumbers, TheExponentAloneDoesNotDecideAboutTheSize) {
    EXPECT_THROW(ToLong("1" + std::string(400, '0')), Overflow);
    EXPECT_THROW(ToLong(std::string(400, '9')), Overflow);
    EXPECT_THROW(ToLong("1" + std::string(400, '0') + "e-1"), Overflow);
    EXPECT_EQ(ToLong("0." + std::string(400, '0') + "1e1"), 0);
}

TEST(TextNumbers, TheLeadingNumberEndsWhereTheTextNoLongerIsOne) {
    EXPECT_EQ(LeadingNumber("12abc"), 12);
    EXPECT_EQ(LeadingNumber("  7 8"), 7);
    EXPECT_EQ(LeadingNumber("-3.25kB"), -3.25);
    EXPECT_EQ(LeadingNumber("+4"), 4);
    EXPECT_EQ(LeadingNumber("1.2.3"), 1.2);
    EXPECT_EQ(LeadingNumber("1e3x"), 1000);
    EXPECT_EQ(LeadingNumber("1ex"), 1);
    EXPECT_EQ(LeadingNumber("0x10"), 0);
    EXPECT_EQ(LeadingNumber("5000000000"), 5e9);
}

TEST(TextNumbers, ATextThatBeginsWithNoNumberCountsAsNought) {
    for (const char* text :
         {"", "   ", "x", "x5", "+-5", "--5", "-", "+", ".", "inf", "nan", "\t5"})
        EXPECT_EQ(LeadingNumber(text), 0) << text;
}

}  // namespace
}  // namespace ordalyn
