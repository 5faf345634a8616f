// Paths for the system's file calls.
#pragma once

#include <string>
#include <string_view>

namespace ordalyn::win32 {

// A path that is too long for the calls' ordinary form gets the prefix that lifts the limit.
std::wstring ToPath(std::string_view path);
// The same as a full path; the text itself when the system cannot make one of it.
std::wstring ToFullPath(std::string_view path);

}  // namespace ordalyn::win32
