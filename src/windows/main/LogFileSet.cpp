#include "windows/main/LogFileSet.h"

#include <algorithm>
#include <utility>

#include "base/Attempt.h"
#include "base/Text.h"
#include "base/TextIds.h"

namespace ordalyn {

namespace {

// Places in the list when it begins with "All files".
constexpr int kAllFilesItem = 0;
constexpr int kLiveLogItem = 1;
constexpr int kFirstSiblingItem = 2;

}  // namespace

LogFileSet::LogFileSet(SharedObjects& shared, const Controls& controls, LogFileReading& reading,
                       MainTitle& title)
    : shared_(shared), controls_(controls), reading_(reading), title_(title) {
    controls_.cboFiles.Click.Subscribe([this] { FileComboClicked(); });
}

RotationSettings LogFileSet::ReadRotationSettings() const {
    const mAppCommon& common = shared_.common;
    const auto read = [&](std::string_view key) {
        return shared_.profile
            ->ReadValue(kConfigurationSection, key, common.NoValueMarker(), common.CommanderIni())
            .value_or("");
    };
    const std::string logFile = read("LogFile");
    return {.logFileAbsent = common.IsNoValue(logFile),
            .logFile = common.ExpandPath(logFile),
            .rotateLimit = read("LogRotateLimit"),
            .keepCount = read("LogKeepCount")};
}

void LogFileSet::BuildLogFileList() {
    controls_.cboFiles.Clear();
    Attempt([this] {
        const RotatedLogs logs(shared_.services.files, ReadRotationSettings(),
                               shared_.Text(text_id::kAllFiles));
        liveLogName_ = logs.LiveLogName();
        logFolder_ = logs.LogFolder();
        title_.SetLogFolder(logFolder_);
        for (const std::string& item : logs.Items())
            controls_.cboFiles.AddItem(item);
        switch (logs.ComboDisplay()) {
            case RotatedLogs::Display::Unchanged:
                break;
            case RotatedLogs::Display::Hidden:
                controls_.cboFiles.SetVisible(false);
                break;
            case RotatedLogs::Display::LiveLog:
                ShowLogFileCombo();
                break;
        }
    });
}

std::vector<std::string> LogFileSet::LogFiles() const {
    std::vector<std::string> paths;
    Attempt([&] {
        const RotatedLogs logs(shared_.services.files, ReadRotationSettings(), "");
        paths.push_back(logs.LogFolder() + logs.LiveLogName());
        for (const std::string& name : logs.Items())
            if (!name.empty())
                paths.push_back(logs.LogFolder() + name);
    });
    return paths;
}

void LogFileSet::SelectWithoutReading(int index) {
    const toolkit::ScopedFlag ignore(ignoreComboClick_);
    lastFilesIndex_ = kHandleNext;
    controls_.cboFiles.SetListIndex(index);
}

// Whatever is shown that is not the live log in its own folder is none of the list's files.
void LogFileSet::SelectShownFile() {
    const std::string live = logFolder_ + liveLogName_;
    const bool shown = EqualsIgnoreCase(reading_.CurrentLogFile(), live);
    const int liveLog = controls_.cboFiles.ListCount() > 1 ? kLiveLogItem : 0;
    SelectWithoutReading(shown && controls_.cboFiles.ListCount() > 0 ? liveLog : -1);
}

void LogFileSet::ShowLogFileCombo() {
    Attempt([this] { SelectShownFile(); });
    if (controls_.cboFiles.ListCount() >= 2)
        controls_.cboFiles.SetVisible(true);
}

void LogFileSet::LogOpened() {
    SelectShownFile();
    controls_.mnuViewRefresh.SetEnabled(true);
}

// When a read of all files was left for the live log, Refresh stays disabled; the log can grow.
bool LogFileSet::ShowsGrowingLog() const {
    const bool liveLog =
        controls_.cboFiles.ListCount() > 1 && controls_.cboFiles.ListIndex() == kLiveLogItem;
    return !reading_.CurrentLogFile().empty() && (controls_.mnuViewRefresh.Enabled() || liveLog);
}

bool LogFileSet::OlderLogsAreLeft() const {
    return controls_.cboFiles.ListCount() > 1 && controls_.cboFiles.ListIndex() > kAllFilesItem;
}

void LogFileSet::ReadAll() {
    if (controls_.cboFiles.ListCount() > 1)
        controls_.cboFiles.SetListIndex(kAllFilesItem);
}

void LogFileSet::LanguageChanged() {
    // A list of the live log alone does not begin with "All files".
    if (controls_.cboFiles.Visible() && controls_.cboFiles.ListCount() > 1)
        controls_.cboFiles.SetItem(kAllFilesItem, shared_.Text(text_id::kAllFiles));
}

void LogFileSet::FileComboClicked() {
    const int index = controls_.cboFiles.ListIndex();
    if (index == lastFilesIndex_)
        return;
    const int before = std::exchange(lastFilesIndex_, index);
    if (ignoreComboClick_)
        return;
    // A list that has shrunk to the live log alone has no item for all of them.
    if (index == kAllFilesItem && controls_.cboFiles.ListCount() > 1) {
        ReadAllFiles(before);
        return;
    }
    if (reading_.ReadLogFile(false, logFolder_ + controls_.cboFiles.Text(), false))
        EnableRefreshForLiveLog();
    else
        SelectAgain(before);
}

// Only the live log can grow.
void LogFileSet::EnableRefreshForLiveLog() {
    controls_.mnuViewRefresh.SetEnabled(EqualsIgnoreCase(controls_.cboFiles.Text(), liveLogName_));
}

// A file that could not be read is not the one that is shown.
void LogFileSet::SelectAgain(int before) {
    if (!reading_.Stopped())
        SelectWithoutReading(before < controls_.cboFiles.ListCount() ? std::max(before, -1) : -1);
}

void LogFileSet::ReadAllFiles(int before) {
    LogFileReading::Set set;
    reading_.CancelReading = false;
    const std::string liveLog = logFolder_ + controls_.cboFiles.List(kLiveLogItem);
    bool stopped = false;
    {
        // Events are handled between the files: no other window may be used meanwhile.
        const LogFileReading::Busy busy(reading_);
        stopped = !ReadSiblings(set);
        if (!stopped)
            reading_.AddLogFile(liveLog, set);
    }
    if (reading_.Stopped())
        return;
    if (stopped) {
        ReadOnlyLiveLog(before);
        return;
    }
    title_.SetTitle(shared_.Text(text_id::kAllFiles));
    reading_.ShowSet(set, liveLog);
    controls_.mnuViewRefresh.SetEnabled(false);
}

bool LogFileSet::ReadSiblings(LogFileReading::Set& set) {
    for (int item = kFirstSiblingItem; item < controls_.cboFiles.ListCount(); ++item) {
        reading_.AddLogFile(logFolder_ + controls_.cboFiles.List(item), set);
        // So that a click on Cancel is seen. The main window waits for the read, but the list of
        // files could still change here.
        shared_.toolkit.DoEvents();
        if (!reading_.CancelReading || reading_.Stopped())
            continue;
        const toolkit::Answer answer = shared_.toolkit.ShowMessage(
            &controls_.form, shared_.Text(text_id::kAreYouSure), mAppCommon::kProgramTitle,
            toolkit::MessageIcon::Question, toolkit::MessageButtons::YesNo, toolkit::Answer::No);
        if (answer == toolkit::Answer::Yes)
            return false;
        reading_.CancelReading = false;
    }
    return true;
}

void LogFileSet::ReadOnlyLiveLog(int before) {
    if (!reading_.ReadLogFile(false, logFolder_ + controls_.cboFiles.List(kLiveLogItem), false)) {
        SelectAgain(before);
        return;
    }
    // The list still names "All files" here, so this leaves Refresh disabled. Kept as it is.
    EnableRefreshForLiveLog();
    SelectWithoutReading(kLiveLogItem);
    controls_.SourceListView.SetFocus();
}

}  // namespace ordalyn
