#include "windows/main/RowCommands.h"

#include <algorithm>
#include <memory>
#include <new>
#include <optional>
#include <string_view>
#include <vector>

#include "base/Errors.h"
#include "base/FileNames.h"
#include "base/Text.h"
#include "base/TextIds.h"
#include "hostconfig/mAppCommon.h"

namespace ordalyn {

namespace {

// Programs that open tables take a file without it for one in their code page.
constexpr std::string_view kMark = "\xEF\xBB\xBF";
constexpr std::size_t kBlock = std::size_t{1} << 20;
// Fewer are written before anybody could read how far it is.
constexpr std::size_t kRowsThatTakeTime = 100'000;

// The system's numbers for what a person can do something about.
constexpr unsigned long kAccessDenied = 5, kWriteProtected = 19, kSharingViolation = 32,
                        kLockViolation = 33, kHandleDiskFull = 39, kDiskFull = 112;

// The name says it, whatever was chosen beside it.
TableForm FormOf(std::string_view path, int filter) {
    const std::string extension = GetFileExtension(GetFileName(path));
    if (EqualsIgnoreCase(extension, "csv"))
        return TableForm::CommaSeparated;
    if (EqualsIgnoreCase(extension, "txt") || EqualsIgnoreCase(extension, "tsv"))
        return TableForm::TabSeparated;
    return filter == 1 ? TableForm::CommaSeparated : TableForm::TabSeparated;
}

}  // namespace

void RowCommands::CopyRows() {
    const toolkit::ListView& source = around_.source;
    if (source.SelectedRow() < 0)
        return;
    const EntryTable table(around_.entries, around_.operations.Reader(), TableForm::TabSeparated);
    std::string text;
    source.SelectedRows().ForEach([&](int row) { table.AddEntry(text, source.Tag(row)); });
    around_.shared.services.clipboard.SetText(text);
}

void RowCommands::SaveRows() {
    if (saving_ || around_.reading.Stopped())
        return;
    const toolkit::ScopedFlag saving(saving_);
    SharedObjects& shared = around_.shared;
    const auto pair = [&](const TextId& name, const char* pattern) {
        return shared.Text(name) + " (" + pattern + ")" + '\0' + pattern + '\0';
    };
    cCommonDialog& dialog = *shared.commonDialog;
    // The dialog adds the extension of the type that is chosen there.
    const std::string log = GetFileName(around_.reading.CurrentLogFile());
    dialog.ShowSaveDialog(
        around_.mainWindow.Handle(), log.substr(0, log.find('.')),
        shared.Text(text_id::kSaveRowsTitle),
        pair(text_id::kTabSeparated, "*.txt") + pair(text_id::kCommaSeparated, "*.csv"));
    // The program may have ended meanwhile.
    if (!dialog.Confirmed || around_.reading.Stopped())
        return;
    const std::string path = dialog.FileName;
    if (IsLog(path)) {
        ShowMessage(shared.Text(text_id::kIsLogFile) + "\r\n" + path);
        return;
    }
    std::optional<unsigned long> failure;
    try {
        const LogFileReading::Busy busy(around_.reading);
        Write(path, FormOf(path, dialog.FilterIndex));
    } catch (const FileError& error) {
        failure = error.Code();
    } catch (const std::bad_alloc&) {
        failure = 0;
    }
    around_.progress.HideProgress();
    if (failure && !around_.reading.Stopped())
        ShowFailure(path, *failure);
}

// By name, and by what tells a file from another: one file can have several names.
bool RowCommands::IsLog(const std::string& path) const {
    platform::Files& files = around_.shared.services.files;
    const std::optional<platform::FileStamp> stamp = files.Stamp(path);
    const auto isThat = [&](const std::string& log) {
        return !log.empty() && (EqualsIgnoreCase(path, log) ||
                                (stamp && stamp->size > 0 && files.Stamp(log) == stamp));
    };
    if (isThat(around_.reading.CurrentLogFile()))
        return true;
    for (const std::string& log : around_.files.LogFiles())
        if (isThat(log))
            return true;
    return false;
}

void RowCommands::Write(const std::string& path, TableForm form) {
    SharedObjects& shared = around_.shared;
    const std::unique_ptr<platform::NewFile> file = shared.services.files.BeginReplacing(path);
    // Before the rows are looked at: messages are handled there.
    const std::size_t count = around_.source.RowTags()->size();
    const bool takesTime = count >= kRowsThatTakeTime;
    if (takesTime) {
        around_.progress.PrepareCompact();
        around_.progress.ShowProgress(shared.Text(text_id::kSavingRows),
                                      static_cast<std::int32_t>(count));
    }
    if (around_.reading.Stopped())
        return;
    const toolkit::ListView::Tags rows = around_.source.RowTags();
    const EntryTable table(around_.entries, around_.operations.Reader(), form);
    const auto name = [&](const TextId& id) { return shared.Text(id); };
    const std::string date = name(text_id::kDateName), time = name(text_id::kTime),
                      operation = name(text_id::kOperation), source = name(text_id::kSource),
                      target = name(text_id::kTarget);
    std::string block(kMark);
    table.AddHeader(block, {date, time, operation, source, target});
    for (std::size_t row = 0; row < rows->size(); ++row) {
        table.AddEntry(block, (*rows)[row]);
        if (block.size() < kBlock)
            continue;
        file->Write(block);
        block.clear();
        if (takesTime)
            around_.progress.SetValue(static_cast<std::int32_t>(std::min(row, count)));
    }
    file->Write(block);
    file->TakePlace();
}

void RowCommands::ShowFailure(const std::string& path, unsigned long code) {
    std::string reason;
    switch (code) {
        case kDiskFull:
        case kHandleDiskFull:
            reason = around_.shared.Text(text_id::kDiskFull);
            break;
        case kAccessDenied:
        case kWriteProtected:
            reason = around_.shared.Text(text_id::kNoRightToWrite);
            break;
        case kSharingViolation:
        case kLockViolation:
            reason = around_.shared.Text(text_id::kFileInUse);
            break;
        default:
            break;
    }
    ShowMessage(around_.shared.Text(text_id::kRowsNotSaved) + "\r\n" + path +
                (reason.empty() ? "" : "\r\n\r\n" + reason));
}

void RowCommands::ShowMessage(const std::string& text) {
    around_.shared.toolkit.ShowMessage(&around_.mainWindow, text, mAppCommon::kProgramTitle,
                                       toolkit::MessageIcon::Exclamation);
}

}  // namespace ordalyn
