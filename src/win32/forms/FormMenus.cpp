#include "win32/forms/FormMenus.h"

#include <algorithm>
#include <utility>

#include "win32/common/Handles.h"
#include "win32/common/WideText.h"

namespace ordalyn::win32 {

using toolkit::MenuItem;

namespace {

// Ids go up from menu to menu, so that a choice that waits in the message queue while its menu is
// rebuilt does not become another one.
constexpr int kFirstId = 0x8000;
constexpr int kLastId = 0xEFFF;  // above are the system's own

std::wstring TextOfItem(const MenuItem& item) {
    std::wstring text = WideForOneLine(item.Caption());
    const std::string keys = item.KeyText();
    if (!keys.empty())
        text += L"\t" + WideForOneLine(keys);
    return text;
}

UINT StateOf(const MenuItem& item) {
    return (item.Checked() ? MFS_CHECKED : MFS_UNCHECKED) |
           (item.Enabled() ? MFS_ENABLED : MFS_DISABLED);
}

// Whether both bars show the same at their top level.
bool LookTheSame(HMENU a, HMENU b) {
    const int count = GetMenuItemCount(a);
    if (count != GetMenuItemCount(b))
        return false;
    for (int i = 0; i < count; ++i) {
        const auto describe = [i](HMENU menu) {
            wchar_t text[256] = {};
            MENUITEMINFOW info = {};
            info.cbSize = sizeof info;
            info.fMask = MIIM_STRING | MIIM_STATE | MIIM_FTYPE | MIIM_SUBMENU;
            info.dwTypeData = text;
            info.cch = static_cast<UINT>(std::size(text));
            GetMenuItemInfoW(menu, static_cast<UINT>(i), TRUE, &info);
            return std::tuple(std::wstring(text), info.fState & (MFS_DISABLED | MFS_CHECKED),
                              info.fType, info.hSubMenu != nullptr);
        };
        if (describe(a) != describe(b))
            return false;
    }
    return true;
}

}  // namespace

int FormMenus::NextId() const {
    lastId_ = lastId_ < kFirstId || lastId_ >= kLastId ? kFirstId : lastId_ + 1;
    return lastId_;
}

void FormMenus::Insert(HMENU menu, MenuItem& item, Places& places) const {
    std::wstring text = TextOfItem(item);
    MENUITEMINFOW info = {};
    info.cbSize = sizeof info;
    info.fMask = MIIM_FTYPE | MIIM_ID | MIIM_STATE;
    info.wID = static_cast<UINT>(NextId());
    info.fState = StateOf(item);
    if (RightToLeft()) {
        // The first item takes the rest of the bar to the right with it; the order of the items,
        // and the side on which their menus open, are a matter of each of them.
        info.fType |= MFT_RIGHTORDER;
        if (item.Parent() == nullptr && GetMenuItemCount(menu) == 0)
            info.fType |= MFT_RIGHTJUSTIFY;
    }
    if (item.IsSeparator()) {
        info.fType |= MFT_SEPARATOR;
    } else {
        info.fMask |= MIIM_STRING;
        info.dwTypeData = text.data();
    }
    Menu subMenu;
    if (!item.Items().empty()) {
        info.fMask |= MIIM_SUBMENU;
        subMenu.Reset(CreatePopupMenu());
        Fill(subMenu.Get(), item, places);
        info.hSubMenu = subMenu.Get();
    }
    if (InsertMenuItemW(menu, static_cast<UINT>(GetMenuItemCount(menu)), TRUE, &info))
        subMenu.Release();  // it belongs to the menu that it is in
    places[static_cast<int>(info.wID)] = {&item, menu};
}

void FormMenus::Fill(HMENU menu, const MenuItem& parent, Places& places) const {
    for (const auto& item : parent.Items()) {
        if (item->Visible())
            Insert(menu, *item, places);
    }
}

void FormMenus::Flush(HWND window) {
    if (window == nullptr)
        return;
    if (std::exchange(changed_, false))
        Replace(window);
    // To draw it is to lay out the whole frame of the window.
    if (std::exchange(barChanged_, false))
        DrawMenuBar(window);
}

void FormMenus::Replace(HWND window) {
    Places places;
    Menu newBar(CreateMenu());
    const HMENU bar = newBar.Get();
    for (const auto& item : form_.Menus()) {
        if (item->Visible())
            Insert(bar, *item, places);
    }
    const HMENU before = GetMenu(window);
    places_ = std::move(places);
    if (before == nullptr || !LookTheSame(before, bar)) {
        // A bar belongs to the window that it is set for, and goes with it.
        const bool any = GetMenuItemCount(bar) > 0;
        SetMenu(window, any ? newBar.Release() : nullptr);
        barChanged_ = false;
        const Menu replaced(before);
        return;
    }
    // Only what lies below the bar has changed: the bar stays as it is, without flicker.
    const int count = GetMenuItemCount(bar);
    for (int i = count - 1; i >= 0; --i) {
        const auto position = static_cast<UINT>(i);
        MENUITEMINFOW info = {};
        info.cbSize = sizeof info;
        info.fMask = MIIM_SUBMENU | MIIM_ID;
        GetMenuItemInfoW(bar, position, TRUE, &info);
        RemoveMenu(bar, position, MF_BYPOSITION);
        const HMENU old = GetSubMenu(before, i);
        SetMenuItemInfoW(before, position, TRUE, &info);
        // Nothing says whether the call frees the sub-menu that it replaces: only one that is still
        // there is destroyed.
        const Menu replaced(IsMenu(old) ? old : nullptr);
        const auto found = places_.find(static_cast<int>(info.wID));
        if (found != places_.end())
            found->second.menu = before;
    }
}

void FormMenus::Update(HWND window, MenuItem& item) {
    if (changed_ || window == nullptr)
        return;  // the whole menu is rebuilt anyway
    const auto found = std::find_if(places_.begin(), places_.end(),
                                    [&](const auto& entry) { return entry.second.item == &item; });
    if (found == places_.end())
        return;
    const auto id = static_cast<UINT>(found->first);
    if (item.IsSeparator()) {
        Rebuild();
        return;
    }
    std::wstring text = TextOfItem(item);
    MENUITEMINFOW info = {};
    info.cbSize = sizeof info;
    info.fMask = MIIM_STATE | MIIM_STRING;
    info.fState = StateOf(item);
    info.dwTypeData = text.data();
    SetMenuItemInfoW(found->second.menu, id, FALSE, &info);
    if (item.Parent() == nullptr)
        barChanged_ = true;
}

MenuItem* FormMenus::Find(int id) const {
    const auto found = places_.find(id);
    return found == places_.end() ? nullptr : found->second.item;
}

MenuItem* FormMenus::PopUp(HWND window, MenuItem& item, const std::optional<RECT>& below) const {
    Places places;
    const Menu menu(CreatePopupMenu());
    Fill(menu.Get(), item, places);
    POINT at = {};
    GetCursorPos(&at);
    TPMPARAMS keepClear = {sizeof keepClear, {}};
    if (below) {
        keepClear.rcExclude = *below;
        at = {RightToLeft() ? below->right : below->left, below->bottom};
    }
    const UINT side = RightToLeft() ? TPM_RIGHTALIGN : TPM_LEFTALIGN;
    const int id =
        TrackPopupMenuEx(menu.Get(), TPM_RETURNCMD | TPM_RIGHTBUTTON | TPM_VERTICAL | side, at.x,
                         at.y, window, below ? &keepClear : nullptr);
    const auto found = places.find(id);
    return found == places.end() ? nullptr : found->second.item;
}

}  // namespace ordalyn::win32
