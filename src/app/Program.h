// Program: one run, from the start to the end.
#pragma once

#include <memory>

#include "windows/common/SharedObjects.h"
#include "windows/main/frmMain.h"
#include "windows/main/frmXpStyleLoader.h"

namespace ordalyn {

class Program {
  public:
    // Makes the shared objects, loads the settings and shows the main window.
    Program(const platform::Services& services, toolkit::Toolkit& toolkit);
    // Ends what Run has not ended.
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    // Handles messages until the main window is closed, then shuts down.
    void Run();

    frmMain& MainWindow() { return *main_; }
    SharedObjects& Shared() { return shared_; }

  private:
    SharedObjects shared_;
    std::unique_ptr<frmMain> main_;
    std::unique_ptr<frmXpStyleLoader> styleLoader_;
};

}  // namespace ordalyn
