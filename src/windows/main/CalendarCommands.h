// CalendarCommands: the calendar as the main window offers it. The window is made when somebody
// wants to see it and stays until the program ends; nothing is counted while nobody sees it.
#pragma once

#include <memory>

#include "hostconfig/LogOperations.h"
#include "log/CalendarDays.h"
#include "windows/calendar/frmCalendar.h"
#include "windows/common/SharedObjects.h"
#include "windows/panels/DayPanels.h"

namespace ordalyn {

class CalendarCommands {
  public:
    CalendarCommands(SharedObjects& shared, toolkit::Form& mainWindow, const EntryLists& entries,
                     DayPanels& panels, LogOperations& operations);

    // View > Calendar.
    void Show();
    // The visual settings or the language have changed.
    void LoadInterface();
    // Whether the user can use the window, if there is one.
    void Enable(bool enabled);
    // At the program's end.
    void Unload();

    frmCalendar& Window();

  private:
    bool IsSeen() const { return window_ != nullptr && window_->Visible(); }
    void DaysListed();
    void Count();

    SharedObjects& shared_;
    toolkit::Form& mainWindow_;
    const EntryLists& entries_;
    DayPanels& panels_;
    CalendarDays days_;
    bool counted_ = false;
    std::unique_ptr<frmCalendar> window_;
};

}  // namespace ordalyn
