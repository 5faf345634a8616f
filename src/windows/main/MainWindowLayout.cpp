#include "windows/main/MainWindowLayout.h"

#include "base/Attempt.h"
#include "base/CheckedMath.h"
#include "toolkit/ScopedPointer.h"

namespace ordalyn {

using toolkit::Rect;
using toolkit::Twips;

namespace {

// Pixels between and around the controls.
constexpr std::int32_t kBelowCombos = 4;
constexpr std::int32_t kBesidePanels = 1;
constexpr std::int32_t kBarThickness = 3;

Twips Pixels(std::int32_t count, std::int32_t twipsPerPixel) {
    return static_cast<Twips>(CheckedMultiply(count, twipsPerPixel));
}

}  // namespace

MainWindowLayout::MainWindowLayout(const Controls& controls, mAppSpecific& settings,
                                   PixelSize pixel, std::function<std::string()> targetCaption)
    : controls_(controls),
      settings_(settings),
      pixel_(pixel),
      targetCaption_(std::move(targetCaption)) {}

void MainWindowLayout::ArrangeFirstTime() {
    controls_.picSpliterContainer.SetLeft(static_cast<Twips>(pixel_.x));
    const bool statusBar = settings_.StatusBarVisible != 0;
    controls_.StatusBar1.SetVisible(statusBar);
    controls_.mnuViewStatusBar.SetChecked(statusBar);
    const bool twoPanels = settings_.TwoPanels != 0;
    controls_.mnuViewTwoPanels.SetChecked(twoPanels);
    controls_.mnuViewVerticalPanels.SetEnabled(twoPanels);
    // With one panel the arrangement waits out of sight for the second one.
    ArrangePanels();
    if (!twoPanels) {
        controls_.picSpliterContainer.SetVisible(false);
        PutSourceListOnWindow();
    }
    WindowResized();
}

Twips MainWindowLayout::StatusBarHeight() const {
    return controls_.StatusBar1.Visible() ? controls_.StatusBar1.Height() : 0;
}

// From the inside, whatever frame the system draws around it.
Rect MainWindowLayout::PanelsArea() const {
    const auto comboHeight = static_cast<Twips>(RoundToLong(controls_.cboDate.Height()));
    const Twips top = comboHeight + Pixels(kBelowCombos, pixel_.y);
    const Twips side = Pixels(kBesidePanels, pixel_.x);
    const toolkit::Size inside = controls_.form.ClientSize();
    return {side, top, inside.width - 2 * side, inside.height - top - StatusBarHeight()};
}

void MainWindowLayout::WindowResized() {
    Attempt([this] {
        const Rect area = PanelsArea();
        if (settings_.TwoPanels != 0) {
            Attempt([&] { controls_.picSpliterContainer.SetTop(area.top); });
            splitter_.Resize(area.height, area.width);
        } else {
            Attempt([&] { controls_.SourceListView.SetTop(area.top); });
            Attempt([&] { controls_.SourceListView.SetHeight(area.height); });
            Attempt([&] { controls_.SourceListView.SetWidth(area.width); });
        }
    });
    Attempt([this] { Arranged.Raise(); });
}

void MainWindowLayout::ShowPanels(bool shown) {
    panelsShown_ = shown;
    ShowThisManyPanels();
}

// Two panels are inside the container, a single one is not.
void MainWindowLayout::ShowThisManyPanels() {
    const bool twoPanels = settings_.TwoPanels != 0;
    controls_.picSpliterContainer.SetVisible(twoPanels && panelsShown_);
    if (!twoPanels)
        controls_.SourceListView.SetVisible(panelsShown_);
}

void MainWindowLayout::ArrangePanels() {
    const bool sideBySide = settings_.VerticalPanels != 0;
    controls_.mnuViewVerticalPanels.SetChecked(sideBySide);
    // The bar's thickness is measured with the horizontal factor in both directions, deliberately.
    splitter_.CreateSplitter(controls_.picSpliterContainer, controls_.Frame1,
                             controls_.SourceListView, controls_.TargetListView,
                             sideBySide ? cSplitter::kSideBySide : cSplitter::kStacked,
                             BarPosition(), CheckedMultiply(kBarThickness, pixel_.x), 0, 0, 0, 0);
    arrangedPosition_ = splitter_.SplitPosition();
}

std::int32_t& MainWindowLayout::BarPosition() {
    return settings_.VerticalPanels != 0 ? settings_.VSplitPosition : settings_.HSplitPosition;
}

void MainWindowLayout::KeepBarPosition() {
    if (splitter_.SplitPosition() != arrangedPosition_)
        BarPosition() = RoundToLong(splitter_.SplitPosition());
}

void MainWindowLayout::ChangePanelsOrientation(bool blnSaveCurrent) {
    if (blnSaveCurrent)
        KeepBarPosition();
    settings_.VerticalPanels = settings_.VerticalPanels != 0 ? 0 : 1;
    ArrangePanels();
}

void MainWindowLayout::ToggleTwoPanels() {
    const bool twoPanels = settings_.TwoPanels == 0;
    settings_.TwoPanels = twoPanels ? 1 : 0;
    controls_.mnuViewTwoPanels.SetChecked(twoPanels);
    controls_.mnuViewVerticalPanels.SetEnabled(twoPanels);
    ChangePanelsCount();
}

void MainWindowLayout::ChangePanelsCount() {
    const toolkit::ScopedPointer hourglass(controls_.form.toolkit(), toolkit::Pointer::Hourglass);
    if (settings_.TwoPanels != 0)
        MoveToTwoPanels();
    else
        MoveToOnePanel();
    const int selected = controls_.SourceListView.SelectedRow();
    // What cannot follow the selection does not keep the window from being laid out.
    Attempt([&] {
        if (selected >= 0)
            RowMoved.Raise(selected);
    });
    WindowResized();
    if (panelsShown_)
        controls_.SourceListView.SetFocus();
}

void MainWindowLayout::MoveToTwoPanels() {
    toolkit::ListView& source = controls_.SourceListView;
    toolkit::ListView& target = controls_.TargetListView;
    // The two panels show the same rows of the same source.
    target.Fill(source.Source(), source.RowTags());
    target.SetColumnWidth(0, source.ColumnWidth(kTargetField));
    // The bar is placed in a container of the size that it will have: the window may have had
    // another one when there were two panels last.
    Attempt([&] {
        const Rect area = PanelsArea();
        source.SetContainer(controls_.picSpliterContainer);
        controls_.picSpliterContainer.Move(area);
    });
    ArrangePanels();
    source.RemoveLastColumn();
    ShowThisManyPanels();
}

void MainWindowLayout::MoveToOnePanel() {
    controls_.picSpliterContainer.SetVisible(false);
    controls_.SourceListView.AddColumn(targetCaption_(), controls_.TargetListView.ColumnWidth(0),
                                       kTargetField);
    PutSourceListOnWindow();
    ShowThisManyPanels();
    controls_.TargetListView.ClearRows();
}

void MainWindowLayout::PutSourceListOnWindow() {
    toolkit::ListView& source = controls_.SourceListView;
    source.SetContainer(controls_.form);
    source.SetLeft(static_cast<Twips>(pixel_.x));
    source.SetTop(controls_.cboDate.Height() + Pixels(kBelowCombos, pixel_.y));
}

void MainWindowLayout::ToggleStatusBar() {
    const bool visible = settings_.StatusBarVisible == 0;
    controls_.StatusBar1.SetVisible(visible);
    controls_.mnuViewStatusBar.SetChecked(visible);
    settings_.StatusBarVisible = visible ? 1 : 0;
    WindowResized();
}

void MainWindowLayout::SaveSplitterSettings() {
    // A single panel has no bar: what the file says about two panels stays.
    if (settings_.TwoPanels == 0)
        return;
    KeepBarPosition();
    settings_.SaveAllOf(SettingWriter::PanelLayout);
}

}  // namespace ordalyn
