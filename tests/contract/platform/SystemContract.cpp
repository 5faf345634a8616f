// Environment, dates, clipboard.
#include <gmock/gmock.h>

#include <set>

#include "base/Text.h"
#include "contract/platform/Subject.h"

namespace ordalyn::contract {

namespace {

class SystemContract : public PlatformContract {
  protected:
    platform::Environment& Environment() { return Services().environment; }
    std::optional<std::string> LongDate(std::string_view text) {
        return Services().locale.LongDate(text);
    }
    platform::Clipboard& Clipboard() { return Services().clipboard; }
};

}  // namespace

TEST_P(SystemContract, VariablesAreKnownInAnyLetterCase) {
    System().SetVariable("Ordalyn_Path", "D:\\tc \xD0\x96");
    EXPECT_EQ(Environment().Variable("ORDALYN_path"), "D:\\tc \xD0\x96");
    EXPECT_EQ(Environment().Variable("Ordalyn_None"), "");
}

TEST_P(SystemContract, TheProcessCanSetAVariableOfItsOwnAndRemoveItAgain) {
    System().SetVariable("Ordalyn_Path", "D:\\before");
    Environment().SetVariable("ORDALYN_path", "D:\\tc \xD0\x96");
    EXPECT_EQ(Environment().Variable("Ordalyn_Path"), "D:\\tc \xD0\x96");
    EXPECT_EQ(Environment().Expand("%ordalyn_path%\\a"), "D:\\tc \xD0\x96\\a");
    Environment().SetVariable("Ordalyn_Path", "");
    EXPECT_EQ(Environment().Variable("Ordalyn_Path"), "");
    EXPECT_EQ(Environment().Expand("%Ordalyn_Path%\\a"), "%Ordalyn_Path%\\a");
}

TEST_P(SystemContract, ALongVariableIsReadWhole) {
    const std::string value(3000, 'x');
    System().SetVariable("Ordalyn_Long", value);
    EXPECT_EQ(Environment().Variable("Ordalyn_Long"), value);
    EXPECT_EQ(Environment().Expand("%Ordalyn_Long%%Ordalyn_Long%"), value + value);
}

TEST_P(SystemContract, DefinedVariablesAreExpandedAndTheRestStaysAsWritten) {
    System().SetVariable("Ordalyn_Path", "D:\\tc");
    EXPECT_EQ(Environment().Expand("%ORDALYN_PATH%\\a.log"), "D:\\tc\\a.log");
    EXPECT_EQ(Environment().Expand("<%Ordalyn_Path%%Ordalyn_Path%>"), "<D:\\tcD:\\tc>");
    EXPECT_EQ(Environment().Expand("%Ordalyn_None%\\a.log"), "%Ordalyn_None%\\a.log");
    EXPECT_EQ(Environment().Expand("100% sure"), "100% sure");
    EXPECT_EQ(Environment().Expand("a%%b"), "a%%b");
    EXPECT_EQ(Environment().Expand("plain \xD0\x96"), "plain \xD0\x96");
    EXPECT_EQ(Environment().Expand(""), "");
}

TEST_P(SystemContract, TheSystemsFoldersAreKnownByNameInAnyLetterCase) {
    for (const char* name : {"PERSONAL", "APPDATA", "LOCAL_APPDATA", "COMMON_APPDATA", "DESKTOP"}) {
        const std::string folder = Environment().SpecialFolder(name);
        ASSERT_GT(folder.size(), 3U) << name;
        EXPECT_EQ(folder.substr(1, 2), ":\\") << name;
        EXPECT_NE(folder.back(), '\\') << name;
        EXPECT_EQ(Environment().SpecialFolder(FoldCase(name)), folder) << name;
    }
    EXPECT_NE(Environment().SpecialFolder("APPDATA"), Environment().SpecialFolder("LOCAL_APPDATA"));
    for (const char* none : {"", "NOTHING", "$APPDATA", "APPDATA "})
        EXPECT_EQ(Environment().SpecialFolder(none), "") << none;
}

TEST_P(SystemContract, ExpandedTextIsNotExpandedAgain) {
    System().SetVariable("Ordalyn_Path", "%Ordalyn_Other%");
    System().SetVariable("Ordalyn_Other", "x");
    EXPECT_EQ(Environment().Expand("%Ordalyn_Path%"), "%Ordalyn_Other%");
}

TEST_P(SystemContract, TheProgramHasAFullPath) {
    const std::string path = Environment().ProgramPath();
    ASSERT_GT(path.size(), 7U);
    EXPECT_EQ(path.substr(1, 2), ":\\");
    EXPECT_EQ(path.substr(path.size() - 4), ".exe");
}

TEST_P(SystemContract, TheTimeIsATime) {
    const platform::LocalTime now = Environment().Now();
    EXPECT_GT(now.year, 2000);
    EXPECT_TRUE(now.month >= 1 && now.month <= 12 && now.day >= 1 && now.day <= 31);
    EXPECT_TRUE(now.hour >= 0 && now.hour < 24 && now.minute >= 0 && now.minute < 60 &&
                now.second >= 0 && now.second < 61);
}

TEST_P(SystemContract, ADateInTheUsersShortFormBecomesTheLongForm) {
    EXPECT_EQ(LongDate(System().ShortDate()), System().LongDate());
    EXPECT_EQ(LongDate("2024-03-01"), System().LongDate());
    EXPECT_NE(System().LongDate(), System().ShortDate());
}

TEST_P(SystemContract, TextThatIsNoDateHasNoLongForm) {
    for (const char* text : {"", "A", "hello", "10:15:30", "99.99.9999", "x01.03.2024", "->"})
        EXPECT_EQ(LongDate(text), std::nullopt) << text;
}

TEST_P(SystemContract, ADateInTheUsersShortFormIsADayOfTheCalendar) {
    platform::Locale& locale = Services().locale;
    const std::chrono::year_month_day day = std::chrono::year(2024) / 3 / 1;
    EXPECT_EQ(locale.ReadDate(System().ShortDate()), day);
    EXPECT_EQ(locale.ReadDate("2024-03-01 23:59:59"), day);
    EXPECT_EQ(locale.LongDateOf(day), System().LongDate());
    for (const char* text : {"", "A", "10:15:30", "99.99.9999", "x01.03.2024", "->"})
        EXPECT_EQ(locale.ReadDate(text), std::nullopt) << text;
}

TEST_P(SystemContract, TheDaysOfAWeekAndTheMonthsHaveNamesOfTheirOwn) {
    platform::Locale& locale = Services().locale;
    EXPECT_TRUE(locale.FirstWeekday().ok());
    std::set<std::string> names;
    for (unsigned day = 0; day < 7; ++day)
        names.insert(locale.WeekdayName(std::chrono::weekday(day)));
    EXPECT_EQ(names.size(), 7U);
    for (unsigned month = 1; month <= 12; ++month) {
        const std::string name = locale.MonthName(std::chrono::month(month));
        names.insert(name);
        const std::string date =
            locale.LongDateOf(std::chrono::year(2024) / static_cast<int>(month) / 1);
        EXPECT_NE(date.find(name), std::string::npos) << date;
    }
    EXPECT_EQ(names.size(), 19U);
    EXPECT_EQ(names.count(""), 0U);
}

TEST_P(SystemContract, WeeksBeginAsTheUsersRegionSays) {
    EXPECT_EQ(Services().locale.FirstWeekday(), System().FirstWeekday());
}

TEST_P(SystemContract, TextGoesToTheClipboardAndIsCleared) {
    EXPECT_TRUE(Clipboard().SetText("C:\\\xD0\x96\xE3\x82\xBD\xF0\x9F\x93\x81"));
    EXPECT_EQ(System().ClipboardText(), "C:\\\xD0\x96\xE3\x82\xBD\xF0\x9F\x93\x81");
    EXPECT_TRUE(Clipboard().SetText(""));
    EXPECT_EQ(System().ClipboardText(), "");
    EXPECT_TRUE(Clipboard().Clear());
    EXPECT_EQ(System().ClipboardText(), std::nullopt);
}

TEST_P(SystemContract, ANulDoesNotEndATextOnTheClipboard) {
    EXPECT_TRUE(Clipboard().SetText(std::string_view("Copy a\0b -> c", 13)));
    EXPECT_EQ(System().ClipboardText(), "Copy a b -> c");
}

TEST_P(SystemContract, AClipboardThatAnotherHoldsIsLeftAlone) {
    EXPECT_TRUE(Clipboard().SetText("before"));
    {
        const std::shared_ptr<void> holder = System().HoldClipboard();
        EXPECT_FALSE(Clipboard().SetText("after"));
        EXPECT_FALSE(Clipboard().Clear());
    }
    EXPECT_EQ(System().ClipboardText(), "before");
    EXPECT_TRUE(Clipboard().SetText("after"));
    EXPECT_EQ(System().ClipboardText(), "after");
}

INSTANTIATE_TEST_SUITE_P(, SystemContract, AllSubjects(), KindName);

}  // namespace ordalyn::contract
