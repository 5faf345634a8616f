#include "platform/win32/toolkit/Colors.h"

namespace ordalyn::win32 {

COLORREF Resolve(toolkit::Color color) {
    if (color < 0)
        return GetSysColor(color & 0xFF);
    return static_cast<COLORREF>(color) & 0xFFFFFFU;
}

ColorBrush::~ColorBrush() {
    if (brush_ != nullptr)
        DeleteObject(brush_);
}

HBRUSH ColorBrush::For(toolkit::Color color) {
    const COLORREF wanted = Resolve(color);
    if (brush_ == nullptr || color_ != wanted) {
        if (brush_ != nullptr)
            DeleteObject(brush_);
        brush_ = CreateSolidBrush(wanted);
        color_ = wanted;
    }
    return brush_;
}

}  // namespace ordalyn::win32
