// Commands that act as keyboard and mouse, and those that wait for the program to be done with it.
#include "Common.h"

#include <shellapi.h>
#include <shlobj.h>

#include <atomic>
#include <vector>

namespace ordalyn::e2e {

namespace {

void SendInputs(std::vector<INPUT>& inputs) {
    for (INPUT& input : inputs)
        if (SendInput(1, &input, sizeof(INPUT)) != 1)
            throw std::runtime_error("the system did not take the input");
}

bool IsExtendedKey(WORD key) {
    // These share their scan codes with the numeric keypad's.
    return (key >= VK_PRIOR && key <= VK_DOWN) || key == VK_INSERT || key == VK_DELETE ||
           key == VK_APPS || key == VK_RCONTROL || key == VK_RMENU;
}

// keys: pairs of virtual key code and 1 (down) or 0 (up).
Json Keys(const Json& request) {
    std::vector<INPUT> inputs;
    const Json::Array& keys = request.List("keys");
    for (std::size_t i = 0; i + 1 < keys.size(); i += 2) {
        const auto key = static_cast<WORD>(keys[i].AsNumber());
        INPUT input{};
        input.type = INPUT_KEYBOARD;
        input.ki.wVk = key;
        input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC));
        input.ki.dwFlags = (keys[i + 1].AsNumber() ? 0U : static_cast<DWORD>(KEYEVENTF_KEYUP)) |
                           (IsExtendedKey(key) ? static_cast<DWORD>(KEYEVENTF_EXTENDEDKEY) : 0U);
        inputs.push_back(input);
    }
    SendInputs(inputs);
    return nullptr;
}

Json TypeText(const Json& request) {
    std::vector<INPUT> inputs;
    for (const wchar_t unit : ToWide(request.String("text"))) {
        INPUT input{};
        input.type = INPUT_KEYBOARD;
        input.ki.wScan = static_cast<WORD>(unit);
        input.ki.dwFlags = KEYEVENTF_UNICODE;
        inputs.push_back(input);
        input.ki.dwFlags |= static_cast<DWORD>(KEYEVENTF_KEYUP);
        inputs.push_back(input);
    }
    SendInputs(inputs);
    return nullptr;
}

LONG Absolute(LONG position, int extent) {
    // The system turns 0..65535 into pixels by cutting; rounding up here hits the pixel meant.
    return static_cast<LONG>((std::int64_t{position} * 65536 + extent - 1) / extent);
}

POINT lastMove = {};

// Each input says where it is meant. One that acted where the pointer is could act elsewhere: on a
// busy machine the display tells late of a place where the pointer was before.
void At(INPUT& input, POINT point) {
    input.mi.dx = Absolute(point.x, GetSystemMetrics(SM_CXSCREEN));
    input.mi.dy = Absolute(point.y, GetSystemMetrics(SM_CYSCREEN));
    input.mi.dwFlags |= static_cast<DWORD>(MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE);
}

// events: triples of "move", "down", "up" or "wheel", x and y (screen). "down" and "up" act where
// the last move went; their x is the button (0 left, 1 right, 2 middle). The wheel's x is its
// delta.
Json Mouse(const Json& request) {
    std::vector<INPUT> inputs;
    const Json::Array& events = request.List("events");
    for (std::size_t i = 0; i + 2 < events.size(); i += 3) {
        const std::string& action = events[i].AsString();
        const std::int64_t x = events[i + 1].AsNumber();
        INPUT input{};
        input.type = INPUT_MOUSE;
        if (action == "move") {
            // Takes the pointer that the user sees along; programs that ask where it is get that
            // one.
            SendInputs(inputs);
            inputs.clear();
            lastMove = {static_cast<LONG>(x), static_cast<LONG>(events[i + 2].AsNumber())};
            SetCursorPos(lastMove.x, lastMove.y);
        } else if (action == "wheel") {
            input.mi.mouseData = static_cast<DWORD>(static_cast<std::int32_t>(x));
            input.mi.dwFlags = MOUSEEVENTF_WHEEL;
        } else {
            static constexpr DWORD kDown[] = {MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_RIGHTDOWN,
                                              MOUSEEVENTF_MIDDLEDOWN};
            static constexpr DWORD kUp[] = {MOUSEEVENTF_LEFTUP, MOUSEEVENTF_RIGHTUP,
                                            MOUSEEVENTF_MIDDLEUP};
            if (x < 0 || x > 2)
                throw std::runtime_error("no such mouse button");
            input.mi.dwFlags = action == "down" ? kDown[x] : kUp[x];
        }
        At(input, lastMove);
        inputs.push_back(input);
    }
    SendInputs(inputs);
    return nullptr;
}

