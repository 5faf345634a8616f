#include "platform/ShellTarget.h"

#include <algorithm>

#include "base/Errors.h"
#include "base/FileNames.h"
#include "base/Text.h"

namespace ordalyn::platform {

namespace {

bool IsFullPath(std::string_view path) {
    const bool ofDrive = path.size() > 3 && path[1] == ':' && path[2] == '\\';
    return ofDrive || path.starts_with("\\\\");
}

// Signs that no path has, but that mean something in a command or in an address; ":" is one behind
// the drive, where it names a part of a file.
bool HasForeignSign(std::string_view path) {
    constexpr std::string_view kForeign = "\"<>|*?/";
    return path.find(':', 2) != std::string_view::npos ||
           std::any_of(path.begin(), path.end(), [&](char sign) {
               return static_cast<unsigned char>(sign) < ' ' ||
                      kForeign.find(sign) != std::string_view::npos;
           });
}

}  // namespace

ShellTarget ShellTarget::HelpFile(std::string_view path) {
    // Before a path that may be longer than the system's ordinary limit.
    constexpr std::string_view kLong = "\\\\?\\";
    const std::string_view plain = path.starts_with(kLong) ? path.substr(kLong.size()) : path;
    if (!IsFullPath(plain) || HasForeignSign(plain) ||
        !EqualsIgnoreCase(GetFileExtension(GetFileName(path)), "chm"))
        throw InvalidPropertyValue("help file");
    return ShellTarget(path);
}

}  // namespace ordalyn::platform
