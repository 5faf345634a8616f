// frmSearchFor: the find dialog. It shows and changes the options of the search. It is only hidden
// when it is closed; it ends with the program.
#pragma once

#include "search/EntrySearch.h"
#include "settings/InterfaceStrings.h"
#include "toolkit/Form.h"
#include "windows/common/FormLanguage.h"
#include "windows/common/InputHistory.h"

namespace ordalyn {

// Runs one search. One that finds nothing is reported, owned by the form; without a text there is
// only a beep. Shows a message box: whatever events can change may have changed on return.
void FindNextString(EntrySearch& search, const InterfaceStrings& strings, toolkit::Form& owner);

class frmSearchFor : public toolkit::Form {
  public:
    struct Surroundings {
        toolkit::MenuItem& mnuSearchFindNext;
        const InterfaceStrings& strings;
        FormLanguage& language;
        InputHistory& history;
        EntrySearch& search;
    };

    // Loads the dialog, hidden, with the history and the options of the search.
    frmSearchFor(toolkit::Toolkit& toolkit, const Surroundings& around);

    // Selects the whole search text, so that typing replaces it.
    void PreSelectText();
    // A search within the selected date needs one: without it the box is cleared and disabled.
    void AllowSelectedDate(bool allowed);
    // Unloads the dialog, which a user's close only hides.
    void UnloadAtEnd();

  private:
    void WireControls();
    void ShowOptions();
    void TextChanged();
    void ClearList();

    Surroundings around_;
    toolkit::ComboBox& cboFindWhat;
    toolkit::OptionButton& optSource;  // optColumn(0)
    toolkit::OptionButton& optTarget;  // optColumn(1)
    toolkit::CheckBox& chkWholeWord;
    toolkit::CheckBox& chkSelectedDate;
    toolkit::CommandButton& cmdFindNext;
    toolkit::CommandButton& cmdClearList;
    bool ending_ = false;
};

}  // namespace ordalyn
