#include "windows/main/FileManagerCommands.h"

#include "base/FileNames.h"
#include "base/Text.h"
#include "base/TextIds.h"
#include "hostconfig/CommanderProgram.h"

namespace ordalyn {

namespace {

std::string IfItSaysAllOfItsWay(std::string_view path) {
    return std::string(FormOfPath(path) == PathForm::None ? std::string_view() : path);
}

}  // namespace

FileManagerCommands::FileManagerCommands(SharedObjects& shared, const Controls& controls,
                                         const EntryLists& entries, LogOperations& operations)
    : shared_(shared), controls_(controls), entries_(entries), operations_(operations) {
    controls_.SourceListView.RowActivated.Subscribe([this](int) { ShowSource(); });
    controls_.TargetListView.RowActivated.Subscribe([this](int) {
        if (SelectedPaths().target.empty())
            ShowSource();
        else
            ShowTarget();
    });
}

FileManagerCommands::Paths FileManagerCommands::SelectedPaths() const {
    const int row = controls_.SourceListView.SelectedRow();
    if (row < 0)
        return {};
    const std::int32_t entry = controls_.SourceListView.Tag(row);
    const Operation operation = operations_.Reader().Read(entries_, entry);
    return {IfItSaysAllOfItsWay(operation.source), IfItSaysAllOfItsWay(operation.target)};
}

void FileManagerCommands::PrepareMenu() {
    const Paths paths = SelectedPaths();
    controls_.mnuContextShowSource.SetEnabled(!paths.source.empty());
    controls_.mnuContextShowTarget.SetEnabled(!paths.target.empty());
}

void FileManagerCommands::ShowSource() {
    Show(SelectedPaths().source);
}

void FileManagerCommands::ShowTarget() {
    Show(SelectedPaths().target);
}

// The question is modal: the program may have been closed when it returns.
void FileManagerCommands::Show(const std::string& path) {
    if (path.empty())
        return;
    if (HasForeignSign(path)) {
        Say(text_id::kPathUnusable, path);
        return;
    }
    // Nothing but the file manager knows what a plugin shows, and a server that does not answer
    // would keep the window waiting: nobody asks for these.
    if (FormOfPath(path) == PathForm::Plugin ||
        shared_.services.files.DriveOf(path) == platform::DriveKind::Network) {
        HandOver(path);
        return;
    }
    const std::string nearest = NearestThatExists(path);
    if (nearest.empty()) {
        Say(text_id::kPathMissing, path);
        return;
    }
    if (nearest != WithoutEndingBackslash(path)) {
        const std::string question =
            shared_.Text(text_id::kPathMissing) + "\r\n" + path + "\r\n\r\n" +
            ReplaceIgnoreCase(shared_.Text(text_id::kShowInstead), "%i", nearest);
        const toolkit::Answer answer = shared_.toolkit.ShowMessage(
            &controls_.form, question, mAppCommon::kProgramTitle, toolkit::MessageIcon::Question,
            toolkit::MessageButtons::YesNo);
        if (answer != toolkit::Answer::Yes || controls_.form.Unloaded())
            return;
    }
    HandOver(nearest);
}

void FileManagerCommands::HandOver(std::string_view path) {
    using platform::ShellTarget;
    const std::string program = FindCommanderProgram(shared_.common, shared_.services);
    if (program.empty() && FormOfPath(path) == PathForm::Plugin) {
        Say(text_id::kOnlyFileManager, path);
        return;
    }
    shared_.services.shell.Open(
        controls_.form.Handle(),
        program.empty() ? ShellTarget::Selected(path) : ShellTarget::FileManager(program, path));
}

// The path itself, or else the folder above it that is there; empty when not even the drive is.
std::string FileManagerCommands::NearestThatExists(std::string_view path) {
    if (shared_.services.files.DriveOf(path) == platform::DriveKind::None)
        return "";
    std::string at(WithoutEndingBackslash(path));
    while (!shared_.services.files.Stamp(at)) {
        const std::string above(WithoutEndingBackslash(GetFilePath(at)));
        if (above.size() >= at.size())
            return "";
        at = above;
    }
    return at;
}

void FileManagerCommands::Say(std::int32_t text, std::string_view path) {
    shared_.toolkit.ShowMessage(&controls_.form, shared_.Text(text) + "\r\n" + std::string(path),
                                mAppCommon::kProgramTitle, toolkit::MessageIcon::Exclamation);
}

}  // namespace ordalyn
