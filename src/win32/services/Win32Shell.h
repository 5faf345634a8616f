// Opening documents, starting the file manager, showing files.
#pragma once

#include "platform/Platform.h"

namespace ordalyn::win32 {

class Win32Shell : public platform::Shell {
  public:
    void Open(platform::WindowHandle owner, const platform::ShellTarget& target) override;
};

}  // namespace ordalyn::win32
