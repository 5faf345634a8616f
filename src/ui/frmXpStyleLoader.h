// frmXpStyleLoader: the window that the start shows before anything else, so that the system's
// visual styles are loaded when the main window makes its controls. It is never seen.
#pragma once

#include "toolkit/Form.h"

namespace ordalyn {

class frmXpStyleLoader : public toolkit::Form {
  public:
    // Moves itself off every screen, shows the main window, not modal, and hides itself.
    frmXpStyleLoader(toolkit::Toolkit& toolkit, toolkit::Form& mainWindow);
};

}  // namespace ordalyn
