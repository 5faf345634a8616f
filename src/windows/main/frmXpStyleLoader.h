// frmXpStyleLoader: the window that comes before anything else is shown, and that shows the main
// window. It is never seen.
#pragma once

#include "toolkit/Form.h"

namespace ordalyn {

class frmXpStyleLoader : public toolkit::Form {
  public:
    // Moves itself off every screen, shows the main window, not modal, and hides itself.
    frmXpStyleLoader(toolkit::Toolkit& toolkit, toolkit::Form& mainWindow);
};

}  // namespace ordalyn
