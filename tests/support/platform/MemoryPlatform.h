// All services in memory, ready to be handed to the program's parts:
//
//     MemoryPlatform system;
//     system.files.Set("C:\\tc\\wincmd.ini", "[Configuration]\r\nLogFile=%TEMP%\\tc.log\r\n");
//     system.environment.SetVariable("TEMP", "C:\\Temp");
//     cProfile profile(system.services, ...);
#pragma once

#include "platform/Platform.h"
#include "support/platform/MemoryCodePages.h"
#include "support/platform/MemoryFiles.h"
#include "support/platform/MemoryProfile.h"
#include "support/platform/MemoryRegistry.h"
#include "support/platform/MemoryUserServices.h"

namespace ordalyn::test {

struct MemoryPlatform {
    MemoryPlatform();
    MemoryPlatform(const MemoryPlatform&) = delete;
    MemoryPlatform& operator=(const MemoryPlatform&) = delete;

    MemoryCodePages codePages;
    MemoryFiles files;
    MemoryProfile ansiProfile;
    MemoryProfile unicodeProfile;
    MemoryEnvironment environment;
    MemoryLocale locale;
    MemoryShell shell;
    MemoryClipboard clipboard;
    MemoryRegistry registry;
    MemoryDialogs dialogs;
    platform::Services services;
};

}  // namespace ordalyn::test
