// Commands about windows as such: which there are, how they look, where they are, and the focus.
#include <algorithm>
#include <mutex>
#include <vector>

#include "Common.h"

namespace ordalyn::e2e {

namespace {

bool IsServiceWindow(HWND window) {
    const std::string name = ClassOf(window);
    return name == "IME" || name == "MSCTFIME UI" || name == "OleMainThreadWndClass";
}

BOOL CALLBACK CollectOwnWindow(HWND window, LPARAM parameter) {
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    if (process == GetCurrentProcessId() && !IsServiceWindow(window))
        reinterpret_cast<std::vector<HWND>*>(parameter)->push_back(window);
    return TRUE;
}

BOOL CALLBACK CollectWindow(HWND window, LPARAM parameter) {
    reinterpret_cast<std::vector<HWND>*>(parameter)->push_back(window);
    return TRUE;
}

std::vector<HWND> TopLevelWindows() {
    std::vector<HWND> windows;
    EnumWindows(CollectOwnWindow, reinterpret_cast<LPARAM>(&windows));
    return windows;
}

HWND FocusedWindow() {
    GUITHREADINFO info{};
    info.cbSize = sizeof(info);
    return GetGUIThreadInfo(InterfaceThread(), &info) ? info.hwndFocus : nullptr;
}

// A top-level window's caption can be had without a message, so also from a program that is busy.
std::string CaptionOf(HWND window) {
    if (GetWindowLongW(window, GWL_STYLE) & WS_CHILD)
        return TextOf(window);
    wchar_t text[1024] = L"";
    InternalGetWindowText(window, text, 1024);
    return ToUtf8(text);
}

// What came up since it is looked for, also what is gone again: a window that a program shows for a
// moment need not be met in it.
struct {
    std::mutex guard;
    Json::Array captions;
} shownWindows;

// Runs in the thread of the window, before that gets the message.
LRESULT CALLBACK SeeMessage(int code, WPARAM wParam, LPARAM lParam) {
    const auto& message = *reinterpret_cast<const CWPSTRUCT*>(lParam);
    if (code == HC_ACTION && message.message == WM_WINDOWPOSCHANGED &&
        (reinterpret_cast<const WINDOWPOS*>(message.lParam)->flags & SWP_SHOWWINDOW) != 0 &&
        GetAncestor(message.hwnd, GA_ROOT) == message.hwnd) {
        const std::lock_guard lock(shownWindows.guard);
        shownWindows.captions.emplace_back(CaptionOf(message.hwnd));
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

Json WatchWindows(const Json&) {
    return SetWindowsHookExW(WH_CALLWNDPROC, SeeMessage, nullptr, InterfaceThread()) != nullptr;
}

Json ShownWindows(const Json&) {
    const std::lock_guard lock(shownWindows.guard);
    return shownWindows.captions;
}

Json Describe(HWND window) {
    RECT bounds{};
    GetWindowRect(window, &bounds);
    RECT client{};
    GetClientRect(window, &client);
    return Json::Object{
        {"handle", HandleNumber(window)},
        {"class", ClassOf(window)},
        {"text", CaptionOf(window)},
        // A top-level window keeps its menu where others keep their id.
        {"id", (GetWindowLongW(window, GWL_STYLE) & WS_CHILD) ? GetDlgCtrlID(window) : 0},
        {"rect", RectJson(bounds)},
        {"client", RectJson(ToScreen(window, client))},
        {"visible", IsWindowVisible(window) != 0},
        {"enabled", IsWindowEnabled(window) != 0},
        {"focused", FocusedWindow() == window},
        {"style", GetWindowLongW(window, GWL_STYLE)},
        {"exStyle", GetWindowLongW(window, GWL_EXSTYLE)},
        {"parent", HandleNumber(GetAncestor(window, GA_PARENT))},
        {"owner", HandleNumber(GetWindow(window, GW_OWNER))},
        {"minimised", IsIconic(window) != 0},
        {"maximised", IsZoomed(window) != 0},
    };
}

Json DescribeAll(const std::vector<HWND>& windows) {
    Json::Array found;
    for (HWND window : windows) {
        try {
            found.push_back(Describe(window));
        } catch (const std::runtime_error&) {
            // A window may go away while the others are described.
            if (IsWindow(window))
                throw;
        }
    }
    return found;
}

Json Windows(const Json&) {
    return DescribeAll(TopLevelWindows());
}

// All descendants, in the order of the tab key within each parent.
Json Tree(const Json& request) {
    std::vector<HWND> children;
    EnumChildWindows(WindowOf(request), CollectWindow, reinterpret_cast<LPARAM>(&children));
    return DescribeAll(children);
}

const char* IconKind(HWND message) {
    for (HWND child = GetWindow(message, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        if (ClassOf(child) != "Static" || (GetWindowLongW(child, GWL_STYLE) & 0x1F) != SS_ICON)
            continue;
        const auto icon = reinterpret_cast<HICON>(Send(child, STM_GETICON));
        const std::pair<LPCWSTR, const char*> kinds[] = {
            {reinterpret_cast<LPCWSTR>(IDI_ERROR), "error"},
            {reinterpret_cast<LPCWSTR>(IDI_QUESTION), "question"},
            {reinterpret_cast<LPCWSTR>(IDI_WARNING), "warning"},
            {reinterpret_cast<LPCWSTR>(IDI_INFORMATION), "information"},
        };
        for (const auto& [name, kind] : kinds)
            // The system's icons are shared: the same name always gives the same handle.
            if (icon && icon == LoadIconW(nullptr, name))
                return kind;
        if (icon)
            return "other";
    }
    return "";
}

// What a dialog says and offers: texts of its static controls, buttons in tab order, icon, default.
Json Dialog(const Json& request) {
    HWND dialog = WindowOf(request);
    Json::Array texts;
    Json::Array buttons;
    for (HWND child = GetWindow(dialog, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        if (!IsWindowVisible(child))
            continue;
        const std::string kind = ClassOf(child);
        if (kind == "Static" && !TextOf(child).empty())
            texts.emplace_back(TextOf(child));
        if (kind == "Button")
            buttons.emplace_back(TextOf(child));
    }
    // Enter presses the button that has the focus; without one, the dialog's default.
    HWND standard = FocusedWindow();
    if (!standard || GetParent(standard) != dialog || ClassOf(standard) != "Button") {
        const LRESULT id = Send(dialog, DM_GETDEFID);
        standard = HIWORD(id) == DC_HASDEFID ? GetDlgItem(dialog, LOWORD(id)) : nullptr;
    }
    return Json::Object{{"texts", texts},
                        {"buttons", buttons},
                        {"icon", IconKind(dialog)},
                        {"default", standard ? TextOf(standard) : std::string()}};
}

Json Focus(const Json&) {
    GUITHREADINFO info{};
    info.cbSize = sizeof(info);
    GetGUIThreadInfo(InterfaceThread(), &info);
    return Json::Object{
        {"focus", HandleNumber(info.hwndFocus)},
        {"active", HandleNumber(info.hwndActive)},
        {"capture", HandleNumber(info.hwndCapture)},
        {"menuOwner", HandleNumber(info.hwndMenuOwner)},
        {"foreground", HandleNumber(GetForegroundWindow())},
        {"inMenu", (info.flags & GUI_INMENUMODE) != 0 || (info.flags & GUI_POPUPMENUMODE) != 0},
        {"moving", (info.flags & GUI_INMOVESIZE) != 0},
    };
}

// The focus belongs to the program's thread; sharing its input state is the way to move it.
class SharedInput {
  public:
    SharedInput() : thread_(InterfaceThread()) {
        shared_ = AttachThreadInput(GetCurrentThreadId(), thread_, TRUE) != 0;
    }
    ~SharedInput() {
        if (shared_)
            AttachThreadInput(GetCurrentThreadId(), thread_, FALSE);
    }
    SharedInput(const SharedInput&) = delete;
    SharedInput& operator=(const SharedInput&) = delete;

  private:
    DWORD thread_;
    bool shared_ = false;
};

Json Activate(const Json& request) {
    HWND window = WindowOf(request);
    SharedInput shared;
    if (IsIconic(window))
        Send(window, WM_SYSCOMMAND, SC_RESTORE);
    return SetForegroundWindow(window) != 0;
}

Json TakeFocus(const Json& request) {
    SharedInput shared;
    SetFocus(WindowOf(request));
    return nullptr;
}

Json SetText(const Json& request) {
    const std::wstring text = ToWide(request.String("text"));
    return SendPointer(WindowOf(request), WM_SETTEXT, 0, text.c_str());
}

Json Place(const Json& request) {
    const auto number = [&](const char* name) { return static_cast<int>(request.Number(name)); };
    return SetWindowPos(WindowOf(request), nullptr, number("left"), number("top"), number("width"),
                        number("height"), SWP_NOZORDER | SWP_NOACTIVATE) != 0;
}

// What the system sends to a window that has come to a screen of another resolution.
Json ChangeResolution(const Json& request) {
    const auto number = [&](const char* name) { return static_cast<int>(request.Number(name)); };
    RECT proposed = {number("left"), number("top"), number("left") + number("width"),
                     number("top") + number("height")};
    const int dpi = number("dpi");
    constexpr UINT kResolutionChanged = 0x02E0;
    return SendPointer(WindowOf(request), kResolutionChanged, MAKEWPARAM(dpi, dpi), &proposed);
}

Json WindowCommand(const Json& request) {
    static const std::map<std::string, WPARAM, std::less<>> commands = {{"minimise", SC_MINIMIZE},
                                                                        {"maximise", SC_MAXIMIZE},
                                                                        {"restore", SC_RESTORE},
                                                                        {"close", SC_CLOSE}};
    const auto found = commands.find(request.String("command"));
    if (found == commands.end())
        throw std::runtime_error("no such window command");
    return PostMessageW(WindowOf(request), WM_SYSCOMMAND, found->second, 0) != 0;
}

Json FontOf(const Json& request) {
    auto font = reinterpret_cast<HFONT>(Send(WindowOf(request), WM_GETFONT));
    const bool own = font != nullptr;
    if (!own)
        font = static_cast<HFONT>(GetStockObject(SYSTEM_FONT));
    LOGFONTW look{};
    GetObjectW(font, sizeof(look), &look);
    return Json::Object{{"face", ToUtf8(look.lfFaceName)},
                        {"height", look.lfHeight},
                        {"weight", look.lfWeight},
                        {"italic", look.lfItalic != 0},
                        {"underline", look.lfUnderline != 0},
                        {"strikethrough", look.lfStrikeOut != 0},
                        {"characterSet", look.lfCharSet},
                        {"own", own}};
}

Json Screen(const Json&) {
    HDC screen = GetDC(nullptr);
    Json answer = Json::Object{{"width", GetSystemMetrics(SM_CXSCREEN)},
                               {"height", GetSystemMetrics(SM_CYSCREEN)},
                               {"dpi", GetDeviceCaps(screen, LOGPIXELSX)},
                               {"codePage", GetACP()},
                               {"locale", GetUserDefaultLCID()}};
    ReleaseDC(nullptr, screen);
    return answer;
}

// When a key of the registry was written last, in milliseconds since 1970.
Json RegistryKeyTime(const Json& request) {
    HKEY root =
        request.String("root") == "HKEY_LOCAL_MACHINE" ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER;
    HKEY key = nullptr;
    if (RegOpenKeyExW(root, ToWide(request.String("key")).c_str(), 0, KEY_QUERY_VALUE, &key) !=
        ERROR_SUCCESS)
        throw std::runtime_error("there is no such key");
    FILETIME written{};
    RegQueryInfoKeyW(key, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                     nullptr, nullptr, &written);
    RegCloseKey(key);
    constexpr std::int64_t kTicksInMillisecond = 10'000;
    constexpr std::int64_t kMillisecondsTo1970 = 11'644'473'600'000;
    const auto ticks = static_cast<std::int64_t>(
        (static_cast<std::uint64_t>(written.dwHighDateTime) << 32) | written.dwLowDateTime);
    return ticks / kTicksInMillisecond - kMillisecondsTo1970;
}

// A font for this program alone, as long as it runs.
Json AddFont(const Json& request) {
    const int added =
        AddFontResourceExW(ToWide(request.String("path")).c_str(), FR_PRIVATE, nullptr);
    if (added == 0)
        throw std::runtime_error("that is no font");
    return added;
}

}  // namespace

DWORD InterfaceThread() {
    static DWORD known = 0;
    if (known)
        return known;
    for (HWND window : TopLevelWindows()) {
        const DWORD thread = GetWindowThreadProcessId(window, nullptr);
        if (thread != GetCurrentThreadId())
            return known = thread;
    }
    return 0;
}

void AddWindowCommands(Commands& commands) {
    commands["watchWindows"] = WatchWindows;
    commands["shownWindows"] = ShownWindows;
    commands["windows"] = Windows;
    commands["window"] = [](const Json& request) { return Describe(WindowOf(request)); };
    commands["tree"] = Tree;
    commands["dialog"] = Dialog;
    commands["focus"] = Focus;
    commands["activate"] = Activate;
    commands["takeFocus"] = TakeFocus;
    commands["setText"] = SetText;
    commands["wholeText"] = [](const Json& request) { return TextOf(WindowOf(request)); };
    commands["place"] = Place;
    commands["changeResolution"] = ChangeResolution;
    commands["windowCommand"] = WindowCommand;
    commands["font"] = FontOf;
    commands["addFont"] = AddFont;
    commands["screen"] = Screen;
    commands["registryKeyTime"] = RegistryKeyTime;
    commands["send"] = [](const Json& request) -> Json {
        return Send(WindowOf(request), static_cast<UINT>(request.Number("message")),
                    static_cast<WPARAM>(request.Number("wParam", 0)),
                    static_cast<LPARAM>(request.Number("lParam", 0)));
    };
    commands["post"] = [](const Json& request) -> Json {
        return PostMessageW(WindowOf(request), static_cast<UINT>(request.Number("message")),
                            static_cast<WPARAM>(request.Number("wParam", 0)),
                            static_cast<LPARAM>(request.Number("lParam", 0))) != 0;
    };
}

}  // namespace ordalyn::e2e
