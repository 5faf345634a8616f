// The version as text.
#pragma once

#include <string>
#include <string_view>

namespace ordalyn {

struct VersionNumbers {
    int major;
    int minor;
    int revision;
};

// The program's own version: that of the project in the CMakeLists.txt of the whole, which the
// version resource and the manifest also take theirs from.
VersionNumbers ProgramVersion();

// Major, a point, minor and revision WITHOUT anything between them, then the suffix: 1, 2 and 3
// give "1.23", as the program has always shown its version.
std::string GetVersionText(std::string_view suffix,
                           const VersionNumbers& numbers = ProgramVersion());

}  // namespace ordalyn
