// Owners of what the system hands out and wants back.
#pragma once

#include <utility>

#include "win32/common/Win32.h"

namespace ordalyn::win32 {

// A handle that is given back with `Close`. Neither null nor INVALID_HANDLE_VALUE, which the file
// calls return when they fail, is a handle.
template <typename Handle, auto Close>
class Owned {
  public:
    Owned() = default;
    explicit Owned(Handle handle) : handle_(IsHandle(handle) ? handle : nullptr) {}
    ~Owned() { Reset(); }
    Owned(Owned&& other) noexcept : handle_(other.Release()) {}
    Owned& operator=(Owned&& other) noexcept {
        Reset(other.Release());
        return *this;
    }
    Owned(const Owned&) = delete;
    Owned& operator=(const Owned&) = delete;

    explicit operator bool() const { return handle_ != nullptr; }
    Handle Get() const { return handle_; }
    void Reset(Handle next = nullptr) {
        if (const Handle before = std::exchange(handle_, IsHandle(next) ? next : nullptr))
            Close(before);
    }
    // Somebody else owns it from now on.
    Handle Release() { return std::exchange(handle_, nullptr); }

  private:
    static bool IsHandle(Handle handle) {
        return handle != nullptr && handle != INVALID_HANDLE_VALUE;
    }
    Handle handle_ = nullptr;
};

using FileHandle = Owned<HANDLE, CloseHandle>;
using ThreadHandle = Owned<HANDLE, CloseHandle>;
using SearchHandle = Owned<HANDLE, FindClose>;
using ChangeHandle = Owned<HANDLE, FindCloseChangeNotification>;
using KeyHandle = Owned<HKEY, RegCloseKey>;
using Library = Owned<HMODULE, FreeLibrary>;
using GlobalBlock = Owned<HGLOBAL, GlobalFree>;
using OwnedWindow = Owned<HWND, DestroyWindow>;
using Menu = Owned<HMENU, DestroyMenu>;
using Icon = Owned<HICON, DestroyIcon>;
using DroppedFiles = Owned<HDROP, DragFinish>;

using FontHandle = Owned<HFONT, DeleteObject>;
using Brush = Owned<HBRUSH, DeleteObject>;
using Pen = Owned<HPEN, DeleteObject>;
using Bitmap = Owned<HBITMAP, DeleteObject>;
using ImageList = Owned<HIMAGELIST, ImageList_Destroy>;

}  // namespace ordalyn::win32
