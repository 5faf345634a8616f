#include "base/FileNames.h"

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

}  // namespace ordalyn
