#include "win32/services/Win32Shell.h"

#include <memory>
#include <string>

#include "base/FileNames.h"
#include "win32/common/Handles.h"
#include "win32/common/WideText.h"
// after windows.h
#include <objbase.h>
#include <shlobj.h>

namespace ordalyn::win32 {

namespace {

// The shell hands some targets to components that need COM on the calling thread.
class ComScope {
  public:
    ComScope()
        : result_(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE)) {}
    ~ComScope() {
        if (SUCCEEDED(result_))
            CoUninitialize();
    }
    ComScope(const ComScope&) = delete;
    ComScope& operator=(const ComScope&) = delete;

  private:
    HRESULT result_;
};

DWORD WINAPI SelectItem(LPVOID parameter) noexcept {
    const std::unique_ptr<const std::wstring> path(static_cast<const std::wstring*>(parameter));
    const ComScope com;
    PIDLIST_ABSOLUTE item = nullptr;
    if (SUCCEEDED(SHParseDisplayName(path->c_str(), nullptr, &item, 0, nullptr))) {
        SHOpenFolderAndSelectItems(item, 0, nullptr, 0);
        CoTaskMemFree(item);
    }
    return 0;
}

// The shell looks for the file, and on a network whose server does not answer that takes it as long
// as it pleases. The windows do not wait for it.
void Select(const std::string& path) {
    auto parameter = std::make_unique<const std::wstring>(ToWide(path));
    const ThreadHandle thread(CreateThread(nullptr, 0, SelectItem,
                                           const_cast<std::wstring*>(parameter.get()), 0, nullptr));
    if (thread)
        static_cast<void>(parameter.release());  // SelectItem has it
}

struct Start {
    std::wstring what;
    std::wstring arguments;
    std::wstring folder;
};

// The program that shows help files, which is a part of Windows and lies in its folder. Empty when
// it is not there.
std::wstring HelpViewer() {
    wchar_t folder[MAX_PATH] = {};
    const UINT length = GetSystemWindowsDirectoryW(folder, MAX_PATH);
    if (length == 0 || length >= MAX_PATH)
        return L"";
    std::wstring viewer = std::wstring(folder) + L"\\hh.exe";
    return GetFileAttributesW(viewer.c_str()) == INVALID_FILE_ATTRIBUTES ? L"" : viewer;
}

Start StartFor(const platform::ShellTarget& target) {
    const std::string& path = target.Text();
    if (target.What() == platform::ShellTarget::Deed::ShowPage) {
        // Without the viewer, the help file opens with whatever shows it, at its first page.
        const std::wstring viewer = HelpViewer();
        if (viewer.empty())
            return {ToWide(path), L"", L""};
        return {viewer, ToWide("\"" + path + "::/" + target.Arguments() + "\""),
                viewer.substr(0, viewer.find_last_of(L'\\'))};
    }
    // A program starts in its own folder, and keeps nobody from removing the one that this is in.
    if (!target.Arguments().empty())
        return {ToWide(path), ToWide(target.Arguments()), ToWide(GetFilePath(path))};
    return {ToWide(path), L"", L""};
}

}  // namespace

void Win32Shell::Open(platform::WindowHandle owner, const platform::ShellTarget& target) {
    if (target.What() == platform::ShellTarget::Deed::Select) {
        Select(target.Text());
        return;
    }
    const ComScope com;
    const Start start = StartFor(target);
    const bool isProgram = !start.arguments.empty();
    ShellExecuteW(reinterpret_cast<HWND>(owner), L"open", start.what.c_str(),
                  isProgram ? start.arguments.c_str() : nullptr,
                  isProgram ? start.folder.c_str() : nullptr, SW_SHOWNORMAL);
}

}  // namespace ordalyn::win32
