#include "hostconfig/mAppCommon.h"

#include <cstddef>

#include "base/Attempt.h"
#include "base/Text.h"
#include "hostconfig/SettingsPlace.h"

namespace ordalyn {

namespace {

constexpr std::string_view kProgramPrefix = "velmordane:\\";
constexpr std::string_view kCommanderPrefix = "%Commander_Path%\\";
constexpr std::string_view kCommanderVariable = "Commander_Path";

std::string Digits(int number, std::size_t width) {
    const std::string text = std::to_string(number);
    return text.size() < width ? std::string(width - text.size(), '0') + text : text;
}

std::string MakeMarker(const platform::LocalTime& time) {
    return "vxz" + Digits(time.year, 4) + Digits(time.month, 2) + Digits(time.day, 2) +
           Digits(time.hour, 2) + Digits(time.minute, 2) + Digits(time.second, 2) + "zxv";
}

// What follows a beginning that was found ignoring case. Counted in characters: a letter's other
// case can take another number of bytes.
std::string_view Behind(std::string_view prefix, std::string_view path) {
    return path.substr(FirstCharacters(path, CharacterCount(prefix)).size());
}

}  // namespace

mAppCommon::mAppCommon(const platform::Services& services)
    : environment_(services.environment),
      files_(services.files),
      programFolder_(AddBackslash(FolderPart(environment_.ProgramPath()))),
      settingsFile_(PlaceOfSettings(services, programFolder_)),
      noValueMarker_(MakeMarker(environment_.Now())),
      commanderFolder_(noValueMarker_) {}

bool mAppCommon::IsNoValue(std::string_view text) const {
    return EqualsIgnoreCase(text, noValueMarker_);
}

void mAppCommon::ProvideCommanderVariable(std::string_view folder) {
    WithdrawCommanderVariable();
    if (folder.empty() || IsNoValue(folder) || !environment_.Variable(kCommanderVariable).empty())
        return;
    // Like the file manager's own: paths go on with a backslash behind it.
    environment_.SetVariable(kCommanderVariable,
                             folder.back() == '\\' ? WithoutLastCharacter(folder) : folder);
    variableProvided_ = true;
}

void mAppCommon::WithdrawCommanderVariable() {
    if (variableProvided_)
        environment_.SetVariable(kCommanderVariable, "");
    variableProvided_ = false;
}

std::string mAppCommon::ExpandPath(std::string_view path) const {
    if (path.empty())
        return {};
    if (StartsWithIgnoreCase(path, kProgramPrefix))
        return programFolder_ + std::string(Behind(kProgramPrefix, path));
    std::string expanded(path);
    Attempt([&] { expanded = ExpandVariables(path); });
    std::erase(expanded, '\0');
    return expanded;
}

// The system expands what stands between the folders; it takes the percent signs in pairs, too,
// from the left.
std::string mAppCommon::ExpandVariables(std::string_view path) const {
    std::string expanded;
    std::size_t behindFolder = 0;
    std::size_t open = path.find('%');
    while (open != std::string_view::npos) {
        const std::size_t close = path.find('%', open + 1);
        if (close == std::string_view::npos)
            break;
        const std::string_view name = path.substr(open + 1, close - open - 1);
        const std::string folder =
            name.starts_with('$') ? environment_.SpecialFolder(name.substr(1)) : std::string();
        if (!folder.empty()) {
            expanded += environment_.Expand(path.substr(behindFolder, open - behindFolder));
            expanded += folder;
            behindFolder = close + 1;
        }
        open = path.find('%', close + 1);
    }
    return expanded + environment_.Expand(path.substr(behindFolder));
}

std::string mAppCommon::UnExpandPath(std::string_view path) const {
    if (path.empty())
        return {};
    if ((unExpandPaths_ & kUnExpandProgramFolder) != 0 &&
        StartsWithIgnoreCase(path, programFolder_))
        return std::string(kProgramPrefix).append(Behind(programFolder_, path));
    // A folder that is not known is no beginning of anything, not even of the marker itself: a
    // value that is absent must stay recognisable, or it would be written.
    if ((unExpandPaths_ & kUnExpandCommanderFolder) != 0 && !IsNoValue(commanderFolder_) &&
        StartsWithIgnoreCase(path, commanderFolder_))
        return std::string(kCommanderPrefix).append(Behind(commanderFolder_, path));
    return std::string(path);
}

bool mAppCommon::FileExists(std::string_view path) const {
    bool exists = false;
    Attempt([&] { exists = files_.Exists(path); });
    return exists;
}

std::string mAppCommon::AddBackslash(std::string_view text) {
    std::string folder(text);
    if (folder.empty() || folder.back() != '\\')
        folder += '\\';
    return folder;
}

std::string mAppCommon::FolderPart(std::string_view path) {
    const std::size_t last = path.rfind('\\');
    return std::string(last == std::string_view::npos ? "" : path.substr(0, last + 1));
}

}  // namespace ordalyn
