// Where a program begins that knows nothing of Windows. The entry point of the process calls it;
// the program that is linked with it defines it.
#pragma once

#include "platform/Platform.h"
#include "toolkit/Toolkit.h"

namespace ordalyn {

// Runs the program from its start to its end. Both are there for as long as it runs.
void Main(const platform::Services& services, toolkit::Toolkit& toolkit);

}  // namespace ordalyn
