#include "win32/forms/RunProgram.h"

#include "win32/forms/Win32Toolkit.h"

namespace ordalyn::win32 {

int RunProgram(HINSTANCE instance, const std::function<void(toolkit::Toolkit&)>& program) noexcept {
    // Not the toolkit's own handler: creating the toolkit may be what fails.
    return LastHandler().Run(kProgramFailed, [&] {
        Win32Toolkit toolkit(instance);
        program(toolkit);
        return 0;
    });
}

}  // namespace ordalyn::win32
