// Report lists that ask for their texts (LVS_OWNERDATA), so that a million rows cost nothing.
#pragma once

#include <vector>

#include "toolkit/ListView.h"
#include "win32/controls/Window.h"

namespace ordalyn::win32 {

class ListViewWindow : public Peer<toolkit::ListViewPeer> {
  public:
    ListViewWindow(Desktop& desktop, toolkit::ListView& list, toolkit::ControlPeer& container);

    // Hiding takes effect with the next message: a list that is hidden only while it is filled
    // stays on the screen and keeps the focus.
    void SetVisible(bool visible) override;
    void SetColors(toolkit::Color foreground, toolkit::Color background) override;
    void InsertColumn(int index, std::string_view caption, toolkit::Twips width) override;
    void RemoveColumn(int index) override;
    void SetColumnCaption(int index, std::string_view caption) override;
    void SetColumnWidth(int index, toolkit::Twips width) override;
    toolkit::Twips ColumnWidth(int index) override;
    void SetColumnPosition(int index, int position) override;
    int ColumnPosition(int index) override;
    void ResetRows(int count) override;
    void UpdateRows(int count) override;
    void SelectRow(int row) override;
    void EnsureVisible(int row) override;
    void SetGridLines(bool shown) override;
    void FlattenColumnHeaders() override;

    std::optional<LRESULT> OnNotify(NMHDR& header) override;

  protected:
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    struct Width {
        toolkit::Twips twips;
        int pixels;
    };
    std::vector<int> ColumnOrder() const;
    void GiveText(LVITEMW& item) const;
    int FindRow(const NMLVFINDITEMW& request) const;
    void ItemChanged(const NMLISTVIEW& change);
    void ChangeState(int row, UINT mask, UINT state);
    void ClearSelection(UINT states);
    bool MaySelect(UINT message, WPARAM wParam, LPARAM lParam) const;
    LRESULT SelectingMessage(UINT message, WPARAM wParam, LPARAM lParam);

    toolkit::ListView& list_;
    std::vector<Width> widths_;
    std::vector<int> positions_;  // as last seen, for when the window has gone
    bool setting_ = false;        // what changes now is changed by code
    bool hiding_ = false;
    int selected_ = -1;  // the row that is shown selected
    int lifted_ = -1;    // a row deselected for the control's sake, until it selects another
};

}  // namespace ordalyn::win32
