// LogFileReading opens logs for the main window: the file dialog, the title, the progress window,
// the message when something is wrong with the file, and what follows a read.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "log/EntryLists.h"
#include "log/LogReader.h"
#include "toolkit/Form.h"
#include "windows/panels/DayPanels.h"
#include "windows/progress/ReadingProgress.h"

namespace ordalyn {

class LogFileReading {
  public:
    struct Surroundings {
        toolkit::Form& form;  // the main window
        toolkit::ListView& SourceListView;
        DayPanels& panels;
        ReadingProgress& progress;
        std::function<std::string(std::int32_t)> strings;
        // Asks the user for a log, starting in the folder; nothing when the user cancels.
        std::function<std::optional<std::string>(const std::string& initialFolder)> chooseFile;
        std::function<void(const std::string& text)> setTitle;
        // Puts the file first into the list of recent files, and saves the list.
        std::function<void(const std::string& path)> rememberFile;
        // Lets the user use the program's windows, the progress window apart, or keeps them from
        // it.
        std::function<void(bool enabled)> enableWindows;
        std::string messageTitle;
    };

    // Keeps the windows from being used for as long as one of these lives: a read handles messages
    // at some places, and nothing may begin another one there.
    class Busy {
      public:
        explicit Busy(LogFileReading& reading);
        ~Busy();
        Busy(const Busy&) = delete;
        Busy& operator=(const Busy&) = delete;

      private:
        LogFileReading& reading_;
    };

    LogFileReading(LogReader& reader, EntryLists& entries, Surroundings surroundings);

    // Reads one whole file. A failure of any kind ends in a message that names the file and the
    // line; the entries before it stay in the lists, and the days are not listed anew. Does nothing
    // while another file is being read.
    void ReadLogFile(bool showDialog, std::string fileName, bool addToRecentFiles,
                     bool startNewList);
    // Reads the lines that were added since the last read, then shows the last day and its last
    // row.
    void ReadAppendedLines(const std::string& fileName);
    void HideProgress() { around_.progress.HideProgress(); }

    // The main window has closed, perhaps in the middle of a read: nothing is read, shown or told
    // any more.
    void Stop() { stopped_ = true; }
    bool Stopped() const { return stopped_; }

    // Set by the progress window's Cancel button; looked at between the files of a set only.
    bool CancelReading = false;

  private:
    void Prepare(const std::string& fileName, bool startNewList);
    void ReadWhole(const std::string& fileName, bool addToRecentFiles, bool startNewList);
    void ShowReadError();

    LogReader& reader_;
    EntryLists& entries_;
    Surroundings around_;
    int busy_ = 0;
    bool reading_ = false;
    bool stopped_ = false;
};

}  // namespace ordalyn
