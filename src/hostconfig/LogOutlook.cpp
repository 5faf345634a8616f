#include "hostconfig/LogOutlook.h"

#include <string_view>

#include "base/Attempt.h"
#include "base/FileNames.h"
#include "base/Text.h"
#include "hostconfig/TotalCommanderLocator.h"
#include "hostconfig/cProfile.h"
#include "hostconfig/mAppCommon.h"

namespace ordalyn {

namespace {

// What may stand in a log before its first line: the mark of its encoding.
constexpr std::uint64_t kOnlyAMark = kUtf8Mark.size();
// LogOptions is a sum, in which this says that a log is written. Absent, it is the sum that has all
// operations and not this.
constexpr std::int32_t kLoggingOn = 1;
constexpr std::string_view kDefaultLogOptions = "7198";

class Outlook {
  public:
    Outlook(const TotalCommanderLocator& locator, const mAppCommon& common, cProfile& profile,
            const platform::Services& services)
        : locator_(locator),
          common_(common),
          profile_(profile),
          files_(services.files),
          environment_(services.environment) {}

    LogOutlook Look() const {
        const cProfile::Look together(profile_);
        std::string given = TotalCommanderLocator::LogOfCommandLine(environment_);
        if (!given.empty())
            return {OfFile(given).value_or(LogState::NoSuchFile), given};
        if (!SettingsAreKnown())
            return {common_.IsNoValue(common_.CommanderFolder()) ? LogState::NoFileManager
                                                                 : LogState::NoSettings,
                    ""};
        const std::string path = LogPath();
        if (path.empty())
            return {LogState::NotLogging, ""};
        const std::optional<LogState> there = OfFile(path);
        if (there == LogState::Unreadable)
            return {*there, path};
        if (!IsLogging())
            return {LogState::NotLogging, path};
        return {there.value_or(FolderIsThere(path) ? LogState::NotYetThere : LogState::NoFolder),
                path};
    }

  private:
    // Nothing when there is no such file. A folder has no size.
    std::optional<LogState> OfFile(const std::string& path) const {
        const std::optional<std::uint64_t> size = files_.SizeNow(path);
        if (!size)
            return common_.FileExists(path) ? std::optional(LogState::Unreadable) : std::nullopt;
        return *size > kOnlyAMark ? LogState::Unreadable : LogState::Empty;
    }

    // The one that the program has made itself, because the user had none, says nothing.
    bool SettingsAreKnown() const {
        const std::string& ini = common_.CommanderIni();
        return !ini.empty() && !common_.IsNoValue(ini) && common_.FileExists(ini) &&
               !TotalCommanderLocator::IsFreshIni(profile_, ini);
    }

    // Where it is, or else where it will be.
    std::string LogPath() const {
        std::string path = common_.ExpandPath(
            profile_.ReadValue(kConfigurationSection, "LogFile", "", common_.CommanderIni())
                .value_or(""));
        if (path.empty())
            return path;
        const std::string found = locator_.FindLogFile();
        return common_.FileExists(found) ? found : path;
    }

    bool IsLogging() const {
        const std::string sum = profile_
                                    .ReadValue(kConfigurationSection, "LogOptions",
                                               kDefaultLogOptions, common_.CommanderIni())
                                    .value_or("");
        std::int32_t bits = 0;
        Attempt([&] { bits = ToLong(sum); });
        return (bits & kLoggingOn) != 0;
    }

    // Nobody knows in which folder a bare name will be. The root of a drive or of a share is no
    // name that can be looked for; what is in it is.
    bool FolderIsThere(const std::string& path) const {
        const std::string folder = GetFilePath(path);
        if (folder.empty())
            return true;
        const platform::DriveKind drive = files_.DriveOf(path);
        if (drive == platform::DriveKind::None)
            return false;
        const std::string_view name = WithoutEndingBackslash(folder);
        return (name.ends_with('\\') && drive == platform::DriveKind::Fixed) ||
               files_.Exists(name) || files_.Exists(folder + "*");
    }

    const TotalCommanderLocator& locator_;
    const mAppCommon& common_;
    cProfile& profile_;
    platform::Files& files_;
    platform::Environment& environment_;
};

}  // namespace

LogOutlook LookForLog(const TotalCommanderLocator& locator, const mAppCommon& common,
                      cProfile& profile, const platform::Services& services) {
    return Outlook(locator, common, profile, services).Look();
}

}  // namespace ordalyn
