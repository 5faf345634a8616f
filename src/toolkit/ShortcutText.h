// How menus show a shortcut.
#pragma once

#include <string>

#include "toolkit/Basics.h"

namespace ordalyn::toolkit {

// "Ctrl+O", "F5", ...; empty for a key without a name.
std::string ShortcutText(const Shortcut& shortcut);

}  // namespace ordalyn::toolkit
