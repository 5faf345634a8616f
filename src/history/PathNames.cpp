#include "history/PathNames.h"

#include <algorithm>

#include "base/Text.h"
#include "log/Operation.h"

namespace ordalyn {

std::string_view WithoutLastBackslash(std::string_view path) {
    while (path.ends_with('\\'))
        path.remove_suffix(1);
    return path;
}

std::string PathKey(std::string_view path) {
    return IsWholePath(path) ? FoldCase(WithoutLastBackslash(path)) : std::string();
}

std::size_t FolderEnd(std::string_view path) {
    const std::size_t backslash = path.rfind('\\');
    return backslash == std::string_view::npos
               ? 0
               : WithoutLastBackslash(path.substr(0, backslash)).size();
}

// Counted in names: a key need not have as many bytes as its path.
std::string InOtherFolder(std::string_view path, std::string_view below, std::string_view folder) {
    path = WithoutLastBackslash(path);
    std::size_t at = path.size();
    for (auto names = std::count(below.begin(), below.end(), '\\'); names > 0 && at > 0; --names)
        at = path.rfind('\\', at - 1);
    return std::string(WithoutLastBackslash(folder)).append(path.substr(at));
}

}  // namespace ordalyn
