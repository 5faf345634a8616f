#include "win32/common/WideText.h"

#include <algorithm>

#include "base/Text.h"

namespace ordalyn::win32 {

std::wstring ToWide(std::string_view text) {
    const std::u16string units = Utf8ToUtf16(text);
    return {units.begin(), units.end()};
}

std::string FromWide(std::wstring_view text) {
    return Utf16ToUtf8(std::u16string(text.begin(), text.end()));
}

std::wstring WideForDisplay(std::string_view text) {
    std::wstring wide = ToWide(text);
    std::replace(wide.begin(), wide.end(), L'\0', L' ');
    return wide;
}

std::wstring WideForOneLine(std::string_view text) {
    std::wstring wide = ToWide(text);
    std::replace_if(
        wide.begin(), wide.end(), [](wchar_t unit) { return unit < L' '; }, L' ');
    return wide;
}

std::string TextOf(HWND window) {
    const int length = GetWindowTextLengthW(window);
    std::wstring text(static_cast<std::size_t>(length) + 1, L'\0');
    const int copied = GetWindowTextW(window, text.data(), length + 1);
    text.resize(static_cast<std::size_t>(std::max(copied, 0)));
    return FromWide(text);
}

std::wstring Decode(std::string_view bytes, UINT codePage) {
    const int length = static_cast<int>(bytes.size());
    const int needed = MultiByteToWideChar(codePage, 0, bytes.data(), length, nullptr, 0);
    std::wstring text(static_cast<std::size_t>(needed), L'\0');
    MultiByteToWideChar(codePage, 0, bytes.data(), length, text.data(), needed);
    return text;
}

std::string Encode(std::wstring_view text, UINT codePage) {
    const int length = static_cast<int>(text.size());
    const int needed =
        WideCharToMultiByte(codePage, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
    std::string bytes(static_cast<std::size_t>(needed), '\0');
    WideCharToMultiByte(codePage, 0, text.data(), length, bytes.data(), needed, nullptr, nullptr);
    return bytes;
}

}  // namespace ordalyn::win32
