#include "win32/services/Win32Environment.h"

#include "platform/CommandLine.h"
#include "win32/common/WideText.h"

namespace ordalyn::win32 {

using namespace platform;

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
