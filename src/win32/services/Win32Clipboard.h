// The clipboard.
#pragma once

#include "platform/Platform.h"

namespace ordalyn::win32 {

class Win32Clipboard : public platform::Clipboard {
  public:
    bool Clear() override;
    bool SetText(std::string_view text) override;
};

}  // namespace ordalyn::win32
