// The entry point on Windows: brings the program, the system's services and its windows together.
#include "app/Program.h"
#include "win32/common/SystemLibraries.h"
#include "win32/forms/RunProgram.h"
#include "win32/services/Win32Services.h"

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, PWSTR, int) {
    ordalyn::win32::FindLibrariesInSystemFolderOnly();
    return ordalyn::win32::RunProgram(instance, [](ordalyn::toolkit::Toolkit& toolkit) {
        const ordalyn::win32::Win32Services services;
        ordalyn::Program(services.All(), toolkit).Run();
    });
}
