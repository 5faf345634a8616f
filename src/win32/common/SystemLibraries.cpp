#include "win32/common/SystemLibraries.h"

#include <string>

namespace ordalyn::win32 {

void FindLibrariesInSystemFolderOnly() {
    // Without the folder that happens to be the current one, on every Windows.
    SetDllDirectoryW(L"");
    // A Windows 7 that has never been updated does not have this one. The library that has it is in
    // every process already, so that nothing is looked for here.
    constexpr DWORD kSearchSystemFolder = 0x800;
    using SetDirectories = BOOL WINAPI(DWORD);
    const HMODULE kernel = GetModuleHandleW(L"kernel32.dll");
    auto* const setDirectories =
        reinterpret_cast<SetDirectories*>(GetProcAddress(kernel, "SetDefaultDllDirectories"));
    if (setDirectories != nullptr)
        setDirectories(kSearchSystemFolder);
}

Library LoadSystemLibrary(const wchar_t* name) {
    wchar_t folder[MAX_PATH] = {};
    const UINT length = GetSystemDirectoryW(folder, MAX_PATH);
    if (length == 0 || length >= MAX_PATH)
        return {};
    const std::wstring path = std::wstring(folder) + L"\\" + name;
    // What the library itself needs is looked for beside it first.
    return Library(LoadLibraryExW(path.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH));
}

}  // namespace ordalyn::win32
