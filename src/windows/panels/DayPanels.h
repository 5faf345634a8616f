// DayPanels offers the days of the log in the date combo box and shows the entries of one day, or
// of all, in the two panels, narrowed to the filter. It keeps the panels' selections together and
// the count, the date and the filter in the status bar.
//
// The way of a chosen day, from the combo box to the painted rows: DateComboClicked, FillPanels,
// ApplyFilter, DayShown; the list views ask EntryRows for the texts of what can be seen. A row's
// tag is the index of its entry; every later action gets back to the entry through it. Rows,
// columns, days and entries are numbered from 0. Row n of TargetListView always belongs to row n of
// SourceListView.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "base/TextSource.h"
#include "log/DayIndex.h"
#include "log/EntryLists.h"
#include "platform/Platform.h"
#include "search/EntrySearch.h"
#include "search/FilterChoice.h"
#include "settings/SettingsTable.h"
#include "toolkit/Form.h"
#include "windows/panels/PanelFilter.h"

namespace ordalyn {

class DayPanels : public EntryDisplay {
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

    static constexpr std::int32_t kNothingShown = -2;

    DayPanels(const Controls& controls, const EntryLists& entries, const FilterChoice& filter,
              const SettingsValues& settings, platform::Locale& locale, TextSource text,
              ReaderSource reader = {});

    // The days of the log have been found anew, perhaps none: numbers of days are those of Days
    // from now on. A day is shown later, if there is one.
    toolkit::Event<> DaysListed;
    // A day was chosen, or all dates, and its rows are there.
    toolkit::Event<> DayShown;
    // A row of SourceListView is the one that is looked at now.
    toolkit::Event<int> RowShown;
    // The context menu is about to open for the selected row: what cannot be chosen is disabled
    // now.
    toolkit::Event<> ContextMenuOpens;

    // Rebuilds cboDate and the day index from the entries, then selects the last or the first item,
    // which fills the panels. A log without any dated entry empties cboDate and leaves the panels
    // alone. Errors end single steps only.
    void BuildDateList(bool selectLastDate, bool takeFocus = true);
    // The entries from this one on are new, or the first of them is another than it was. Their days
    // and rows are shown behind the others, and nothing else changes, unless the user is at the end
    // of the log: the last day or all dates, and the last row. That remains the last row.
    void EntriesAdded(std::int32_t firstNew);
    // The same entries are what the user wants to see: the last day and its last row are chosen,
    // and the focus comes to SourceListView.
    void ShowNewest(std::int32_t firstNew);
    // Empties the list of days; the panels and the index that belongs to them stay.
    void ShowNoDays() { controls_.cboDate.Clear(); }
    // Fills both panels for SelectedDay unless they show it already. Every entry has its row, also
    // one whose source has no time.
    void FillPanels();
    // Narrows the panels to the filter. With blnPreShow they are filled for their day first, so
    // that rows which an earlier filter removed come back.
    void ApplyFilter(bool blnPreShow);
    // Whether only operations that failed are shown, of what day and filter let through. The
    // selection stays with its entry.
    void ShowFailedOnly(bool only);
    bool FailedOnly() const { return panelFilter_.FailedOnly(); }
    // Labels cboDate again without filling the panels; non-zero means long dates.
    void ApplyNewDateFormat(std::int32_t lngLd);

    // Shows the text that belongs to the current state in the status bar.
    void ShowOperationCount();
    void ShowFilterInStatusBar();
    // Callers pass the long-date option as `asGiven`, so that the status bar shows the form of the
    // date that the combo box does not show.
    void ShowDateInStatusBar(bool asGiven, std::string_view dateText);

    // Chooses one of Days in cboDate, as a user does.
    void ChooseDay(std::int32_t day);
    // Selects a row in both panels, scrolls to it and treats it as clicked.
    void SelectEntryRow(int row);
    // The same for the last row when there is one.
    void SelectLastRow();
    // A row of SourceListView was clicked, or is to be treated as clicked: the other panel, the
    // status bar and whoever listens to RowShown follow it.
    void SourceRowClicked(int row);
    // At the mouse pointer; by the keyboard at the selected row, in the panel that is worked in.
    void ShowContextMenu();
    void ShowContextMenuAtRow();
    // The interface language is another one: what the status bar and cboDate say in it.
    void LanguageChanged();

    // The text as the system's long date; a text that is not a date stays as it is.
    std::string LongDate(std::string_view dateText) const;

    const DayIndex& Days() const { return days_; }

    // EntryDisplay
    std::int32_t SelectedDay() const override { return selectedDay_; }
    bool ShowEntry(std::int32_t entry) override;

  private:
    void DateComboClicked();
    void ShowDay(std::int32_t day);
    void TargetRowClicked(int row);
    void SelectSameRows(toolkit::ListView& list, const toolkit::ListView& as);
    void RowIsShown(int row);
    bool PrepareContextMenu();
    bool AtTheEnd() const;
    std::string DayLabel(std::string_view date) const;
    bool ListAddedDays(std::int32_t firstNew);
    void AddRows(std::int32_t firstNew);
    bool ShowRowOf(std::int32_t entry, std::int32_t firstEntry);

    Controls controls_;
    const EntryLists& entries_;
    const FilterChoice& filter_;
    const SettingsValues& settings_;
    platform::Locale& locale_;
    TextSource text_;
    ReaderSource reader_;
    PanelFilter panelFilter_;
    DayIndex days_;
    std::int32_t selectedDay_ = kAllDates;
    std::int32_t shownDay_ = kNothingShown;
    bool targetWasUsed_ = false;     // the last panel that had the focus
    bool ignoreComboClick_ = false;  // while cboDate gets new labels
};

}  // namespace ordalyn
