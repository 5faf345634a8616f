// Between the program's UTF-8 and the system's UTF-16.
#pragma once

#include <string>
#include <string_view>

#include "win32/common/Win32.h"

namespace ordalyn::win32 {

std::wstring Wide(std::string_view text);
std::string Narrow(std::wstring_view text);

// For texts that a control shows: a control takes U+0000 for the end, so that it becomes a blank.
std::wstring WideForDisplay(std::string_view text);

std::string TextOf(HWND window);

}  // namespace ordalyn::win32
