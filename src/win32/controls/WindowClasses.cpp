#include "win32/controls/WindowClasses.h"

#include <initializer_list>

namespace ordalyn::win32 {

void RegisterWindowClasses(HINSTANCE program) {
    WNDCLASSEXW description = {};
    description.cbSize = sizeof description;
    // Not CS_HREDRAW or CS_VREDRAW: a form that is resized repaints only what its controls uncover.
    description.style = CS_DBLCLKS;
    description.lpfnWndProc = DefWindowProcW;
    description.hInstance = program;
    description.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    for (const wchar_t* name : {kFormClass, kPictureClass}) {
        description.lpszClassName = name;
        RegisterClassExW(
            &description);  // fails when it is registered already, which is just as good
    }
}

}  // namespace ordalyn::win32
