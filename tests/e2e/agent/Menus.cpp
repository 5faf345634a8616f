// Commands about menus: the menu bar as a tree, choosing from it, and pop-up menus that are open.
#include "Common.h"

namespace ordalyn::e2e {

namespace {

constexpr UINT kGetPopUpMenu = 0x01E1;  // MN_GETHMENU: the menu that a pop-up menu's window shows

struct Item {
    std::wstring text;
    MENUITEMINFOW info{};
};

Item ItemAt(HMENU menu, int position) {
    Item item;
    wchar_t text[1024] = L"";
    item.info.cbSize = sizeof(item.info);
    item.info.fMask = MIIM_FTYPE | MIIM_STATE | MIIM_ID | MIIM_SUBMENU | MIIM_STRING;
    item.info.dwTypeData = text;
    item.info.cch = 1024;
    GetMenuItemInfoW(menu, static_cast<UINT>(position), TRUE, &item.info);
    item.text = text;
    item.info.dwTypeData = nullptr;
    return item;
}

// What a program does in reaction to these decides what its menu holds, so they come before every
// look at a menu, as they come before every showing.
void Announce(HWND window, HMENU menu, int position) {
    if (window)
        Send(window, WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu), MAKELPARAM(position, FALSE));
}

Json Items(HWND window, HMENU menu, HWND shownBy, bool withSubMenus) {
    Json::Array items;
    const int count = GetMenuItemCount(menu);
    for (int i = 0; i < count; ++i) {
        const Item item = ItemAt(menu, i);
        const std::size_t tab = item.text.find(L'\t');
        Json::Object description{
            {"caption", ToUtf8(item.text.substr(0, tab))},
            {"shortcut", tab == std::wstring::npos ? "" : ToUtf8(item.text.substr(tab + 1))},
            {"separator", (item.info.fType & MFT_SEPARATOR) != 0},
            {"checked", (item.info.fState & MFS_CHECKED) != 0},
            {"radio", (item.info.fType & MFT_RADIOCHECK) != 0},
            {"enabled", (item.info.fState & MFS_GRAYED) == 0},
            {"highlighted", (item.info.fState & MFS_HILITE) != 0},
            {"hasItems", item.info.hSubMenu != nullptr},
            {"id", item.info.wID},
        };
        RECT bounds{};
        if (shownBy && GetMenuItemRect(shownBy, menu, static_cast<UINT>(i), &bounds))
            description["rect"] = RectJson(bounds);
        if (item.info.hSubMenu && withSubMenus) {
            Announce(window, item.info.hSubMenu, i);
            description["items"] = Items(window, item.info.hSubMenu, nullptr, true);
        }
        items.emplace_back(std::move(description));
    }
    return items;
}

HMENU MenuBarOf(HWND window) {
    HMENU menu = GetMenu(window);
    if (!menu)
        throw std::runtime_error("the window has no menu");
    SendPointer(window, WM_INITMENU, reinterpret_cast<WPARAM>(menu), static_cast<void*>(nullptr));
    // The program may have made its menu anew just now.
    return GetMenu(window);
}

std::wstring WithoutAccessKey(std::wstring caption) {
    caption = caption.substr(0, caption.find(L'\t'));
    std::wstring plain;
    for (std::size_t i = 0; i < caption.size(); ++i) {
        if (caption[i] == L'&' && i + 1 < caption.size())
            ++i;
        plain += caption[i];
    }
    return plain;
}

// Chooses an entry by its captions (without access keys and shortcuts) as the menu itself does: by
// a posted command. A grayed entry cannot be chosen.
Json Choose(const Json& request) {
    HWND window = WindowOf(request);
    HMENU menu = MenuBarOf(window);
    const Json::Array& path = request.List("path");
    for (std::size_t step = 0; step < path.size(); ++step) {
        const std::wstring wanted = ToWide(path[step].AsString());
        const int count = GetMenuItemCount(menu);
        int found = -1;
        Item item;
        for (int i = 0; i < count && found < 0; ++i) {
            item = ItemAt(menu, i);
            if (WithoutAccessKey(item.text) == wanted)
                found = i;
        }
        if (found < 0)
            throw std::runtime_error("the menu has no entry \"" + path[step].AsString() + '"');
        if (item.info.fState & MFS_GRAYED)
            throw std::runtime_error("the entry \"" + path[step].AsString() + "\" is grayed");
        if (step + 1 < path.size()) {
            if (!item.info.hSubMenu)
                throw std::runtime_error('"' + path[step].AsString() + "\" has no entries");
            Announce(window, item.info.hSubMenu, found);
            menu = item.info.hSubMenu;
            continue;
        }
        MENUINFO style{};
        style.cbSize = sizeof(style);
        style.fMask = MIM_STYLE;
        GetMenuInfo(menu, &style);
        if (style.dwStyle & MNS_NOTIFYBYPOS)
            PostMessageW(window, WM_MENUCOMMAND, static_cast<WPARAM>(found),
                         reinterpret_cast<LPARAM>(menu));
        else
            PostMessageW(window, WM_COMMAND, MAKEWPARAM(item.info.wID, 0), 0);
    }
    return nullptr;
}

Json OpenPopUps(const Json&) {
    Json::Array menus;
    HWND popUp = nullptr;
    while ((popUp = FindWindowExW(nullptr, popUp, L"#32768", nullptr)) != nullptr) {
        DWORD process = 0;
        GetWindowThreadProcessId(popUp, &process);
        if (process != GetCurrentProcessId() || !IsWindowVisible(popUp))
            continue;
        const auto menu = reinterpret_cast<HMENU>(Send(popUp, kGetPopUpMenu));
        if (!menu)
            continue;
        RECT bounds{};
        GetWindowRect(popUp, &bounds);
        menus.emplace_back(Json::Object{{"window", HandleNumber(popUp)},
                                        {"rect", RectJson(bounds)},
                                        {"items", Items(nullptr, menu, popUp, false)}});
    }
    return menus;
}

}  // namespace

void AddMenuCommands(Commands& commands) {
    commands["menu"] = [](const Json& request) {
        HWND window = WindowOf(request);
        return Items(window, MenuBarOf(window), window, true);
    };
    commands["chooseFromMenu"] = Choose;
    commands["popUps"] = OpenPopUps;
}

}  // namespace ordalyn::e2e
