// mAppCommon: the values that are fixed or found once and shared by the whole program, and the
// helpers for paths. Paths that are stored in settings files are written in a symbolic form, so
// that a program on a removable drive finds its files under another drive letter: "velmordane:\",
// a made-up drive that no system has, stands for the program's folder, "%Commander_Path%\" for the
// file manager's.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/Platform.h"

namespace ordalyn {

class mAppCommon {
  public:
    static constexpr std::string_view kProgramTitle = "Ordalyn";
    // Bits of UnExpandPaths.
    static constexpr std::int32_t kUnExpandProgramFolder = 1, kUnExpandCommanderFolder = 2;

    // Takes the program folder and the time for the marker from the environment, once, and decides
    // where the settings are kept for this run (SettingsPlace.h).
    explicit mAppCommon(const platform::Services& services);

    // The folder of the program's executable, with a trailing backslash.
    const std::string& ProgramFolder() const { return programFolder_; }
    // Full path of the program's own settings file.
    const std::string& SettingsFile() const { return settingsFile_; }
    // What reads of settings files and of the registry get for a value that is absent, to tell it
    // from an empty one: "vxz", the time of the program's start as yyyymmddhhnnss, "zxv". It is
    // never written.
    const std::string& NoValueMarker() const { return noValueMarker_; }
    // Whether the text is the marker, in any letter case.
    bool IsNoValue(std::string_view text) const;

    // The file manager's folder with a trailing backslash; the marker before it is known or when it
    // cannot be found.
    const std::string& CommanderFolder() const { return commanderFolder_; }
    void SetCommanderFolder(std::string_view folder) { commanderFolder_ = folder; }
    // The file manager sets %Commander_Path% for the programs that it starts. For a program that
    // was started otherwise this sets it to the folder, so that stored paths that begin with it
    // can be read. A variable that the program was started with stays as it is, and a folder that
    // is empty or the marker is none.
    void ProvideCommanderVariable(std::string_view folder);
    // Takes back what ProvideCommanderVariable has set: the variable is as it was at the start.
    void WithdrawCommanderVariable();
    // Path of the file manager's settings file; empty before it is known.
    const std::string& CommanderIni() const { return commanderIni_; }
    void SetCommanderIni(std::string_view path) { commanderIni_ = path; }
    // Which folders UnExpandPath may replace: a sum of the bits above, both at first.
    std::int32_t UnExpandPaths() const { return unExpandPaths_; }
    void SetUnExpandPaths(std::int32_t bits) { unExpandPaths_ = bits; }

    // The real path behind a stored one: a leading "velmordane:\" (in any letter case) becomes the
    // program folder; in any other path defined environment variables are replaced and undefined
    // ones stay as written. So are the file manager's own variables, the names of the system's
    // folders behind a "$": "%$APPDATA%". A path with the prefix keeps its percent signs.
    std::string ExpandPath(std::string_view path) const;
    // The form in which a path is stored. The program folder is looked for first, so a program
    // inside the file manager's folder gets its own prefix.
    std::string UnExpandPath(std::string_view path) const;
    // Whether there is a file or folder of that name or one that matches its wildcards. A name that
    // ends in a backslash is none.
    bool FileExists(std::string_view path) const;
    // The text with a backslash at its end; a lone backslash for an empty text.
    static std::string AddBackslash(std::string_view text);
    // The path up to and including its last backslash; empty when it has none.
    static std::string FolderPart(std::string_view path);

  private:
    std::string ExpandVariables(std::string_view path) const;

    platform::Environment& environment_;
    platform::Files& files_;
    std::string programFolder_;
    std::string settingsFile_;
    std::string noValueMarker_;
    std::string commanderFolder_;
    std::string commanderIni_;
    bool variableProvided_ = false;
    std::int32_t unExpandPaths_ = kUnExpandProgramFolder | kUnExpandCommanderFolder;
};

}  // namespace ordalyn
