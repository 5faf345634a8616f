// A user of the toolkit in memory.
#include <algorithm>
#include <cmath>

#include "base/Text.h"
#include "contract/toolkit/ToolkitDriver.h"
#include "support/toolkit/MemoryToolkit.h"

namespace ordalyn::contract {

using namespace toolkit;
using test::MemoryToolkit;
using test::Shown;
using test::ShownMenu;

namespace {

constexpr int kRowPixels = 17;

const Control& FormOf(const Control& control) {
    const Control* at = &control;
    while (at->Container() != nullptr)
        at = at->Container();
    return *at;
}

class MemoryDriver : public ToolkitDriver {
  public:
    MemoryDriver() {
        kit_.onMessage = [this](const test::ShownMessage& message) {
            boxes.push_back({message.text, message.title, message.buttons, message.defaultAnswer});
            return answer_ ? answer_(boxes.back()) : message.defaultAnswer;
        };
    }
    Toolkit& Kit() override { return kit_; }
    void Settle() override { kit_.DoEvents(); }
    void PassTime(int milliseconds) override { kit_.PassTime(milliseconds); }
    void Later(std::function<void()> work) override { kit_.Later(std::move(work)); }

    void Choose(ComboBox& box, int index) override {
        Do(box, [&] {
            Shown& shown = MemoryToolkit::Mutable(box);
            shown.listIndex = index;
            shown.text = shown.items.at(static_cast<std::size_t>(index));
            box.UserSelected(index);
        });
    }
    void Type(TextBox& box, std::string_view text) override { TypeInto(box, text); }
    void Type(ComboBox& box, std::string_view text) override { TypeInto(box, text); }
    void Press(Control& button) override {
        Do(button, [&] {
            if (auto* toggle = dynamic_cast<Toggle*>(&button))
                toggle->UserToggled();
            else
                button.UserClicked();
        });
    }
    void PressFromOutside(Control& button) override {
        auto& form = static_cast<Form&>(const_cast<Control&>(FormOf(button)));
        Do(button, [&] { form.SystemActivated(true); });
        Press(button);
    }
    void PressTwice(Control& button) override {
        Press(button);
        Press(button);
    }
    void PressKey(Form& form, int key, Modifiers modifiers) override {
        if (!IsVisible(form))
            return;
        auto* list = dynamic_cast<ListView*>(const_cast<Control*>(kit_.focus));
        const bool mine = list != nullptr && &FormOf(*list) == &form && CanReach(*list);
        kit_.Press(form, key, modifiers);
        if (mine && (modifiers == Modifiers{} || modifiers == Modifiers{.shift = true}))
            MoveInList(*list, key, modifiers.shift ? Choice::Extend : Choice::Only);
    }
    void ClickRow(ListView& list, int row, Modifiers modifiers) override {
        Choice choice = modifiers.control ? Choice::Toggle : Choice::Only;
        if (modifiers.shift)
            choice = modifiers.control ? Choice::ExtendMore : Choice::Extend;
        Do(list, [&] { Select(list, row, choice); });
    }
    void RightClickRow(ListView& list, int row) override {
        Do(list, [&] { Select(list, row, Choice::Keep); });
    }
    void DoubleClickRow(ListView& list, int row) override {
        ClickRow(list, row, {});
        Do(list, [&] { list.UserActivated(row); });
    }
    void ClickBelowRows(ListView& list) override {
        Do(list, [&] { Select(list, -1, Choice::Only); });
    }
    void DragDivider(ListView& list, int column, int pixels) override {
        if (CanReach(list))
            MemoryToolkit::DragColumn(
                list, column, static_cast<Twips>((ColumnPixels(list, column) + pixels) * 15));
    }
    void DragHeader(ListView& list, int column, int position) override {
        if (CanReach(list))
            MemoryToolkit::MoveColumn(list, column, position);
    }
    void ClickPanel(StatusBar& bar, int number) override {
        Do(bar, [&] { bar.UserClickedPanel(number - 1); });
    }
    void ClickTab(TabStrip& strip, int number) override {
        Do(strip, [&] {
            MemoryToolkit::Mutable(strip).selectedTab = number - 1;
            strip.UserSelected(number - 1);
        });
    }
    void ClickToolButton(ToolBar& bar, int number) override {
        Do(bar, [&] { bar.UserClickedButton(number - 1); });
    }
    void ChooseToolMenuEntry(ToolBar& bar, int number, int entry) override {
        if (!bar.ButtonAt(number).hasMenu || bar.ButtonAt(number).menu.empty())
            return;
        Do(bar, [&] { bar.UserChoseMenuEntry(number - 1, entry); });
    }
    void ChooseToolMenuEntryByKeys(ToolBar& bar, int number, int entry) override {
        kit_.onToolMenu = [=](const ToolBar&, int opened) { return opened == number ? entry : -1; };
        kit_.Press(static_cast<Form&>(const_cast<Control&>(FormOf(bar))), key::Down);
        kit_.onToolMenu = nullptr;
    }
    void ChooseMenu(Form& form, const std::vector<int>& path) override {
        if (!CanReach(form))
            return;
        const std::vector<ShownMenu>* items = &MemoryToolkit::MenusOf(form);
        const ShownMenu* found = nullptr;
        for (const int position : path) {
            found = &items->at(static_cast<std::size_t>(position));
            if (!found->enabled || found->separator)
                return;
            items = &found->items;
        }
        auto* const item = const_cast<MenuItem*>(found->item);
        kit_.AsTheMessageLoop([&] { item->Choose(); });
    }
    void PopUpAndChoose(Form& form, MenuItem& menu, int position) override {
        kit_.onPopUp = [position](MenuItem& item) {
            if (position >= 0)
                item.Items().at(static_cast<std::size_t>(position))->Choose();
        };
        kit_.AsTheMessageLoop([&] { form.PopUpMenu(menu); });
    }
    Rect PopUpBelow(Form& form, MenuItem& menu, const Rect& place) override {
        kit_.onPopUp = nullptr;
        kit_.AsTheMessageLoop([&] { form.PopUpMenuBelow(menu, place); });
        return kit_.poppedUpAt;
    }
    void Close(Form& form) override {
        if (form.Style().closeBox)
            Do(form, [&] { form.UserClosed(); });
    }
    void DropFiles(Form& form, const std::vector<std::string>& paths) override {
        if (form.Style().takesDroppedFiles)
            Do(form, [&] { form.FilesDropped.Raise(paths); });
    }
    void ResizeTo(Form& form, Pixels size) override {
        kit_.ResizeByUser(form, {form.Left(), form.Top(), static_cast<Twips>(size.x * 15),
                                 static_cast<Twips>(size.y * 15)});
    }
    void MoveTo(Form& form, Pixels place) override {
        kit_.ResizeByUser(form, {static_cast<Twips>(place.x * 15), static_cast<Twips>(place.y * 15),
                                 form.Width(), form.Height()});
    }
    void DragMouse(Control& control, int button, const std::vector<Pixels>& points) override {
        if (!CanReach(control))
            return;
        if (button == kLeftButton && control.ControlKind() == Kind::Canvas)
            control.SetFocus();
        const auto x = [](Pixels p) { return static_cast<Twips>(p.x * 15); };
        const auto y = [](Pixels p) { return static_cast<Twips>(p.y * 15); };
        kit_.AsTheMessageLoop(
            [&] { control.MouseDown.Raise(button, {}, x(points.front()), y(points.front())); });
        for (std::size_t i = 1; i < points.size(); ++i)
            kit_.AsTheMessageLoop(
                [&] { control.MouseMove.Raise(button, {}, x(points[i]), y(points[i])); });
        const Pixels last = points.back();
        kit_.AsTheMessageLoop([&] { control.MouseUp.Raise(button, {}, x(last), y(last)); });
        const Shown& shown = MemoryToolkit::Of(control);
        const bool inside = x(last) >= 0 && y(last) >= 0 && x(last) < shown.bounds.width &&
                            y(last) < shown.bounds.height;
        if (button == kLeftButton && inside)
            kit_.AsTheMessageLoop([&] { control.UserClicked(); });
    }
    void MoveMouse(Control& control, Pixels to) override {
        Do(control, [&] {
            control.MouseMove.Raise(0, {}, static_cast<Twips>(to.x * 15),
                                    static_cast<Twips>(to.y * 15));
        });
    }
    void LeaveWithMouse(Canvas& canvas) override {
        Do(canvas, [&] { canvas.MouseLeave.Raise(); });
    }
    void TurnWheel(Canvas& canvas, int delta) override {
        Do(canvas, [&] { canvas.UserTurnedWheel(delta); });
    }
    void RunModal(Form& form, Form* owner, std::function<void()> meanwhile) override {
        kit_.modalScripts.emplace_back([script = std::move(meanwhile)](Form&) { script(); });
        form.ShowModal(owner);
    }
    void AnswerBoxes(std::function<Answer(const BoxSeen&)> answer) override {
        answer_ = std::move(answer);
    }

