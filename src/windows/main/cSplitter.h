// cSplitter keeps two panes side by side or one above the other inside a container control, with a
// movable bar between them. All positions and sizes are twips.
//
// Laying out goes on when a single assignment fails (a window can become smaller than the margins);
// creating, the property writers and dragging pass failures to the caller.
#pragma once

#include <cstdint>

#include "toolkit/Control.h"

namespace ordalyn {

class cSplitter {
  public:
    // The direction in which the bar stands. Every other value than kSideBySide stacks the panes.
    static constexpr std::int32_t kSideBySide = 1;
    static constexpr std::int32_t kStacked = 2;

    // Arranges the controls; may be called again at any time, with the same controls or others. The
    // panes and the bar move into the container and are shown. A start position at or beyond the
    // container's size becomes half of that size, except on the very first call: at that moment the
    // container has not got its final size yet, so the position is taken as it is.
    // The controls must outlive the splitter or its next CreateSplitter call.
    void CreateSplitter(toolkit::Control& container, toolkit::Control& splitter,
                        toolkit::Control& pane1, toolkit::Control& pane2, std::int32_t direction,
                        std::int32_t splitterStartPos, std::int32_t splitterSize, float leftMargin,
                        float topMargin, float rightMargin, float bottomMargin);

    bool LeftPanelVisible() const { return leftPanelVisible_; }
    bool RightPanelVisible() const { return rightPanelVisible_; }
    bool Visible() const { return visible_; }
    // The bar's left or top edge as last committed: by CreateSplitter, by the end of a drag, or by
    // the writer.
    float SplitPosition() const { return splitPosition_; }
    void SetLeftPanelVisible(bool visible);
    void SetRightPanelVisible(bool visible);
    void SetVisible(bool visible);
    // Stores the position and fits the panes to the bar, which stays where it is: the new position
    // takes effect on the bar at the next CreateSplitter.
    void SetSplitPosition(float position);

    // The owner's window has another size: height first. A bar that lies below (right of) the new
    // inside is pulled back when the container is larger than 1800 twips, and returns to its
    // committed position as soon as that lies inside again.
    void Resize(float containerHeight, float containerWidth);
    // Exchanges the panes. The visibility properties then speak of the exchanged panes.
    void SwapPanels();
    bool Swapped() const { return swapped_; }
    void Move(float x, float y);

    // Raised after the panes were laid out because the container has another size.
    toolkit::Event<> ContainerResized;

    // Bounds for dragging, in twips from the container's edges.
    std::int32_t MinLeftPanelWidth = 0;
    std::int32_t MinRightPanelWidth = 0;

  private:
    bool SideBySide() const { return direction_ == kSideBySide; }
    void Observe(toolkit::Control& container, toolkit::Control& splitter);
    void LayOut();
    void FitPanes();
    void FillWith(toolkit::Control& pane);
    void BarPressed(float x, float y);
    void BarMoved(int buttons, float x, float y);
    void BarReleased();
    // The bar's left or top edge as it is shown.
    float BarPosition() const;
    void SetBarPosition(float position);
    void KeepBarInside(float size);

    std::int32_t direction_ = 0;
    bool swapped_ = false;
    std::int32_t rightMargin_ = 0;
    std::int32_t splitterSize_ = 0;
    std::int32_t leftMargin_ = 0;
    std::int32_t topMargin_ = 0;
    std::int32_t bottomMargin_ = 0;
    toolkit::Control* pane2_ = nullptr;
    toolkit::Control* pane1_ = nullptr;
    bool dragging_ = false;
    float mouseDownX_ = 0;
    float mouseDownY_ = 0;
    bool visible_ = true;
    bool leftPanelVisible_ = true;
    bool rightPanelVisible_ = true;
    float splitPosition_ = 0;
    toolkit::Control* mobjContainerControl = nullptr;
    toolkit::Control* mobjSplitterControl = nullptr;
    bool createdBefore_ = false;
    bool pulledBack_ = false;  // the bar could not stay at its committed position
    // How many containers and bars were observed so far.
    int containerTurn_ = 0;
    int splitterTurn_ = 0;
};

}  // namespace ordalyn
