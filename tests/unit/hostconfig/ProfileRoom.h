// A profile over files in memory, with a few words for what its tests do.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "hostconfig/cProfile.h"
#include "hostconfig/mAppCommon.h"
#include "support/platform/MemoryPlatform.h"

namespace ordalyn::test {

inline constexpr std::string_view kOwnFile = "C:\\Ordalyn\\Ordalyn.ini";
inline constexpr std::string_view kWincmd = "C:\\tc\\wincmd.ini";

// The profile's unredirected operations.
struct ProfileInternals {
    static void WriteRawValue(cProfile& profile, std::string_view section, std::string_view key,
                              std::string_view value, std::string_view file, bool addQuotation) {
        profile.WriteRawValue(section, key, value, file, addQuotation);
    }
};

struct ProfileRoom {
    ProfileRoom() {
        system.files.AddFolder("C:\\Ordalyn");
        system.files.AddFolder("C:\\tc");
    }

    // The profile is made at the first use, when the files are there.
    cProfile& Profile() {
        if (!profile_)
            profile_.emplace(system.services, common);
        return *profile_;
    }
    std::string Read(std::string_view section, std::string_view key) {
        return Profile().ReadValue(section, key, "default", kWincmd).value_or("");
    }
    std::string Text(std::string_view file) const {
        return system.files.Get(file).value_or("(no file)");
    }

    MemoryPlatform system;
    mAppCommon common{system.services};

  private:
    std::optional<cProfile> profile_;
};

}  // namespace ordalyn::test
