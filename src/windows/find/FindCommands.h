// FindCommands: filter and find as the main window offers them. It owns both dialogs, which are
// made when they are first needed and stay until the program ends.
#pragma once

#include <memory>

#include "windows/common/InputHistory.h"
#include "windows/filter/PanelFilter.h"
#include "windows/filter/frmFilters.h"
#include "windows/find/EntrySearch.h"
#include "windows/find/frmSearchFor.h"

namespace ordalyn {

class FindCommands {
  public:
    // What the main window lends. Everything must outlive this object.
    struct Surroundings {
        toolkit::Form& mainWindow;
        toolkit::ComboBox& cboDate;
        toolkit::ListView& SourceListView;
        toolkit::ListView& TargetListView;
        toolkit::StatusBar& StatusBar1;
        toolkit::MenuItem& mnuSearchFindNext;
        const EntryLists& entries;
        DayPanels& panels;
        const mAppCommon& common;
        cProfile& profile;
        mAppSpecific& settings;
        const InterfaceStrings& strings;
        FormLanguage& language;
        platform::Files& files;
        platform::CodePages& codePages;
    };

    explicit FindCommands(const Surroundings& around);

    // Search > Filter; a click on the status bar's panel with this number does the same.
    void ShowFilterDialog();
    void StatusBarPanelClicked(int panel);
    // Search > Find, Search > Find Next.
    void ShowFindDialog();
    void FindNext();

    // See PanelFilter. The day selection passes false after it has filled the panels.
    void ApplyFilter(bool blnPreShow);
    // A single day was chosen, or all dates.
    void DayChosen(bool singleDay);
    // The visual settings or the language have changed: the filter dialog shows them.
    void LoadFilterInterface();
    // The language has changed: the find dialog and the filter's panel of the status bar show it.
    void LanguageChanged();

    // Whether the user can use the dialogs that have been made.
    void EnableDialogs(bool enabled);

    // At the program's end, in this order. A dialog that was never needed is made first.
    void UnloadFindDialog();
    void UnloadFilterDialog();

    frmFilters& FilterDialog();
    frmSearchFor& FindDialog();

  private:
    PanelFilter::Surroundings FilterSurroundings();

    Surroundings around_;
    InputHistory history_;
    PanelFilter filter_;
    EntrySearch search_;
    std::unique_ptr<frmFilters> filterDialog_;
    std::unique_ptr<frmSearchFor> findDialog_;
};

}  // namespace ordalyn
