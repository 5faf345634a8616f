// Text between the program's UTF-8 and the system's UTF-16 or bytes in a code page.
#pragma once

#include <string>
#include <string_view>

#include "win32/common/Win32.h"

namespace ordalyn::win32 {

std::wstring ToWide(std::string_view text);
std::string FromWide(std::wstring_view text);

// For texts that the system shows: it takes U+0000 for the end, so that it becomes a blank.
std::wstring WideForDisplay(std::string_view text);
// For menus and status bars, where a tab and the like are orders: what stands behind one is shown
// as the keys of a menu item, or in the middle of a panel. Here they are blanks.
std::wstring WideForOneLine(std::string_view text);

std::string TextOf(HWND window);

// Bytes in a code page, converted as the system's 8-bit calls convert them: what the code page
// cannot hold becomes its default character.
std::wstring Decode(std::string_view bytes, UINT codePage);
std::string Encode(std::wstring_view text, UINT codePage);

}  // namespace ordalyn::win32
