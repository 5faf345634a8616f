// HistoryCommands: the history of a file or folder as the main window offers it. It owns the
// window, which is made when somebody wants to see it and stays until the program ends.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "hostconfig/LogOperations.h"
#include "log/EntryLists.h"
#include "windows/common/SharedObjects.h"
#include "windows/history/frmHistory.h"
#include "windows/main/FindCommands.h"
#include "windows/main/LogFileSet.h"
#include "windows/panels/DayPanels.h"

namespace ordalyn {

class HistoryCommands {
  public:
    struct Parts {
        const EntryLists& entries;
        DayPanels& panels;
        LogOperations& operations;
        FindCommands& find;
        LogFileSet& files;
        toolkit::ListView& SourceListView;
    };

    // Wires the menu items of the main window.
    HistoryCommands(SharedObjects& shared, toolkit::Form& mainWindow, const Parts& parts);

    // Search > File History: with the path that was typed last.
    void ShowWindow();
    // The row's entry has this path, and the context menu offers its history.
    void ShowHistoryOfSource();
    void ShowHistoryOfTarget();

    void EntriesChanged();
    void LoadInterface();
    void LanguageChanged();
    // Whether the user can use the window.
    void Enable(bool enabled);
    // At the program's end.
    void Unload();

    frmHistory& Window();

  private:
    // Nothing without a selected row; no text for what is no whole path.
    std::int32_t SelectedEntry() const;
    std::string SourceOf(std::int32_t entry);
    std::string TargetOf(std::int32_t entry);
    void ShowHistoryOf(const std::string& path, std::int32_t entry);
    void PrepareContextMenu();
    void GoTo(std::int32_t entry);
    bool ShowWithoutFilter(std::int32_t entry);
    void ReadAllFiles();

    SharedObjects& shared_;
    toolkit::Form& mainWindow_;
    Parts parts_;
    toolkit::MenuItem& mnuContextHistorySource_;
    toolkit::MenuItem& mnuContextHistoryTarget_;
    std::unique_ptr<frmHistory> window_;
};

}  // namespace ordalyn
