#include "windows/main/cSplitter.h"

#include <cstdint>
#include <utility>

#include "base/Attempt.h"
#include "base/CheckedMath.h"

namespace ordalyn {

using toolkit::Control;
using toolkit::Rect;

namespace {

constexpr std::int32_t kDragAllowance = 30;
constexpr float kSmallestPullBack = 1800;
constexpr float kPullBack = 90;
constexpr float kPointerOffset = 15;

// Places a pane as far as it can be placed: an edge always moves, a size that is no size stays as
// it was. One movement instead of four assignments keeps the pane from being painted in between.
void PlaceAsFarAsPossible(Control& pane, const Rect& wanted) {
    Rect bounds = wanted;
    if (!(bounds.width >= 0))
        bounds.width = pane.Width();
    if (!(bounds.height >= 0))
        bounds.height = pane.Height();
    Attempt([&] { pane.Move(bounds); });
}

// What two margins leave of an extent; nothing that a pane could take when their sum overflows.
float Between(std::int32_t margin, std::int32_t otherMargin, float extent) {
    float inside = -1;
    Attempt([&] { inside = extent - static_cast<float>(CheckedAdd(margin, otherMargin)); });
    return inside;
}

}  // namespace

// Controls that were observed before may be observed again; only the last subscription counts.
void cSplitter::Observe(Control& container, Control& splitter) {
    if (mobjContainerControl != &container) {
        mobjContainerControl = &container;
        container.Resize.Subscribe([this, turn = ++containerTurn_] {
            if (turn != containerTurn_)
                return;
            LayOut();
            ContainerResized.Raise();
        });
    }
    if (mobjSplitterControl == &splitter)
        return;
    mobjSplitterControl = &splitter;
    const auto current = [this, turn = ++splitterTurn_] { return turn == splitterTurn_; };
    splitter.MouseDown.Subscribe([this, current](int, toolkit::Modifiers, float x, float y) {
        if (current())
            BarPressed(x, y);
    });
    splitter.MouseMove.Subscribe(
        [this, current](int buttons, toolkit::Modifiers, float x, float y) {
            if (current())
                BarMoved(buttons, x, y);
        });
    splitter.MouseUp.Subscribe([this, current](int, toolkit::Modifiers, float, float) {
        if (current())
            BarReleased();
    });
}

void cSplitter::CreateSplitter(Control& container, Control& splitter, Control& pane1,
                               Control& pane2, std::int32_t direction,
                               std::int32_t splitterStartPos, std::int32_t splitterSize,
                               float leftMargin, float topMargin, float rightMargin,
                               float bottomMargin) {
    Observe(container, splitter);
    pane2_ = &pane2;
    pane1_ = &pane1;
    splitter.SetContainer(container);
    pane2.SetContainer(container);
    pane1.SetContainer(container);
    direction_ = direction;
    leftMargin_ = RoundToLong(leftMargin);
    topMargin_ = RoundToLong(topMargin);
    rightMargin_ = RoundToLong(rightMargin);
    bottomMargin_ = RoundToLong(bottomMargin);
    splitterSize_ = splitterSize;

    splitter.SetBorder(toolkit::BorderStyle::None);
    splitter.SetCaption("");
    splitter.SetBackColor(container.BackColor());
    splitter.BringToFront();
    container.SetBorder(toolkit::BorderStyle::None);
    splitter.SetVisible(true);
    pane2.SetVisible(true);
    pane1.SetVisible(true);
    leftPanelVisible_ = true;
    rightPanelVisible_ = true;
    splitPosition_ = static_cast<float>(splitterStartPos);
    pulledBack_ = false;

    const float size = SideBySide() ? container.Width() : container.Height();
    if (createdBefore_ && splitPosition_ >= size)
        splitPosition_ = size / 2;
    SetBarPosition(splitPosition_);
    LayOut();
    createdBefore_ = true;
}

void cSplitter::FillWith(Control& pane) {
    PlaceAsFarAsPossible(pane,
                         {static_cast<float>(leftMargin_), static_cast<float>(topMargin_),
                          Between(leftMargin_, rightMargin_, mobjContainerControl->Width()),
                          Between(topMargin_, bottomMargin_, mobjContainerControl->Height())});
}

void cSplitter::LayOut() {
    if (mobjContainerControl == nullptr)
        return;
    if (!rightPanelVisible_) {
        FillWith(*pane1_);
        return;
    }
    if (!leftPanelVisible_) {
        FillWith(*pane2_);
        return;
    }
    const Control& container = *mobjContainerControl;
    Control& bar = *mobjSplitterControl;
    const auto size = static_cast<float>(splitterSize_);
    if (SideBySide())
        PlaceAsFarAsPossible(bar, {bar.Left(), static_cast<float>(topMargin_), size,
                                   Between(topMargin_, bottomMargin_, container.Height())});
    else
        PlaceAsFarAsPossible(bar, {static_cast<float>(leftMargin_), bar.Top(),
                                   Between(leftMargin_, rightMargin_, container.Width()), size});
    FitPanes();
}

void cSplitter::FitPanes() {
    if (mobjContainerControl == nullptr)
        return;
    const Control& container = *mobjContainerControl;
    const Control& bar = *mobjSplitterControl;
    const auto left = static_cast<float>(leftMargin_);
    const auto top = static_cast<float>(topMargin_);
    const auto right = static_cast<float>(rightMargin_);
    const auto bottom = static_cast<float>(bottomMargin_);
    if (SideBySide()) {
        const float height = container.Height() - top - bottom;
        PlaceAsFarAsPossible(*pane1_, {left, top, bar.Left() - left, height});
        PlaceAsFarAsPossible(
            *pane2_, {bar.Left() + bar.Width(), top,
                      container.Width() - (pane1_->Width() + left + bar.Width() + right), height});
    } else {
        const float width = container.Width() - left - right;
        PlaceAsFarAsPossible(*pane1_, {left, top, width, bar.Top() - top});
        PlaceAsFarAsPossible(
            *pane2_, {left, bar.Top() + bar.Height(), width,
                      container.Height() - (pane1_->Height() + top + bar.Height() + bottom)});
    }
}

void cSplitter::BarPressed(float x, float y) {
    dragging_ = true;
    mouseDownX_ = x;
    mouseDownY_ = y;
}

void cSplitter::BarMoved(int buttons, float x, float y) {
    Control& bar = *mobjSplitterControl;
    bar.SetMousePointer(SideBySide() ? toolkit::Pointer::SizeEastWest
                                     : toolkit::Pointer::SizeNorthSouth);
    if (!dragging_ || buttons != toolkit::kLeftButton)
        return;
    const float position =
        SideBySide() ? x - mouseDownX_ + bar.Left() : y - mouseDownY_ + bar.Top();
    const float size =
        SideBySide() ? mobjContainerControl->Width() : mobjContainerControl->Height();
    // The allowance is on the left (upper) side only, on purpose.
    if (!(position > static_cast<float>(CheckedAdd(MinLeftPanelWidth, kDragAllowance))))
        return;
    if (!(position < size - static_cast<float>(MinRightPanelWidth)))
        return;
    // On the first move of a drag the bar jumps back by nearly its own thickness, so that it does
    // not hide below the pointer; after that it follows the pointer exactly, because the pointer's
    // place inside the bar has grown by the same amount.
    const float edge = position - static_cast<float>(splitterSize_) + kPointerOffset;
    SetBarPosition(edge);
    pulledBack_ = false;
    FitPanes();
}

void cSplitter::BarReleased() {
    dragging_ = false;
    // A click moves nothing: where the bar had to go is not where it was put.
    if (!pulledBack_)
        splitPosition_ = BarPosition();
}

float cSplitter::BarPosition() const {
    return SideBySide() ? mobjSplitterControl->Left() : mobjSplitterControl->Top();
}

void cSplitter::SetBarPosition(float position) {
    if (SideBySide())
        mobjSplitterControl->SetLeft(position);
    else
        mobjSplitterControl->SetTop(position);
}

void cSplitter::KeepBarInside(float size) {
    if (pulledBack_ && splitPosition_ <= size) {
        SetBarPosition(splitPosition_);
        pulledBack_ = false;
    } else if (BarPosition() > size && size > kSmallestPullBack) {
        SetBarPosition(size - kPullBack);
        pulledBack_ = true;
    }
}

void cSplitter::Resize(float containerHeight, float containerWidth) {
    if (mobjContainerControl == nullptr)
        return;
    const float before = BarPosition();
    Attempt([&] { KeepBarInside(SideBySide() ? containerWidth : containerHeight); });
    Attempt([&] { mobjContainerControl->SetHeight(containerHeight); });
    Attempt([&] { mobjContainerControl->SetWidth(containerWidth); });
    // A container that keeps its size says nothing.
    if (BarPosition() != before)
        LayOut();
}

void cSplitter::SwapPanels() {
    std::swap(pane1_, pane2_);
    LayOut();
    swapped_ = !swapped_;
}

void cSplitter::Move(float x, float y) {
    if (mobjContainerControl == nullptr)
        return;
    Attempt([&] { mobjContainerControl->SetLeft(x); });
    Attempt([&] { mobjContainerControl->SetTop(y); });
}

void cSplitter::SetLeftPanelVisible(bool visible) {
    leftPanelVisible_ = visible;
    if (mobjContainerControl == nullptr)
        return;
    mobjSplitterControl->SetVisible(visible && rightPanelVisible_);
    pane1_->SetVisible(visible);
    mobjContainerControl->SetVisible(visible || rightPanelVisible_);
    LayOut();
}

void cSplitter::SetRightPanelVisible(bool visible) {
    rightPanelVisible_ = visible;
    if (mobjContainerControl == nullptr)
        return;
    mobjSplitterControl->SetVisible(leftPanelVisible_ && visible);
    mobjContainerControl->SetVisible(leftPanelVisible_ || visible);
    pane2_->SetVisible(visible);
    LayOut();
}

void cSplitter::SetVisible(bool visible) {
    visible_ = visible;
    if (mobjContainerControl != nullptr)
        mobjContainerControl->SetVisible(visible);
}

void cSplitter::SetSplitPosition(float position) {
    splitPosition_ = position;
    pulledBack_ = false;
    FitPanes();
}

}  // namespace ordalyn
