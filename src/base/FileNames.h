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

}  // namespace ordalyn
