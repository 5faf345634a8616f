// The settings room over a system in memory. The program lies in C:\Ordalyn\.
#pragma once

#include <gmock/gmock.h>

#include <optional>
#include <string>
#include <string_view>

#include "hostconfig/cProfile.h"
#include "hostconfig/mAppCommon.h"
#include "settings/InterfaceStrings.h"
#include "settings/cDefaultStrings.h"
#include "settings/cRecentFiles.h"
#include "settings/mAppSpecific.h"
#include "support/platform/MemoryPlatform.h"

namespace ordalyn::test {

inline constexpr std::string_view kOwnFile = "C:\\Ordalyn\\Ordalyn.ini";
inline constexpr std::string_view kLanguageFile = "C:\\Ordalyn\\Languages\\other.lng";

// With the program's folder: the profile calls make files but no folders.
struct InstalledPlatform : MemoryPlatform {
    InstalledPlatform() { files.AddFolder("C:\\Ordalyn"); }
};

class SettingsFixture : public testing::Test {
  protected:
    // Writes an entry as the user would with an editor.
    void Put(std::string_view section, std::string_view key, std::string_view value) {
        system.ansiProfile.WriteEntry(section, key, value, kOwnFile);
    }
    // What the own settings file holds; "(absent)" when it lacks the entry.
    std::string Stored(std::string_view section, std::string_view key) {
        return system.ansiProfile.ReadEntry(section, key, "(absent)", kOwnFile, 4096);
    }
    void UseLanguageFile(std::string_view bytes) {
        system.files.Set(kLanguageFile, bytes);
        settings.UseDefaultLanguage = 0;
        settings.LanguageFile = kLanguageFile;
    }

    InstalledPlatform system;
    mAppCommon common{system.services};
    cProfile profile{system.services, common};
    cDefaultStrings defaults;
    mAppSpecific settings{profile, common};
    InterfaceStrings strings{settings, common, profile, system.codePages, defaults};
};

}  // namespace ordalyn::test
