// Where the program's own settings are kept.
#pragma once

#include <string>
#include <string_view>

#include "platform/Platform.h"

namespace ordalyn {

// Full path of the settings file: "Ordalyn.ini" in the program's folder, or, where that cannot be
// written, "Ordalyn\Ordalyn.ini" in the user's %APPDATA%. The latter begins as a copy of the former
// when there is none yet. When that cannot be written or begun either, the one in the program's
// folder is the place, to be read at least.
std::string PlaceOfSettings(const platform::Services& services, std::string_view programFolder);

}  // namespace ordalyn
