// The window classes that are the program's own. They do nothing by themselves: a Window handles
// the messages.
#pragma once

#include "win32/common/Win32.h"

namespace ordalyn::win32 {

inline constexpr const wchar_t* kFormClass = L"OrdalynForm";
inline constexpr const wchar_t* kPictureClass = L"OrdalynPicture";
inline constexpr const wchar_t* kCanvasClass = L"OrdalynCanvas";

void RegisterWindowClasses(HINSTANCE program);

}  // namespace ordalyn::win32
