// The calendar: what it shows of the log, and how a day is chosen in it.
#include "CalendarFixture.h"

#include "support/settings/DesignIds.h"
#include "windows/calendar/Shades.h"

namespace ordalyn::test {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;

class Calendar : public CalendarFixture {};

TEST_F(Calendar, HasItsTexts) {
    EXPECT_THAT(DesignIdFaults(commands.Window()), IsEmpty());
    EXPECT_EQ(commands.Window().Caption(), "Calendar");
    EXPECT_EQ(Button("cmdClose").Caption(), "Close");
}

TEST_F(Calendar, ADayIsAsDarkAsItWasBusyAndMarkedWhereSomethingFailed) {
    LoadDays({"01.03.2024", "02.03.2024!", "02.03.2024", "02.03.2024", "02.03.2024", "05.03.2024"});
    Shown();
    const toolkit::TextColors colors = Area().ShownColors();
    EXPECT_EQ(YearShown(), "2024");
    EXPECT_EQ(ColorOf(Date(2024, 3, 2)), ShadeOf(kBusiest, colors.text, colors.background));
    EXPECT_EQ(ColorOf(Date(2024, 3, 1)), ShadeOf(1, colors.text, colors.background));
    EXPECT_EQ(ColorOf(Date(2024, 3, 3)), ShadeOf(0, colors.text, colors.background));
    EXPECT_TRUE(IsMarkedFailed(Date(2024, 3, 2)));
    EXPECT_FALSE(IsMarkedFailed(Date(2024, 3, 1)));
}

TEST_F(Calendar, TheDayOfTheMainWindowIsMarkedAndFollows) {
    LoadDays({"01.03.2024", "05.04.2024", "31.12.2023"});
    Shown();
    EXPECT_EQ(YearShown(), "2023") << "where the chosen day is";
    EXPECT_TRUE(IsFramed(Date(2023, 12, 31)));
    cboDate.SetListIndex(1);
    tools.DoLaterWork();
    EXPECT_EQ(YearShown(), "2024");
    EXPECT_TRUE(IsFramed(Date(2024, 3, 1)));
    EXPECT_FALSE(IsFramed(Date(2024, 4, 5)));
    EXPECT_EQ(Label(), "Friday, March 1, 2024: 1 operation(s)");
    Point(Date(2024, 3, 2));
    cboDate.SetListIndex(2);
    EXPECT_EQ(Label(), "Friday, April 5, 2024: 1 operation(s)");
    cboDate.SetListIndex(1);
    cboDate.SetListIndex(0);
    EXPECT_FALSE(IsFramed(Date(2024, 3, 1))) << "all dates";
    EXPECT_EQ(YearShown(), "2024");
}

TEST_F(Calendar, AClickChoosesTheDay) {
    LoadDays({"01.03.2024", "05.03.2024", "07.03.2024"});
    Shown();
    Click(Date(2024, 3, 5));
    EXPECT_EQ(ChosenDate(), "05.03.2024");
    EXPECT_EQ(panels.SelectedDay(), 1);
    EXPECT_TRUE(IsFramed(Date(2024, 3, 5)));
    EXPECT_TRUE(commands.Window().Visible());
}

TEST_F(Calendar, WhatIsNoClickOnADayOfTheLogChoosesNothing) {
    LoadDays({"01.03.2024", "05.03.2024", "07.03.2024"});
    Shown();
    Click(Date(2024, 3, 6));
    Drag(Date(2024, 3, 1), Date(2024, 3, 5));
    Drag(Date(2024, 3, 1), Date(2024, 3, 1), toolkit::kRightButton);
    Area().MouseDown.Raise(toolkit::kLeftButton, {}, 0, 0);
    Area().MouseUp.Raise(toolkit::kLeftButton, {}, 0, 0);
    EXPECT_EQ(ChosenDate(), "07.03.2024");
    // A press on another place is forgotten.
    const toolkit::Rect day = SquareOf(Date(2024, 3, 1));
    Area().MouseUp.Raise(toolkit::kLeftButton, {}, day.left + 1, day.top + 1);
    EXPECT_EQ(ChosenDate(), "07.03.2024");
}

TEST_F(Calendar, ADateThatComesBackLeadsToItsFirstDay) {
    LoadDays({"05.03.2024", "01.03.2024", "05.03.2024!", "05.03.2024"});
    Shown();
    EXPECT_EQ(Label(), "Tuesday, March 5, 2024: 3 operation(s), 1 of them failed");
    Click(Date(2024, 3, 1));
    Click(Date(2024, 3, 5));
    EXPECT_EQ(panels.SelectedDay(), 0);
    // The other days of the date are shown as it, too.
    cboDate.SetListIndex(3);
    EXPECT_TRUE(IsFramed(Date(2024, 3, 5)));
}

TEST_F(Calendar, ArrowsWalkTheDaysAndEnterOrSpaceChoosesOne) {
    LoadDays({"01.03.2024", "05.03.2024", "11.03.2024", "12.03.2024"});
    Shown();
    EXPECT_EQ(tools.focus, &Area());
    Press(toolkit::key::Left);
    EXPECT_EQ(ChosenDate(), "12.03.2024") << "walking chooses nothing";
    EXPECT_EQ(Label(), "Monday, March 11, 2024: 1 operation(s)");
    Press(toolkit::key::Enter);
    EXPECT_EQ(ChosenDate(), "11.03.2024");
    EXPECT_TRUE(MemoryToolkit::Of(commands.Window()).keyboardCues);
    Press(toolkit::key::Right);
    Press(toolkit::key::Up);
    Press(toolkit::key::Space);
    EXPECT_EQ(ChosenDate(), "05.03.2024");
    Press(toolkit::key::Down);
    EXPECT_EQ(Label(), "Tuesday, March 12, 2024: 1 operation(s)");
    Press(toolkit::key::Down);
    EXPECT_EQ(Label(), "Tuesday, March 19, 2024: no operations");
    Press(toolkit::key::Enter);
    EXPECT_EQ(ChosenDate(), "05.03.2024") << "a day that the log does not have";
}

TEST_F(Calendar, ArrowsGoTheWayThatTheyPointInWhatIsReadFromTheRight) {
    UseLanguageFile("RightToLeftLanguage=1");
    LoadDays({"10.03.2024", "11.03.2024", "12.03.2024"});
    Shown();
    cboDate.SetListIndex(2);
    const toolkit::Twips before = SquareOf(Date(2024, 3, 11)).left;
    Press(toolkit::key::Left);
    EXPECT_THAT(Area().AccessibleName(), HasSubstr("March 12"));
    EXPECT_LT(SquareOf(Date(2024, 3, 12)).left, before);
    Press(toolkit::key::Right);
    Press(toolkit::key::Right);
    EXPECT_THAT(Area().AccessibleName(), HasSubstr("March 10"));
    EXPECT_GT(Button("cmdPrevious").Left(), Button("cmdClose").Left());
}

TEST_F(Calendar, PointingSaysTheDayAndWhatItHas) {
    LoadDays({"01.03.2024", "02.03.2024!", "02.03.2024", "05.03.2024"});
    Shown();
    const std::string current = Label();
    EXPECT_EQ(current, "Tuesday, March 5, 2024: 1 operation(s)");
    Point(Date(2024, 3, 2));
    EXPECT_EQ(Label(), "Saturday, March 2, 2024: 2 operation(s), 1 of them failed");
    EXPECT_EQ(Area().ToolTip(), Label());
    Point(Date(2024, 3, 3));
    EXPECT_EQ(Label(), "Sunday, March 3, 2024: no operations");
    Area().MouseMove.Raise(0, {}, 0, 0);
    EXPECT_EQ(Label(), current);
    EXPECT_EQ(Area().ToolTip(), "");
    Point(Date(2024, 3, 2));
    Area().MouseLeave.Raise();
    EXPECT_EQ(Label(), current);
}

TEST_F(Calendar, SaysTheDayThatKeysAreForToThoseWhoHearIt) {
    LoadDays({"01.03.2024", "02.03.2024!"});
    Shown();
    EXPECT_EQ(Area().AccessibleName(),
              "Calendar, Saturday, March 2, 2024: 1 operation(s), 1 of them failed");
    Press(toolkit::key::Left);
    EXPECT_EQ(Area().AccessibleName(), "Calendar, Friday, March 1, 2024: 1 operation(s)");
    Point(Date(2024, 3, 2));
    EXPECT_EQ(Area().AccessibleName(), "Calendar, Friday, March 1, 2024: 1 operation(s)");
}

TEST_F(Calendar, SaysInWordsThatThereIsNothing) {
    Shown();
    EXPECT_EQ(Label(), "There are no operations to show.");
    ASSERT_EQ(Drawing().size(), 1U);
    EXPECT_EQ(Drawing()[0].text, "There are no operations to show.");
    for (const int key : {toolkit::key::Left, toolkit::key::Home, toolkit::key::PageUp,
                          toolkit::key::Enter, toolkit::key::End})
        Press(key);
    Area().Wheel.Raise(1);
    Area().MouseDown.Raise(toolkit::kLeftButton, {}, 1000, 1000);
    Area().MouseUp.Raise(toolkit::kLeftButton, {}, 1000, 1000);
    Area().MouseMove.Raise(0, {}, 1000, 1000);
    EXPECT_FALSE(Button("cmdPrevious").Enabled());
    EXPECT_FALSE(Button("cmdNext").Enabled());
    LoadDays({"01.03.2024"});
    EXPECT_EQ(YearShown(), "2024") << "as soon as there is something";
}

TEST_F(Calendar, SaysInWordsThatNoDayCanBeTold) {
    LoadDays({"A", "A", "B"});
    Shown();
    EXPECT_EQ(Label(), "The days of this log cannot be told.");
    EXPECT_EQ(Label("lblLeftOut"), "Operations left out because their day cannot be told: 3");
}

TEST_F(Calendar, DaysThatCannotBeToldAreLeftOutAndCounted) {
    LoadDays({"01.03.2024", "99.99.2024", "99.99.2024", "02.03.2024"});
    Shown();
    const auto& leftOut = commands.Window().Get<toolkit::Label>("lblLeftOut");
    EXPECT_TRUE(leftOut.Visible());
    EXPECT_EQ(leftOut.Caption(), "Operations left out because their day cannot be told: 2");
    const toolkit::Twips high = Area().Height();
    LoadDays({"01.03.2024"});
    EXPECT_FALSE(leftOut.Visible());
    EXPECT_GT(Area().Height(), high) << "the picture takes the room";
}

TEST_F(Calendar, DatesWithDotsAreToldOnASystemThatWritesOthers) {
    system.locale.knowsDots = false;
    LoadDays({"04.03.2024", "3/5/2024", "13.03.2024"});
    Shown();
    EXPECT_EQ(Label(), "Wednesday, March 13, 2024: 1 operation(s)");
    EXPECT_FALSE(commands.Window().Get<toolkit::Label>("lblLeftOut").Visible());
    Press(toolkit::key::Home);
    EXPECT_EQ(Label(), "Monday, March 4, 2024: 1 operation(s)");
}

TEST_F(Calendar, NewLinesAreCountedWhileItIsSeen) {
    LoadDays({"01.03.2024"});
    Shown();
    Write(kLog, {Line("01.03.2024"), Line("01.03.2024", true), Line("02.04.2024")});
    reading.Refresh();
    tools.DoLaterWork();
    EXPECT_EQ(Label(), "Tuesday, April 2, 2024: 1 operation(s)");
    EXPECT_TRUE(IsMarkedFailed(Date(2024, 3, 1)));
    EXPECT_TRUE(IsFramed(Date(2024, 4, 2)));
}

TEST_F(Calendar, WhoLooksAtAnotherDayIsLeftThereWhileTheLogGrows) {
    LoadDays({"01.03.2023", "01.03.2024"});
    Shown();
    Press(toolkit::key::Home);
    Write(kLog, {Line("01.03.2023"), Line("01.03.2024"), Line("01.03.2024")});
    reading.Refresh();
    tools.DoLaterWork();
    EXPECT_EQ(YearShown(), "2023");
    EXPECT_THAT(Label(), HasSubstr("2023"));
    Write(kLog, {Line("01.03.2023"), Line("01.03.2024"), Line("01.03.2024"), Line("02.03.2024")});
    reading.Refresh();
    tools.DoLaterWork();
    EXPECT_EQ(YearShown(), "2024") << "another day has been chosen";
    Press(toolkit::key::Home);
    commands.Show();
    EXPECT_EQ(YearShown(), "2024") << "opened again, it shows the day that was chosen";
}

TEST_F(Calendar, NothingIsReadOrCountedWhileItIsNotSeen) {
    const auto reads = [this] { return std::exchange(system.locale.readDates, 0); };
    reads();
    LoadDays({"01.03.2024", "02.03.2024"});
    LoadDays({"01.03.2024", "03.03.2024"});
    EXPECT_EQ(reads(), 2) << "the status bar's";
    Shown();
    EXPECT_EQ(reads(), 2);
    Press(toolkit::key::Escape);
    LoadDays({"01.03.2024", "02.03.2024", "03.03.2024"});
    EXPECT_EQ(reads(), 1);
    Shown();
    EXPECT_EQ(reads(), 3);
    Press(toolkit::key::Escape);
    Shown();
    EXPECT_EQ(reads(), 0) << "nothing has changed";
}

TEST_F(Calendar, ALogWithManyEntriesIsMarkedBitByBit) {
    for (int i = 0; i < 220'000; ++i)
        entries.Add({"01.03.2024", "10:00:00: Copy: C:\\a", ""});
    entries.Add({"01.03.2024", "10:00:00: Copy(Error: Disk full): C:\\a", ""});
    entries.Add({"02.03.2024", "10:00:00: Copy: C:\\a", ""});
    panels.BuildDateList(true);
    commands.Show();
    const int before = MemoryToolkit::Of(Area()).paints;
    EXPECT_FALSE(IsMarkedFailed(Date(2024, 3, 1))) << "the first picture does not wait";
    tools.DoLaterWork();
    EXPECT_TRUE(IsMarkedFailed(Date(2024, 3, 1)));
    const int paints = MemoryToolkit::Of(Area()).paints - before;
    EXPECT_LT(paints, 10);
    tools.DoLaterWork();
    EXPECT_EQ(MemoryToolkit::Of(Area()).paints - before, paints) << "then it is done";
}

}  // namespace
}  // namespace ordalyn::test
