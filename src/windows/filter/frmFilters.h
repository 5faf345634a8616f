// frmFilters: the filter dialog, a small tool window beside the main window. Every choice in it
// applies the filter at once. It is only hidden when it is closed; it ends with the program.
#pragma once

#include <vector>

#include "hostconfig/OperationWords.h"
#include "search/FilterChoice.h"
#include "settings/InterfaceStrings.h"
#include "settings/mAppSpecific.h"
#include "toolkit/Form.h"
#include "windows/common/FormLanguage.h"
#include "windows/common/InputHistory.h"
#include "windows/panels/DayPanels.h"

namespace ordalyn {

class frmFilters : public toolkit::Form {
  public:
    struct Surroundings {
        mAppSpecific& settings;
        const InterfaceStrings& strings;
        FormLanguage& language;
        InputHistory& history;
        OperationWords::Surroundings keywords;
        FilterChoice& filter;  // what the dialog shows and changes
        DayPanels& panels;     // what the filter narrows
    };

    // Loads the dialog, hidden, with an empty filter. The first activation after it is shown loads
    // the operation words.
    frmFilters(toolkit::Toolkit& toolkit, const Surroundings& around);

    // Gives the boxes their texts, fonts and colours and the dialog the height that they need.
    // Filters nothing.
    void LoadInterface();
    void FocusFilter() { cboFilter.SetFocus(); }
    // Shows all rows again and empties the box.
    void RemoveFilter();
    // Unloads the dialog, which a user's close only hides.
    void UnloadAtEnd();

  private:
    void WireControls();
    void Arrange();
    void Apply() { around_.panels.ApplyFilter(true); }
    void ApplyTypedText();
    void ApplyAndRemember();
    void ApplyIfFiltering();
    void ClearHistory();
    void FillOperationMenu(const std::vector<OperationWord>& words);
    void ApplyOperation(int item);
    void AboutToClose(bool& keep);

    Surroundings around_;
    toolkit::ComboBox& cboFilter;
    toolkit::ComboBox& cboContains;
    toolkit::ComboBox& cboSource;
    toolkit::ToolBar& Toolbar1;
    toolkit::CommandButton& cmdCancel;
    OperationWords keywords_;
    bool activated_ = false;
    bool ending_ = false;
};

}  // namespace ordalyn
