#include "support/toolkit/MemoryToolkit.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "base/Errors.h"
#include "base/Text.h"

namespace ordalyn::test {

using namespace toolkit;

namespace {

// The heights that combo boxes and the status bar decide on, at the default font size.
constexpr Twips kComboHeight = 315;
constexpr Twips kStatusHeight = 330;
constexpr Twips kFrameSide = 60;
constexpr Twips kCaption = 345;
constexpr Twips kMenuBar = 300;

// Gives access to what a peer shows, whatever its kind.
class HasShown {
  public:
    virtual ~HasShown() = default;
    virtual Control& ControlOfPeer() = 0;
    Shown shown;
};

const Control& FormOf(const Control& control) {
    const Control* at = &control;
    while (at->Container() != nullptr)
        at = at->Container();
    return *at;
}

// Whether a person could use it: everything around it is shown and enabled.
bool CanReach(const Control& control) {
    for (const Control* at = &control; at != nullptr; at = at->Container()) {
        if (!at->Visible() || !at->Enabled())
            return false;
    }
    return true;
}

bool CanHaveFocus(Kind kind) {
    switch (kind) {
        case Kind::Label:
        case Kind::ToolBar:
        case Kind::CommandButton:
        case Kind::CheckBox:
        case Kind::OptionButton:
        case Kind::TextBox:
        case Kind::ComboBox:
        case Kind::ListView:
        case Kind::TabStrip:
            return true;
        default:
            return false;
    }
}

// One option of a group is a tab stop: the chosen one, or the first when none is.
bool SpeaksForGroup(const Form& form, const Toggle& option) {
    const Toggle* speaker = nullptr;
    for (const auto& control : form.Controls()) {
        const auto* const other = dynamic_cast<const OptionButton*>(control.get());
        if (other == nullptr || other->Container() != option.Container() || !CanReach(*other))
            continue;
        if (speaker == nullptr || (other->Checked() && !speaker->Checked()))
            speaker = other;
    }
    return speaker == &option;
}

bool IsTabStop(const Form& form, const Control& control) {
    if (!CanHaveFocus(control.ControlKind()) || !CanReach(control) ||
        !MemoryToolkit::Of(control).tabStop)
        return false;
    const auto* const option = dynamic_cast<const OptionButton*>(&control);
    return option == nullptr || SpeaksForGroup(form, *option);
}

template <typename Interface>
class Peer : public Interface, public HasShown {
  public:
    Peer(MemoryToolkit& toolkit, Control& control) : toolkit_(toolkit), control_(control) {}
    Control& ControlOfPeer() override { return control_; }
    ~Peer() override {
        if (toolkit_.focus == &control_)
            toolkit_.focus = nullptr;
    }
    Rect Place(const Rect& wanted) override { return shown.bounds = wanted; }
    void SetContainer(ControlPeer& container) override { shown.container = &container; }
    void SetVisible(bool visible) override { shown.visible = visible; }
    void SetEnabled(bool enabled) override { shown.enabled = enabled; }
    void SetCaption(std::string_view caption) override {
        shown.caption = caption;
        shown.captions.emplace_back(caption);
    }
    Rect SetFont(const Font& font) override {
        shown.font = font;
        return shown.bounds;
    }
    void SetColors(Color foreground, Color background) override {
        shown.foreground = foreground;
        shown.background = background;
    }
    void SetBorder(BorderStyle border, Appearance appearance) override {
        shown.border = border;
        shown.appearance = appearance;
    }
    void SetReadingOrder(bool rightToLeft, Alignment alignment) override {
        shown.rightToLeft = rightToLeft;
        shown.alignment = alignment;
    }
    void SetPointer(Pointer pointer) override { shown.pointer = pointer; }
    void SetToolTip(std::string_view text) override { shown.toolTip = text; }
    void SetTabStop(bool tabStop) override { shown.tabStop = tabStop; }
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
    void Refresh() override { ++shown.refreshes; }

