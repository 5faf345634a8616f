// LogFileReading opens logs for the main window: the file dialog, the title, the progress window,
// the message when something is wrong with the file, and what follows a read.
#pragma once

#include <cstdint>
#include <string>

#include "log/AppendedLines.h"
#include "log/EntryLists.h"
#include "log/LogReader.h"
#include "log/PassedOverLines.h"
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
    // Several files that are read one behind the other.
    struct Set {
        EntryLists entries;
        PassedOverLines passedOver;
    };

    LogFileReading(SharedObjects& shared, toolkit::Form& mainWindow, EntryLists& entries,
                   DayPanels& panels, ReadingProgress& progress, MainTitle& title);

    // A file was read that belongs into the list of recent files.
    toolkit::Event<const std::string&> FileOpened;
    // The program's windows, the progress window apart, can be used from now on (true), or wait for
    // a read.
    toolkit::Event<bool> WindowsEnabled;

    // The entries are those of another log, or there are more of them. The rows are shown already.
    toolkit::Event<> EntriesChanged;

    // Reads one whole file and shows it instead of what is shown; returns whether it does. A
    // failure of any kind ends in a message that names the file and the line, and leaves the window
    // as it was. Does nothing while another file is being read.
    bool ReadLogFile(bool showDialog, std::string fileName, bool addToRecentFiles);
    // Reads one of several files, behind what `set` has; a message reports a failure, and what was
    // read before it stays. The progress window stays, too.
    void AddLogFile(const std::string& fileName, Set& set);
    // Shows what has been read of several files, the last of which is this one; `set` is used up.
    void ShowSet(Set& set, const std::string& lastFile);
    // Reads what is new in the file that is shown, then shows the last day and its last row. A file
    // that does not continue what was read is read from its beginning.
    void Refresh();
    enum class Followed {
        NotYet,       // it cannot be read just now, or not all of it was
        Done,         // what there was of new lines is shown
        AnotherFile,  // it does not continue what was read, and has been read anew
    };
    // The same while the log is followed: without waiting and messages, and without anything moving
    // under the user, who is shown the last row only when it was selected, or when the file is
    // another one.
    Followed Follow();
    // The same for a log that was not there, or had nothing in it, while none was shown.
    Followed FollowFromBeginning(const std::string& path);
    // How much of the file has been read; one that has this size has nothing new.
    std::uint64_t BytesRead() const { return mark_.trace.Size(); }
    // The file that is shown; empty when none is.
    const std::string& CurrentLogFile() const { return mark_.path; }

    // The main window has closed, perhaps in the middle of a read: nothing is read, shown or
    // reported any more.
    void Stop() { stopped_ = true; }
    bool Stopped() const { return stopped_; }

    // Set by the progress window's Cancel button; looked at between the files of a set only.
    bool CancelReading = false;

  private:
    void Prepare(LogReader& reader, const std::string& fileName, bool alone);
    void ReadEntries(LogReader& reader);
    void ReadWhatIsNew(AppendedLines& appended, PassedOverLines& passedOver);
    void ReadAnew(PassedOverLines& passedOver);
    void ShowAnother(const LogReader& reader, EntryLists& fresh, bool takeFocus);
    template <typename Read>
    Followed Quietly(const Read& read);
    // The entry with which the lines that have been added begin.
    std::int32_t FirstNew() const;
    Followed FollowOn(bool& anotherFile);
    Followed FollowAnew(const std::string& path);
    void Show(EntryLists& entries, bool selectLastDate, bool takeFocus = true);
    void ShowReadError(const std::string& fileName, std::int32_t lineNumber, bool tooLarge);
    void ReportPassedOver(const PassedOverLines& passedOver);
    // Where lines that no log has are noted; nowhere when they are to end the read.
    PassedOverLines* NotedIn(PassedOverLines& passedOver) const;
    void EnableWindows(bool enabled);
    // Empty when the user cancels.
    std::string ChooseFile();

    SharedObjects& shared_;
    toolkit::Form& mainWindow_;
    EntryLists& entries_;
    DayPanels& panels_;
    ReadingProgress& progress_;
    MainTitle& title_;
    // How far the file that is shown has been read; without a count when its entries are not those
    // of the lists.
    LogMark mark_;
    int busy_ = 0;
    bool reading_ = false;
    bool stopped_ = false;
};

}  // namespace ordalyn
