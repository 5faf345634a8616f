// Combo boxes. Those with a plain list draw their items themselves, because the themed ones ignore
// the colours of their closed part. With the flat look they draw their frame and button, too.
#pragma once

#include "toolkit/ComboBox.h"
#include "win32/controls/Window.h"

namespace ordalyn::win32 {

class ComboBoxWindow : public Peer<toolkit::ComboBoxPeer> {
  public:
    ComboBoxWindow(Desktop& desktop, toolkit::ComboBox& box, bool editable,
                   toolkit::ControlPeer& container);
    bool IsDroppedDown() const override { return Send(CB_GETDROPPEDSTATE) != 0; }

    toolkit::Rect Place(const toolkit::Rect& wanted) override;
    toolkit::Rect SetFont(const toolkit::Font& font) override;
    void SetBorder(toolkit::BorderStyle, toolkit::Appearance) override;
    void TakeFocus() override;
    void SetText(std::string_view text) override;
    void SelectText(std::size_t start, std::size_t length) override;
    void AddItems(const std::vector<std::string>& texts) override;
    void InsertItem(int index, std::string_view text) override;
    void SetItem(int index, std::string_view text) override;
    void RemoveItem(int index) override;
    void RemoveAllItems() override;
    void SetListIndex(int index) override;

    void OnCommand(int code, int id) override;
    void OnDrawItem(const DRAWITEMSTRUCT& item) override;

  protected:
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    int SelectedIndex() const { return static_cast<int>(Send(CB_GETCURSEL)); }
    void Select(int index);
    void MeasureItems();
    void WidenList();
    toolkit::Rect RealBounds() const;
    void ReportWhatIsShown();
    void PaintFlat(HDC dc);
    void DrawFlatButton(HDC dc, const RECT& button, bool pressed) const;
    void DrawClosedItem(HDC dc, const RECT& area);

    toolkit::ComboBox& box_;
    bool editable_;
    bool flat_ = false;
    bool closedByEnter_ = false;   // the list; until that is reported
    bool changingByCode_ = false;  // what the control reports then is no user's doing
};

}  // namespace ordalyn::win32
