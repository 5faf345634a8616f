#include "win32/controls/Bars.h"

#include "win32/common/WideText.h"

namespace ordalyn::win32 {

using namespace toolkit;

ProgressBarWindow::ProgressBarWindow(Desktop& desktop, ProgressBar& bar, ControlPeer& container)
    : Peer(desktop, bar, {PROGRESS_CLASSW, PBS_SMOOTH}, &container) {}

void ProgressBarWindow::SetRange(int minimum, int maximum) {
    Send(PBM_SETRANGE32, static_cast<WPARAM>(minimum), maximum);
}

void ProgressBarWindow::SetValue(int value) {
    // The themed bar glides to a higher value, but jumps to a lower one at once.
    PBRANGE range = {};
    Send(PBM_GETRANGE, TRUE, reinterpret_cast<LPARAM>(&range));
    if (value < range.iHigh) {
        Send(PBM_SETPOS, static_cast<WPARAM>(value + 1));
    } else {
        Send(PBM_SETRANGE32, static_cast<WPARAM>(range.iLow), range.iHigh + 1);
        Send(PBM_SETPOS, static_cast<WPARAM>(value + 1));
        Send(PBM_SETRANGE32, static_cast<WPARAM>(range.iLow), range.iHigh);
    }
    Send(PBM_SETPOS, static_cast<WPARAM>(value));
    if (const FormHost* const around = form())
        RedrawWindow(around->FormHandle(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
}

StatusBarWindow::StatusBarWindow(Desktop& desktop, StatusBar& bar, ControlPeer& container)
    : Peer(desktop, bar, {STATUSCLASSNAMEW, 0}, &container), bar_(bar) {
    const FormHost* const around = form();
    if (around != nullptr && around->Resizable())
        ChangeStyle(GWL_STYLE, 0, SBARS_SIZEGRIP);
}

Rect StatusBarWindow::Place(const Rect& wanted) {
    Remember(wanted);
    Send(WM_SIZE);
    ShowParts();
    return RealBounds();
}

Rect StatusBarWindow::SetFont(const toolkit::Font& font) {
    ShowFont(font);
    Send(WM_SIZE);
    return RealBounds();
}

Rect StatusBarWindow::RealBounds() const {
    RECT bounds = {};
    if (handle() == nullptr || !GetWindowRect(handle(), &bounds))
        return Wanted();
    MapWindowPoints(nullptr, GetParent(handle()), reinterpret_cast<POINT*>(&bounds), 2);
    return scale().Twips(bounds);
}

void StatusBarWindow::OnContainerResized() {
    Send(WM_SIZE);
    bar_.SystemChangedBounds(RealBounds());
}

void StatusBarWindow::SetPanelCount(int count) {
    panels_.resize(static_cast<std::size_t>(count));
    ShowParts();
}

void StatusBarWindow::SetPanel(int index, std::string_view text, Twips width, Bevel bevel) {
    Panel& panel = panels_.at(static_cast<std::size_t>(index));
    const bool moved = panel.width != width;
    panel = {WideForOneLine(text), width, bevel};
    if (moved)
        ShowParts();
    ShowText(static_cast<std::size_t>(index));
}

void StatusBarWindow::ShowParts() {
    if (panels_.empty())
        return;
    std::vector<int> rightEdges;
    Twips right = 0;
    for (const Panel& panel : panels_) {
        right += panel.width;
        rightEdges.push_back(panel.width == 0 ? -1 : scale().PixelsX(right));
    }
    Send(SB_SETPARTS, rightEdges.size(), reinterpret_cast<LPARAM>(rightEdges.data()));
}

void StatusBarWindow::ShowText(std::size_t index) {
    const Panel& panel = panels_[index];
    const WPARAM look = panel.bevel == Bevel::None ? SBT_NOBORDERS : 0;
    Send(SB_SETTEXTW, index | look, reinterpret_cast<LPARAM>(panel.text.c_str()));
}

std::optional<LRESULT> StatusBarWindow::OnNotify(NMHDR& header) {
    if (header.code != static_cast<UINT>(NM_CLICK))
        return std::nullopt;
    const auto panel = reinterpret_cast<const NMMOUSE&>(header).dwItemSpec;
    if (panel < panels_.size())
        bar_.UserClickedPanel(static_cast<int>(panel));
    return TRUE;
}

TabStripWindow::TabStripWindow(Desktop& desktop, TabStrip& strip, ControlPeer& container)
    : Peer(desktop, strip, {WC_TABCONTROLW, WS_TABSTOP}, &container), strip_(strip) {}

void TabStripWindow::SetTab(int index, std::string_view caption) {
    std::wstring text = WideForDisplay(caption);
    TCITEMW item = {};
    item.mask = TCIF_TEXT;
    item.pszText = text.data();
    const bool isNew = index >= static_cast<int>(Send(TCM_GETITEMCOUNT));
    Send(isNew ? TCM_INSERTITEMW : TCM_SETITEMW, static_cast<WPARAM>(index),
         reinterpret_cast<LPARAM>(&item));
}

void TabStripWindow::SelectTab(int index) {
    Send(TCM_SETCURSEL, static_cast<WPARAM>(index));
}

std::optional<LRESULT> TabStripWindow::OnNotify(NMHDR& header) {
    if (header.code != static_cast<UINT>(TCN_SELCHANGE))
        return std::nullopt;
    const auto selected = static_cast<int>(Send(TCM_GETCURSEL));
    if (selected >= 0)
        strip_.UserSelected(selected);
    return 0;
}

}  // namespace ordalyn::win32
