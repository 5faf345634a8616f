#include "win32/controls/Bars.h"

#include <algorithm>
#include <utility>

#include "toolkit/ShortText.h"
#include "win32/common/Resolution.h"
#include "win32/common/WideText.h"
#include "win32/controls/TextMeasure.h"

namespace ordalyn::win32 {

using namespace toolkit;

namespace {

// Between a part's edges and its text, on both sides together.
constexpr int kBesidePart = 8;

}  // namespace

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
    ShowTexts();
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
    ShowTexts();
    bar_.SystemChangedBounds(RealBounds());
}

void StatusBarWindow::SetPanelCount(int count) {
    panels_.resize(static_cast<std::size_t>(count));
    ShowParts();
}

void StatusBarWindow::SetPanel(int index, std::string_view text, Twips width, Bevel bevel) {
    Panel& panel = panels_.at(static_cast<std::size_t>(index));
    const bool moved = std::exchange(panel.width, width) != width;
    if (std::exchange(panel.bevel, bevel) != bevel)
        panel.known = false;
    panel.text = text;
    if (moved)
        ShowParts();
    else
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
    ShowTexts();
}

void StatusBarWindow::ShowTexts() {
    tip_.Forget(handle());
    for (std::size_t index = 0; index < panels_.size(); ++index)
        ShowText(index);
}

// Windows would cut a text that does not fit, without a sign of it. Nothing is painted anew unless
// what fits is another text.
void StatusBarWindow::ShowText(std::size_t index) {
    Panel& panel = panels_[index];
    if (handle() == nullptr)
        return;
    const TextMeasure measure(handle());
    const std::string fitting =
        ShortenLine(panel.text, RoomForText(index),
                    [&](std::string_view part) { return measure.WidthOf(part); });
    panel.cut = fitting != panel.text;
    std::wstring shown = WideForOneLine(fitting);
    if (std::exchange(panel.known, true) && shown == panel.shown)
        return;
    panel.shown = std::move(shown);
    const WPARAM look = panel.bevel == Bevel::None ? SBT_NOBORDERS : 0;
    Send(SB_SETTEXTW, index | look, reinterpret_cast<LPARAM>(panel.shown.c_str()));
}

RECT StatusBarWindow::PartAt(std::size_t index) const {
    RECT part = {};
    Send(SB_GETRECT, index, reinterpret_cast<LPARAM>(&part));
    return part;
}

int StatusBarWindow::RoomForText(std::size_t index) const {
    RECT inside = {};
    GetClientRect(handle(), &inside);
    const HWND form = GetAncestor(handle(), GA_ROOT);
    // Over the corner that is dragged, texts are covered.
    if ((GetWindowLongPtrW(handle(), GWL_STYLE) & SBARS_SIZEGRIP) != 0 && !IsZoomed(form))
        inside.right -= MetricAt(SM_CXVSCROLL, scale().DpiX());
    const RECT part = PartAt(index);
    return std::min(part.right, inside.right) - part.left - scale().Nominal(kBesidePart);
}

// Whoever asks gets the whole text.
std::optional<LRESULT> StatusBarWindow::TextAsked(UINT message, WPARAM wParam, LPARAM lParam) {
    if ((message != SB_GETTEXTW && message != SB_GETTEXTLENGTHW) || wParam >= panels_.size() ||
        !panels_[wParam].cut)
        return std::nullopt;
    const std::wstring whole = WideForOneLine(panels_[wParam].text);
    const LRESULT look = HIWORD(Default(SB_GETTEXTLENGTHW, wParam, 0));
    if (message == SB_GETTEXTW) {
        auto* const to = reinterpret_cast<wchar_t*>(lParam);
        to[whole.copy(to, whole.size())] = L'\0';
    }
    return MAKELRESULT(whole.size(), look);
}

void StatusBarWindow::ShowTip(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_MOUSEMOVE) {
        const POINT at = {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
        int pointed = -1;
        RECT part = {};
        for (std::size_t index = 0; index < panels_.size() && pointed < 0; ++index) {
            part = PartAt(index);
            pointed = PtInRect(&part, at) ? static_cast<int>(index) : -1;
        }
        if (!tip_.IsFor(0, pointed)) {
            const bool cut = pointed >= 0 && panels_[static_cast<std::size_t>(pointed)].cut;
            tip_.Set(handle(), 0, pointed, part,
                     cut ? WideForOneLine(panels_[static_cast<std::size_t>(pointed)].text)
                         : std::wstring(),
                     bar_.RightToLeft());
        }
    } else if (message != WM_LBUTTONDOWN && message != WM_RBUTTONDOWN) {
        return;
    }
    tip_.Relay(handle(), message, wParam, lParam);
}

LRESULT StatusBarWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (const std::optional<LRESULT> text = TextAsked(message, wParam, lParam))
        return *text;
    ShowTip(message, wParam, lParam);
    return Peer::OnMessage(message, wParam, lParam);
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
