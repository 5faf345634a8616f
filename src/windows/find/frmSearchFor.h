// frmSearchFor: the find dialog. It is only hidden when it is closed; it ends with the program.
#pragma once

#include <cstdint>

#include "settings/InterfaceStrings.h"
#include "settings/mAppSpecific.h"
#include "toolkit/Form.h"
#include "windows/common/FormLanguage.h"
#include "windows/common/InputHistory.h"
#include "windows/find/EntrySearch.h"

namespace ordalyn {

class frmSearchFor : public toolkit::Form {
  public:
    struct Surroundings {
        toolkit::Form& mainWindow;
        toolkit::MenuItem& mnuSearchFindNext;
        mAppSpecific& settings;  // ColumnNo
        const InterfaceStrings& strings;
        FormLanguage& language;
        InputHistory& history;
        EntrySearch& search;
    };

    // Loads the dialog, hidden, with the history and the options of the last run.
    frmSearchFor(toolkit::Toolkit& toolkit, const Surroundings& around);

    // The entry where the next search begins: the one behind the last that was found, or 0.
    std::int32_t StartItem = 0;

    // Runs one search with what the dialog says. A search that finds nothing is reported, and the
    // next one begins with the first entry again; without a text there is only a beep. Shows a
    // message box: whatever events can change may have changed on return.
    void FindNextString();
    // Selects the whole search text, so that typing replaces it.
    void PreSelectText();
    // A search within the selected date needs one: without it the box is cleared and disabled.
    void AllowSelectedDate(bool allowed);
    // Unloads the dialog, which a user's close only hides.
    void UnloadAtEnd();

  private:
    void WireControls();
    void TextChanged();
    void ColumnChosen(std::int32_t column);
    void ClearList();
    FindOptionControls Options();

    Surroundings around_;
    toolkit::ComboBox& cboFindWhat;
    toolkit::CheckBox& chkWholeWord;
    toolkit::CheckBox& chkSelectedDate;
    toolkit::CommandButton& cmdFindNext;
    toolkit::CommandButton& cmdClearList;
    bool ending_ = false;
};

}  // namespace ordalyn
