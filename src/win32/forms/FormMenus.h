// A form's menu bar and context menus, built from its menu items. Changes of the tree are collected
// and come into force when Flush is called: before the next message, and before anything measures
// the form.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "toolkit/Form.h"
#include "win32/common/Win32.h"

namespace ordalyn::win32 {

class FormMenus {
  public:
    explicit FormMenus(toolkit::Form& form) : form_(form) {}
    FormMenus(const FormMenus&) = delete;
    FormMenus& operator=(const FormMenus&) = delete;

    void Rebuild() { changed_ = true; }
    void Flush(HWND window);
    // What an item says is changed at once; a bar that it stands in is drawn by Flush.
    void Update(HWND window, toolkit::MenuItem& item);
    // The item that the menu bar knows by this id; null for an id of a menu that is no more.
    toolkit::MenuItem* Find(int id) const;
    // Shows the sub-items below this part of the screen, or at the mouse without one, and returns
    // the chosen one, or null.
    toolkit::MenuItem* PopUp(HWND window, toolkit::MenuItem& item,
                             const std::optional<RECT>& below) const;

  private:
    struct Place {
        toolkit::MenuItem* item;
        HMENU menu;
    };
    using Places = std::map<int, Place>;
    void Replace(HWND window);
    int NextId() const;
    void Insert(HMENU menu, toolkit::MenuItem& item, Places& places) const;
    void Fill(HMENU menu, const toolkit::MenuItem& parent, Places& places) const;
    bool RightToLeft() const { return form_.RightToLeft(); }

    toolkit::Form& form_;
    Places places_;
    bool changed_ = false;
    bool barChanged_ = false;  // only in what its items say
    mutable int lastId_ = 0;
};

}  // namespace ordalyn::win32
