// The standard dialogs. While one is open, messages go on reaching the program's windows.
#pragma once

#include "platform/Platform.h"

namespace ordalyn::win32 {

class Win32Dialogs : public platform::Dialogs {
  public:
    std::optional<std::string> OpenFile(const OpenRequest& request) override;
    std::optional<SaveAnswer> SaveFile(const OpenRequest& request) override;
    std::optional<std::uint32_t> ChooseColor(const ColorRequest& request,
                                             std::uint32_t (&customColors)[16]) override;
    std::optional<FontAnswer> ChooseFont(const FontRequest& request) override;
    int LibraryMajorVersion() override;
};

}  // namespace ordalyn::win32