Json PointerShape(const Json&) {
    CURSORINFO info{};
    info.cbSize = sizeof(info);
    GetCursorInfo(&info);
    const std::pair<LPCWSTR, const char*> shapes[] = {
        {reinterpret_cast<LPCWSTR>(IDC_ARROW), "arrow"},
        {reinterpret_cast<LPCWSTR>(IDC_WAIT), "hourglass"},
        {reinterpret_cast<LPCWSTR>(IDC_IBEAM), "text"},
        {reinterpret_cast<LPCWSTR>(IDC_SIZEWE), "east-west"},
        {reinterpret_cast<LPCWSTR>(IDC_SIZENS), "north-south"},
        {reinterpret_cast<LPCWSTR>(IDC_HAND), "hand"},
    };
    std::string shape = info.hCursor ? "other" : "none";
    for (const auto& [name, text] : shapes)
        if (info.hCursor && info.hCursor == LoadCursorW(nullptr, name))
            shape = text;
    return Json::Object{{"shape", shape}, {"x", info.ptScreenPos.x}, {"y", info.ptScreenPos.y}};
}

// A file manager's drop on the window, as the shell delivers it.
Json DropFiles(const Json& request) {
    std::wstring names;
    for (const Json& name : request.List("paths"))
        names += ToWide(name.AsString()) + L'\0';
    names += L'\0';
    HGLOBAL memory =
        GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, sizeof(DROPFILES) + names.size() * 2);
    if (!memory)
        throw std::runtime_error("no memory");
    auto* drop = static_cast<DROPFILES*>(GlobalLock(memory));
    drop->pFiles = sizeof(DROPFILES);
    drop->fWide = TRUE;
    names.copy(reinterpret_cast<wchar_t*>(drop + 1), names.size());
    GlobalUnlock(memory);
    HWND window = WindowOf(request);
    if (!(GetWindowLongW(window, GWL_EXSTYLE) & WS_EX_ACCEPTFILES)) {
        GlobalFree(memory);
        throw std::runtime_error("the window takes no files");
    }
    return PostMessageW(window, WM_DROPFILES, reinterpret_cast<WPARAM>(memory), 0) != 0;
}

HANDLE markerSeen = nullptr;
UINT markerMessage = 0;
std::atomic<bool> moreInput = false;

// Runs on the program's own thread, the only one that can tell what its queue still holds.
LRESULT CALLBACK WatchMessages(int code, WPARAM wParam, LPARAM lParam) {
    if (code == HC_ACTION && reinterpret_cast<const MSG*>(lParam)->message == markerMessage) {
        moreInput = HIWORD(GetQueueStatus(QS_INPUT)) != 0;
        SetEvent(markerSeen);
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

BOOL CALLBACK SeePendingPaint(HWND window, LPARAM parameter) {
    if (IsWindowVisible(window) && GetUpdateRect(window, nullptr, FALSE))
        *reinterpret_cast<bool*>(parameter) = true;
    return TRUE;
}

bool HasPendingPaint() {
    bool pending = false;
    EnumThreadWindows(InterfaceThread(), SeePendingPaint, reinterpret_cast<LPARAM>(&pending));
    return pending;
}

// Waits until the program has taken all keyboard and mouse input and everything that was posted to
// it before, twice (a reaction may post something again), and has painted. Posted messages come
// before input, so a posted one that is taken says nothing about input; hence the look at the
// queue. false: the program was still busy when the time was up.
Json Idle(const Json& request) {
    const ULONGLONG end = GetTickCount64() + static_cast<ULONGLONG>(request.Number("milliseconds"));
    const DWORD thread = InterfaceThread();
    if (!thread)
        return false;
    if (!markerSeen) {
        markerMessage = RegisterWindowMessageW(L"OrdalynEndToEndMarker");
        markerSeen = CreateEventW(nullptr, FALSE, FALSE, nullptr);
    }
    HHOOK hook = SetWindowsHookExW(WH_GETMESSAGE, WatchMessages, nullptr, thread);
    bool idle = hook != nullptr;
    for (int quietRounds = 0; quietRounds < 2 && idle;) {
        ResetEvent(markerSeen);
        PostThreadMessageW(thread, markerMessage, 0, 0);
        const ULONGLONG now = GetTickCount64();
        idle = now < end &&
               WaitForSingleObject(markerSeen, static_cast<DWORD>(end - now)) == WAIT_OBJECT_0;
        quietRounds = moreInput ? 0 : quietRounds + 1;
        if (moreInput)
            Sleep(1);
    }
    if (hook)
        UnhookWindowsHookEx(hook);
    while (idle && HasPendingPaint()) {
        if (GetTickCount64() > end)
            idle = false;
        Sleep(5);
    }
    return idle;
}

Json Responsive(const Json& request) {
    DWORD_PTR result = 0;
    return SendMessageTimeoutW(WindowOf(request), WM_NULL, 0, 0, SMTO_NORMAL,
                               static_cast<UINT>(request.Number("milliseconds")), &result) != 0;
}

}  // namespace

void AddInputCommands(Commands& commands) {
    commands["keys"] = Keys;
    commands["typeText"] = TypeText;
    commands["mouse"] = Mouse;
    commands["pointer"] = PointerShape;
    commands["dropFiles"] = DropFiles;
    commands["idle"] = Idle;
    commands["responsive"] = Responsive;
    commands["terminate"] = [](const Json&) -> Json {
        TerminateProcess(GetCurrentProcess(), 99);
        return nullptr;
    };
}

}  // namespace ordalyn::e2e
