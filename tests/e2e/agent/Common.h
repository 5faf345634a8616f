// What every group of the agent's commands uses: text conversion, messages that cannot hang, and
// the table that commands are entered in.
#pragma once

#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>
#include <winsock2.h>

#include <commctrl.h>

#include <functional>
#include <map>
#include <string>
#include <string_view>

#include "Json.h"

namespace ordalyn::e2e {

std::string ToUtf8(std::wstring_view text);
std::wstring ToWide(std::string_view text);

// Sends a message to a window of the program's own thread. Throws std::runtime_error when the
// window has not answered after five seconds: the program hangs, and the agent must not hang with
// it.
LRESULT Send(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0);

template <typename Pointer>
LRESULT SendPointer(HWND window, UINT message, WPARAM wParam, Pointer* pointer) {
    return Send(window, message, wParam, reinterpret_cast<LPARAM>(pointer));
}

inline std::int64_t HandleNumber(const void* handle) {
    return static_cast<std::int64_t>(reinterpret_cast<std::intptr_t>(handle));
}
// The window that a request names. Throws when it is gone.
HWND WindowOf(const Json& request, std::string_view member = "window");

Json RectJson(const RECT& rect);
RECT ToScreen(HWND window, RECT client);
std::string ClassOf(HWND window);
std::string TextOf(HWND window);

// The thread that owns the program's windows; 0 while it has none.
DWORD InterfaceThread();

using Command = std::function<Json(const Json& request)>;
using Commands = std::map<std::string, Command, std::less<>>;

void AddWindowCommands(Commands& commands);
void AddMenuCommands(Commands& commands);
void AddControlCommands(Commands& commands);
void AddListCommands(Commands& commands);
void AddInputCommands(Commands& commands);
void AddClipboardCommands(Commands& commands);
void AddAccessibleCommands(Commands& commands);
void AddResourceCommands(Commands& commands);

// Answers requests on a loopback port until the program ends; writes the port's number to the file
// that the environment variable ORDALYN_E2E_PORT_FILE names.
void Serve();

}  // namespace ordalyn::e2e
