// Paths as the log has them, compared as Windows compares them: letter case and a backslash at the
// end make no difference. "/" is a character like any other.
#pragma once

#include <string>
#include <string_view>

namespace ordalyn {

// The path without the backslashes at its end, so that a folder has one name.
std::string_view WithoutLastBackslash(std::string_view path);

// What is equal for two paths exactly when they mean the same. Empty for a bare name, which says
// nothing about its folder, and for no path at all: these are never compared.
std::string PathKey(std::string_view path);

// The place behind the end of the folder that a path lies in; 0 when there is none to be named.
std::size_t FolderEnd(std::string_view path);

// Where a path is when a folder above it is moved or copied: `below` is what stands behind the
// folder in the path's key, with the backslash.
std::string InOtherFolder(std::string_view path, std::string_view below, std::string_view folder);

}  // namespace ordalyn
