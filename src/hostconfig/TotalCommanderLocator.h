// TotalCommanderLocator: finds the file manager's folder, its settings file and the log that the
// settings file names. The searches run once, when the main window first becomes active: the folder
// first, then the settings file, then the log, each building on the ones before. What they find is
// kept in mAppCommon; what helps the next start is kept in the program's settings file.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "hostconfig/SettingsFileQuestion.h"
#include "platform/Platform.h"

namespace ordalyn {

class cProfile;
class cRegistry;
class mAppCommon;

// Lets paths that begin with %Commander_Path% be read before the folder has been looked for: it is
// the one that was found last.
void ProvideRememberedCommanderFolder(mAppCommon& common, cProfile& profile);

class TotalCommanderLocator {
  public:
    struct Surroundings {
        mAppCommon& common;
        const cRegistry& registry;
        cProfile& profile;
        SettingsFileQuestion& question;
        platform::Environment& environment;
    };

    // Entries of the common section of the program's settings file: the folder that was found last
    // and the settings file that the user has chosen.
    static constexpr std::string_view kFolderKey = "TCInstallDir";
    static constexpr std::string_view kIniKey = "UserDefinedWincmd";

    explicit TotalCommanderLocator(const Surroundings& around);

    // The folder with a trailing backslash, or the marker of absent values. Whether it exists is
    // not looked at. A folder from the environment or the registry is remembered for the next
    // start; an empty one of the registry or of memory is none. Afterwards %Commander_Path% is the
    // folder's, but the search takes it as it was when the program was started: what was
    // remembered then does not hide what the registry says now.
    std::string FindCommanderFolder();

    // The path of the settings file. When it is nowhere to be found the user is asked for it; a
    // user who cancels gets the one in the Windows folder, a fresh one when there is none; a file
    // that exists is never written, and one that cannot be made is not remembered. Whatever events
    // can change may have changed on return in that case. The marker of absent values when the
    // program has ended meanwhile.
    std::string FindCommanderIni();

    // The user wants to choose the settings file; returns whether one was chosen, which is
    // remembered then. One who cancels changes nothing. A file manager that nobody has found and
    // whose program stands beside the file is found with it: its settings name the log by its
    // folder. Whatever events can change may have changed on return.
    bool ChooseCommanderIni();

    // The log of the command line, else the one that the settings file names; as it is, or in the
    // folder of the variable "temp" or "tmp" when only there is such a file. Nothing says that the
    // answer exists.
    std::string FindLogFile() const;
    // The file that the program was started with; empty when there was none.
    static std::string LogOfCommandLine(platform::Environment& environment);
    // Whether all that the file says is what FindCommanderIni writes into a fresh one.
    static bool IsFreshIni(cProfile& profile, std::string_view path);

    // The existing file that a path of the registry means: with ".\" it lies in the file manager's
    // folder, else, unless it begins with a drive, in the Windows folder. The marker of absent
    // values when there is none; network paths do not count as full paths and give that too.
    std::string MakeAbsolutePath(std::string_view path) const;

  private:
    std::string SearchFolder();
    std::string SearchIni();
    std::string AskForIni();
    std::string TakeChosenIni(const std::string& path) const;
    void FindFolderBeside(std::string_view ini) const;
    std::string MakeFreshIni();
    std::optional<std::string> FolderInRegistry(std::string_view path) const;
    std::string ReadCommonEntry(std::string_view key) const;
    void WriteCommonEntry(std::string_view key, std::string_view value) const;
    // The path of a file in the folder that an environment variable names.
    std::string InFolderOf(std::string_view variable, std::string_view file) const;

    Surroundings around_;
};

}  // namespace ordalyn
