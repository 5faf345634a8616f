// The version as text.
#pragma once

#include <string>
#include <string_view>

#include "windows/about/Publisher.h"

namespace ordalyn {

struct VersionNumbers {
    int major = publisher::kMajor;
    int minor = publisher::kMinor;
    int revision = publisher::kRevision;
};

// Major, a point, minor and revision WITHOUT anything between them, then the suffix: 1, 2 and 3
// give "1.23", as the program has always shown its version.
std::string GetVersionText(std::string_view suffix, const VersionNumbers& numbers = {});

}  // namespace ordalyn
