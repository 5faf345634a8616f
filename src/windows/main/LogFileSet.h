// LogFileSet offers the live log and its rotated siblings in the main window's file combo box and
// reads one of them, or all of them into one list.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "log/RotatedLogs.h"
#include "platform/Platform.h"
#include "toolkit/Form.h"
#include "windows/main/LogFileReading.h"

namespace ordalyn {

class LogFileSet {
  public:
    struct Surroundings {
        toolkit::Form& form;  // the main window
        toolkit::ComboBox& cboFiles;
        toolkit::ListView& SourceListView;
        toolkit::MenuItem& mnuViewRefresh;
        DayPanels& panels;
        // What the file manager's settings say now.
        std::function<RotationSettings()> rotation;
        std::function<std::string(std::int32_t)> strings;
        std::function<void(const std::string& text)> setTitle;
        std::string messageTitle;
    };

    LogFileSet(platform::Files& files, EntryLists& entries, LogFileReading& reading,
               Surroundings surroundings);

    // Lists the files anew, with the live log selected but not read. Errors end single steps only.
    void BuildLogFileList();
    // A log from elsewhere is shown: no file of the set is.
    void DeselectLogFile();

    // Name and folder (with a trailing backslash) of the live log, from the file manager's
    // settings; the folder is empty when the path there has none.
    const std::string& LiveLogName() const { return liveLogName_; }
    const std::string& LogFolder() const { return logFolder_; }

  private:
    void ShowLogFileCombo();
    void FileComboClicked();
    void ReadAllFiles();
    // Reads the rotated siblings in the order of the list; false when the user stopped it.
    bool ReadSiblings();
    void ReadOnlyLiveLog();
    void EnableRefreshForLiveLog();
    void SelectWithoutReading(int index);

    platform::Files& files_;
    EntryLists& entries_;
    LogFileReading& reading_;
    Surroundings around_;
    std::string liveLogName_;
    std::string logFolder_;
    // The selection that was handled last; kHandleNext forces the next click to be handled.
    static constexpr std::int32_t kHandleNext = -2;
    std::int32_t lastFilesIndex_ = kHandleNext;
};

}  // namespace ordalyn
