// The design of the main window: its controls and menus as tables.
#pragma once

#include "toolkit/FormDesign.h"

namespace ordalyn {

extern const toolkit::FormDesign kMainDesign;

}  // namespace ordalyn
