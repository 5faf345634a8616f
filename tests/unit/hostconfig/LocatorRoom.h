// A locator with everything around it, in memory: the program in C:\Ordalyn, Windows in C:\Windows.
#pragma once

#include <string>
#include <string_view>

#include "hostconfig/TotalCommanderLocator.h"
#include "hostconfig/cCommonDialog.h"
#include "hostconfig/cProfile.h"
#include "hostconfig/cRegistry.h"
#include "hostconfig/mAppCommon.h"
#include "support/platform/MemoryPlatform.h"
#include "support/toolkit/MemoryToolkit.h"

namespace ordalyn::test {

struct LocatorRoom {
    static constexpr std::string_view kOwnFile = "C:\\Ordalyn\\Ordalyn.ini";
    static constexpr toolkit::FormDesign kDesign = {
        "frmMain", "", {6000, 4000}, {}, std::span<const toolkit::ControlDesign>()};

    LocatorRoom() {
        system.files.AddFolder("C:\\Ordalyn");
        system.files.AddFolder("C:\\Windows");
        system.environment.SetVariable("windir", "C:\\Windows");
    }

    void Register(std::uint32_t root, std::string_view name, std::string_view text) {
        system.registry.SetString(root, "Software\\Ghisler\\Total Commander", name, text);
    }
    void Remember(std::string_view key, std::string_view value) {
        profile.WriteValue("Common", key, value, kOwnFile);
    }
    // An entry of [Common] of the program's settings file; "(absent)" when there is none.
    std::string Remembered(std::string_view key) {
        return profile.ReadValue("Common", key, "(absent)", kOwnFile).value_or("");
    }
    // Neither the message nor the dialog was shown.
    bool AskedNothing() const {
        return kit.messages.empty() && system.dialogs.openRequests.empty();
    }

    static constexpr std::uint32_t kUser = MemoryRegistry::kCurrentUser;
    static constexpr std::uint32_t kMachine = MemoryRegistry::kLocalMachine;

    MemoryPlatform system;
    MemoryToolkit kit;
    mAppCommon common{system.services};
    cRegistry registry{system.services, common};
    cCommonDialog dialog{system.services, common, registry,
                         [](std::int32_t id) { return "text " + std::to_string(id); }};
    cProfile profile{system.services, common};
    toolkit::Form form{kit, kDesign};
    TotalCommanderLocator locator{{common, registry, profile, dialog, system.environment, kit,
                                   &form,
                                   [](std::int32_t id) { return "text " + std::to_string(id); }}};
};

}  // namespace ordalyn::test
