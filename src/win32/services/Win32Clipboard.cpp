#include "win32/services/Win32Clipboard.h"

#include <cstring>

#include "win32/common/Handles.h"
#include "win32/common/WideText.h"

namespace ordalyn::win32 {

namespace {

// Programs that watch the clipboard hold it for some milliseconds after every change.
constexpr int kAttempts = 10;
constexpr DWORD kPauseMilliseconds = 20;

// The open clipboard. It is opened for a window because data can only be put on it by an owner;
// what was put there outlives that window.
class OpenedClipboard {
  public:
    OpenedClipboard()
        : window_(CreateWindowExW(0, WC_STATICW, L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                                  GetModuleHandleW(nullptr), nullptr)) {
        for (int attempt = 0; attempt < kAttempts && !open_; ++attempt) {
            if (attempt > 0)
                Sleep(kPauseMilliseconds);
            open_ = OpenClipboard(window_.Get()) != 0;
        }
    }
    ~OpenedClipboard() {
        if (open_)
            CloseClipboard();
    }
    OpenedClipboard(const OpenedClipboard&) = delete;
    OpenedClipboard& operator=(const OpenedClipboard&) = delete;

    explicit operator bool() const { return open_; }

  private:
    OwnedWindow window_;
    bool open_ = false;
};

// A block with the text and its terminating NUL; none when there is no memory.
GlobalBlock TextBlock(const std::wstring& text) {
    const std::size_t size = (text.size() + 1) * sizeof(wchar_t);
    GlobalBlock block(GlobalAlloc(GMEM_MOVEABLE, size));
    if (!block)
        return block;
    std::memcpy(GlobalLock(block.Get()), text.c_str(), size);
    GlobalUnlock(block.Get());
    return block;
}

}  // namespace

bool Win32Clipboard::Clear() {
    const OpenedClipboard clipboard;
    return clipboard && EmptyClipboard();
}

bool Win32Clipboard::SetText(std::string_view text) {
    const OpenedClipboard clipboard;
    if (!clipboard || !EmptyClipboard())
        return false;
    GlobalBlock block = TextBlock(WideForDisplay(text));
    if (!block || SetClipboardData(CF_UNICODETEXT, block.Get()) == nullptr)
        return false;
    block.Release();  // it belongs to the system only when it was taken
    return true;
}

}  // namespace ordalyn::win32
