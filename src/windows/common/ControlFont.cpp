#include "windows/common/ControlFont.h"

#include "base/Attempt.h"

namespace ordalyn {

void ApplyFont(const SettingsValues& settings, toolkit::Control& control, bool useSettings,
               double size) {
    toolkit::Font font;
    font.name = settings.FontName;
    font.characterSet = settings.FontScript;
    font.size = useSettings ? static_cast<double>(settings.FontSize) : size;
    if (useSettings) {
        font.bold = (settings.FontStyle & kFontBold) != 0;
        font.italic = (settings.FontStyle & kFontItalic) != 0;
        font.strikethrough = (settings.FontStyle & kFontStrikethrough) != 0;
        font.underline = (settings.FontStyle & kFontUnderline) != 0;
    }
    Attempt([&] { control.SetFont(font); });
}

}  // namespace ordalyn
