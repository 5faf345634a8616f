// ComboBox: a drop-down list, editable or not. Items are numbered from 0; -1 is "none".
#pragma once

#include <string>
#include <vector>

#include "toolkit/Control.h"

namespace ordalyn::toolkit {

// Click is raised whenever the list index is set, by the user or by code, also when it is set to
// none or to the value that it has. Change is raised when the text of an editable box changes by
// typing or by SetText. Clear raises nothing.
class ComboBox : public Control {
  public:
    ComboBox(Toolkit& toolkit, bool editable, std::string_view name, int index, Control& container,
             const Rect& bounds);
    ControlPeer& peer() const override { return *peer_; }

    bool Editable() const { return editable_; }
    int ListCount() const { return static_cast<int>(items_.size()); }
    const std::string& List(int index) const;  // SubscriptOutOfRange
    void AddItem(std::string_view text);
    // The same for many items, which takes much less time than one after the other.
    void AddItems(const std::vector<std::string>& texts);
    // Inserting at or above the selected item moves the selection with its item; nothing is raised.
    void InsertItem(int index, std::string_view text);
    // The box shows the new text when the item is the selected one; nothing is raised.
    void SetItem(int index, std::string_view text);
    // Removing the selected item leaves none selected (an editable box keeps its text); nothing is
    // raised.
    void RemoveItem(int index);
    void Clear();

    int ListIndex() const { return listIndex_; }
    void SetListIndex(int index);  // InvalidPropertyValue outside -1 to ListCount - 1
    // A list box's text is that of its selected item, or empty. Setting it selects the first item
    // equal to it, ignoring case, and raises Click; a text that no item has throws
    // InvalidPropertyValue. An editable box takes any text, keeps no selection, and raises Change
    // when the text is another one.
    const std::string& Text() const;
    void SetText(std::string_view text);
    void SelectText(std::size_t start, std::size_t length);
    // Enter and Escape close an open list.
    bool NeedsKey(int key) const override;
    Event<> Change;

    bool IsDroppedDown() const { return peer_->IsDroppedDown(); }  // its list is open

    // For the peer.
    void UserSelected(int index);
    // Enter has closed the open list of an editable box on this item, which is chosen by that; with
    // none marked (-1) the key is the typed text's, and the box's KeyDown reports it.
    void UserEnteredList(int index);
    void UserEdited(std::string_view text);

  private:
    void RequireItem(int index) const;
    bool editable_;
    std::unique_ptr<ComboBoxPeer> peer_;
    std::vector<std::string> items_;
    int listIndex_ = -1;
    std::string text_;  // of the edit field; nobody asks for it where there is none
};

}  // namespace ordalyn::toolkit
