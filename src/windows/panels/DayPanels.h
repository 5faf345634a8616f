// DayPanels offers the days of the log in the date combo box and shows the entries of one day, or
// of all, in the two panels. It keeps the operation count and the date in the status bar.
//
// A row's tag is the index of its entry (0-based); every later action gets back to the entry
// through it. Row n of TargetListView always belongs to row n of SourceListView.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "lists/cLongArray.h"
#include "log/DayIndex.h"
#include "log/EntryLists.h"
#include "platform/Platform.h"
#include "settings/SettingsTable.h"
#include "toolkit/Form.h"

namespace ordalyn {

class DayPanels {
  public:
    // The controls of the main window that are used here.
    struct Controls {
        toolkit::Form& form;
        toolkit::ComboBox& cboDate;
        toolkit::ListView& SourceListView;
        toolkit::ListView& TargetListView;
        toolkit::StatusBar& StatusBar1;
        toolkit::MenuItem& contextMenu;
        toolkit::MenuItem& mnuContextCopyTarget;
    };
    // What happens after the panels have changed; each may be left empty.
    struct Reactions {
        // A row (0-based) of SourceListView was clicked or is to be treated as clicked.
        std::function<void(int row)> rowClicked;
        // The panels show the day that cboDate names: narrow them to the filter.
        std::function<void()> applyFilter;
        // A single day was chosen (true) or all dates (false).
        std::function<void(bool singleDay)> dayChosen;
    };
    using Strings = std::function<std::string(std::int32_t)>;

    static constexpr std::int32_t kAllDates = -1;
    static constexpr std::int32_t kNothingShown = -2;

    DayPanels(const Controls& controls, EntryLists& entries, const SettingsValues& settings,
              platform::Locale& locale, Strings strings);
    void SetReactions(Reactions reactions) { reactions_ = std::move(reactions); }

    // Rebuilds cboDate and DayStarts from the entries, then selects the last or the first item,
    // which fills the panels. A log without any dated entry empties cboDate and leaves the panels
    // alone. Errors end single steps only.
    void BuildDateList(bool selectLastDate);
    // Fills both panels for SelectedDay unless they show it already. An entry whose time cannot be
    // told throws: the rows before it stay, and the panels stay hidden, with the hourglass pointer,
    // until the next fill.
    void FillPanels();
    // Fills them even if they show that day.
    void RefillPanels();
    // Labels cboDate anew without filling the panels; non-zero means long dates.
    void ApplyNewDateFormat(std::int32_t lngLd);
    // Callers pass the long-date option as `asGiven`, so that the status bar shows the form of the
    // date that the combo box does not show.
    void ShowDateInStatusBar(bool asGiven, std::string_view dateText);
    // Writes the number of rows of SourceListView into the status bar.
    void ShowOperationCount();
    // Selects a row (1-based) in both panels, scrolls to it and has it treated as clicked.
    void SelectEntryRow(std::int32_t rowNumber);
    void ShowContextMenu();
    // The text as the system's long date; a text that is not a date stays as it is.
    std::string LongDate(std::string_view dateText) const;

    const cLongArray& DayStarts() const { return days_.DayStarts(); }
    std::int32_t FirstDayItem() const { return days_.FirstDayItem(); }
    std::int32_t SelectedDay() const { return selectedDay_; }
    std::int32_t ShownDay() const { return shownDay_; }
    // While true, a click of cboDate or cboFiles does nothing.
    bool& IgnoreComboClick() { return ignoreComboClick_; }

  private:
    void DateComboClicked();

    Controls controls_;
    EntryLists& entries_;
    const SettingsValues& settings_;
    platform::Locale& locale_;
    Strings strings_;
    Reactions reactions_;
    DayIndex days_;
    std::int32_t selectedDay_ = kAllDates;
    std::int32_t shownDay_ = kNothingShown;
    bool ignoreComboClick_ = false;
};

}  // namespace ordalyn
