#include "windows/main/LogFileSet.h"

#include <utility>

#include "base/Attempt.h"
#include "base/Text.h"

namespace ordalyn {

namespace {

constexpr std::int32_t kAreYouSureText = 3009;
constexpr std::int32_t kAllFilesText = 4006;
// Places in the list when it begins with "All files".
constexpr int kAllFilesItem = 0;
constexpr int kLiveLogItem = 1;
constexpr int kFirstSiblingItem = 2;

}  // namespace

LogFileSet::LogFileSet(platform::Files& files, EntryLists& entries, LogFileReading& reading,
                       Surroundings surroundings)
    : files_(files), entries_(entries), reading_(reading), around_(std::move(surroundings)) {
    around_.cboFiles.Click.Subscribe([this] { FileComboClicked(); });
}

void LogFileSet::BuildLogFileList() {
    around_.cboFiles.Clear();
    Attempt([this] {
        const RotatedLogs logs(files_, around_.rotation(), around_.strings(kAllFilesText));
        liveLogName_ = logs.LiveLogName();
        logFolder_ = logs.LogFolder();
        for (const std::string& item : logs.Items())
            around_.cboFiles.AddItem(item);
        switch (logs.ComboDisplay()) {
            case RotatedLogs::Display::Unchanged:
                break;
            case RotatedLogs::Display::Hidden:
                around_.cboFiles.SetVisible(false);
                break;
            case RotatedLogs::Display::LiveLog:
                ShowLogFileCombo();
                break;
        }
    });
}

void LogFileSet::SelectWithoutReading(int index) {
    const toolkit::ScopedFlag ignore(around_.panels.IgnoreComboClick());
    lastFilesIndex_ = kHandleNext;
    around_.cboFiles.SetListIndex(index);
}

void LogFileSet::ShowLogFileCombo() {
    Attempt([this] {
        const toolkit::ScopedFlag ignore(around_.panels.IgnoreComboClick());
        lastFilesIndex_ = kHandleNext;
        around_.cboFiles.SetText(liveLogName_);
    });
    if (around_.cboFiles.ListCount() >= 2)
        around_.cboFiles.SetVisible(true);
}

void LogFileSet::DeselectLogFile() {
    if (!around_.cboFiles.Visible())
        return;
    const toolkit::ScopedFlag ignore(around_.panels.IgnoreComboClick());
    around_.cboFiles.SetListIndex(-1);
}

void LogFileSet::FileComboClicked() {
    const int index = around_.cboFiles.ListIndex();
    if (index == lastFilesIndex_)
        return;
    lastFilesIndex_ = index;
    if (around_.panels.IgnoreComboClick())
        return;
    // A list that has shrunk to the live log alone has no item for all of them.
    if (index == kAllFilesItem && around_.cboFiles.ListCount() > 1) {
        ReadAllFiles();
        return;
    }
    reading_.ReadLogFile(false, logFolder_ + around_.cboFiles.Text(), false, true);
    EnableRefreshForLiveLog();
}

// Only the live log can grow.
void LogFileSet::EnableRefreshForLiveLog() {
    around_.mnuViewRefresh.SetEnabled(EqualsIgnoreCase(around_.cboFiles.Text(), liveLogName_));
}

void LogFileSet::ReadAllFiles() {
    entries_.Clear();
    reading_.CancelReading = false;
    bool stopped = false;
    {
        // Events are handled between the files: no other window may be used meanwhile.
        const LogFileReading::Busy busy(reading_);
        stopped = !ReadSiblings();
        if (!stopped)
            reading_.ReadLogFile(false, logFolder_ + around_.cboFiles.List(kLiveLogItem), false,
                                 false);
    }
    if (reading_.Stopped())
        return;
    if (stopped) {
        ReadOnlyLiveLog();
        return;
    }
    around_.setTitle(around_.strings(kAllFilesText));
    Attempt([this] { entries_.FreeExtraItems(); });
    reading_.HideProgress();
    around_.panels.BuildDateList(false);
    around_.mnuViewRefresh.SetEnabled(false);
}

bool LogFileSet::ReadSiblings() {
    for (int item = kFirstSiblingItem; item < around_.cboFiles.ListCount(); ++item) {
        reading_.ReadLogFile(false, logFolder_ + around_.cboFiles.List(item), false, false);
        // So that a click on Cancel is seen. The main window waits for the read, but the list of
        // files could still change here.
        around_.form.toolkit().DoEvents();
        if (!reading_.CancelReading || reading_.Stopped())
            continue;
        const toolkit::Answer answer = around_.form.toolkit().ShowMessage(
            &around_.form, around_.strings(kAreYouSureText), around_.messageTitle,
            toolkit::MessageIcon::Question, toolkit::MessageButtons::YesNo, toolkit::Answer::No);
        if (answer == toolkit::Answer::Yes)
            return false;
        reading_.CancelReading = false;
    }
    return true;
}

void LogFileSet::ReadOnlyLiveLog() {
    reading_.ReadLogFile(false, logFolder_ + around_.cboFiles.List(kLiveLogItem), false, true);
    // The list still names "All files" here, so this leaves Refresh disabled. Kept as it is.
    EnableRefreshForLiveLog();
    SelectWithoutReading(kLiveLogItem);
    around_.SourceListView.SetFocus();
}

}  // namespace ordalyn
