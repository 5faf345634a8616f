#include "windows/main/LogFileReading.h"

#include <exception>
#include <utility>

#include "base/FileNames.h"
#include "toolkit/ScopedPointer.h"

namespace ordalyn {

namespace {

constexpr std::int32_t kErrorInFileText = 3015;
constexpr std::int32_t kLineText = 3016;
constexpr std::int32_t kReadingText = 3250;

}  // namespace

LogFileReading::LogFileReading(LogReader& reader, EntryLists& entries, Surroundings surroundings)
    : reader_(reader), entries_(entries), around_(std::move(surroundings)) {}

void LogFileReading::ReadLogFile(bool showDialog, std::string fileName, bool addToRecentFiles,
                                 bool startNewList) {
    if (reading_ || stopped_)
        return;
    const toolkit::ScopedFlag reading(reading_);
    try {
        if (showDialog)
            fileName = around_.chooseFile(GetFilePath(reader_.CurrentLogFile())).value_or("");
        if (fileName.empty())
            return;
        ReadWhole(fileName, addToRecentFiles, startNewList);
    } catch (const std::exception&) {
        // Whatever it was, the user is told where in which file; running out of memory included.
        around_.progress.HideProgress();
        ShowReadError();
    }
}

LogFileReading::Busy::Busy(LogFileReading& reading) : reading_(reading) {
    if (reading_.busy_++ == 0)
        reading_.around_.enableWindows(false);
}

LogFileReading::Busy::~Busy() {
    if (--reading_.busy_ == 0)
        reading_.around_.enableWindows(true);
}

// Counts the lines and shows the progress window, which handles the messages that came meanwhile.
void LogFileReading::Prepare(const std::string& fileName, bool startNewList) {
    const Busy busy(*this);
    reader_.BeginFile(fileName);
    if (startNewList) {
        around_.setTitle(fileName);
        entries_.Clear();
        around_.progress.PrepareCompact();
    } else {
        around_.progress.PrepareTall(GetFileName(fileName));
    }
    around_.progress.ShowProgress(around_.strings(kReadingText), reader_.LineCount());
}

void LogFileReading::ReadWhole(const std::string& fileName, bool addToRecentFiles,
                               bool startNewList) {
    Prepare(fileName, startNewList);
    if (stopped_)
        return;
    reader_.ReadEntries([this](std::int32_t value) { around_.progress.SetValue(value); });
    if (addToRecentFiles)
        around_.rememberFile(fileName);
    if (!startNewList)
        return;
    entries_.FreeExtraItems();
    around_.panels.BuildDateList(true);
    around_.progress.HideProgress();
}

void LogFileReading::ReadAppendedLines(const std::string& fileName) {
    if (reading_)
        return;
    const toolkit::ScopedFlag reading(reading_);
    try {
        const toolkit::ScopedPointer hourglass(around_.form.toolkit(), toolkit::Pointer::Hourglass);
        if (!reader_.ReadAppendedLines(fileName))
            return;
        around_.panels.BuildDateList(true);
        const int rows = around_.SourceListView.RowCount();
        if (rows > 0)
            around_.panels.SelectEntryRow(rows);
    } catch (const std::exception&) {
        ShowReadError();
    }
}

// The message is modal: what events can change may have changed when it returns.
void LogFileReading::ShowReadError() {
    around_.form.toolkit().ShowMessage(
        &around_.form,
        around_.strings(kErrorInFileText) + "\r\n" + reader_.CurrentLogFile() + "\r\n" +
            around_.strings(kLineText) + " " + std::to_string(reader_.LineNumber()),
        around_.messageTitle);
}

}  // namespace ordalyn
