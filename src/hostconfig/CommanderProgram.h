// Which program the file manager is.
#pragma once

#include <string>

#include "hostconfig/mAppCommon.h"
#include "platform/Platform.h"

namespace ordalyn {

// Full path of the file manager's program in the folder that was found for it: the one of 64 bits
// where this system can run it, otherwise the one of 32. Empty when neither is there.
std::string FindCommanderProgram(const mAppCommon& common, const platform::Services& services);

}  // namespace ordalyn
