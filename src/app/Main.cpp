#include "platform/win32/entry/Main.h"
#include "app/Program.h"

namespace ordalyn {

void Main(const platform::Services& services, toolkit::Toolkit& toolkit) {
    Program program(services, toolkit);
    program.Run();
}

}  // namespace ordalyn
