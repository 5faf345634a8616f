// HelpCommands: the help as the program offers it: Help > Help Topics opens it at its start, F1 at
// the page on the window, or on the message, that it is pressed in.
#pragma once

#include "windows/about/Help.h"
#include "windows/common/SharedObjects.h"

namespace ordalyn {

class HelpCommands {
  public:
    HelpCommands(SharedObjects& shared, toolkit::Form& mainWindow);
    ~HelpCommands();
    HelpCommands(const HelpCommands&) = delete;
    HelpCommands& operator=(const HelpCommands&) = delete;

    void ShowTopics();

  private:
    HelpSurroundings Around();

    SharedObjects& shared_;
    toolkit::Form& mainWindow_;
};

}  // namespace ordalyn
