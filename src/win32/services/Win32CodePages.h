// Code pages as Windows knows them.
#pragma once

#include "platform/Platform.h"

namespace ordalyn::win32 {

class Win32CodePages : public platform::CodePages {
  public:
    std::string ToUtf8(std::string_view bytes, unsigned codePage) override;
    std::optional<std::string> FromUtf8(std::string_view text, unsigned codePage) override;
    unsigned OfCharacterSet(std::int32_t characterSet) override;
};

}  // namespace ordalyn::win32
