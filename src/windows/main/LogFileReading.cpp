#include "windows/main/LogFileReading.h"

#include <exception>

#include "base/FileNames.h"
#include "base/TextIds.h"
#include "toolkit/ScopedPointer.h"

namespace ordalyn {

LogFileReading::LogFileReading(SharedObjects& shared, toolkit::Form& mainWindow, LogReader& reader,
                               EntryLists& entries, DayPanels& panels, ReadingProgress& progress,
                               MainTitle& title)
    : shared_(shared),
      mainWindow_(mainWindow),
      reader_(reader),
      entries_(entries),
      panels_(panels),
      progress_(progress),
      title_(title) {}

std::string LogFileReading::ChooseFile() {
    cCommonDialog& dialog = *shared_.commonDialog;
    dialog.ShowOpenDialog(mainWindow_.Handle(), GetFilePath(reader_.CurrentLogFile()), "",
                          cCommonDialog::kLogFiles, "", true);
    return dialog.Confirmed ? dialog.FileName : "";
}

void LogFileReading::EnableWindows(bool enabled) {
    mainWindow_.SetEnabled(enabled);
    WindowsEnabled.Raise(enabled);
}

void LogFileReading::ReadLogFile(bool showDialog, std::string fileName, bool addToRecentFiles,
                                 bool startNewList) {
    if (reading_ || stopped_)
        return;
    const toolkit::ScopedFlag reading(reading_);
    try {
        if (showDialog)
            fileName = ChooseFile();
        if (fileName.empty())
            return;
        ReadWhole(fileName, addToRecentFiles, startNewList);
    } catch (const std::exception&) {
        // Whatever it was, the user is told where in which file; running out of memory included.
        progress_.HideProgress();
        ShowReadError();
    }
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
void LogFileReading::Prepare(const std::string& fileName, bool startNewList) {
    const Busy busy(*this);
    reader_.BeginFile(fileName);
    if (startNewList) {
        title_.SetTitle(fileName);
        entries_.Clear();
        progress_.PrepareCompact();
    } else {
        progress_.PrepareTall(GetFileName(fileName));
    }
    progress_.ShowProgress(shared_.Text(text_id::kReading), reader_.LineCount());
}

void LogFileReading::ReadWhole(const std::string& fileName, bool addToRecentFiles,
                               bool startNewList) {
    Prepare(fileName, startNewList);
    if (stopped_)
        return;
    reader_.ReadEntries([this](std::int32_t value) { progress_.SetValue(value); });
    if (addToRecentFiles)
        FileOpened.Raise(fileName);
    if (!startNewList)
        return;
    entries_.FreeExtraItems();
    panels_.BuildDateList(true);
    progress_.HideProgress();
}

void LogFileReading::ReadAppendedLines(const std::string& fileName) {
    if (reading_)
        return;
    const toolkit::ScopedFlag reading(reading_);
    try {
        const toolkit::ScopedPointer hourglass(shared_.toolkit, toolkit::Pointer::Hourglass);
        if (!reader_.ReadAppendedLines(fileName))
            return;
        panels_.BuildDateList(true);
        panels_.SelectLastRow();
    } catch (const std::exception&) {
        ShowReadError();
    }
}

// The message is modal: what events can change may have changed when it returns.
void LogFileReading::ShowReadError() {
    shared_.toolkit.ShowMessage(
        &mainWindow_,
        shared_.Text(text_id::kErrorInFile) + "\r\n" + reader_.CurrentLogFile() + "\r\n" +
            shared_.Text(text_id::kLine) + " " + std::to_string(reader_.LineNumber()),
        mAppCommon::kProgramTitle);
}

}  // namespace ordalyn
