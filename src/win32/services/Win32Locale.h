// Dates in the user's ways.
#pragma once

#include "platform/Platform.h"

namespace ordalyn::win32 {

class Win32Locale : public platform::Locale {
  public:
    std::optional<std::string> LongDate(std::string_view text) override;
};

}  // namespace ordalyn::win32
