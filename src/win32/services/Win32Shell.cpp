#include "win32/services/Win32Shell.h"

#include "win32/common/WideText.h"
// after windows.h
#include <objbase.h>

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

}  // namespace

void Win32Shell::Open(platform::WindowHandle owner, const platform::ShellTarget& target) {
    const ComScope com;
    ShellExecuteW(reinterpret_cast<HWND>(owner), L"open", ToWide(target.Text()).c_str(), nullptr,
                  nullptr, SW_SHOWNORMAL);
}

}  // namespace ordalyn::win32
