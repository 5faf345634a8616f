// LogFileReading opens logs for the main window: the file dialog, the title, the progress window,
// the message when something is wrong with the file, and what follows a read.
#pragma once

#include <string>

#include "log/EntryLists.h"
#include "log/LogReader.h"
#include "toolkit/Form.h"
#include "windows/common/SharedObjects.h"
#include "windows/main/MainTitle.h"
#include "windows/panels/DayPanels.h"
#include "windows/progress/ReadingProgress.h"

namespace ordalyn {

class LogFileReading {
  public:
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

    LogFileReading(SharedObjects& shared, toolkit::Form& mainWindow, LogReader& reader,
                   EntryLists& entries, DayPanels& panels, ReadingProgress& progress,
                   MainTitle& title);

    // A file was read that belongs into the list of recent files.
    toolkit::Event<const std::string&> FileOpened;
    // The program's windows, the progress window apart, can be used from now on (true), or wait for
    // a read.
    toolkit::Event<bool> WindowsEnabled;

    // Reads one whole file. A failure of any kind ends in a message that names the file and the
    // line; the entries before it stay in the lists, and the days are not listed anew. Does nothing
    // while another file is being read.
    void ReadLogFile(bool showDialog, std::string fileName, bool addToRecentFiles,
                     bool startNewList);
    // Reads the lines that were added since the last read, then shows the last day and its last
    // row.
    void ReadAppendedLines(const std::string& fileName);
    void HideProgress() { progress_.HideProgress(); }

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
    void EnableWindows(bool enabled);
    // Empty when the user cancels.
    std::string ChooseFile();

    SharedObjects& shared_;
    toolkit::Form& mainWindow_;
    LogReader& reader_;
    EntryLists& entries_;
    DayPanels& panels_;
    ReadingProgress& progress_;
    MainTitle& title_;
    int busy_ = 0;
    bool reading_ = false;
    bool stopped_ = false;
};

}  // namespace ordalyn
