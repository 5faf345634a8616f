// The peers of the toolkit in memory: each keeps what it shows in a Shown.
#pragma once

#include <algorithm>
#include <cmath>
#include <memory>
#include <string>
#include <vector>

#include "base/Text.h"
#include "support/toolkit/MemoryToolkit.h"

namespace ordalyn::test {

// The heights that combo boxes and the status bar decide on, at the default font size.
inline constexpr toolkit::Twips kComboHeight = 315;
inline constexpr toolkit::Twips kStatusHeight = 330;
// Of a list's rows and its column headers.
inline constexpr toolkit::Twips kRowHeight = 255;

// Gives access to what a peer shows, whatever its kind.
class HasShown {
  public:
    virtual ~HasShown() = default;
    Shown shown;
};

inline const toolkit::Control& FormOf(const toolkit::Control& control) {
    const toolkit::Control* at = &control;
    while (at->Container() != nullptr)
        at = at->Container();
    return *at;
}

template <typename Interface>
class Peer : public Interface, public HasShown {
  public:
    Peer(MemoryToolkit& toolkit, toolkit::Control& control)
        : toolkit_(toolkit), control_(control) {}
    ~Peer() override {
        if (toolkit_.focus == &control_)
            toolkit_.focus = nullptr;
    }
    toolkit::Rect Place(const toolkit::Rect& wanted) override { return shown.bounds = wanted; }
    void SetContainer(toolkit::ControlPeer& container) override { shown.container = &container; }
    void SetVisible(bool visible) override { shown.visible = visible; }
    void SetEnabled(bool enabled) override { shown.enabled = enabled; }
    void SetCaption(std::string_view caption) override {
        shown.caption = caption;
        shown.captions.emplace_back(caption);
    }
    toolkit::Rect SetFont(const toolkit::Font& font) override {
        shown.font = font;
        ++shown.looksTold;
        return shown.bounds;
    }
    void SetColors(toolkit::Color foreground, toolkit::Color background) override {
        shown.foreground = foreground;
        shown.background = background;
        ++shown.looksTold;
    }
    void SetBorder(toolkit::BorderStyle border, toolkit::Appearance appearance) override {
        shown.border = border;
        shown.appearance = appearance;
        ++shown.looksTold;
    }
    void SetReadingOrder(bool rightToLeft, toolkit::Alignment alignment) override {
        shown.rightToLeft = rightToLeft;
        shown.alignment = alignment;
        ++shown.looksTold;
    }
    void SetPointer(toolkit::Pointer pointer) override { shown.pointer = pointer; }
    void SetToolTip(std::string_view text) override { shown.toolTip = text; }
    void SetTabStop(bool tabStop) override { shown.tabStop = tabStop; }
    void SetAccessibleName(std::string_view name) override { shown.accessibleName = name; }
    void BringToFront() override { ++shown.broughtToFront; }
    void TakeFocus() override {
        if (toolkit_.focus == &control_)
            return;
        toolkit_.focus = &control_;
        MemoryToolkit::Mutable(FormOf(control_)).focused = &control_;
        // A form that is not shown gives the focus when it is.
        if (FormOf(control_).Visible())
            control_.GotFocus.Raise();
    }
    bool CanTakeInput() const override {
        for (const toolkit::Control* at = &control_; at != nullptr; at = at->Container()) {
            if (!at->Visible() || !at->Enabled())
                return false;
        }
        return true;
    }
    bool HasFocus() const override {
        for (const toolkit::Control* at = toolkit_.focus; at != nullptr; at = at->Container())
            if (at == &control_)
                return true;
        return false;
    }
    void Refresh() override { ++shown.refreshes; }

  protected:
    // Where the control is, from the screen's top left corner.
    toolkit::Rect OnScreen() const {
        const auto& form = dynamic_cast<const toolkit::Form&>(FormOf(control_));
        const toolkit::Size inside = form.ClientSize();
        const toolkit::Twips side = (form.Width() - inside.width) / 2;
        toolkit::Rect place = shown.bounds;
        place.left += form.Left() + side;
        place.top += form.Top() + form.Height() - side - inside.height;
        for (const toolkit::Control* at = control_.Container(); at != &form; at = at->Container()) {
            place.left += at->Left();
            place.top += at->Top();
        }
        return place;
    }

