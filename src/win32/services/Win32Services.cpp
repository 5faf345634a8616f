#include "win32/services/Win32Services.h"

#include "win32/common/Win32.h"

namespace ordalyn::win32 {

Win32Services::Win32Services()
    : all_{ansiProfile_, unicodeProfile_, codePages_, files_,    environment_,
           locale_,      shell_,          clipboard_, registry_, dialogs_} {
    SetErrorMode(GetErrorMode() | SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX);
}

}  // namespace ordalyn::win32
