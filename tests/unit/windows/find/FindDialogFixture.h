// A find dialog over a log of two days, all of which are shown.
#pragma once

#include "support/windows/FindWindow.h"

namespace ordalyn::test {

class FindDialog : public FindWindow {
  protected:
    FindDialog() {
        Load({
            "01.03.2024 10:15:30: Copy C:\\a.txt -> D:\\a.txt",   // 0
            "01.03.2024 10:15:31: Move C:\\b.txt -> E:\\copies",  // 1
            "02.03.2024 10:15:32: Copy C:\\c.txt -> D:\\c.txt",   // 2
            "02.03.2024 10:15:33: Delete C:\\Copy\\d.txt",        // 3
        });
        ShowDay(0);
    }
    void Show() {
        main.Menu("mnuSearchFind").Choose();
        tools.DoLaterWork();
    }
    void Type(std::string_view text) { cboFindWhat.UserEdited(text); }
    void FindNext() { cmdFindNext.UserClicked(); }
    std::vector<std::string> History() const { return MemoryToolkit::Of(cboFindWhat).items; }

    frmSearchFor& dialog = commands.FindDialog();
    toolkit::ComboBox& cboFindWhat = dialog.Get<toolkit::ComboBox>("cboFindWhat");
    toolkit::OptionButton& optSource = dialog.Get<toolkit::OptionButton>("optColumn", 0);
    toolkit::OptionButton& optTarget = dialog.Get<toolkit::OptionButton>("optColumn", 1);
    toolkit::CheckBox& chkWholeWord = dialog.Get<toolkit::CheckBox>("chkWholeWord");
    toolkit::CheckBox& chkSelectedDate = dialog.Get<toolkit::CheckBox>("chkSelectedDate");
    toolkit::CommandButton& cmdFindNext = dialog.Get<toolkit::CommandButton>("cmdFindNext");
    toolkit::CommandButton& cmdCancel = dialog.Get<toolkit::CommandButton>("cmdCancel");
    toolkit::CommandButton& cmdClearList = dialog.Get<toolkit::CommandButton>("cmdClearList");
};

}  // namespace ordalyn::test