    MemoryToolkit& toolkit_;
    toolkit::Control& control_;
};

using SimplePeer = Peer<toolkit::ControlPeer>;

class MemoryLabel : public Peer<toolkit::LabelPeer> {
  public:
    using Peer::Peer;
    void SetPlainText(bool plain) override { shown.plainText = plain; }
    void SetShortensPath(bool shortens) override { shown.shortensPath = shortens; }
    // Letters that are all alike, broken anywhere.
    toolkit::Twips HeightFor(toolkit::Twips width) override {
        const double letter = 12.5 * shown.font.size, line = 25 * shown.font.size;
        const double needed = letter * static_cast<double>(CharacterCount(shown.caption));
        const bool single = shown.shortensPath || !(width > letter);
        return static_cast<toolkit::Twips>(
            single ? line : line * std::max(1.0, std::ceil(needed / static_cast<double>(width))));
    }
};

class MemoryToggle : public Peer<toolkit::TogglePeer> {
  public:
    using Peer::Peer;
    void SetChecked(bool checked) override { shown.checked = checked; }
};

template <typename Interface>
class TextualPeer : public Peer<Interface> {
  public:
    using Peer<Interface>::Peer;
    void SetText(std::string_view text) override { this->shown.text = text; }
    void SelectText(std::size_t start, std::size_t length) override {
        this->shown.selectionStart = start;
        this->shown.selectionLength = length;
    }
};

class MemoryComboBox : public TextualPeer<toolkit::ComboBoxPeer> {
  public:
    using TextualPeer::TextualPeer;
    toolkit::Rect Place(const toolkit::Rect& wanted) override {
        shown.bounds = wanted;
        shown.bounds.height = HeightFor(shown.font);
        return shown.bounds;
    }
    toolkit::Rect SetFont(const toolkit::Font& font) override {
        shown.font = font;
        shown.bounds.height = HeightFor(font);
        return shown.bounds;
    }
    void AddItems(const std::vector<std::string>& texts) override {
        shown.items.insert(shown.items.end(), texts.begin(), texts.end());
    }
    void InsertItem(int index, std::string_view text) override {
        shown.items.emplace(shown.items.begin() + index, text);
        if (shown.listIndex >= index)
            ++shown.listIndex;
    }
    void SetItem(int index, std::string_view text) override {
        shown.items[static_cast<std::size_t>(index)] = text;
    }
    void RemoveItem(int index) override {
        shown.items.erase(shown.items.begin() + index);
        if (shown.listIndex == index) {
            shown.listIndex = -1;
            if (!static_cast<toolkit::ComboBox&>(control_).Editable())
                shown.text.clear();
        } else if (shown.listIndex > index) {
            --shown.listIndex;
        }
    }
    void RemoveAllItems() override {
        shown.items.clear();
        shown.listIndex = -1;
        shown.text.clear();
    }
    void SetListIndex(int index) override {
        shown.listIndex = index;
        shown.text = index >= 0 ? shown.items[static_cast<std::size_t>(index)] : std::string();
    }
    bool IsDroppedDown() const override { return shown.droppedDown; }

