// Text and paths between the program's UTF-8 and the system's UTF-16.
#pragma once

#include <string>
#include <string_view>

namespace ordalyn::platform::win32 {

std::wstring ToWide(std::string_view text);
std::string FromWide(std::wstring_view text);

// Bytes in the system code page, converted as the system's 8-bit calls convert them: what the code
// page cannot hold becomes its default character.
std::wstring AnsiToWide(std::string_view bytes);
std::string WideToAnsi(std::wstring_view text);

// A path for the file calls: one that is too long for their ordinary form gets the prefix that
// lifts the limit.
std::wstring ToPath(std::string_view path);
// The same as a full path; the text itself when the system cannot make one of it.
std::wstring ToFullPath(std::string_view path);

}  // namespace ordalyn::platform::win32
