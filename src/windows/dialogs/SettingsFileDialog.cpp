#include "windows/dialogs/SettingsFileDialog.h"

#include <utility>

#include "base/TextIds.h"
#include "hostconfig/mAppCommon.h"
#include "windows/dialogs/cCommonDialog.h"

namespace ordalyn {

namespace {}  // namespace

SettingsFileDialog::SettingsFileDialog(toolkit::Toolkit& toolkit, cCommonDialog& dialog,
                                       toolkit::Form* owner, TextSource text)
    : toolkit_(toolkit), dialog_(dialog), owner_(owner), text_(std::move(text)) {}

SettingsFileQuestion::Answer SettingsFileDialog::AskForSettingsFile(
    const std::string& startFolder) {
    toolkit_.ShowMessage(owner_, text_(text_id::kNoCommanderSettings), mAppCommon::kProgramTitle,
                         toolkit::MessageIcon::Exclamation, toolkit::MessageButtons::Ok);
    if (Ended())
        return {Outcome::ProgramEnded, {}};
    return ChooseSettingsFile(startFolder);
}

SettingsFileQuestion::Answer SettingsFileDialog::ChooseSettingsFile(
    const std::string& startFolder) {
    dialog_.ShowOpenDialog(owner_ != nullptr ? owner_->Handle() : 0, startFolder, "Wincmd.ini",
                           cCommonDialog::kSettingsFiles, "", true);
    if (dialog_.Confirmed)
        return {Outcome::Chosen, dialog_.FileName};
    // A dialog that ends with the program has not been answered by the user.
    return {Ended() ? Outcome::ProgramEnded : Outcome::Cancelled, {}};
}

}  // namespace ordalyn
