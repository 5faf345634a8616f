#include "win32/controls/WindowClasses.h"

#include <utility>

#include "win32/common/Resolution.h"

namespace ordalyn::win32 {

namespace {

// The frame is made before a Window handles the messages.
LRESULT CALLBACK FormProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NCCREATE)
        ScaleFrameOf(window);
    return DefWindowProcW(window, message, wParam, lParam);
}

}  // namespace

void RegisterWindowClasses(HINSTANCE program) {
    WNDCLASSEXW description = {};
    description.cbSize = sizeof description;
    // Not CS_HREDRAW or CS_VREDRAW: a form that is resized repaints only what its controls uncover.
    description.style = CS_DBLCLKS;
    description.hInstance = program;
    description.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    const std::pair<const wchar_t*, WNDPROC> classes[] = {{kFormClass, FormProcedure},
                                                          {kPictureClass, DefWindowProcW},
                                                          {kCanvasClass, DefWindowProcW}};
    for (const auto& [name, procedure] : classes) {
        description.lpszClassName = name;
        description.lpfnWndProc = procedure;
        RegisterClassExW(
            &description);  // fails when it is registered already, which is just as good
    }
}

}  // namespace ordalyn::win32
