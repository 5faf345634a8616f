// Report lists that ask for their texts (LVS_OWNERDATA), so that a million rows cost nothing.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "toolkit/ListView.h"
#include "win32/controls/CellTip.h"
#include "win32/controls/TextMeasure.h"
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
    toolkit::Twips WidthFor(std::string_view text) override;
    void SetColumnPosition(int index, int position) override;
    int ColumnPosition(int index) override;
    void ResetRows(int count) override;
    void UpdateRows(int count) override;
    void GrowRows(int count, int firstChanged) override;
    void SelectRow(int row) override;
    void ShowSelection() override;
    void EnsureVisible(int row) override;
    toolkit::Rect RowOnScreen(int row) override;
    void SetGridLines(bool shown) override;
    void SetMarkColor(toolkit::Color color) override;
    void FlattenColumnHeaders() override;

    void KeepBeforeRescaling() override;
    toolkit::Rect ShowRescaled() override;
    std::optional<LRESULT> OnNotify(NMHDR& header) override;

  protected:
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    class LiftedSelection;
    struct Width {
        toolkit::Twips twips;
        int pixels;
    };
    std::vector<int> ColumnOrder() const;
    // As long as one of these lives, the texts that the control asks for are painted: what does not
    // fit loses its middle. Nobody else gets these texts.
    class Painting {
      public:
        explicit Painting(ListViewWindow& list) : list_(list), listAlive_(list.Lifetime()) {
            list.painting_.emplace(list.handle());
        }
        ~Painting() {
            if (!listAlive_.expired())
                list_.painting_.reset();
        }
        Painting(const Painting&) = delete;
        Painting& operator=(const Painting&) = delete;

      private:
        ListViewWindow& list_;
        std::weak_ptr<const void> listAlive_;
    };
    int RoomForText(int column) const;                   // in a cell, in pixels
    std::string_view TextAt(int row, int column) const;  // empty outside
    bool IsCut(std::string_view text, int column, const RECT& cell) const;
    void ShowTip(UINT message, WPARAM wParam, LPARAM lParam);
    void GiveText(LVITEMW& item) const;
    int FindRow(const NMLVFINDITEMW& request) const;
    void ItemChanged(const NMLISTVIEW& change);
    void ChangeState(int row, UINT mask, UINT state);
    void ClearSelection(UINT states);
    std::optional<LRESULT> SelectionAsked(UINT message, WPARAM wParam, LPARAM lParam);
    bool IsMarked(int row) const;
    ResolvedColors ColorsOfSelection() const;
    LRESULT PaintRow(NMLVCUSTOMDRAW& draw) const;
    toolkit::Choice ChoiceOf(UINT message, WPARAM wParam) const;
    void MoveWithoutChange(UINT message, WPARAM wParam, int before);
    // Whether the message may make the control deselect the selected row and select one.
    bool ChangesSelection(UINT message, WPARAM wParam, LPARAM lParam) const;

    toolkit::ListView& list_;
    std::optional<TextMeasure> painting_;
    CellTip tip_;
    bool dark_ = false;  // its background, and so its scroll bars
    std::vector<Width> widths_;
    int topRow_ = 0;               // before the form got another resolution
    std::vector<int> positions_;   // as last seen, for when the window has gone
    bool changingByCode_ = false;  // what the control reports then is no user's doing
    bool hidePosted_ = false;      // the list is to be hidden when kHideNow arrives
    // The row that the control shows as selected. While LiftedSelection has deselected it, none is,
    // and liftedRow_ is the one to select again, unless the control selects another.
    int selectedRow_ = -1;
    int liftedRow_ = -1;
    // The control knows one selected row; the others are the list's and painted as if they were.
    bool severalShown_ = false;
    toolkit::Choice choice_ = toolkit::Choice::Only;  // what the message that is handled stands for
};

}  // namespace ordalyn::win32
