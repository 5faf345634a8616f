#include "win32/common/Paths.h"

#include "win32/common/WideText.h"

namespace ordalyn::win32 {

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

}  // namespace ordalyn::win32
