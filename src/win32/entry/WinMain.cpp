// The entry point on Windows: brings the program, the system's services and its windows together.
//
// The rooms of Windows come last: the system's header makes macros of names that the program uses.
#include "app/Program.h"

#include "win32/forms/Win32Toolkit.h"
#include "win32/services/Win32Services.h"

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, PWSTR, int) {
    const ordalyn::win32::Win32Services services;
    ordalyn::win32::Win32Toolkit toolkit(instance);
    ordalyn::Program(services.All(), toolkit).Run();
    return 0;
}
