// The system's headers, the same way everywhere in this folder.
#pragma once

#ifndef NOMINMAX
#define NOMINMAX
#endif

#include <windows.h>
// after windows.h
#include <commctrl.h>
#include <shellapi.h>
#include <windowsx.h>
