// The panels of the main window's status bar, numbered from 1, and how their texts end.
#pragma once

#include <string>
#include <string_view>

#include "toolkit/Controls.h"

namespace ordalyn {

inline constexpr int kCountPanel = 1;
inline constexpr int kDatePanel = 2;
inline constexpr int kFilterPanel = 3;

// Every text of the status bar ends in two blanks.
inline void ShowStatus(toolkit::StatusBar& bar, int panel, std::string_view text) {
    bar.SetPanelText(panel, std::string(text) + "  ");
}

}  // namespace ordalyn
