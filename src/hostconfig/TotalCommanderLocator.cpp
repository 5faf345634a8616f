#include "hostconfig/TotalCommanderLocator.h"

#include <algorithm>
#include <iterator>

#include "base/FileNames.h"
#include "base/Text.h"
#include "hostconfig/cProfile.h"
#include "hostconfig/cRegistry.h"
#include "hostconfig/mAppCommon.h"

namespace ordalyn {

namespace {

constexpr std::string_view kRegistryPlaces[] = {
    "HKEY_CURRENT_USER\\Software\\Ghisler\\Total Commander",
    "HKEY_LOCAL_MACHINE\\Software\\Ghisler\\Total Commander",
};

// Whether the text goes on with `part` behind its first `count` characters.
bool HasBehind(std::string_view text, std::size_t count, std::string_view part) {
    return text.substr(FirstCharacters(text, count).size()).substr(0, part.size()) == part;
}

// What a fresh settings file is given, so that it is one.
struct FreshEntry {
    std::string_view key;
    std::string_view value;
};
constexpr FreshEntry kFreshEntries[] = {{"firstmnu", "512"}, {"PanelsVertical", "0"}};

std::string_view WithoutEnclosingQuotes(std::string_view text) {
    if (text.empty() || text.front() != '"' || text.back() != '"')
        return text;
    text.remove_prefix(1);
    return WithoutLastCharacter(text);
}

// A path of the common section of the program's settings file.
std::string ReadCommon(const mAppCommon& common, cProfile& profile, std::string_view key) {
    return common.ExpandPath(
        profile.ReadValue(kCommonSection, key, common.NoValueMarker(), common.SettingsFile())
            .value_or(""));
}

}  // namespace

void ProvideRememberedCommanderFolder(mAppCommon& common, cProfile& profile) {
    common.ProvideCommanderVariable(ReadCommon(common, profile, TotalCommanderLocator::kFolderKey));
}

TotalCommanderLocator::TotalCommanderLocator(const Surroundings& around) : around_(around) {}

std::string TotalCommanderLocator::FindCommanderFolder() {
    around_.common.WithdrawCommanderVariable();
    std::string folder = SearchFolder();
    around_.common.SetCommanderFolder(folder);
    around_.common.ProvideCommanderVariable(folder);
    return folder;
}

std::string TotalCommanderLocator::FindCommanderIni() {
    std::string path = SearchIni();
    around_.common.SetCommanderIni(path);
    return path;
}

bool TotalCommanderLocator::ChooseCommanderIni() {
    const SettingsFileQuestion::Answer answer =
        around_.question.ChooseSettingsFile(around_.common.CommanderFolder());
    if (answer.outcome != SettingsFileQuestion::Outcome::Chosen)
        return false;
    FindFolderBeside(answer.path);
    around_.common.SetCommanderIni(TakeChosenIni(answer.path));
    return true;
}

void TotalCommanderLocator::FindFolderBeside(std::string_view ini) const {
    mAppCommon& common = around_.common;
    const std::string folder = mAppCommon::FolderPart(ini);
    if (!common.IsNoValue(common.CommanderFolder()) ||
        (!common.FileExists(folder + "TOTALCMD64.EXE") &&
         !common.FileExists(folder + "TOTALCMD.EXE")))
        return;
    WriteCommonEntry(kFolderKey, WithoutEndingBackslash(folder));
    common.SetCommanderFolder(folder);
    common.ProvideCommanderVariable(folder);
}

std::string TotalCommanderLocator::LogOfCommandLine(platform::Environment& environment) {
    return std::string(WithoutEnclosingQuotes(environment.CommandLine()));
}

std::string TotalCommanderLocator::FindLogFile() const {
    std::string given = LogOfCommandLine(around_.environment);
    if (!given.empty())
        return given;
    const mAppCommon& common = around_.common;
    std::string logFile =
        common.ExpandPath(around_.profile
                              .ReadValue(kConfigurationSection, "LogFile", common.NoValueMarker(),
                                         common.CommanderIni())
                              .value_or(""));
    if (common.FileExists(logFile))
        return logFile;
    std::string inTemp = InFolderOf("temp", logFile);
    return common.FileExists(inTemp) ? inTemp : InFolderOf("tmp", logFile);
}

std::string TotalCommanderLocator::MakeAbsolutePath(std::string_view path) const {
    const mAppCommon& common = around_.common;
    std::string expanded = common.ExpandPath(path);
    if (HasBehind(expanded, 0, ".\\")) {
        std::string candidate = common.ExpandPath(common.CommanderFolder()) + expanded.substr(2);
        if (common.FileExists(candidate))
            return candidate;
    }
    if (HasBehind(expanded, 1, ":\\") && common.FileExists(expanded))
        return expanded;
    std::string candidate = InFolderOf("windir", expanded);
    return common.FileExists(candidate) ? candidate : common.NoValueMarker();
}

std::string TotalCommanderLocator::SearchFolder() {
    const std::string variable = around_.environment.Variable("Commander_Path");
    if (!variable.empty()) {
        WriteCommonEntry(kFolderKey, variable);
        return mAppCommon::AddBackslash(variable);
    }
    for (const std::string_view place : kRegistryPlaces) {
        if (const std::optional<std::string> folder = FolderInRegistry(place)) {
            WriteCommonEntry(kFolderKey, *folder);
            return mAppCommon::AddBackslash(*folder);
        }
    }
    const std::string remembered = ReadCommonEntry(kFolderKey);
    if (remembered.empty() || around_.common.IsNoValue(remembered))
        return around_.common.NoValueMarker();
    return mAppCommon::AddBackslash(remembered);
}

std::optional<std::string> TotalCommanderLocator::FolderInRegistry(std::string_view path) const {
    std::string folder = around_.common.ExpandPath(around_.registry.ReadValue(path, "InstallDir"));
    if (folder.empty() || around_.common.IsNoValue(folder))
        return std::nullopt;
    return folder;
}

std::string TotalCommanderLocator::SearchIni() {
    const mAppCommon& common = around_.common;
    std::string variable = around_.environment.Variable("Commander_INI");
    if (!variable.empty() && common.FileExists(variable))
        return variable;
    for (const std::string_view place : kRegistryPlaces) {
        std::string path = MakeAbsolutePath(around_.registry.ReadValue(place, "IniFileName"));
        if (!common.IsNoValue(path))
            return path;
    }
    std::string remembered = ReadCommonEntry(kIniKey);
    return common.FileExists(remembered) ? remembered : AskForIni();
}

std::string TotalCommanderLocator::AskForIni() {
    const mAppCommon& common = around_.common;
    const SettingsFileQuestion::Answer answer =
        around_.question.AskForSettingsFile(common.CommanderFolder());
    switch (answer.outcome) {
        case SettingsFileQuestion::Outcome::Chosen:
            return TakeChosenIni(answer.path);
        case SettingsFileQuestion::Outcome::Cancelled:
            return MakeFreshIni();
        case SettingsFileQuestion::Outcome::ProgramEnded:
            break;
    }
    return common.NoValueMarker();
}

std::string TotalCommanderLocator::TakeChosenIni(const std::string& path) const {
    const mAppCommon& common = around_.common;
    WriteCommonEntry(kIniKey, common.UnExpandPath(path));
    return common.ExpandPath(path);
}

std::string TotalCommanderLocator::MakeFreshIni() {
    const mAppCommon& common = around_.common;
    std::string path = InFolderOf("windir", "wincmd.ini");
    // One that is there belongs to the file manager.
    if (!common.FileExists(path)) {
        around_.profile.Together([&] {
            for (const FreshEntry& entry : kFreshEntries)
                around_.profile.WriteValue(kConfigurationSection, entry.key, entry.value, path);
        });
    }
    // Not everybody may write there.
    if (common.FileExists(path))
        WriteCommonEntry(kIniKey, common.UnExpandPath(path));
    return path;
}

bool TotalCommanderLocator::IsFreshIni(cProfile& profile, std::string_view path) {
    profile.ReadFileSectionsName(path);
    profile.ReadSectionKeysNameOnly(kConfigurationSection, path);
    constexpr auto kLast = static_cast<std::int32_t>(std::size(kFreshEntries)) - 1;
    return profile.FileSectionsNameLastIndex() == 0 &&
           profile.SectionKeysNameOnlyLastIndex() == kLast &&
           std::all_of(std::begin(kFreshEntries), std::end(kFreshEntries),
                       [&](const FreshEntry& entry) {
                           return profile.ReadValue(kConfigurationSection, entry.key, "", path) ==
                                  entry.value;
                       });
}

std::string TotalCommanderLocator::ReadCommonEntry(std::string_view key) const {
    return ReadCommon(around_.common, around_.profile, key);
}

void TotalCommanderLocator::WriteCommonEntry(std::string_view key, std::string_view value) const {
    around_.profile.WriteValue(kCommonSection, key, value, around_.common.SettingsFile());
}

std::string TotalCommanderLocator::InFolderOf(std::string_view variable,
                                              std::string_view file) const {
    return mAppCommon::AddBackslash(around_.environment.Variable(variable)).append(file);
}

}  // namespace ordalyn
