// SettingsFileDialog: notifies the user that the file manager's settings file cannot be found, in a
// message box, and offers to choose it, in the open dialog.
#pragma once

#include <string>

#include "base/TextSource.h"
#include "hostconfig/SettingsFileQuestion.h"
#include "toolkit/Form.h"
#include "toolkit/Toolkit.h"

namespace ordalyn {

class cCommonDialog;

class SettingsFileDialog : public SettingsFileQuestion {
  public:
    // `owner` owns the message and the dialog; null: none. The program has ended when the owner
    // was unloaded.
    SettingsFileDialog(toolkit::Toolkit& toolkit, cCommonDialog& dialog, toolkit::Form* owner,
                       TextSource text);

    Answer AskForSettingsFile(const std::string& startFolder) override;
    Answer ChooseSettingsFile(const std::string& startFolder) override;

  private:
    bool Ended() const { return owner_ != nullptr && owner_->Unloaded(); }

    toolkit::Toolkit& toolkit_;
    cCommonDialog& dialog_;
    toolkit::Form* owner_;
    TextSource text_;
};

}  // namespace ordalyn
