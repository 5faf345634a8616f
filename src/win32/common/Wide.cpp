#include "win32/common/Wide.h"

#include <algorithm>

#include "base/Text.h"

namespace ordalyn::win32 {

std::wstring Wide(std::string_view text) {
    const std::u16string units = Utf8ToUtf16(text);
    return {units.begin(), units.end()};
}

std::string Narrow(std::wstring_view text) {
    return Utf16ToUtf8(std::u16string(text.begin(), text.end()));
}

std::wstring WideForDisplay(std::string_view text) {
    std::wstring wide = Wide(text);
    std::replace(wide.begin(), wide.end(), L'\0', L' ');
    return wide;
}

std::string TextOf(HWND window) {
    const int length = GetWindowTextLengthW(window);
    std::wstring text(static_cast<std::size_t>(length) + 1, L'\0');
    const int copied = GetWindowTextW(window, text.data(), length + 1);
    text.resize(static_cast<std::size_t>(std::max(copied, 0)));
    return Narrow(text);
}

}  // namespace ordalyn::win32
