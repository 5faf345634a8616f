// What the history window says in words.
#include "windows/history/HistoryTexts.h"

#include <gtest/gtest.h>

#include "settings/cDefaultStrings.h"

namespace ordalyn {
namespace {

using enum StepKind;

std::string English(std::int32_t id) {
    return cDefaultStrings().GetDefaultString(id);
}
std::string Date(std::int32_t entry) {
    return std::to_string(entry) + ".03.2024";
}
std::string Words(std::vector<HistoryStep> steps, const std::string& path = "D:\\x") {
    return LifeInWords({std::move(steps), path}, English, Date);
}

TEST(HistoryTextsTest, ALifeIsToldInOneSentence) {
    EXPECT_EQ(Words({{1, Created}, {2, Moved}, {3, MovedWithFolder}, {15, Moved}, {16, Deleted}}),
              "Moved 3 times, last seen at D:\\x on 15.03.2024, deleted on 16.03.2024");
    EXPECT_EQ(Words({{1, Created}, {2, Moved}}), "Moved once, last seen at D:\\x on 2.03.2024");
    EXPECT_EQ(Words({{1, Created}, {2, CopiedAway}, {3, Failed}}),
              "Last seen at D:\\x on 2.03.2024");
    EXPECT_EQ(Words({{1, Touched}, {2, DeletedWithFolder}}),
              "Last seen at D:\\x on 1.03.2024, deleted on 2.03.2024");
    EXPECT_EQ(Words({{1, CopiedHere}, {2, Replaced}}),
              "Last seen at D:\\x on 1.03.2024, replaced by another one on 2.03.2024");
    EXPECT_EQ(Words({{2, Deleted}}), "Deleted at D:\\x on 2.03.2024");
    EXPECT_EQ(Words({{2, Failed}}), "All operations at D:\\x failed");
}

TEST(HistoryTextsTest, WhatAPathHoldsIsNoPlaceForAValue) {
    EXPECT_EQ(Words({{1, Moved}, {2, Deleted}}, "D:\\%d 100%s&%p"),
              "Moved once, last seen at D:\\%d 100%s&%p on 1.03.2024, deleted on 2.03.2024");
    EXPECT_EQ(AboutPath("%p%", "%p"), "%p%");
}

TEST(HistoryTextsTest, ALifeInTheListHasItsNumberAndItsDates) {
    EXPECT_EQ(LifeInList({{{1, Created}, {5, Deleted}}, ""}, 2, 3, English, Date),
              "2 of 3: 1.03.2024 to 5.03.2024");
}

}  // namespace
}  // namespace ordalyn
