// The clipboard.
#pragma once

#include "platform/Platform.h"

namespace ordalyn::platform::win32 {

class Win32Clipboard : public Clipboard {
  public:
    bool Clear() override;
    bool SetText(std::string_view text) override;
};

}  // namespace ordalyn::platform::win32
