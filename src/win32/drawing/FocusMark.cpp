#include "win32/drawing/FocusMark.h"

#include "win32/common/DeviceContext.h"
#include "win32/common/Handles.h"
#include "win32/drawing/DarkMode.h"

namespace ordalyn::win32 {

// The system's own focus rectangle inverts what lies below it, which cannot be seen on medium gray.
void DrawFocusMark(HDC dc, const RECT& frame, COLORREF background) {
    LOGBRUSH brush = {};
    brush.lbStyle = BS_SOLID;
    brush.lbColor = IsDark(background) ? RGB(255, 255, 255) : RGB(0, 0, 0);
    const Pen pen(ExtCreatePen(PS_COSMETIC | PS_ALTERNATE, 1, &brush, 0, nullptr));
    const SavedDc saved(dc);  // ends before the pen, which cannot be deleted while it is selected
    SetBkMode(dc, TRANSPARENT);
    SelectObject(dc, pen.Get());
    SelectObject(dc, GetStockObject(NULL_BRUSH));
    Rectangle(dc, frame.left, frame.top, frame.right, frame.bottom);
}

}  // namespace ordalyn::win32
