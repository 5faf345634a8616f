// The system's headers. This is the only file of the code that includes <windows.h>, so that all of
// it sees the same declarations: strict handle types, the Unicode forms, Windows Vista and later.
#pragma once

#ifndef UNICODE
#define UNICODE
#endif
#ifndef STRICT
#define STRICT
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef _WIN32_WINNT
#define _WIN32_WINNT 0x0600
#endif

#include <windows.h>
// these need windows.h before them
#include <commctrl.h>
#include <commdlg.h>
#include <shellapi.h>
#include <windowsx.h>

// The headers turn these names of the program's own operations into macros. The operations of the
// system are called by their full names (ChooseColorW).
#undef ChooseColor
#undef ChooseFont
