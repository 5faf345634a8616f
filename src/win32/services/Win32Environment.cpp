#include "win32/services/Win32Environment.h"

#include <algorithm>
#include <iterator>

#include "base/Text.h"
#include "platform/CommandLine.h"
#include "win32/common/WideText.h"
#include "win32/common/Win32.h"

// needs windows.h before it
#include <shlobj.h>

namespace ordalyn::win32 {

using namespace platform;

namespace {

struct NamedFolder {
    std::string_view name;
    int number;
};

constexpr NamedFolder kFolders[] = {
    {"ADMINTOOLS", CSIDL_ADMINTOOLS},
    {"APPDATA", CSIDL_APPDATA},
    {"COMMON_ADMINTOOLS", CSIDL_COMMON_ADMINTOOLS},
    {"COMMON_APPDATA", CSIDL_COMMON_APPDATA},
    {"COMMON_DESKTOPDIRECTORY", CSIDL_COMMON_DESKTOPDIRECTORY},
    {"COMMON_DOCUMENTS", CSIDL_COMMON_DOCUMENTS},
    {"COMMON_FAVORITES", CSIDL_COMMON_FAVORITES},
    {"COMMON_MUSIC", CSIDL_COMMON_MUSIC},
    {"COMMON_PICTURES", CSIDL_COMMON_PICTURES},
    {"COMMON_PROGRAMS", CSIDL_COMMON_PROGRAMS},
    {"COMMON_STARTMENU", CSIDL_COMMON_STARTMENU},
    {"COMMON_STARTUP", CSIDL_COMMON_STARTUP},
    {"COMMON_TEMPLATES", CSIDL_COMMON_TEMPLATES},
    {"COMMON_VIDEO", CSIDL_COMMON_VIDEO},
    {"COOKIES", CSIDL_COOKIES},
    {"DESKTOP", CSIDL_DESKTOP},
    {"DESKTOPDIRECTORY", CSIDL_DESKTOPDIRECTORY},
    {"FAVORITES", CSIDL_FAVORITES},
    {"FONTS", CSIDL_FONTS},
    {"HISTORY", CSIDL_HISTORY},
    {"INTERNET_CACHE", CSIDL_INTERNET_CACHE},
    {"LOCAL_APPDATA", CSIDL_LOCAL_APPDATA},
    {"MYMUSIC", CSIDL_MYMUSIC},
    {"MYPICTURES", CSIDL_MYPICTURES},
    {"MYVIDEO", CSIDL_MYVIDEO},
    {"NETHOOD", CSIDL_NETHOOD},
    {"PERSONAL", CSIDL_PERSONAL},
    {"PRINTHOOD", CSIDL_PRINTHOOD},
    {"PROFILE", CSIDL_PROFILE},
    {"PROGRAM_FILES", CSIDL_PROGRAM_FILES},
    {"PROGRAM_FILES_COMMON", CSIDL_PROGRAM_FILES_COMMON},
    {"PROGRAMS", CSIDL_PROGRAMS},
    {"RECENT", CSIDL_RECENT},
    {"SENDTO", CSIDL_SENDTO},
    {"STARTMENU", CSIDL_STARTMENU},
    {"STARTUP", CSIDL_STARTUP},
    {"SYSTEM", CSIDL_SYSTEM},
    {"TEMPLATES", CSIDL_TEMPLATES},
    {"WINDOWS", CSIDL_WINDOWS},
};

}  // namespace

std::string Win32Environment::Expand(std::string_view text) {
    const std::wstring source = ToWide(text);
    std::wstring expanded(source.size() + 1, L'\0');
    for (;;) {
        const auto room = static_cast<DWORD>(expanded.size());
        const DWORD needed = ExpandEnvironmentStringsW(source.c_str(), expanded.data(), room);
        if (needed == 0)
            return std::string(text);
        if (needed <= room) {
            expanded.resize(needed - 1);
            return FromWide(expanded);
        }
        expanded.resize(needed);
    }
}

std::string Win32Environment::Variable(std::string_view name) {
    const std::wstring wideName = ToWide(name);
    std::wstring value(256, L'\0');
    for (;;) {
        const auto room = static_cast<DWORD>(value.size());
        const DWORD length = GetEnvironmentVariableW(wideName.c_str(), value.data(), room);
        if (length < room) {
            value.resize(length);
            return FromWide(value);
        }
        value.resize(length);
    }
}

void Win32Environment::SetVariable(std::string_view name, std::string_view value) {
    const std::wstring wideValue = ToWide(value);
    SetEnvironmentVariableW(ToWide(name).c_str(), value.empty() ? nullptr : wideValue.c_str());
}

std::string Win32Environment::SpecialFolder(std::string_view name) {
    const auto* const folder =
        std::find_if(std::begin(kFolders), std::end(kFolders),
                     [&](const NamedFolder& named) { return EqualsIgnoreCase(named.name, name); });
    wchar_t path[MAX_PATH] = {};
    if (folder == std::end(kFolders) ||
        FAILED(SHGetFolderPathW(nullptr, folder->number, nullptr, SHGFP_TYPE_CURRENT, path)))
        return {};
    std::string text = FromWide(path);
    if (!text.empty() && text.back() == '\\')
        text.pop_back();
    return text;
}

std::string Win32Environment::CommandLine() {
    const std::string whole = FromWide(GetCommandLineW());
    return std::string(BehindProgramName(whole));
}

std::string Win32Environment::ProgramPath() {
    std::wstring path(MAX_PATH, L'\0');
    for (;;) {
        const auto room = static_cast<DWORD>(path.size());
        const DWORD length = GetModuleFileNameW(nullptr, path.data(), room);
        if (length < room) {
            path.resize(length);
            return FromWide(path);
        }
        path.resize(path.size() * 2);
    }
}

LocalTime Win32Environment::Now() {
    SYSTEMTIME now{};
    GetLocalTime(&now);
    return {now.wYear, now.wMonth, now.wDay, now.wHour, now.wMinute, now.wSecond};
}

}  // namespace ordalyn::win32
