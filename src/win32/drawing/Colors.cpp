#include "win32/drawing/Colors.h"

#include "toolkit/TextColors.h"
#include "win32/common/SystemLibraries.h"

namespace ordalyn::win32 {

namespace {

// The system's themes. No Windows protects the name of this library, so that it is not among those
// that the program is linked with.
struct Themes {
    using Question = BOOL WINAPI();
    using Properties = DWORD WINAPI();
    const Library library = LoadSystemLibrary(L"uxtheme.dll");
    Question* const isActive = FunctionOf<Question>(library, "IsThemeActive");
    Question* const isAppThemed = FunctionOf<Question>(library, "IsAppThemed");
    Properties* const properties = FunctionOf<Properties>(library, "GetThemeAppProperties");

    bool AllowControls() const {
        constexpr DWORD kAllowControls = 2;
        if (isActive == nullptr || isAppThemed == nullptr || properties == nullptr)
            return false;
        return isActive() != 0 && isAppThemed() != 0 && (properties() & kAllowControls) != 0;
    }
};

bool ControlsAreThemed() {
    static const Themes themes;
    return themes.AllowControls();
}

bool SystemHasHighContrast() {
    HIGHCONTRASTW contrast = {};
    contrast.cbSize = sizeof contrast;
    return SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof contrast, &contrast, 0) != FALSE &&
           (contrast.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

toolkit::Color WithoutTabInterior(toolkit::Color color) {
    if (color != toolkit::kTabInterior)
        return color;
    return ControlsAreThemed() ? toolkit::kWindowBackground : toolkit::kButtonFace;
}

}  // namespace

HighContrastQuestion*& HighContrastIsOn() {
    static HighContrastQuestion* question = SystemHasHighContrast;
    return question;
}

ResolvedColors ResolveText(toolkit::Color text, toolkit::Color background) {
    const toolkit::TextColors shown =
        toolkit::ReadableColors({text, WithoutTabInterior(background)}, HighContrastIsOn()());
    return {Resolve(shown.text), Resolve(shown.background)};
}

COLORREF Resolve(toolkit::Color color) {
    color = WithoutTabInterior(color);
    if (color < 0)
        return GetSysColor(color & 0xFF);
    return static_cast<COLORREF>(color) & 0xFFFFFFU;
}

HBRUSH ColorBrush::For(COLORREF color) {
    if (!brush_ || color_ != color) {
        brush_.Reset(CreateSolidBrush(color));
        color_ = color;
    }
    return brush_.Get();
}

}  // namespace ordalyn::win32