  private:
    static toolkit::Twips HeightFor(const toolkit::Font& font) {
        return kComboHeight + static_cast<toolkit::Twips>((font.size - 8) * 30);
    }
};

class MemoryListView : public Peer<toolkit::ListViewPeer> {
  public:
    using Peer::Peer;
    void InsertColumn(int index, std::string_view caption, toolkit::Twips width) override {
        shown.columns.insert(shown.columns.begin() + index, {std::string(caption), width});
        shown.columnPositions.push_back(index);
    }
    void RemoveColumn(int index) override {
        shown.columns.erase(shown.columns.begin() + index);
        const int position = shown.columnPositions[static_cast<std::size_t>(index)];
        shown.columnPositions.erase(shown.columnPositions.begin() + index);
        for (int& other : shown.columnPositions) {
            if (other > position)
                --other;
        }
    }
    void SetColumnCaption(int index, std::string_view caption) override {
        shown.columns[static_cast<std::size_t>(index)].caption = caption;
    }
    void SetColumnWidth(int index, toolkit::Twips width) override {
        shown.columns[static_cast<std::size_t>(index)].width = width;
    }
    toolkit::Twips ColumnWidth(int index) override {
        return shown.columns[static_cast<std::size_t>(index)].width;
    }
    toolkit::Twips WidthFor(std::string_view text) override {
        return static_cast<toolkit::Twips>(static_cast<double>(CharacterCount(text)) *
                                           shown.font.size * 13);
    }
    void SetColumnPosition(int index, int position) override {
        const int before = shown.columnPositions[static_cast<std::size_t>(index)];
        for (int& other : shown.columnPositions) {
            if (other > before)
                --other;
            if (other >= position)
                ++other;
        }
        shown.columnPositions[static_cast<std::size_t>(index)] = position;
    }
    int ColumnPosition(int index) override {
        return shown.columnPositions[static_cast<std::size_t>(index)];
    }
    void ResetRows(int count) override {
        shown.rowCount = count;
        shown.selectedRow = -1;
        shown.visibleRow = -1;
        shown.updatesInSight += shown.visible ? 1 : 0;
        ++shown.fills;
    }
    void UpdateRows(int count) override {
        shown.rowCount = count;
        shown.updatesInSight += shown.visible ? 1 : 0;
    }
    void GrowRows(int count, int) override {
        shown.rowCount = count;
        if (shown.selectedRow >= count)
            shown.selectedRow = -1;
        ++shown.growths;
    }
    void SelectRow(int row) override { shown.selectedRow = row; }
    void ShowSelection() override {
        shown.selectedRows = static_cast<toolkit::ListView&>(control_).SelectedRows();
        ++shown.selections;
    }
    void EnsureVisible(int row) override { shown.visibleRow = row; }
    // The row that was brought into view last is the list's first, below its column headers.
    toolkit::Rect RowOnScreen(int row) override {
        const int first = std::max(shown.visibleRow, 0);
        const auto below = kRowHeight * static_cast<toolkit::Twips>(row - first + 1);
        const toolkit::Twips seen = std::min(shown.bounds.height - below, kRowHeight);
        if (row < first || seen <= 0)
            return {};
        toolkit::Twips width = 0;
        for (const auto& column : shown.columns)
            width += column.width;
        const toolkit::Rect list = OnScreen();
        return {list.left, list.top + below, std::min(width, list.width), seen};
    }
    void SetGridLines(bool gridLines) override { shown.gridLines = gridLines; }
    void SetMarkColor(toolkit::Color color) override { shown.markColor = color; }
    void FlattenColumnHeaders() override { shown.flatHeaders = true; }
};

class MemoryStatusBar : public Peer<toolkit::StatusBarPeer> {
  public:
    using Peer::Peer;
    // Always along the lower edge of its form.
    toolkit::Rect Place(const toolkit::Rect&) override { return Settle(); }
    toolkit::Rect SetFont(const toolkit::Font& font) override {
        shown.font = font;
        return Settle();
    }
    void SetContainer(toolkit::ControlPeer& container) override {
        shown.container = &container;
        Settle();
    }
    toolkit::Rect Settle() {
        const auto* form = dynamic_cast<const toolkit::Form*>(&FormOf(control_));
        if (form == nullptr)
            return shown.bounds;
        const toolkit::Size inside = form->ClientSize();
        return shown.bounds = {0, inside.height - kStatusHeight, inside.width, kStatusHeight};
    }
    void SetPanelCount(int count) override { shown.panels.resize(static_cast<std::size_t>(count)); }
    void SetPanel(int index, std::string_view text, toolkit::Twips width,
                  toolkit::Bevel bevel) override {
        shown.panels[static_cast<std::size_t>(index)] = {std::string(text), width, bevel};
    }
};

class MemoryProgressBar : public Peer<toolkit::ProgressBarPeer> {
  public:
    using Peer::Peer;
    void SetRange(int minimum, int maximum) override {
        shown.minimum = minimum;
        shown.maximum = maximum;
    }
    void SetValue(int value) override {
        shown.value = value;
        shown.values.push_back(value);
    }
};

class MemoryTabStrip : public Peer<toolkit::TabStripPeer> {
  public:
    using Peer::Peer;
    void SetTab(int index, std::string_view caption) override {
        if (index == static_cast<int>(shown.tabs.size()))
            shown.tabs.emplace_back();
        shown.tabs[static_cast<std::size_t>(index)] = caption;
    }
    void SelectTab(int index) override { shown.selectedTab = index; }
};

// Draws when the message loop gets to it. Letters are as wide as half of their height.
class MemoryCanvas : public Peer<toolkit::CanvasPeer>, private toolkit::Painter {
  public:
    using Peer::Peer;
    toolkit::Rect Place(const toolkit::Rect& wanted) override {
        Invalidate();
        return Peer::Place(wanted);
    }
    toolkit::Rect SetFont(const toolkit::Font& font) override {
        Invalidate();
        return Peer::SetFont(font);
    }
    void SetColors(toolkit::Color foreground, toolkit::Color background) override {
        Invalidate();
        Peer::SetColors(foreground, background);
    }
    void SetReadingOrder(bool rightToLeft, toolkit::Alignment alignment) override {
        Invalidate();
        Peer::SetReadingOrder(rightToLeft, alignment);
    }
    void Invalidate() override {
        if (waiting_)
            return;
        waiting_ = true;
        toolkit_.Later([this, alive = std::weak_ptr<int>(alive_)] {
            if (alive.expired())
                return;
            waiting_ = false;
            for (const toolkit::Control* at = &control_; at != nullptr; at = at->Container()) {
                if (!at->Visible())
                    return;
            }
            Paint();
        });
    }
    toolkit::Size Measure(std::string_view text) override {
        const auto height = static_cast<toolkit::Twips>(shown.font.size * 26);
        return {static_cast<toolkit::Twips>(CharacterCount(text)) * height / 2, height};
    }
    toolkit::Twips WholePixels(toolkit::Twips length) override {
        const double pixels = std::round(length / toolkit_.twipsPerPixelX);
        return static_cast<toolkit::Twips>(std::max(pixels, 1.0) * toolkit_.twipsPerPixelX);
    }
    toolkit::TextColors ShownColors() override {
        const auto seen = [](toolkit::Color color) {
            if (color >= 0)
                return color;
            const bool text = color == toolkit::kWindowText || color == toolkit::kButtonText;
            return text ? 0x000000 : 0xFFFFFF;
        };
        const toolkit::TextColors readable =
            toolkit::ReadableColors({shown.foreground, shown.background}, toolkit_.highContrast);
        return {seen(readable.text), seen(readable.background)};
    }
    void Paint() {
        ++shown.paints;
        shown.drawn.clear();
        static_cast<toolkit::Canvas&>(control_).Paint.Raise(*this);
    }

