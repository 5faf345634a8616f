// Commands about the simple controls: combo boxes, buttons, status and tool bars, tabs, progress.
#include <vector>

#include "Common.h"

namespace ordalyn::e2e {

namespace {

void NotifyParent(HWND control, WORD code) {
    // Posted, as the reaction may be a message box that stays open.
    PostMessageW(GetParent(control), WM_COMMAND,
                 MAKEWPARAM(static_cast<WORD>(GetDlgCtrlID(control)), code),
                 reinterpret_cast<LPARAM>(control));
}

Json Combo(const Json& request) {
    HWND combo = WindowOf(request);
    Json::Array items;
    const auto count = static_cast<int>(Send(combo, CB_GETCOUNT));
    for (int i = 0; i < count; ++i) {
        const LRESULT length = Send(combo, CB_GETLBTEXTLEN, static_cast<WPARAM>(i));
        if (length == CB_ERR)
            break;
        std::wstring text(static_cast<std::size_t>(length) + 1, L'\0');
        const LRESULT copied =
            SendPointer(combo, CB_GETLBTEXT, static_cast<WPARAM>(i), text.data());
        text.resize(copied == CB_ERR ? 0 : static_cast<std::size_t>(copied));
        items.emplace_back(ToUtf8(text));
    }
    return Json::Object{{"items", items},
                        {"selected", static_cast<int>(Send(combo, CB_GETCURSEL))},
                        {"text", TextOf(combo)},
                        {"dropped", Send(combo, CB_GETDROPPEDSTATE) != 0},
                        {"editable", (GetWindowLongW(combo, GWL_STYLE) & 3) != CBS_DROPDOWNLIST}};
}

// What the control itself does and says when an item is picked from its list.
Json ChooseFromCombo(const Json& request) {
    HWND combo = WindowOf(request);
    const auto index = static_cast<WPARAM>(request.Number("index"));
    if (Send(combo, CB_SETCURSEL, index) == CB_ERR)
        throw std::runtime_error("no such item");
    NotifyParent(combo, CBN_SELENDOK);
    NotifyParent(combo, CBN_SELCHANGE);
    return nullptr;
}

Json Press(const Json& request) {
    HWND button = WindowOf(request);
    if (!IsWindowEnabled(button))
        throw std::runtime_error("the button is disabled");
    return PostMessageW(button, BM_CLICK, 0, 0) != 0;
}

Json StatusBar(const Json& request) {
    HWND bar = WindowOf(request);
    const auto count = static_cast<std::size_t>(Send(bar, SB_GETPARTS));
    Json::Array parts;
    for (std::size_t i = 0; i < count; ++i) {
        const auto length = LOWORD(Send(bar, SB_GETTEXTLENGTHW, i));
        std::wstring text(length + std::size_t{1}, L'\0');
        const LRESULT result = SendPointer(bar, SB_GETTEXTW, i, text.data());
        text.resize(length);
        RECT bounds{};
        SendPointer(bar, SB_GETRECT, i, &bounds);
        parts.emplace_back(Json::Object{{"text", ToUtf8(text)},
                                        {"style", HIWORD(result)},
                                        {"rect", RectJson(ToScreen(bar, bounds))}});
    }
    return parts;
}

Json ToolBar(const Json& request) {
    HWND bar = WindowOf(request);
    Json::Array buttons;
    const auto count = static_cast<WPARAM>(Send(bar, TB_BUTTONCOUNT));
    for (WPARAM i = 0; i < count; ++i) {
        TBBUTTON button{};
        SendPointer(bar, TB_GETBUTTON, i, &button);
        RECT bounds{};
        SendPointer(bar, TB_GETITEMRECT, i, &bounds);
        buttons.emplace_back(
            Json::Object{{"id", button.idCommand},
                         {"image", button.iBitmap},
                         {"separator", (button.fsStyle & BTNS_SEP) != 0},
                         {"dropDown", (button.fsStyle & (BTNS_DROPDOWN | BTNS_WHOLEDROPDOWN)) != 0},
                         {"enabled", (button.fsState & TBSTATE_ENABLED) != 0},
                         {"pressed", (button.fsState & TBSTATE_PRESSED) != 0},
                         {"rect", RectJson(ToScreen(bar, bounds))}});
    }
    return buttons;
}

Json Tabs(const Json& request) {
    HWND strip = WindowOf(request);
    Json::Array tabs;
    const auto count = static_cast<WPARAM>(Send(strip, TCM_GETITEMCOUNT));
    for (WPARAM i = 0; i < count; ++i) {
        wchar_t text[256] = L"";
        TCITEMW item{};
        item.mask = TCIF_TEXT;
        item.pszText = text;
        item.cchTextMax = 256;
        SendPointer(strip, TCM_GETITEMW, i, &item);
        RECT bounds{};
        SendPointer(strip, TCM_GETITEMRECT, i, &bounds);
        tabs.emplace_back(Json::Object{{"text", ToUtf8(item.pszText)},
                                       {"rect", RectJson(ToScreen(strip, bounds))}});
    }
    return Json::Object{{"tabs", tabs}, {"selected", Send(strip, TCM_GETCURSEL)}};
}

Json Progress(const Json& request) {
    HWND bar = WindowOf(request);
    PBRANGE range{};
    SendPointer(bar, PBM_GETRANGE, TRUE, &range);
    return Json::Object{
        {"low", range.iLow}, {"high", range.iHigh}, {"value", Send(bar, PBM_GETPOS)}};
}

// Every text that a tool tip window of the program can show, whether it shows it now or not.
Json ToolTips(const Json&) {
    Json::Array tips;
    HWND tip = nullptr;
    while ((tip = FindWindowExW(nullptr, tip, TOOLTIPS_CLASSW, nullptr)) != nullptr) {
        DWORD process = 0;
        GetWindowThreadProcessId(tip, &process);
        if (process != GetCurrentProcessId())
            continue;
        const auto count = static_cast<WPARAM>(Send(tip, TTM_GETTOOLCOUNT));
        for (WPARAM i = 0; i < count; ++i) {
            wchar_t text[1024] = L"";
            TTTOOLINFOW tool{};
            tool.cbSize = sizeof(tool);
            tool.lpszText = text;
            if (!SendPointer(tip, TTM_ENUMTOOLSW, i, &tool))
                continue;
            tool.lpszText = text;
            SendPointer(tip, TTM_GETTEXTW, 1024, &tool);
            const HWND control =
                (tool.uFlags & TTF_IDISHWND) ? reinterpret_cast<HWND>(tool.uId) : tool.hwnd;
            tips.emplace_back(Json::Object{{"control", HandleNumber(control)},
                                           {"id", static_cast<std::int64_t>(tool.uId)},
                                           {"text", ToUtf8(text)},
                                           {"visible", IsWindowVisible(tip) != 0}});
        }
    }
    return tips;
}

}  // namespace

void AddControlCommands(Commands& commands) {
    commands["combo"] = Combo;
    commands["chooseFromCombo"] = ChooseFromCombo;
    commands["press"] = Press;
    commands["statusBar"] = StatusBar;
    commands["toolBar"] = ToolBar;
    commands["tabs"] = Tabs;
    commands["progress"] = Progress;
    commands["toolTips"] = ToolTips;
}

}  // namespace ordalyn::e2e
