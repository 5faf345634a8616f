#include "win32/drawing/Colors.h"

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

}  // namespace

COLORREF Resolve(toolkit::Color color) {
    if (color == toolkit::kTabInterior)
        return GetSysColor(ControlsAreThemed() ? COLOR_WINDOW : COLOR_BTNFACE);
    if (color < 0)
        return GetSysColor(color & 0xFF);
    return static_cast<COLORREF>(color) & 0xFFFFFFU;
}

HBRUSH ColorBrush::For(toolkit::Color color) {
    const COLORREF wanted = Resolve(color);
    if (!brush_ || color_ != wanted) {
        brush_.Reset(CreateSolidBrush(wanted));
        color_ = wanted;
    }
    return brush_.Get();
}

}  // namespace ordalyn::win32
