// frmCalendar: the days of the log at a glance, a year at a time. Each day is a square, as dark as
// the day was busy and marked where something failed. It is only hidden when it is closed; it ends
// with the program.
#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <string>

#include "log/CalendarDays.h"
#include "platform/Platform.h"
#include "settings/mAppSpecific.h"
#include "toolkit/Form.h"
#include "windows/calendar/CalendarPicture.h"
#include "windows/common/Texts.h"

namespace ordalyn {

class frmCalendar : public toolkit::Form {
  public:
    using Date = std::chrono::sys_days;

    struct Surroundings {
        Texts texts;
        mAppSpecific& settings;
        platform::Locale& locale;
        CalendarDays& days;
        // The day that the main window shows; nothing when that is all days, or one that nobody can
        // tell.
        std::function<std::optional<Date>()> chosenDay;
        // Shows one of the log's days in the main window.
        std::function<void(std::int32_t dayInLog)> chooseDay;
    };

    // Loads the window, hidden.
    frmCalendar(toolkit::Toolkit& toolkit, const Surroundings& around);

    // Other days have been counted: another log was read, or lines were added to it.
    void DaysChanged();
    // The main window shows a day: keys are for it from now on, if it is another one.
    void ChosenDayChanged();
    // Keys are for the day that the main window shows, wherever somebody has gone since.
    void GoToChosenDay();
    // The visual settings or the language have changed.
    void LoadInterface();
    // Unloads the window, which a user's close only hides.
    void UnloadAtEnd();

  private:
    void WireControls();
    void Arrange();
    void Paint(toolkit::Painter& on);
    void UseKey(int key, bool& used);
    std::optional<Date> Target(int key) const;
    bool FollowChosenDay();
    void PointAt(std::optional<Date> day);
    void GoTo(Date day);
    void GoToYear(std::chrono::year year);
    void Choose(Date day);
    void ShowYear();
    void ShowDay();
    std::string TextOf(Date day) const;
    std::string Reason() const;
    bool HasDays() const { return !around_.days.Days().empty(); }
    std::chrono::year Year() const { return std::chrono::year_month_day(current_).year(); }
    std::chrono::year FirstYear() const;
    std::chrono::year LastYear() const;

    Surroundings around_;
    toolkit::Canvas& cnvDays;
    toolkit::Label& lblDay;
    toolkit::Label& lblLeftOut;
    toolkit::CommandButton& cmdPrevious;
    toolkit::CommandButton& cmdNext;
    toolkit::CommandButton& cmdClose;
    CalendarPicture picture_;
    Date current_{};              // what keys are for; its year is shown
    std::optional<Date> chosen_;  // the last that was followed
    std::optional<Date> pointed_;
    std::optional<Date> pressed_;
    bool ending_ = false;
};

}  // namespace ordalyn
