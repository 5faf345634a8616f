#include "windows/main/HistoryCommands.h"

#include "base/TextIds.h"

namespace ordalyn {

HistoryCommands::HistoryCommands(SharedObjects& shared, toolkit::Form& mainWindow,
                                 const Parts& parts)
    : shared_(shared),
      mainWindow_(mainWindow),
      parts_(parts),
      mnuContextHistorySource_(mainWindow.Menu("mnuContextHistorySource")),
      mnuContextHistoryTarget_(mainWindow.Menu("mnuContextHistoryTarget")) {
    mainWindow.Menu("mnuSearchHistory").Click.Subscribe([this] { ShowWindow(); });
    mnuContextHistorySource_.Click.Subscribe([this] { ShowHistoryOfSource(); });
    mnuContextHistoryTarget_.Click.Subscribe([this] { ShowHistoryOfTarget(); });
    parts_.panels.ContextMenuOpens.Subscribe([this] { PrepareContextMenu(); });
}

frmHistory& HistoryCommands::Window() {
    if (window_ == nullptr) {
        window_ = std::make_unique<frmHistory>(
            shared_.toolkit,
            frmHistory::Surroundings{
                .settings = *shared_.settings,
                .strings = *shared_.strings,
                .language = *shared_.language,
                .entries = parts_.entries,
                .reader = [this]() -> const OperationReader& { return parts_.operations.Reader(); },
                .shownDate =
                    [this](std::string_view date) {
                        return shared_.settings->LongDate != 0 ? parts_.panels.LongDate(date)
                                                               : std::string(date);
                    },
                .olderLogsAreLeft = [this] { return parts_.files.OlderLogsAreLeft(); }});
        window_->EntryChosen.Subscribe([this](std::int32_t entry) { GoTo(entry); });
        window_->ReadAllChosen.Subscribe([this] { ReadAllFiles(); });
    }
    return *window_;
}

void HistoryCommands::ShowWindow() {
    frmHistory& window = Window();
    window.BringUpToDate();
    if (window.Visible())
        window.SetFocus();
    else
        window.Show(&mainWindow_);
    window.FocusPath();
}

std::int32_t HistoryCommands::SelectedEntry() const {
    const int row = parts_.SourceListView.SelectedRow();
    return row < 0 ? kNoEntry : parts_.SourceListView.Tag(row);
}

std::string HistoryCommands::SourceOf(std::int32_t entry) {
    if (entry == kNoEntry || entry > parts_.entries.EntrySources().ListCount())
        return {};
    const Operation operation = parts_.operations.Reader().Read(parts_.entries, entry);
    return IsWholePath(operation.source) ? std::string(operation.source) : std::string();
}

std::string HistoryCommands::TargetOf(std::int32_t entry) {
    if (entry == kNoEntry || entry > parts_.entries.EntrySources().ListCount())
        return {};
    const Operation operation = parts_.operations.Reader().Read(parts_.entries, entry);
    return IsWholePath(operation.target) ? std::string(operation.target) : std::string();
}

void HistoryCommands::PrepareContextMenu() {
    const std::int32_t entry = SelectedEntry();
    mnuContextHistorySource_.SetEnabled(!SourceOf(entry).empty());
    mnuContextHistoryTarget_.SetEnabled(!TargetOf(entry).empty());
}

void HistoryCommands::ShowHistoryOfSource() {
    const std::int32_t entry = SelectedEntry();
    ShowHistoryOf(SourceOf(entry), entry);
}

void HistoryCommands::ShowHistoryOfTarget() {
    const std::int32_t entry = SelectedEntry();
    ShowHistoryOf(TargetOf(entry), entry);
}

void HistoryCommands::ShowHistoryOf(const std::string& path, std::int32_t entry) {
    if (path.empty())
        return;
    frmHistory& window = Window();
    window.ShowPath(path, entry);
    if (window.Visible())
        window.SetFocus();
    else
        window.Show(&mainWindow_);
    window.FocusSteps();
}

void HistoryCommands::GoTo(std::int32_t entry) {
    if (!parts_.panels.ShowEntry(entry)) {
        if (!parts_.find.HasFilter() && !parts_.panels.FailedOnly()) {
            shared_.toolkit.Beep();
            return;
        }
        const toolkit::Answer answer = shared_.toolkit.ShowMessage(
            window_.get(), shared_.Text(text_id::kClearFilterToShow), mAppCommon::kProgramTitle,
            toolkit::MessageIcon::Question, toolkit::MessageButtons::YesNo);
        if (answer != toolkit::Answer::Yes || mainWindow_.Unloaded())
            return;
        if (!ShowWithoutFilter(entry))
            return;
    }
    mainWindow_.SetFocus();
    parts_.SourceListView.SetFocus();
}

// That only failed operations are shown is a filter, too. The other one goes only when it has to.
bool HistoryCommands::ShowWithoutFilter(std::int32_t entry) {
    if (parts_.panels.FailedOnly()) {
        mainWindow_.Menu("mnuViewFailedOnly").SetChecked(false);
        parts_.panels.ShowFailedOnly(false);
        if (parts_.panels.ShowEntry(entry))
            return true;
    }
    parts_.find.RemoveFilter();
    return parts_.panels.ShowEntry(entry);
}

void HistoryCommands::ReadAllFiles() {
    parts_.files.ReadAll();
    // The program may have been closed meanwhile.
    if (!window_->Unloaded() && window_->Visible())
        window_->FocusPath();
}

void HistoryCommands::EntriesChanged() {
    if (window_ != nullptr)
        window_->EntriesChanged();
}

void HistoryCommands::LoadInterface() {
    if (window_ != nullptr)
        window_->LoadInterface();
}

void HistoryCommands::LanguageChanged() {
    if (window_ != nullptr)
        window_->LanguageChanged();
}

void HistoryCommands::Enable(bool enabled) {
    if (window_ != nullptr)
        window_->SetEnabled(enabled);
}

void HistoryCommands::Unload() {
    if (window_ != nullptr)
        window_->UnloadAtEnd();
}

}  // namespace ordalyn
