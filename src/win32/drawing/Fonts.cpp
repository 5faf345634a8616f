#include "win32/drawing/Fonts.h"

#include <algorithm>
#include <cmath>
#include <cwchar>
#include <string>

#include "win32/common/WideText.h"

namespace ordalyn::win32 {

namespace {

std::wstring DialogFontName() {
    NONCLIENTMETRICSW metrics = {};
    metrics.cbSize = sizeof metrics;
    if (!SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0))
        return L"MS Shell Dlg";
    return metrics.lfMessageFont.lfFaceName;
}

LOGFONTW Description(const toolkit::Font& font, int dpi) {
    std::wstring name = ToWide(font.name);
    double points = font.size;
    if (name.empty()) {
        name = DialogFontName();
        // The default size is made for the older dialog fonts; this one is drawn smaller.
        if (name == L"Segoe UI" && points == 8)
            points = 9;
    }
    LOGFONTW description = {};
    description.lfHeight = -static_cast<LONG>(std::lround(points * dpi / 72));
    description.lfWeight = font.bold ? FW_BOLD : FW_NORMAL;
    description.lfItalic = font.italic ? TRUE : FALSE;
    description.lfUnderline = font.underline ? TRUE : FALSE;
    description.lfStrikeOut = font.strikethrough ? TRUE : FALSE;
    description.lfCharSet = static_cast<BYTE>(font.characterSet);
    description.lfQuality = DEFAULT_QUALITY;
    name.resize(std::min<std::size_t>(name.size(), LF_FACESIZE - 1));
    std::wmemcpy(description.lfFaceName, name.data(), name.size());
    return description;
}

}  // namespace

std::shared_ptr<FontHandle> Fonts::Get(const toolkit::Font& font, int dpi) {
    std::erase_if(made_, [](const Made& made) { return made.handle.expired(); });
    for (const Made& made : made_) {
        if (made.font == font && made.dpi == dpi)
            return made.handle.lock();
    }
    const LOGFONTW description = Description(font, dpi);
    auto handle = std::make_shared<FontHandle>(CreateFontIndirectW(&description));
    made_.push_back({font, dpi, handle});
    return handle;
}

}  // namespace ordalyn::win32
