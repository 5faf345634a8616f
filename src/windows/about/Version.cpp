#include "windows/about/Version.h"

namespace ordalyn {

VersionNumbers ProgramVersion() {
    return {ORDALYN_MAJOR, ORDALYN_MINOR, ORDALYN_PATCH};
}

std::string GetVersionText(std::string_view suffix, const VersionNumbers& numbers) {
    return std::to_string(numbers.major) + "." + std::to_string(numbers.minor) +
           std::to_string(numbers.revision) + std::string(suffix);
}

}  // namespace ordalyn
