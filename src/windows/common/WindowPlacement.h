// WindowPlacement: windows stand where they stood when they were closed last.
#pragma once

#include "toolkit/Form.h"

namespace ordalyn {

class mAppSpecific;

// Places the form as its placement entry says, at least as large as the system lets a window be.
// Parts that are missing or no numbers count as 0. A placement without a size, or one whose title
// bar lies on no screen, where nobody could take it, is not used: the form gets its default one,
// inside the primary screen's work area. With restoreState, sets its state from its state entry; a
// stored "minimised" becomes normal, so that the program never starts minimised. Only forms with
// these entries can be placed.
void RestoreWindowPosition(const mAppSpecific& settings, toolkit::Form& form, bool restoreState);
// Writes what RestoreWindowPosition reads. The placement is written for a form in its normal state
// only: otherwise the file keeps the last normal one.
void SaveWindowPosition(mAppSpecific& settings, const toolkit::Form& form, bool saveState);

}  // namespace ordalyn
