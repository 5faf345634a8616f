#include "windows/main/LogFileReading.h"

#include <chrono>
#include <exception>
#include <new>
#include <stdexcept>
#include <thread>

#include "base/Attempt.h"
#include "base/Errors.h"
#include "base/FileNames.h"
#include "base/TextIds.h"
#include "toolkit/ScopedPointer.h"

namespace ordalyn {

namespace {

// A log that is being rotated is missing for a moment. Longer than this, a person would wait.
constexpr std::chrono::milliseconds kMoment{100};
constexpr std::chrono::milliseconds kBetweenTries{5};

// Nothing is wrong with the file then.
bool IsTooLarge(const std::exception& failure) {
    return dynamic_cast<const std::bad_alloc*>(&failure) != nullptr ||
           dynamic_cast<const std::length_error*>(&failure) != nullptr ||
           dynamic_cast<const Overflow*>(&failure) != nullptr;
}

class ReadAnewFailed : public Error {
  public:
    ReadAnewFailed(std::int32_t line, bool large)
        : Error("A log that has changed cannot be read"), lineNumber(line), tooLarge(large) {}
    std::int32_t lineNumber;
    bool tooLarge;
};

// Reads, and tries again for a moment as long as the file cannot be opened or read.
template <typename Read>
auto InAMoment(const Read& read) {
    const auto end = std::chrono::steady_clock::now() + kMoment;
    while (true) {
        try {
            return read();
        } catch (const FileError&) {
            if (std::chrono::steady_clock::now() >= end)
                throw;
        }
        // The file manager needs the processor to be done with the file.
        std::this_thread::sleep_for(kBetweenTries);
    }
}

}  // namespace

LogFileReading::LogFileReading(SharedObjects& shared, toolkit::Form& mainWindow,
                               EntryLists& entries, DayPanels& panels, ReadingProgress& progress,
                               MainTitle& title)
    : shared_(shared),
      mainWindow_(mainWindow),
      entries_(entries),
      panels_(panels),
      progress_(progress),
      title_(title) {}

std::string LogFileReading::ChooseFile() {
    cCommonDialog& dialog = *shared_.commonDialog;
    dialog.ShowOpenDialog(mainWindow_.Handle(), GetFilePath(CurrentLogFile()), "",
                          cCommonDialog::kLogFiles, "", true);
    return dialog.Confirmed ? dialog.FileName : "";
}

void LogFileReading::EnableWindows(bool enabled) {
    mainWindow_.SetEnabled(enabled);
    WindowsEnabled.Raise(enabled);
}

bool LogFileReading::ReadLogFile(bool showDialog, std::string fileName, bool addToRecentFiles) {
    if (reading_ || stopped_)
        return false;
    const toolkit::ScopedFlag reading(reading_);
    const std::string titleBefore = title_.Text();
    EntryLists fresh;
    PassedOverLines passedOver;
    LogReader reader(shared_.services.files, shared_.services.codePages, fresh,
                     NotedIn(passedOver));
    try {
        if (showDialog)
            fileName = ChooseFile();
        if (fileName.empty())
            return false;
        Prepare(reader, fileName, true);
        if (stopped_)
            return false;
        ReadEntries(reader);
        if (addToRecentFiles)
            FileOpened.Raise(fileName);
        fresh.FreeExtraItems();
    } catch (const std::exception& failure) {
        // So that there is memory for the message.
        fresh.Clear();
        progress_.HideProgress();
        title_.SetTitle(titleBefore);
        ShowReadError(fileName, reader.LineNumber(), IsTooLarge(failure));
        return false;
    }
    mark_ = reader.Mark();
    Show(fresh, true);
    progress_.HideProgress();
    ReportPassedOver(passedOver);
    return true;
}

void LogFileReading::AddLogFile(const std::string& fileName, Set& set) {
    if (reading_ || stopped_)
        return;
    const toolkit::ScopedFlag reading(reading_);
    LogReader reader(shared_.services.files, shared_.services.codePages, set.entries,
                     NotedIn(set.passedOver));
    try {
        Prepare(reader, fileName, false);
        if (!stopped_)
            ReadEntries(reader);
    } catch (const std::exception& failure) {
        progress_.HideProgress();
        ShowReadError(fileName, reader.LineNumber(), IsTooLarge(failure));
    }
}

void LogFileReading::ShowSet(Set& set, const std::string& lastFile) {
    Attempt([&] { set.entries.FreeExtraItems(); });
    progress_.HideProgress();
    mark_ = {};
    mark_.path = lastFile;
    Show(set.entries, false);
    ReportPassedOver(set.passedOver);
}

// A log without any date has no row to show. What is on the screen then stays, and so do its
// entries: that is what is copied, found and filtered.
void LogFileReading::Show(EntryLists& entries, bool selectLastDate, bool takeFocus) {
    if (!entries.HasDates() && panels_.Days().DayCount() > 0) {
        panels_.ShowNoDays();
        mark_.trace = {};
        mark_.lineCount = 0;
        return;
    }
    entries_.Swap(entries);
    panels_.BuildDateList(selectLastDate, takeFocus);
    EntriesChanged.Raise();
}

LogFileReading::Busy::Busy(LogFileReading& reading) : reading_(reading) {
    if (reading_.busy_++ == 0)
        reading_.EnableWindows(false);
}

LogFileReading::Busy::~Busy() {
    if (--reading_.busy_ == 0)
        reading_.EnableWindows(true);
}

// Counts the lines and shows the progress window, which handles the messages that came meanwhile.
void LogFileReading::Prepare(LogReader& reader, const std::string& fileName, bool alone) {
    const Busy busy(*this);
    reader.BeginFile(fileName);
    if (alone) {
        title_.SetTitle(fileName);
        progress_.PrepareCompact();
    } else {
        progress_.PrepareTall(GetFileName(fileName));
    }
    progress_.ShowProgress(shared_.Text(text_id::kReading), reader.LineCount());
}

void LogFileReading::ReadEntries(LogReader& reader) {
    reader.ReadEntries([this](std::int32_t value) { progress_.SetValue(value); });
}

void LogFileReading::Refresh() {
    if (reading_ || stopped_)
        return;
    const toolkit::ScopedFlag reading(reading_);
    PassedOverLines passedOver;
    AppendedLines appended(shared_.services.files, shared_.services.codePages, entries_,
                           NotedIn(passedOver));
    try {
        ReadWhatIsNew(appended, passedOver);
    } catch (const ReadAnewFailed& failed) {
        ShowReadError(mark_.path, failed.lineNumber, failed.tooLarge);
    } catch (const std::exception& failure) {
        ShowReadError(mark_.path, appended.LineNumber(), IsTooLarge(failure));
    }
    ReportPassedOver(passedOver);
}

void LogFileReading::ReadWhatIsNew(AppendedLines& appended, PassedOverLines& passedOver) {
    const toolkit::ScopedPointer hourglass(shared_.toolkit, toolkit::Pointer::Hourglass);
    const std::int32_t firstNew = FirstNew();
    const auto found = mark_.lineCount == 0 ? AppendedLines::Found::AnotherFile
                                            : InAMoment([&] { return appended.Read(mark_); });
    switch (found) {
        case AppendedLines::Found::Nothing:
            return;
        case AppendedLines::Found::Lines:
            panels_.ShowNewest(firstNew);
            EntriesChanged.Raise();
            return;
        case AppendedLines::Found::AnotherFile:
            ReadAnew(passedOver);
            return;
    }
}

// The file is another one than the one that was read, perhaps one that another program writes just
// now: its lines are not counted first. One that is empty is a log about to begin.
void LogFileReading::ReadAnew(PassedOverLines& passedOver) {
    EntryLists fresh;
    PassedOverLines left;
    LogReader reader(shared_.services.files, shared_.services.codePages, fresh, NotedIn(left));
    try {
        InAMoment([&] {
            // Nothing of a try that failed in the middle.
            fresh.Clear();
            left = {};
            reader.ReadGrowingFile(mark_.path);
        });
    } catch (const std::exception& failure) {
        throw ReadAnewFailed(reader.LineNumber(), IsTooLarge(failure));
    }
    passedOver = left;
    if (fresh.EntrySources().ListCount() >= 0)
        ShowAnother(reader, fresh, true);
}

void LogFileReading::ShowAnother(const LogReader& reader, EntryLists& fresh, bool takeFocus) {
    fresh.FreeExtraItems();
    mark_ = reader.Mark();
    title_.SetTitle(mark_.path);
    Show(fresh, true, takeFocus);
    panels_.SelectLastRow();
}

LogFileReading::Followed LogFileReading::Follow() {
    return Quietly([this] {
        bool anotherFile = mark_.lineCount == 0;
        const Followed result = anotherFile ? Followed::Done : FollowOn(anotherFile);
        return anotherFile ? FollowAnew(mark_.path) : result;
    });
}

LogFileReading::Followed LogFileReading::FollowFromBeginning(const std::string& path) {
    return Quietly([&] { return FollowAnew(path); });
}

template <typename Read>
LogFileReading::Followed LogFileReading::Quietly(const Read& read) {
    if (reading_ || stopped_)
        return Followed::NotYet;
    const toolkit::ScopedFlag reading(reading_);
    try {
        return read();
    } catch (const FileError&) {
        return Followed::NotYet;
    } catch (const std::exception&) {
        // It will not be better before it changes.
        return Followed::Done;
    }
}

std::int32_t LogFileReading::FirstNew() const {
    const bool lastMayChange = mark_.lastLine == LogMark::LastLine::UnfinishedEntry;
    return entries_.EntrySources().ListCount() + (lastMayChange ? 0 : 1);
}

// A line that no log has ends a read, but it is not met again: what stands behind it comes next.
LogFileReading::Followed LogFileReading::FollowOn(bool& anotherFile) {
    const std::int32_t firstNew = FirstNew();
    PassedOverLines passedOver;
    AppendedLines appended(shared_.services.files, shared_.services.codePages, entries_,
                           NotedIn(passedOver));
    Followed result = Followed::Done;
    auto found = AppendedLines::Found::Lines;
    try {
        found = appended.Read(mark_);
    } catch (const MalformedText&) {
        result = Followed::NotYet;
    }
    anotherFile = found == AppendedLines::Found::AnotherFile;
    if (found == AppendedLines::Found::Lines) {
        panels_.EntriesAdded(firstNew);
        EntriesChanged.Raise();
    }
    return result;
}

LogFileReading::Followed LogFileReading::FollowAnew(const std::string& path) {
    EntryLists fresh;
    PassedOverLines passedOver;
    LogReader reader(shared_.services.files, shared_.services.codePages, fresh,
                     NotedIn(passedOver));
    reader.ReadGrowingFile(path);
    if (fresh.EntrySources().ListCount() < 0)
        return Followed::Done;
    ShowAnother(reader, fresh, false);
    return Followed::AnotherFile;
}

// The message is modal: what events can change may have changed when it returns.
void LogFileReading::ShowReadError(const std::string& fileName, std::int32_t lineNumber,
                                   bool tooLarge) {
    const std::string message =
        tooLarge ? shared_.Text(text_id::kNotEnoughMemory) + "\r\n" + fileName
                 : shared_.Text(text_id::kErrorInFile) + "\r\n" + fileName + "\r\n" +
                       shared_.Text(text_id::kLine) + " " + std::to_string(lineNumber);
    shared_.toolkit.ShowMessage(&mainWindow_, message, mAppCommon::kProgramTitle);
}

PassedOverLines* LogFileReading::NotedIn(PassedOverLines& passedOver) const {
    return shared_.settings->SkipMalformedLines != 0 ? &passedOver : nullptr;
}

// Modal, too.
void LogFileReading::ReportPassedOver(const PassedOverLines& passedOver) {
    if (passedOver.count == 0 || stopped_)
        return;
    shared_.toolkit.ShowMessage(
        &mainWindow_,
        shared_.Text(text_id::kLinesPassedOver) + " " + std::to_string(passedOver.count) + "\r\n" +
            passedOver.firstFile + "\r\n" + shared_.Text(text_id::kFirstPassedOver) + " " +
            std::to_string(passedOver.firstLine),
        mAppCommon::kProgramTitle);
}

}  // namespace ordalyn
