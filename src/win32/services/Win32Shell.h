// Opening documents.
#pragma once

#include "platform/Platform.h"

namespace ordalyn::platform::win32 {

class Win32Shell : public Shell {
  public:
    void Open(WindowHandle owner, std::string_view target) override;
};

}  // namespace ordalyn::platform::win32
