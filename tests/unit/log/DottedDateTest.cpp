#include "log/DottedDate.h"

#include <gtest/gtest.h>

namespace ordalyn {
namespace {

using std::chrono::year;

TEST(DottedDate, BeginsWithTheDay) {
    EXPECT_EQ(ReadDottedDate("04.03.2024"), year(2024) / 3 / 4);
    EXPECT_EQ(ReadDottedDate("4.3.2024"), year(2024) / 3 / 4);
    EXPECT_EQ(ReadDottedDate("31.12.1999"), year(1999) / 12 / 31);
    EXPECT_EQ(ReadDottedDate("29.02.2024"), year(2024) / 2 / 29);
}

TEST(DottedDate, IsNoOtherText) {
    for (const char* text :
         {"",          "4",         "4.3",        "4.3.24",     "4.3.2024x",
          " 4.3.2024", "4.3.20245", "004.3.2024", "4/3/2024",   "2024.03.04",
          "4..2024",   ".3.2024",   "a.b.c",      "29.02.2023", "31.04.2024",
          "0.1.2024",  "1.0.2024",  "1.13.2024",  "04-03-2024", "4.3.2024 10:00"})
        EXPECT_EQ(ReadDottedDate(text), std::nullopt) << text;
}

}  // namespace
}  // namespace ordalyn
