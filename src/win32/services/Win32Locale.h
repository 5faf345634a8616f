// Dates in the user's ways.
#pragma once

#include "platform/Platform.h"

namespace ordalyn::platform::win32 {

class Win32Locale : public Locale {
  public:
    std::optional<std::string> LongDate(std::string_view text) override;
};

}  // namespace ordalyn::platform::win32
