// FindCommands: filter and find as the main window offers them. It owns what both look for, which
// is there from the start, and both dialogs, which are made when somebody wants to see them and
// stay until the program ends.
#pragma once

#include <memory>

#include "search/EntrySearch.h"
#include "windows/common/InputHistory.h"
#include "windows/common/SharedObjects.h"
#include "windows/filter/frmFilters.h"
#include "windows/find/frmSearchFor.h"
#include "windows/panels/DayPanels.h"

namespace ordalyn {

class FindCommands {
  public:
    // `filter` is what the panels are narrowed to.
    FindCommands(SharedObjects& shared, toolkit::Form& mainWindow, const EntryLists& entries,
                 DayPanels& panels, FilterChoice& filter);

    // Search > Filter; a click on the filter's panel of the status bar does the same.
    void ShowFilterDialog();
    void StatusBarPanelClicked(int panel);
    // Search > Find, Search > Find Next.
    void ShowFindDialog();
    void FindNext();
    // As the filter dialog's button does: nothing hides a row any more.
    bool HasFilter() const { return !filter_.FilterText.empty(); }
    void RemoveFilter() { FilterDialog().RemoveFilter(); }

    // The visual settings or the language have changed: dialogs that have been made show them.
    void LoadFilterInterface();
    void LanguageChanged();

    // Whether the user can use the dialogs that have been made.
    void EnableDialogs(bool enabled);

    // At the program's end, in this order. A filter dialog that was never needed is made first.
    void UnloadFindDialog();
    void UnloadFilterDialog();

    const EntrySearch& Search() const { return search_; }
    frmFilters& FilterDialog();
    frmSearchFor& FindDialog();

  private:
    void LoadOptions();
    void DayShown();

    SharedObjects& shared_;
    toolkit::Form& mainWindow_;
    toolkit::MenuItem& mnuSearchFindNext_;
    DayPanels& panels_;
    FilterChoice& filter_;
    InputHistory history_;
    EntrySearch search_;
    bool optionsLoaded_ = false;
    std::unique_ptr<frmFilters> filterDialog_;
    std::unique_ptr<frmSearchFor> findDialog_;
};

}  // namespace ordalyn
