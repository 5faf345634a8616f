// A form's design: a table of its controls and one of its menus, in the order in which the form
// walks them (which is also the tab order).
#pragma once

#include <optional>
#include <span>

#include "toolkit/Control.h"

namespace ordalyn::toolkit {

struct FormStyle {
    bool resizable = false;
    bool minimiseBox = false;
    bool maximiseBox = false;
    bool toolWindow = false;  // small caption, not on the task bar
    bool closeBox = true;
    bool takesDroppedFiles = false;
};

struct ControlDesign {
    Kind kind;
    const char* name;
    const char* tag = "";  // the id of its text, for kinds that have one
    Rect bounds = {};
    const char* container = "";  // name of the container control; empty: the form
    int index = -1;              // place in a control array; -1: in none
    int containerIndex = -1;     // the container's place in its control array
    bool visible = true;
    bool editable = false;   // combo boxes
    bool isDefault = false;  // command buttons: pressed by Enter
    bool isCancel = false;   // command buttons: pressed by Escape
    // Whether Tab stops at it; unset: as is usual for the kind (it does not stop at labels).
    std::optional<bool> tabStop = {};
    // The id of what it is called where nothing on the screen says it (see SetAccessibleName).
    const char* nameTag = "";
};

struct MenuDesign {
    int level;  // 0: on the menu bar; n: below the last item of level n - 1
    const char* name;
    const char* caption;  // the id of its text, or "-"
    Shortcut shortcut = {};
    const char* keyHint = "";
    bool visible = true;  // a menu that is not visible on level 0 is a context menu
};

struct FormDesign {
    const char* name;
    const char* tag;  // the id of the caption
    Size clientSize;
    FormStyle style;
    std::span<const ControlDesign> controls;
    std::span<const MenuDesign> menus = {};
    const char* helpPage = "";  // what F1 opens: the name of a page in help/, without its ending
};

}  // namespace ordalyn::toolkit
