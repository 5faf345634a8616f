// The tool tip over one cell of a list.
#pragma once

#include <string>

#include "win32/common/Win32.h"

namespace ordalyn::win32 {

// Its window belongs to that of the list's form and goes with it.
class CellTip {
  public:
    // The cell that Set was called for last; no cell is the one in row -1 and column -1.
    bool IsFor(int row, int column) const { return row == row_ && column == column_; }
    // An empty text: none is shown there.
    void Set(HWND list, int row, int column, const RECT& cell, std::wstring text, bool rightToLeft);
    void Forget(HWND list);
    // A message of the mouse: the tip comes and goes with these.
    void Relay(HWND list, UINT message, WPARAM wParam, LPARAM lParam) const;

  private:
    HWND window_ = nullptr;
    int row_ = -1;
    int column_ = -1;
    bool shown_ = false;
};

}  // namespace ordalyn::win32
