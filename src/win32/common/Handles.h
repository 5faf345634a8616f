// Owners of what the system hands out and wants back.
#pragma once

#include <windows.h>

namespace ordalyn::platform::win32 {

// A handle that is closed with `Close`, and the value that stands for none.
template <typename Handle, auto Close>
class Owned {
  public:
    Owned(Handle handle, Handle none) : handle_(handle), none_(none) {}
    ~Owned() { Reset(); }
    Owned(const Owned&) = delete;
    Owned& operator=(const Owned&) = delete;

    explicit operator bool() const { return handle_ != none_; }
    Handle Get() const { return handle_; }
    void Reset() {
        if (handle_ != none_)
            Close(handle_);
        handle_ = none_;
    }

  private:
    Handle handle_;
    Handle none_;
};

using FileHandle = Owned<HANDLE, CloseHandle>;
using SearchHandle = Owned<HANDLE, FindClose>;

}  // namespace ordalyn::platform::win32