  protected:
    MemoryToolkit& toolkit_;
    Control& control_;
};

using SimplePeer = Peer<ControlPeer>;

class MemoryLabel : public Peer<LabelPeer> {
  public:
    MemoryLabel(MemoryToolkit& toolkit, Control& control) : Peer(toolkit, control) {
        shown.tabStop = false;
    }
    void SetPlainText(bool plain) override { shown.plainText = plain; }
};

class MemoryToggle : public Peer<TogglePeer> {
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

class MemoryComboBox : public TextualPeer<ComboBoxPeer> {
  public:
    using TextualPeer::TextualPeer;
    Rect Place(const Rect& wanted) override {
        shown.bounds = wanted;
        shown.bounds.height = HeightFor(shown.font);
        return shown.bounds;
    }
    Rect SetFont(const Font& font) override {
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
            if (!static_cast<ComboBox&>(control_).Editable())
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

  private:
    static Twips HeightFor(const Font& font) {
        return kComboHeight + static_cast<Twips>((font.size - 8) * 30);
    }
};

class MemoryListView : public Peer<ListViewPeer> {
  public:
    using Peer::Peer;
    void InsertColumn(int index, std::string_view caption, Twips width) override {
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
    void SetColumnWidth(int index, Twips width) override {
        shown.columns[static_cast<std::size_t>(index)].width = width;
    }
    Twips ColumnWidth(int index) override {
        return shown.columns[static_cast<std::size_t>(index)].width;
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
    void SelectRow(int row) override { shown.selectedRow = row; }
    void EnsureVisible(int row) override { shown.visibleRow = row; }
    void SetGridLines(bool gridLines) override { shown.gridLines = gridLines; }
    void FlattenColumnHeaders() override { shown.flatHeaders = true; }
};

class MemoryStatusBar : public Peer<StatusBarPeer> {
  public:
    using Peer::Peer;
    // Always along the lower edge of its form.
    Rect Place(const Rect&) override { return Settle(); }
    Rect SetFont(const Font& font) override {
        shown.font = font;
        return Settle();
    }
    void SetContainer(ControlPeer& container) override {
        shown.container = &container;
        Settle();
    }
    Rect Settle() {
        const auto* form = dynamic_cast<const Form*>(&FormOf(control_));
        if (form == nullptr)
            return shown.bounds;
        const Size inside = form->ClientSize();
        return shown.bounds = {0, inside.height - kStatusHeight, inside.width, kStatusHeight};
    }
    void SetPanelCount(int count) override { shown.panels.resize(static_cast<std::size_t>(count)); }
    void SetPanel(int index, std::string_view text, Twips width, Bevel bevel) override {
        shown.panels[static_cast<std::size_t>(index)] = {std::string(text), width, bevel};
    }
};

class MemoryProgressBar : public Peer<ProgressBarPeer> {
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

class MemoryTabStrip : public Peer<TabStripPeer> {
  public:
    using Peer::Peer;
    void SetTab(int index, std::string_view caption) override {
        if (index == static_cast<int>(shown.tabs.size()))
            shown.tabs.emplace_back();
        shown.tabs[static_cast<std::size_t>(index)] = caption;
    }
    void SelectTab(int index) override { shown.selectedTab = index; }
};

class MemoryToolBar : public Peer<ToolBarPeer> {
  public:
    using Peer::Peer;
    void AddButton(std::string_view image, bool) override { shown.items.emplace_back(image); }
    void SetButtonToolTip(int, std::string_view) override {}
    void ShowCurrentButton(int) override {}
    void OpenMenu(int index) override {
        auto& bar = static_cast<ToolBar&>(control_);
        if (bar.ButtonAt(index + 1).menu.empty() || !toolkit_.onToolMenu)
            return;
        const int entry = toolkit_.onToolMenu(bar, index + 1);
        if (entry >= 0)
            bar.UserChoseMenuEntry(index, entry);
    }
};

class MemoryForm : public Peer<FormPeer> {
  public:
    MemoryForm(MemoryToolkit& toolkit, Form& form) : Peer(toolkit, form), form_(form) {
        shown.visible = false;
    }
    Size ClientSize() override {
        return {std::max<Twips>(0, shown.bounds.width - 2 * kFrameSide),
                std::max<Twips>(0, shown.bounds.height - Above() - kFrameSide)};
    }
    Rect OuterFor(const Size& client) override {
        return {shown.bounds.left, shown.bounds.top, client.width + 2 * kFrameSide,
                client.height + Above() + kFrameSide};
    }
    Rect Place(const Rect& wanted) override {
        normal_ = wanted;
        if (state_ != WindowState::Maximised)
            SetBounds(wanted);
        return shown.bounds;
    }
    void Show(FormPeer*) override {
        Appear();
        // The form may be gone when the message loop gets to it.
        toolkit_.Post([form = &form_, alive = std::weak_ptr<int>(alive_)] {
            if (!alive.expired())
                form->SystemActivated();
        });
    }
    void RunModal(FormPeer*) override {
        Appear();
        ended_ = false;
        Form* const before = toolkit_.modalForm;
        toolkit_.modalForm = &form_;
        form_.SystemActivated();
        if (!toolkit_.modalScripts.empty()) {
            const auto script = toolkit_.modalScripts.front();
            toolkit_.modalScripts.pop_front();
            toolkit_.AsTheMessageLoop([&] { script(form_); });
        }
        if (form_.Visible())
            form_.Hide();
        toolkit_.modalForm = before;
        if (!ended_)
            throw std::logic_error("A modal form is hidden and would wait forever");
    }
    void EndModal() override { ended_ = true; }
    void SetWindowState(WindowState state) override {
        state_ = state;
        if (state == WindowState::Maximised) {
            SetBounds(toolkit_.workArea);
            form_.SystemResized(shown.bounds, state);
        } else if (state == WindowState::Normal && !(shown.bounds == normal_)) {
            SetBounds(normal_);
            form_.SystemResized(shown.bounds, state);
        }
    }
    WindowState CurrentWindowState() override { return state_; }
    Rect CurrentBounds() override { return shown.bounds; }
    std::uintptr_t Handle() override { return reinterpret_cast<std::uintptr_t>(this); }
    void SetDialogButtons(ControlPeer* defaultButton, ControlPeer* cancelButton) override {
        const auto controlOf = [](ControlPeer* peer) {
            auto* const known = dynamic_cast<HasShown*>(peer);
            return known == nullptr ? nullptr : &known->ControlOfPeer();
        };
        shown.defaultButton = controlOf(defaultButton);
        shown.cancelButton = controlOf(cancelButton);
    }
    void Close() override {
        shown.visible = false;
        // A form closes again when it is destroyed.
        if (!std::exchange(closed_, true))
            toolkit_.closedForms.push_back(form_.Name());
    }
    void RebuildMenus() override {
        toolkit_.menuRebuilds.push_back(form_.Name());
        menus = ShownItems(form_.Menus());
    }
    void UpdateMenuItem(MenuItem& item) override {
        if (ShownMenu* found = Find(menus, item))
            ShowState(*found, item);
    }
    void PopUp(MenuItem& item) override {
        toolkit_.poppedUpMenus.push_back(item.Name());
        if (toolkit_.onPopUp)
            toolkit_.onPopUp(item);
    }

    std::vector<ShownMenu> menus;

  private:
    Twips Above() const { return kCaption + (menus.empty() ? 0 : kMenuBar); }
    void Appear() {
        if (std::exchange(shown.visible, true))
            return;
        if (shown.focused == nullptr || !CanReach(*shown.focused)) {
            const auto& controls = form_.Controls();
            const auto first =
                std::find_if(controls.begin(), controls.end(),
                             [this](const auto& control) { return IsTabStop(form_, *control); });
            shown.focused = first == controls.end() ? nullptr : first->get();
        }
        if (shown.focused == nullptr)
            return;
        toolkit_.focus = shown.focused;
        shown.focused->GotFocus.Raise();
    }
    void SetBounds(const Rect& bounds) {
        shown.bounds = bounds;
        for (const auto& control : form_.Controls()) {
            if (auto* bar = dynamic_cast<MemoryStatusBar*>(&control->peer()))
                control->SystemChangedBounds(bar->Settle());
        }
    }
    static std::vector<ShownMenu> ShownItems(const std::vector<std::unique_ptr<MenuItem>>& items) {
        std::vector<ShownMenu> menus;
        for (const auto& item : items) {
            if (!item->Visible())
                continue;
            menus.emplace_back().item = item.get();
            ShowState(menus.back(), *item);
            menus.back().items = ShownItems(item->Items());
        }
        return menus;
    }
    static void ShowState(ShownMenu& menu, const MenuItem& item) {
        menu.caption = item.Caption();
        menu.keys = item.KeyHint().empty() ? KeysOf(item.Accelerator()) : item.KeyHint();
        menu.enabled = item.Enabled();
        menu.checked = item.Checked();
    }
    static std::string KeysOf(const Shortcut& shortcut) {
        std::string keys;
        if (shortcut.key == 0)
            return keys;
        if (shortcut.modifiers.control)
            keys += "Ctrl+";
        if (shortcut.modifiers.alt)
            keys += "Alt+";
        if (shortcut.modifiers.shift)
            keys += "Shift+";
        if (shortcut.key >= key::F1 && shortcut.key < key::F1 + 24)
            return keys + "F" + std::to_string(shortcut.key - key::F1 + 1);
        return keys + static_cast<char>(shortcut.key);
    }
    static ShownMenu* Find(std::vector<ShownMenu>& among, const MenuItem& item) {
        for (ShownMenu& menu : among) {
            if (menu.item == &item)
                return &menu;
            if (ShownMenu* found = Find(menu.items, item))
                return found;
        }
        return nullptr;
    }
    Form& form_;
    WindowState state_ = WindowState::Normal;
    bool ended_ = false;  // the modal run
    bool closed_ = false;
    Rect normal_;
    std::shared_ptr<int> alive_ = std::make_shared<int>(0);
};

template <typename PeerType, typename ControlType>
std::unique_ptr<PeerType> Make(MemoryToolkit& toolkit, ControlType& control,
                               ControlPeer& container) {
    auto peer = std::make_unique<PeerType>(toolkit, control);
    peer->shown.container = &container;
    return peer;
}

}  // namespace

MemoryToolkit::MemoryToolkit() = default;
MemoryToolkit::~MemoryToolkit() = default;

Shown& MemoryToolkit::Mutable(const Control& control) {
    return dynamic_cast<HasShown&>(control.peer()).shown;
}

const Shown& MemoryToolkit::Of(const Control& control) {
    return Mutable(control);
}

const std::vector<ShownMenu>& MemoryToolkit::MenusOf(const Form& form) {
    return dynamic_cast<MemoryForm&>(form.peer()).menus;
}

void MemoryToolkit::AsTheMessageLoop(const std::function<void()>& work) {
    try {
        work();
    } catch (const std::exception& error) {
        ShowMessage(nullptr, error.what(), "Ordalyn", MessageIcon::Critical, MessageButtons::Ok,
                    Answer::Ok);
    }
}

void MemoryToolkit::Press(Form& form, int key, Modifiers modifiers) {
    if (modalForm != nullptr && modalForm != &form)
        return;
    // The control that has the focus comes after its form.
    const auto focused = [&]() -> Control* {
        return focus != nullptr && focus != &form && &FormOf(*focus) == &form
                   ? const_cast<Control*>(focus)
                   : nullptr;
    };
    AsTheMessageLoop([&] {
        const bool used = form.UserKeyDown(key, modifiers);
        if (used)
            return;
        if (focused() != nullptr)
            focused()->KeyDown.Raise(key, modifiers);
        if (!form.Unloaded())
            PressFormKey(form, key, modifiers);
    });
    AsTheMessageLoop([&] {
        form.UserKeyUp(key, modifiers);
        if (focused() != nullptr)
            focused()->KeyUp.Raise(key, modifiers);
    });
}

void MemoryToolkit::PressIn(Form& form, Control& control, int key, Modifiers modifiers) {
    control.SetFocus();
    Press(form, key, modifiers);
}

void MemoryToolkit::PressFormKey(Form& form, int key, Modifiers modifiers) {
    const auto& controls = form.Controls();
    const auto pressButton = [](Control* button) {
        if (button != nullptr && CanReach(*button))
            button->UserClicked();
    };
    if (modifiers.control || !form.Visible())
        return;
    if (modifiers.alt) {
        PressAccessKey(form, FoldCase(static_cast<char32_t>(key)));
        return;
    }
    Control* const focused = Of(form).focused;
    if (focused != nullptr && CanReach(*focused) && !modifiers.shift &&
        focused->UserPressedKey(key, false))
        return;
    switch (key) {
        case key::Enter:
            if (focused != nullptr && focused->ControlKind() == Kind::CommandButton)
                pressButton(focused);
            else
                pressButton(Of(form).defaultButton);
            return;
        case key::Escape:
            pressButton(Of(form).cancelButton);
            return;
        case key::Tab:
            break;
        default:
            return;
    }
    const std::size_t count = controls.size();
    const auto found = std::find_if(controls.begin(), controls.end(),
                                    [&](const auto& control) { return control.get() == focused; });
    const auto at = static_cast<std::size_t>(found - controls.begin());
    for (std::size_t step = 1; step <= count; ++step) {
        const std::size_t next = modifiers.shift ? at + count - step : at + step;
        if (!IsTabStop(form, *controls[next % count]))
            continue;
        controls[next % count]->SetFocus();
        return;
    }
}

void MemoryToolkit::PressAccessKey(Form& form, char32_t key) {
    const auto& controls = form.Controls();
    const Control* const focused = Of(form).focused;
    const auto isMarked = [key](const auto& control) {
        return control->AccessKey() == key && CanReach(*control);
    };
    // From the one behind the focus on, then from the first.
    const auto focusedAt =
        std::find_if(controls.begin(), controls.end(),
                     [focused](const auto& control) { return control.get() == focused; });
    const auto behind = focusedAt == controls.end() ? controls.begin() : focusedAt + 1;
    auto found = std::find_if(behind, controls.end(), isMarked);
    if (found == controls.end())
        found = std::find_if(controls.begin(), behind, isMarked);
    if (found == controls.end() || !isMarked(*found))
        return;
    const bool several = std::count_if(controls.begin(), controls.end(), isMarked) > 1;
    const Kind kind = (*found)->ControlKind();
    if (kind == Kind::Label || kind == Kind::Frame) {
        found = std::find_if(found, controls.end(),
                             [&form](const auto& next) { return IsTabStop(form, *next); });
        if (found != controls.end())
            (*found)->SetFocus();
        return;
    }
    (*found)->SetFocus();
    if (several)
        return;
    if (auto* const toggle = dynamic_cast<Toggle*>(found->get()))
        toggle->UserToggled();
    else
        (*found)->UserClicked();
}

void MemoryToolkit::ResizeByUser(Form& form, const Rect& outer) {
    AsTheMessageLoop([&] {
        form.formPeer().Place(outer);
        form.SystemResized(outer, form.State());
    });
}

void MemoryToolkit::ActivateByUser(Form& form) {
    AsTheMessageLoop([&] { form.SystemActivated(); });
}

void MemoryToolkit::DragColumn(const ListView& list, int column, Twips width) {
    Mutable(list).columns[static_cast<std::size_t>(column)].width = width;
}

void MemoryToolkit::MoveColumn(const ListView& list, int column, int position) {
    dynamic_cast<ListViewPeer&>(list.peer()).SetColumnPosition(column, position);
}

void MemoryToolkit::RunPosted() {
    while (!posted_.empty()) {
        const auto work = std::move(posted_.front());
        posted_.pop_front();
        AsTheMessageLoop(work);
    }
}

void MemoryToolkit::SetPointer(Pointer newPointer) {
    pointer = newPointer;
    pointers.push_back(newPointer);
}

Answer MemoryToolkit::ShowMessage(Form* owner, std::string_view text, std::string_view title,
                                  MessageIcon icon, MessageButtons buttons, Answer defaultAnswer) {
    messages.push_back({std::string(text), std::string(title), icon, buttons,
                        buttons == MessageButtons::Ok ? Answer::Ok : defaultAnswer, owner});
    if (onMessage)
        return onMessage(messages.back());
    return messages.back().defaultAnswer;
}

void MemoryToolkit::DoEvents() {
    RunPosted();
    if (onDoEvents)
        onDoEvents();
}

void MemoryToolkit::Run() {
    RunPosted();
}

std::unique_ptr<FormPeer> MemoryToolkit::CreateForm(Form& form, const FormStyle&) {
    return std::make_unique<MemoryForm>(*this, form);
}
std::unique_ptr<LabelPeer> MemoryToolkit::CreateLabel(Label& c, ControlPeer& in) {
    return Make<MemoryLabel>(*this, c, in);
}
std::unique_ptr<ControlPeer> MemoryToolkit::CreateFrame(Control& c, ControlPeer& in) {
    return Make<SimplePeer>(*this, c, in);
}
std::unique_ptr<ControlPeer> MemoryToolkit::CreatePictureBox(Control& c, ControlPeer& in) {
    return Make<SimplePeer>(*this, c, in);
}
std::unique_ptr<ControlPeer> MemoryToolkit::CreateCommandButton(Control& c, ControlPeer& in) {
    return Make<SimplePeer>(*this, c, in);
}
std::unique_ptr<TogglePeer> MemoryToolkit::CreateCheckBox(Toggle& c, ControlPeer& in) {
    return Make<MemoryToggle>(*this, c, in);
}
std::unique_ptr<TogglePeer> MemoryToolkit::CreateOptionButton(Toggle& c, ControlPeer& in) {
    return Make<MemoryToggle>(*this, c, in);
}
std::unique_ptr<TextPeer> MemoryToolkit::CreateTextBox(TextBox& c, ControlPeer& in) {
    return Make<TextualPeer<TextPeer>>(*this, c, in);
}
std::unique_ptr<ComboBoxPeer> MemoryToolkit::CreateComboBox(ComboBox& c, bool, ControlPeer& in) {
    return Make<MemoryComboBox>(*this, c, in);
}
std::unique_ptr<ListViewPeer> MemoryToolkit::CreateListView(ListView& c, ControlPeer& in) {
    return Make<MemoryListView>(*this, c, in);
}
std::unique_ptr<StatusBarPeer> MemoryToolkit::CreateStatusBar(StatusBar& c, ControlPeer& in) {
    return Make<MemoryStatusBar>(*this, c, in);
}
std::unique_ptr<ProgressBarPeer> MemoryToolkit::CreateProgressBar(ProgressBar& c, ControlPeer& in) {
    return Make<MemoryProgressBar>(*this, c, in);
}
std::unique_ptr<TabStripPeer> MemoryToolkit::CreateTabStrip(TabStrip& c, ControlPeer& in) {
    return Make<MemoryTabStrip>(*this, c, in);
}
std::unique_ptr<ToolBarPeer> MemoryToolkit::CreateToolBar(ToolBar& c, ControlPeer& in) {
    return Make<MemoryToolBar>(*this, c, in);
}

}  // namespace ordalyn::test