    bool IsVisible(const Control& control) override {
        for (const Control* at = &control; at != nullptr; at = at->Container()) {
            if (!MemoryToolkit::Of(*at).visible)
                return false;
        }
        return true;
    }
    bool IsEnabled(const Control& control) override { return MemoryToolkit::Of(control).enabled; }
    bool HasFocus(const Control& control) override { return kit_.focus == &control; }
    std::string CaptionOf(const Control& control) override {
        return MemoryToolkit::Of(control).caption;
    }
    std::string TextOf(const Control& control) override { return MemoryToolkit::Of(control).text; }
    Selection SelectionOf(const Control& control) override {
        const Shown& shown = MemoryToolkit::Of(control);
        return {shown.selectionStart, shown.selectionLength};
    }
    Rect BoundsOf(const Control& control) override {
        const Rect& b = MemoryToolkit::Of(control).bounds;
        const auto whole = [](double twips) { return std::round(twips / 15) * 15; };
        const double left = whole(b.left);
        const double top = whole(b.top);
        return {static_cast<Twips>(left), static_cast<Twips>(top),
                static_cast<Twips>(whole(double{b.left} + double{b.width}) - left),
                static_cast<Twips>(whole(double{b.top} + double{b.height}) - top)};
    }
    bool IsChecked(const Toggle& toggle) override { return MemoryToolkit::Of(toggle).checked; }
    std::vector<std::string> ItemsOf(const ComboBox& box) override {
        return MemoryToolkit::Of(box).items;
    }
    int SelectedItem(const ComboBox& box) override { return MemoryToolkit::Of(box).listIndex; }
    int RowCount(const ListView& list) override { return MemoryToolkit::Of(list).rowCount; }
    std::string Cell(const ListView& list, int row, int column) override {
        return std::string(list.Text(row, column));
    }
    int SelectedRow(const ListView& list) override { return MemoryToolkit::Of(list).selectedRow; }
    RowRanges SelectedRows(const ListView& list) override {
        return MemoryToolkit::Of(list).selectedRows;
    }
    int TopRow(const ListView& list) override {
        const int visible = MemoryToolkit::Of(list).visibleRow;
        return std::max(0, visible - RowsOfPage(list) + 1);
    }
    std::string ColumnCaption(const ListView& list, int column) override {
        return MemoryToolkit::Of(list).columns.at(static_cast<std::size_t>(column)).caption;
    }
    int ColumnPixels(const ListView& list, int column) override {
        const Twips width =
            MemoryToolkit::Of(list).columns.at(static_cast<std::size_t>(column)).width;
        return static_cast<int>(std::lround(width / 15));
    }
    int Effort(const ListView& list, const std::function<void()>& meanwhile) override {
        const int before = MemoryToolkit::Of(list).fills;
        meanwhile();
        return MemoryToolkit::Of(list).fills - before;
    }
    std::vector<std::string> PanelTexts(const StatusBar& bar) override {
        std::vector<std::string> texts;
        for (const Shown::Panel& panel : MemoryToolkit::Of(bar).panels)
            texts.push_back(panel.text);
        return texts;
    }
    std::vector<std::string> TabCaptions(const TabStrip& strip) override {
        return MemoryToolkit::Of(strip).tabs;
    }
    int SelectedTab(const TabStrip& strip) override {
        return MemoryToolkit::Of(strip).selectedTab + 1;
    }
    int ToolButtonCount(const ToolBar& bar) override {
        return static_cast<int>(MemoryToolkit::Of(bar).items.size());
    }
    double FilledPart(const ProgressBar& bar) override {
        const Shown& shown = MemoryToolkit::Of(bar);
        return double{1} * (shown.value - shown.minimum) / (shown.maximum - shown.minimum);
    }
    Color ColorAt(const Canvas& canvas, Pixels at) override {
        Color seen = MemoryToolkit::Of(canvas).background;
        for (const test::Drawn& drawn : MemoryToolkit::Of(canvas).drawn) {
            if (drawn.what == test::Drawn::What::Fill && Covers(drawn.area, at))
                seen = drawn.color;
        }
        return seen;
    }
    bool HasColor(const Canvas& canvas, Pixels from, Pixels to, Color color) override {
        for (const test::Drawn& drawn : MemoryToolkit::Of(canvas).drawn) {
            const Pixels middle{static_cast<int>((drawn.area.left + drawn.area.width / 2) / 15),
                                static_cast<int>((drawn.area.top + drawn.area.height / 2) / 15)};
            const bool inside =
                middle.x >= from.x && middle.x < to.x && middle.y >= from.y && middle.y < to.y;
            if (drawn.what == test::Drawn::What::Text && drawn.color == color && inside)
                return true;
        }
        return false;
    }
    std::vector<MenuSeen> MenusOf(const Form& form) override {
        return Seen(MemoryToolkit::MenusOf(form));
    }

