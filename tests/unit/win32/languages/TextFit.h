// Finds the texts of a form that are cut off by the control that shows them.
#pragma once

#include <string>
#include <vector>

#include "toolkit/Form.h"

namespace ordalyn::test {

// The toolkit on Windows, on a screen of 96 or 144 DPI whatever the real one has.
toolkit::Toolkit& ToolkitAt(int dpi);

// One line for each text of the form in real windows that does not fit: captions (also of what is
// hidden only because another page is shown), tabs, items of lists, column headers, panels of the
// status bar. `dpi` is the resolution of the form's toolkit.
//
// Widths are those of the control's font under Wine, enlarged to those of the fonts on Windows,
// which run wider. A letter that the font lacks counts with the width that it has there: other
// fonts stand in for missing letters, and which of them are installed must not matter.
std::vector<std::string> TextsThatDoNotFit(const toolkit::Form& form, int dpi);

// One line for each control that reaches out of its container or lies over another one.
std::vector<std::string> ControlsThatCollide(const toolkit::Form& form);

}  // namespace ordalyn::test
