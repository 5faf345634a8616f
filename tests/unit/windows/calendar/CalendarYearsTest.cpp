// The calendar as a window: its years, its place, its looks and its end.
#include "CalendarFixture.h"

#include "windows/calendar/Shades.h"

namespace ordalyn::test {
namespace {

using testing::HasSubstr;

class CalendarYears : public CalendarFixture {
  protected:
    void LoadYears() { LoadDays({"29.02.2020", "05.06.2021", "31.12.2023", "29.02.2024"}); }
};

TEST_F(CalendarYears, GoByPageKeysButtonsAndTheWheel) {
    LoadYears();
    Shown();
    EXPECT_EQ(YearShown(), "2024");
    Press(toolkit::key::PageUp);
    EXPECT_EQ(YearShown(), "2023");
    EXPECT_EQ(Label(), "Tuesday, February 28, 2023: no operations");
    Press(toolkit::key::PageDown);
    EXPECT_EQ(YearShown(), "2024");
    Button("cmdPrevious").UserClicked();
    Button("cmdPrevious").UserClicked();
    EXPECT_EQ(YearShown(), "2022") << "a year in between";
    Button("cmdNext").UserClicked();
    EXPECT_EQ(YearShown(), "2023");
    Area().Wheel.Raise(2);
    EXPECT_EQ(YearShown(), "2021");
    Area().Wheel.Raise(-1);
    EXPECT_EQ(YearShown(), "2022");
}

TEST_F(CalendarYears, EndWhereTheLogDoes) {
    LoadYears();
    Shown();
    EXPECT_TRUE(Button("cmdPrevious").Enabled());
    EXPECT_FALSE(Button("cmdNext").Enabled());
    Press(toolkit::key::PageDown);
    Area().Wheel.Raise(-3);
    EXPECT_EQ(YearShown(), "2024");
    Area().Wheel.Raise(100);
    EXPECT_EQ(YearShown(), "2020");
    Press(toolkit::key::PageUp);
    EXPECT_EQ(YearShown(), "2020");
    EXPECT_FALSE(Button("cmdPrevious").Enabled());
    EXPECT_TRUE(Button("cmdNext").Enabled());
}

TEST_F(CalendarYears, HomeAndEndAreTheFirstAndTheLastDayOfTheLog) {
    LoadYears();
    Shown();
    Press(toolkit::key::Home);
    EXPECT_EQ(Label(), "Saturday, February 29, 2020: 1 operation(s)");
    Press(toolkit::key::End);
    EXPECT_EQ(Label(), "Thursday, February 29, 2024: 1 operation(s)");
}

TEST_F(CalendarYears, ArrowsGoFromOneToTheNextAndNoFurther) {
    LoadDays({"31.12.2023", "01.01.2024"});
    Shown();
    Press(toolkit::key::Left);
    EXPECT_EQ(YearShown(), "2023");
    for (int i = 0; i < 60; ++i)
        Press(toolkit::key::Down);
    EXPECT_THAT(Label(), HasSubstr("December 31, 2024"));
    for (int i = 0; i < 120; ++i)
        Press(toolkit::key::Up);
    EXPECT_THAT(Label(), HasSubstr("January 1, 2023"));
}

TEST_F(CalendarYears, ThePointerIsOnADayOfTheYearThatIsShown) {
    LoadDays({"31.12.2023", "01.01.2024"});
    Shown();
    Point(Date(2024, 1, 1));
    EXPECT_EQ(Label(), "Monday, January 1, 2024: 1 operation(s)");
    Area().Wheel.Raise(1);
    EXPECT_EQ(Label(), "Sunday, January 1, 2023: no operations")
        << "not what was pointed at before";
    Point(Date(2023, 12, 31));
    EXPECT_EQ(Label(), "Sunday, December 31, 2023: 1 operation(s)");
}

TEST_F(CalendarYears, WeeksBeginAsTheSystemSays) {
    system.locale.firstWeekday = std::chrono::Sunday;
    LoadDays({"01.03.2024"});
    Shown();
    EXPECT_LT(SquareOf(Date(2024, 3, 3)).left, SquareOf(Date(2024, 3, 4)).left);
    Point(Date(2024, 3, 3));
    EXPECT_EQ(Label(), "Sunday, March 3, 2024: no operations");
}

TEST_F(CalendarYears, EscapeAndTheCloseBoxHideItAndItsPlaceIsKept) {
    LoadYears();
    frmCalendar& window = Shown();
    Press(toolkit::key::Escape);
    EXPECT_FALSE(window.Visible());
    EXPECT_FALSE(window.Unloaded());
    Shown();
    tools.ResizeByUser(window, {300, 450, 7500, 6000});
    window.UserClosed();
    EXPECT_FALSE(window.Visible());
    EXPECT_EQ(StoredPlace(), "300,450,7500,6000");
    Shown();
    tools.ResizeByUser(window, {600, 450, 7500, 6000});
    commands.Unload();
    EXPECT_TRUE(window.Unloaded());
    EXPECT_EQ(StoredPlace(), "600,450,7500,6000");
    CalendarCommands again(shared, form, entries, panels, operations);
    EXPECT_EQ(again.Window().Bounds(), (toolkit::Rect{600, 450, 7500, 6000}));
}

TEST_F(CalendarYears, OneThatNobodyWantedToSeeIsNotMadeAtTheEnd) {
    commands.Enable(false);
    commands.LoadInterface();
    commands.Unload();
    EXPECT_EQ(StoredPlace(), "(absent)");
    EXPECT_EQ(tools.closedForms.size(), 0U);
}

TEST_F(CalendarYears, OneThatIsSeenGetsTheFocus) {
    LoadYears();
    Shown();
    form.SetFocus();
    Shown();
    EXPECT_EQ(tools.focus, &commands.Window());
}

TEST_F(CalendarYears, WaitsWhileALogIsRead) {
    Shown();
    commands.Enable(false);
    EXPECT_FALSE(commands.Window().Enabled());
    commands.Enable(true);
    EXPECT_TRUE(commands.Window().Enabled());
}

TEST_F(CalendarYears, ColorsAndTheFontAreThoseOfTheOptions) {
    LoadDays({"01.03.2024"});
    settings.ForegroundColor = 0x00E0E0E0;
    settings.BackgroundColor = 0x00302020;
    Shown();
    EXPECT_EQ(ColorOf(Date(2024, 3, 1)), ShadeOf(kBusiest, 0xE0E0E0, 0x302020));
    settings.ForegroundColor = 0x00000000;
    settings.BackgroundColor = 0x00FFFFFF;
    settings.FontName = "Verdana";
    settings.FontSize = 11;
    commands.LoadInterface();
    EXPECT_EQ(ColorOf(Date(2024, 3, 1)), ShadeOf(kBusiest, 0x000000, 0xFFFFFF));
    EXPECT_EQ(Area().Font().name, "Verdana");
    EXPECT_EQ(Area().Font().size, 11);
}

TEST_F(CalendarYears, HighContrastHasTheSystemsColors) {
    tools.highContrast = true;
    settings.ForegroundColor = 0x00808080;
    LoadDays({"01.03.2024"});
    Shown();
    EXPECT_EQ(ColorOf(Date(2024, 3, 1)), ShadeOf(kBusiest, 0x000000, 0xFFFFFF));
}

TEST_F(CalendarYears, AnotherLanguageReachesIt) {
    LoadDays({"01.03.2024"});
    Shown();
    UseLanguageFile("5141=Kalender\r\n5144=%d - Operationen: %i\r\n5129=Zu\r\n5150=Weniger");
    commands.LoadInterface();
    EXPECT_EQ(commands.Window().Caption(), "Kalender");
    EXPECT_EQ(Button("cmdClose").Caption(), "Zu");
    EXPECT_EQ(Label(), "Friday, March 1, 2024 - Operationen: 1");
    EXPECT_EQ(Area().AccessibleName(), "Kalender, " + Label());
    bool fewer = false;
    for (const Drawn& drawn : Drawing())
        fewer = fewer || drawn.text == "Weniger";
    EXPECT_TRUE(fewer);
}

TEST_F(CalendarYears, ThePictureTakesTheRoomOfTheWindow) {
    LoadDays({"01.03.2024"});
    frmCalendar& window = Shown();
    const toolkit::Twips before = SquareOf(Date(2024, 3, 1)).width;
    tools.ResizeByUser(window, {0, 0, window.Width() * 1.5F, window.Height() * 1.5F});
    EXPECT_GT(SquareOf(Date(2024, 3, 1)).width, before);
    for (const auto& control : window.Controls()) {
        EXPECT_LE(control->Left() + control->Width(), window.ClientSize().width) << control->Name();
        EXPECT_LE(control->Top() + control->Height(), window.ClientSize().height)
            << control->Name();
    }
    for (const toolkit::Twips size : {0.0F, 300.0F, 2000.0F})
        tools.ResizeByUser(window, {0, 0, size, size});
}

}  // namespace
}  // namespace ordalyn::test