  private:
    // The edges are those of the nearest pixels.
    static bool Covers(const Rect& area, Pixels at) {
        const auto pixel = [](double twips) { return std::lround(twips / 15); };
        return at.x >= pixel(area.left) && at.x < pixel(double{area.left} + double{area.width}) &&
               at.y >= pixel(area.top) && at.y < pixel(double{area.top} + double{area.height});
    }
    bool CanReach(const Control& control) {
        const Control& form = FormOf(control);
        if (kit_.modalForm != nullptr && kit_.modalForm != &form)
            return false;
        for (const Control* at = &control; at != nullptr; at = at->Container()) {
            if (!MemoryToolkit::Of(*at).visible || !MemoryToolkit::Of(*at).enabled)
                return false;
        }
        return true;
    }
    void Do(const Control& control, const std::function<void()>& action) {
        if (CanReach(control))
            kit_.AsTheMessageLoop(action);
    }
    template <typename Box>
    void TypeInto(Box& box, std::string_view text) {
        for (std::size_t length = text.empty() ? 0 : 1; length <= CharacterCount(text); ++length) {
            Do(box, [&] {
                const std::string typed(FirstCharacters(text, length));
                MemoryToolkit::Mutable(box).text = typed;
                MemoryToolkit::Mutable(box).listIndex = -1;
                box.UserEdited(typed);
            });
        }
    }
    int RowsOfPage(const ListView& list) {
        const auto pixels = static_cast<int>(list.Height() / 15) - 2 * kRowPixels;
        return std::max(1, pixels / kRowPixels);
    }
    static bool MovesInList(int key) {
        return key == key::Down || key == key::Up || key == key::Home || key == key::End ||
               key == key::PageDown || key == key::PageUp;
    }
    static void Select(ListView& list, int row, Choice choice) {
        MemoryToolkit::Mutable(list).selectedRow = row;
        list.UserSelected(row, choice);
    }
    void MoveInList(ListView& list, int key, Choice choice) {
        const int last = list.RowCount() - 1;
        const int now = MemoryToolkit::Of(list).selectedRow;
        int row = now;
        switch (key) {
            case key::Down:
                row = now + 1;
                break;
            case key::Up:
                row = now - 1;
                break;
            case key::Home:
                row = 0;
                break;
            case key::End:
                row = last;
                break;
            case key::PageDown:
                row = now + RowsOfPage(list);
                break;
            case key::PageUp:
                row = now - RowsOfPage(list);
                break;
            default:
                break;
        }
        row = std::clamp(row, 0, std::max(last, 0));
        const bool several = list.SelectedRows().Count() > 1 && choice == Choice::Only;
        if ((row == now && !(several && MovesInList(key))) || last < 0)
            return;
        kit_.AsTheMessageLoop([&] {
            MemoryToolkit::Mutable(list).visibleRow = row;
            Select(list, row, choice);
        });
    }
    static std::vector<MenuSeen> Seen(const std::vector<ShownMenu>& menus) {
        std::vector<MenuSeen> seen;
        for (const ShownMenu& menu : menus) {
            seen.push_back({menu.separator ? "" : menu.caption, menu.keys, menu.enabled,
                            menu.checked, menu.separator, Seen(menu.items)});
        }
        return seen;
    }

    MemoryToolkit kit_;
    std::function<Answer(const BoxSeen&)> answer_;
};

}  // namespace

std::unique_ptr<ToolkitDriver> MakeMemoryDriver() {
    return std::make_unique<MemoryDriver>();
}

}  // namespace ordalyn::contract
