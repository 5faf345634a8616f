#include "win32/common/WindowsText.h"

#include <windows.h>

#include "base/Text.h"

namespace ordalyn::platform::win32 {

std::wstring ToWide(std::string_view text) {
    const std::u16string utf16 = Utf8ToUtf16(text);
    return {utf16.begin(), utf16.end()};
}

std::string FromWide(std::wstring_view text) {
    return Utf16ToUtf8(std::u16string(text.begin(), text.end()));
}

std::wstring AnsiToWide(std::string_view bytes) {
    const int length = static_cast<int>(bytes.size());
    const int needed = MultiByteToWideChar(CP_ACP, 0, bytes.data(), length, nullptr, 0);
    std::wstring text(static_cast<std::size_t>(needed), L'\0');
    MultiByteToWideChar(CP_ACP, 0, bytes.data(), length, text.data(), needed);
    return text;
}

std::string WideToAnsi(std::wstring_view text) {
    const int length = static_cast<int>(text.size());
    const int needed =
        WideCharToMultiByte(CP_ACP, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
    std::string bytes(static_cast<std::size_t>(needed), '\0');
    WideCharToMultiByte(CP_ACP, 0, text.data(), length, bytes.data(), needed, nullptr, nullptr);
    return bytes;
}

namespace {

// Folders have to leave room for a short file name, which makes theirs the lower limit.
constexpr std::size_t kOrdinaryPathLimit = MAX_PATH - 12;

std::wstring FullPathOf(const std::wstring& path) {
    const DWORD needed = GetFullPathNameW(path.c_str(), 0, nullptr, nullptr);
    std::wstring full(needed, L'\0');
    const DWORD written = GetFullPathNameW(path.c_str(), needed, full.data(), nullptr);
    if (written == 0 || written >= needed)
        return path;
    full.resize(written);
    return full;
}

std::wstring WithPrefixWhenLong(const std::wstring& path) {
    if (path.size() < kOrdinaryPathLimit || path.rfind(L"\\\\?\\", 0) == 0)
        return path;
    const std::wstring full = FullPathOf(path);
    if (full.rfind(L"\\\\", 0) == 0)
        return L"\\\\?\\UNC" + full.substr(1);
    return L"\\\\?\\" + full;
}

}  // namespace

std::wstring ToPath(std::string_view path) {
    return WithPrefixWhenLong(ToWide(path));
}

std::wstring ToFullPath(std::string_view path) {
    const std::wstring wide = ToWide(path);
    return wide.empty() ? wide : WithPrefixWhenLong(FullPathOf(wide));
}

}  // namespace ordalyn::platform::win32
