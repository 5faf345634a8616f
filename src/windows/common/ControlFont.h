// ControlFont: the font of the settings for controls.
#pragma once

#include "settings/SettingsTable.h"
#include "toolkit/Control.h"

namespace ordalyn {

// Gives the control a new font of the chosen face and character set. With useSettings, size and
// style are the chosen ones too and `size` is not looked at; otherwise it has `size` points and is
// plain. A control that refuses the font keeps its own.
void ApplyFont(const SettingsValues& settings, toolkit::Control& control, bool useSettings,
               double size);

}  // namespace ordalyn
