// FormsBlocked: while a modal window is open, the other forms take no input.
#pragma once

#include <vector>

#include "win32/controls/Desktop.h"

namespace ordalyn::win32 {

// Keeps all forms but one from taking input, as long as it lives or until Release.
class FormsBlocked {
  public:
    FormsBlocked(Desktop& desktop, const FormWindow* except);
    ~FormsBlocked() { Release(); }
    FormsBlocked(const FormsBlocked&) = delete;
    FormsBlocked& operator=(const FormsBlocked&) = delete;
    void Release();

  private:
    std::vector<HWND> blocked_;
};

}  // namespace ordalyn::win32
