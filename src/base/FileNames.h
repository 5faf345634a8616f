// Parts of a path or file name.
#pragma once

#include <string>
#include <string_view>

namespace ordalyn {

// What stands behind the last "\"; the whole path when it has none.
std::string GetFileName(std::string_view path);
// What stands before and including the last "\"; empty when the path has none.
std::string GetFilePath(std::string_view path);
// What stands before the last "."; the whole name when it has none.
std::string GetFileBaseName(std::string_view fileName);
// What stands behind the last "."; empty when the name has none.
std::string GetFileExtension(std::string_view fileName);

// What a path that says all of its way begins with: a drive ("C:" and a backslash), two backslashes
// and a server of the network, or three, and then what only the file manager knows. Names for the
// system's calls, which begin with "?" or "." behind two backslashes, are none of these.
enum class PathForm { None, Drive, Network, Plugin };
PathForm FormOfPath(std::string_view path);
// Whether it holds a sign that no path has, but that means something in a command or in an address.
// Plugins have names of their own, in which fewer signs are foreign.
bool HasForeignSign(std::string_view path);
// Without the backslashes at its end; that of a drive's root stays.
std::string_view WithoutEndingBackslash(std::string_view path);

}  // namespace ordalyn
