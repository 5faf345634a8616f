// The entry point on Windows: brings the system's services and windows together.
//
// The system's header comes last: it makes macros of names that the program uses.
#include "platform/win32/entry/Main.h"
#include "platform/win32/services/Win32Services.h"
#include "platform/win32/toolkit/Win32Toolkit.h"

#include <windows.h>

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, PWSTR, int) {
    const ordalyn::platform::win32::Win32Services services;
    ordalyn::win32::Win32Toolkit toolkit(instance);
    ordalyn::Main(services.All(), toolkit);
    return 0;
}
