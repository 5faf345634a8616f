#include "win32/services/Win32CodePages.h"

#include <windows.h>

#include "base/Text.h"
#include "win32/common/WindowsText.h"

namespace ordalyn::platform::win32 {

namespace {

UINT Resolve(unsigned codePage) {
    return codePage == CodePages::kSystem || !IsValidCodePage(codePage) ? GetACP() : codePage;
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

}  // namespace

std::string Win32CodePages::ToUtf8(std::string_view bytes, unsigned codePage) {
    const UINT resolved = Resolve(codePage);
    if (resolved == CP_UTF8)
        return ToValidUtf8(bytes);
    return FromWide(Decode(bytes, resolved));
}

std::optional<std::string> Win32CodePages::FromUtf8(std::string_view text, unsigned codePage) {
    if (!IsValidUtf8(text))
        return std::nullopt;
    const UINT resolved = Resolve(codePage);
    if (resolved == CP_UTF8)
        return std::string(text);
    // Comparing what comes back finds default and best-fit characters alike and works for every
    // code page; the conversion call's own report of losses is not available for some.
    const std::wstring wide = ToWide(text);
    std::string bytes = Encode(wide, resolved);
    if (Decode(bytes, resolved) != wide)
        return std::nullopt;
    return bytes;
}

unsigned Win32CodePages::OfCharacterSet(std::int32_t characterSet) {
    // The symbol set has glyphs instead of letters, no code page that text could be written in.
    if (characterSet == DEFAULT_CHARSET || characterSet == SYMBOL_CHARSET || characterSet < 0)
        return kSystem;
    CHARSETINFO info{};
    // The call takes the number itself in place of the pointer.
    auto* source = reinterpret_cast<DWORD*>(
        static_cast<DWORD_PTR>(characterSet));  // NOLINT(performance-no-int-to-ptr)
    return TranslateCharsetInfo(source, &info, TCI_SRCCHARSET) ? info.ciACP : kSystem;
}

}  // namespace ordalyn::platform::win32
