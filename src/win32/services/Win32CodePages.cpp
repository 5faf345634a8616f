#include "win32/services/Win32CodePages.h"

#include "base/Text.h"
#include "win32/common/WideText.h"

namespace ordalyn::win32 {

using namespace platform;

namespace {

UINT Resolve(unsigned codePage) {
    return codePage == CodePages::kSystem || !IsValidCodePage(codePage) ? GetACP() : codePage;
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

}  // namespace ordalyn::win32