  private:
    void Fill(const toolkit::Rect& area, toolkit::Color color) override {
        shown.drawn.push_back({Drawn::What::Fill, area, color, {}, {}});
    }
    void Text(const toolkit::Rect& area, std::string_view text, toolkit::Color color,
              toolkit::TextPlace place) override {
        shown.drawn.push_back({Drawn::What::Text, area, color, std::string(text), place});
    }
    void MarkFocus(const toolkit::Rect& area, toolkit::Color background) override {
        if (toolkit_.focus == &control_)
            shown.drawn.push_back({Drawn::What::FocusMark, area, background, {}, {}});
    }
    bool waiting_ = false;
    std::shared_ptr<int> alive_ = std::make_shared<int>(0);
};

class MemoryToolBar : public Peer<toolkit::ToolBarPeer> {
  public:
    using Peer::Peer;
    void AddButton(std::string_view image, bool) override { shown.items.emplace_back(image); }
    void ShowCurrentButton(int) override {}
    void OpenMenu(int index) override {
        auto& bar = static_cast<toolkit::ToolBar&>(control_);
        if (bar.ButtonAt(index + 1).menu.empty() || !toolkit_.onToolMenu)
            return;
        const int entry = toolkit_.onToolMenu(bar, index + 1);
        if (entry >= 0)
            bar.UserChoseMenuEntry(index, entry);
    }
};

}  // namespace ordalyn::test
