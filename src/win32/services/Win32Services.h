// All services of Windows. One object lives as long as the program:
//
//     Win32Services system;
//     Run(system.All());
#pragma once

#include "platform/Platform.h"
#include "win32/services/Win32Clipboard.h"
#include "win32/services/Win32CodePages.h"
#include "win32/services/Win32Dialogs.h"
#include "win32/services/Win32Environment.h"
#include "win32/services/Win32Files.h"
#include "win32/services/Win32Locale.h"
#include "win32/services/Win32Profile.h"
#include "win32/services/Win32Registry.h"
#include "win32/services/Win32Shell.h"

namespace ordalyn::win32 {

class Win32Services {
  public:
    // For the whole process, a drive without a medium is an error from now on, not a message box.
    Win32Services();
    Win32Services(const Win32Services&) = delete;
    Win32Services& operator=(const Win32Services&) = delete;

    const platform::Services& All() const { return all_; }

  private:
    Win32AnsiProfile ansiProfile_;
    Win32UnicodeProfile unicodeProfile_;
    Win32CodePages codePages_;
    Win32Files files_;
    Win32Environment environment_;
    Win32Locale locale_;
    Win32Shell shell_;
    Win32Clipboard clipboard_;
    Win32Registry registry_;
    Win32Dialogs dialogs_;
    platform::Services all_;
};

}  // namespace ordalyn::win32
