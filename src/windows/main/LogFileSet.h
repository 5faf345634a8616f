// LogFileSet offers the live log and its rotated siblings in the main window's file combo box and
// reads one of them, or all of them into one list.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "log/RotatedLogs.h"
#include "toolkit/Form.h"
#include "windows/common/SharedObjects.h"
#include "windows/main/LogFileReading.h"
#include "windows/main/MainTitle.h"

namespace ordalyn {

class LogFileSet {
  public:
    struct Controls {
        toolkit::Form& form;  // the main window
        toolkit::ComboBox& cboFiles;
        toolkit::ListView& SourceListView;
        toolkit::MenuItem& mnuViewRefresh;
    };

    LogFileSet(SharedObjects& shared, const Controls& controls, LogFileReading& reading,
               MainTitle& title);

    // Rebuilds the list of files and reads none. The live log is selected if it is what is shown,
    // and otherwise nothing is. Errors end single steps only.
    void BuildLogFileList();
    // A log was opened that the list was not asked for: it is selected if it is the live log in its
    // own folder, and otherwise nothing is. It can grow, whichever it is.
    void LogOpened();

    // Name and folder (with a trailing backslash) of the live log, from the file manager's
    // settings; the folder is empty when the path there has none.
    const std::string& LiveLogName() const { return liveLogName_; }
    const std::string& LogFolder() const { return logFolder_; }
    // Whether what is shown is one log that can grow: not all files, nor one that was rotated.
    bool ShowsGrowingLog() const;
    // Full paths of the live log and of what can be told to be one of its siblings, as the folder
    // is now.
    std::vector<std::string> LogFiles() const;
    // Whether the list offers all files while one of them is shown.
    bool OlderLogsAreLeft() const;
    // As if "All files" were chosen in the list.
    void ReadAll();
    // The interface language is another one.
    void LanguageChanged();

  private:
    RotationSettings ReadRotationSettings() const;
    void ShowLogFileCombo();
    void SelectShownFile();
    void FileComboClicked();
    // `before` is the item that was selected before this one was chosen.
    void ReadAllFiles(int before);
    // Reads the rotated siblings in the order of the list; false when the user stopped it.
    bool ReadSiblings(LogFileReading::Set& set);
    void ReadOnlyLiveLog(int before);
    void SelectAgain(int before);
    void EnableRefreshForLiveLog();
    void SelectWithoutReading(int index);

    SharedObjects& shared_;
    Controls controls_;
    LogFileReading& reading_;
    MainTitle& title_;
    bool ignoreComboClick_ = false;  // while code chooses an item
    std::string liveLogName_;
    std::string logFolder_;
    // The selection that was handled last; kHandleNext forces the next click to be handled.
    static constexpr std::int32_t kHandleNext = -2;
    std::int32_t lastFilesIndex_ = kHandleNext;
};

}  // namespace ordalyn
