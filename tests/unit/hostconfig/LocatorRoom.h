// A locator with everything around it, in memory: the program in C:\Ordalyn, Windows in C:\Windows.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "hostconfig/TotalCommanderLocator.h"
#include "hostconfig/cProfile.h"
#include "hostconfig/cRegistry.h"
#include "hostconfig/mAppCommon.h"
#include "support/platform/MemoryPlatform.h"

namespace ordalyn::test {

// A user who cancels unless a test says otherwise.
class ScriptedUser : public SettingsFileQuestion {
  public:
    Answer AskForSettingsFile(const std::string& startFolder) override {
        askedIn.push_back(startFolder);
        return answer;
    }

    Answer ChooseSettingsFile(const std::string& startFolder) override {
        choseIn.push_back(startFolder);
        return answer;
    }

    Answer answer{Outcome::Cancelled, ""};
    std::vector<std::string> askedIn;
    std::vector<std::string> choseIn;
};

struct LocatorRoom {
    static constexpr std::string_view kOwnFile = "C:\\Ordalyn\\Ordalyn.ini";

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
    bool AskedNothing() const { return user.askedIn.empty(); }

    static constexpr std::uint32_t kUser = MemoryRegistry::kCurrentUser;
    static constexpr std::uint32_t kMachine = MemoryRegistry::kLocalMachine;

    MemoryPlatform system;
    mAppCommon common{system.services};
    cRegistry registry{system.services, common};
    cProfile profile{system.services, common};
    ScriptedUser user;
    TotalCommanderLocator locator{{common, registry, profile, user, system.environment}};
};

}  // namespace ordalyn::test
