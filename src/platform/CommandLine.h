// The command line of a Windows process as one text.
#pragma once

#include <string_view>

namespace ordalyn::platform {

// What stands behind the program's own name, as written, blanks at its ends removed. The name ends
// at the first blank or tab that is not inside double quotes.
std::string_view BehindProgramName(std::string_view commandLine);

}  // namespace ordalyn::platform
