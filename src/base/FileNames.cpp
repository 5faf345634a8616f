#include "base/FileNames.h"

#include <algorithm>

namespace ordalyn {

std::string GetFileName(std::string_view path) {
    const std::size_t slash = path.rfind('\\');
    return std::string(slash == std::string_view::npos ? path : path.substr(slash + 1));
}

std::string GetFilePath(std::string_view path) {
    const std::size_t slash = path.rfind('\\');
    return std::string(slash == std::string_view::npos ? "" : path.substr(0, slash + 1));
}

std::string GetFileBaseName(std::string_view fileName) {
    return std::string(fileName.substr(0, fileName.rfind('.')));
}

std::string GetFileExtension(std::string_view fileName) {
    const std::size_t dot = fileName.rfind('.');
    return std::string(dot == std::string_view::npos ? "" : fileName.substr(dot + 1));
}

PathForm FormOfPath(std::string_view path) {
    constexpr std::size_t kDrive = 3;
    if (path.size() >= kDrive && path[1] == ':' && path[2] == '\\') {
        const char letter = path[0];
        const bool isLetter = (letter >= 'A' && letter <= 'Z') || (letter >= 'a' && letter <= 'z');
        return isLetter ? PathForm::Drive : PathForm::None;
    }
    if (path.starts_with("\\\\\\"))
        return PathForm::Plugin;
    const bool network = path.starts_with("\\\\") && path.size() > 2;
    return network && path[2] != '?' && path[2] != '.' ? PathForm::Network : PathForm::None;
}

// ":" is one behind the drive, where it names a part of a file.
bool HasForeignSign(std::string_view path) {
    const bool plugin = FormOfPath(path) == PathForm::Plugin;
    const std::string_view foreign = plugin ? "\"" : "\"<>|*?/";
    return (!plugin && path.find(':', 2) != std::string_view::npos) ||
           std::any_of(path.begin(), path.end(), [&](char sign) {
               return static_cast<unsigned char>(sign) < ' ' ||
                      foreign.find(sign) != std::string_view::npos;
           });
}

std::string_view WithoutEndingBackslash(std::string_view path) {
    const std::size_t root = FormOfPath(path) == PathForm::Drive ? 3 : 0;
    while (path.size() > root && path.back() == '\\')
        path.remove_suffix(1);
    return path;
}

}  // namespace ordalyn
