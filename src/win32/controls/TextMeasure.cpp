#include "win32/controls/TextMeasure.h"

#include <string>

#include "win32/common/WideText.h"

namespace ordalyn::win32 {

TextMeasure::TextMeasure(HWND window)
    : TextMeasure(window, reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0))) {}

TextMeasure::TextMeasure(HWND window, HFONT font) : dc_(window), font_(dc_.Get(), font) {}

int TextMeasure::WidthOf(std::string_view text) const {
    const std::wstring wide = WideForDisplay(text);
    SIZE size = {};
    GetTextExtentPoint32W(dc_.Get(), wide.c_str(), static_cast<int>(wide.size()), &size);
    return size.cx;
}

}  // namespace ordalyn::win32
