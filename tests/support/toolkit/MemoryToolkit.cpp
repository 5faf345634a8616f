#include "support/toolkit/MemoryToolkit.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "support/toolkit/MemoryPeers.h"
#include "toolkit/FormKeyboard.h"
#include "toolkit/Timer.h"

namespace ordalyn::test {

using namespace toolkit;

namespace {

constexpr Twips kFrameSide = 60;
constexpr Twips kCaption = 345;
constexpr Twips kMenuBar = 300;
constexpr Twips kMenuWidth = 1500;

class MemoryForm : public Peer<FormPeer> {
  public:
    MemoryForm(MemoryToolkit& toolkit, Form& form) : Peer(toolkit, form), form_(form) {
        shown.visible = false;
        toolkit.forms.push_back(&form);
    }
    ~MemoryForm() override { Forget(); }
    void ShortenCaptionFrom(std::size_t start) override { shown.pathInCaption = start; }
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
        toolkit_.Later([form = &form_, alive = std::weak_ptr<int>(alive_)] {
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
    Rect WorkArea() override { return toolkit_.workArea; }
    std::uintptr_t Handle() override { return reinterpret_cast<std::uintptr_t>(this); }
    void SetDefaultButton(ControlPeer* button) override { shown.defaultButton = button; }
    void ShowKeyboardCues() override { shown.keyboardCues = true; }
    void Close() override {
        shown.visible = false;
        // A form closes again when it is destroyed.
        if (std::exchange(closed_, true))
            return;
        toolkit_.closedForms.push_back(form_.Name());
        Forget();
    }
    void RebuildMenus() override {
        toolkit_.menuRebuilds.push_back(form_.Name());
        menus = ShownItems(form_.Menus());
    }
    void UpdateMenuItem(MenuItem& item) override {
        if (ShownMenu* found = Find(menus, item))
            ShowState(*found, item);
    }
    // A form that waits for a modal one or for a box is disabled.
    bool CanTakeInput() const override {
        const bool waits = toolkit_.modalForm != nullptr && toolkit_.modalForm != &form_;
        return !waits && !toolkit_.boxIsOpen && Peer::CanTakeInput();
    }
    void PopUp(MenuItem& item, const Rect* below) override {
        const ScopedFlag open(toolkit_.menuIsOpen);
        toolkit_.poppedUpMenus.push_back(item.Name());
        toolkit_.poppedUpBelow.reset();
        if (below != nullptr) {
            toolkit_.poppedUpBelow = *below;
            toolkit_.poppedUpAt = PlaceOfMenu(item, *below);
        }
        if (toolkit_.onPopUp)
            toolkit_.onPopUp(item);
    }

    std::vector<ShownMenu> menus;

  private:
    void Forget() {
        std::vector<Form*>& forms = toolkit_.forms;
        forms.erase(std::remove(forms.begin(), forms.end(), &form_), forms.end());
    }
    Twips Above() const { return kCaption + (menus.empty() ? 0 : kMenuBar); }
    // Below the place, from its beginning on; above it where the screen ends below.
    Rect PlaceOfMenu(const MenuItem& item, const Rect& place) const {
        Rect menu{place.left, place.top + place.height, kMenuWidth,
                  kMenuBar * static_cast<Twips>(item.Items().size())};
        if (form_.RightToLeft())
            menu.left = place.left + place.width - menu.width;
        if (menu.top + menu.height > toolkit_.workArea.top + toolkit_.workArea.height)
            menu.top = place.top - menu.height;
        return menu;
    }
    void Appear() {
        if (std::exchange(shown.visible, true))
            return;
        if (shown.focused == nullptr || !shown.focused->CanTakeInput())
            shown.focused = FormKeyboard(form_).FirstTabStop();
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
        menu.keys = item.KeyText();
        menu.separator = item.IsSeparator();
        menu.enabled = item.Enabled();
        menu.checked = item.Checked();
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

class MemoryTimer : public TimerPeer {
  public:
    MemoryTimer(MemoryToolkit& toolkit, Timer& timer, const int& now)
        : toolkit_(toolkit), timer_(timer), now_(now) {}
    ~MemoryTimer() override { Forget(); }
    void Start(int milliseconds) override {
        Forget();
        toolkit_.timers.push_back({&timer_, milliseconds, now_ + milliseconds});
    }
    void Stop() override { Forget(); }

  private:
    void Forget() {
        std::erase_if(toolkit_.timers, [&](const auto& other) { return other.timer == &timer_; });
    }

    MemoryToolkit& toolkit_;
    Timer& timer_;
    const int& now_;
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
    // The form itself is no control for a key to go to.
    const auto focused = [&form] {
        Control* const control = Of(form).focused;
        return control == &form ? nullptr : control;
    };
    const FormKeyboard keyboard(form);
    const auto alive = form.Lifetime();
    AsTheMessageLoop([&] {
        if (!keyboard.KeyDown(focused(), {key, modifiers}) && modifiers.alt && !modifiers.control)
            keyboard.AccessKey(focused(), static_cast<char32_t>(key));
    });
    if (!alive.expired())
        AsTheMessageLoop([&] { keyboard.KeyUp(focused(), key, modifiers); });
}

void MemoryToolkit::PressIn(Form& form, Control& control, int key, Modifiers modifiers) {
    control.SetFocus();
    Press(form, key, modifiers);
}

void MemoryToolkit::ResizeByUser(Form& form, const Rect& outer) {
    AsTheMessageLoop([&] {
        form.formPeer().Place(outer);
        form.SystemResized(outer, form.State());
    });
}

void MemoryToolkit::ActivateByUser(Form& form, bool byClickOnControl) {
    AsTheMessageLoop([&] { form.SystemActivated(byClickOnControl); });
}

const Shown& MemoryToolkit::Paint(const Canvas& canvas) {
    dynamic_cast<MemoryCanvas&>(canvas.peer()).Paint();
    return Of(canvas);
}

void MemoryToolkit::DragColumn(const ListView& list, int column, Twips width) {
    Mutable(list).columns[static_cast<std::size_t>(column)].width = width;
}

void MemoryToolkit::MoveColumn(const ListView& list, int column, int position) {
    dynamic_cast<ListViewPeer&>(list.peer()).SetColumnPosition(column, position);
}

void MemoryToolkit::DoLaterWork() {
    while (!later_.empty()) {
        const auto work = std::move(later_.front());
        later_.pop_front();
        AsTheMessageLoop(work);
    }
}

void MemoryToolkit::PassTime(int milliseconds) {
    const int end = now_ + milliseconds;
    const auto isSooner = [](const RunningTimer& a, const RunningTimer& b) {
        return a.due < b.due;
    };
    while (true) {
        const auto next = std::min_element(timers.begin(), timers.end(), isSooner);
        if (next == timers.end() || next->due > end)
            break;
        now_ = next->due;
        next->due += next->interval;
        Timer& timer = *next->timer;
        if (!menuIsOpen)
            AsTheMessageLoop([&] { timer.SystemElapsed(); });
    }
    now_ = end;
}

std::unique_ptr<TimerPeer> MemoryToolkit::CreateTimer(Timer& timer, FormPeer&) {
    return std::make_unique<MemoryTimer>(*this, timer, now_);
}

std::vector<Rect> MemoryToolkit::WorkAreas() {
    std::vector<Rect> areas = {workArea};
    areas.insert(areas.end(), otherWorkAreas.begin(), otherWorkAreas.end());
    return areas;
}

void MemoryToolkit::SetPointer(Pointer newPointer) {
    pointer = newPointer;
    pointers.push_back(newPointer);
}

Answer MemoryToolkit::ShowMessage(Form* owner, std::string_view text, std::string_view title,
                                  MessageIcon icon, MessageButtons buttons, Answer defaultAnswer) {
    messages.push_back({std::string(text), std::string(title), icon, buttons,
                        buttons == MessageButtons::Ok ? Answer::Ok : defaultAnswer, owner});
    const ScopedFlag open(boxIsOpen);
    if (onMessage)
        return onMessage(messages.back());
    return messages.back().defaultAnswer;
}

void MemoryToolkit::DoEvents() {
    DoLaterWork();
    if (onDoEvents)
        onDoEvents();
}

void MemoryToolkit::Run() {
    DoLaterWork();
}

Form& MemoryToolkit::FormNamed(std::string_view name) const {
    for (Form* form : forms)
        if (form->Name() == name)
            return *form;
    throw std::logic_error("There is no form of that name");
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

std::unique_ptr<CanvasPeer> MemoryToolkit::CreateCanvas(Canvas& c, ControlPeer& in) {
    return Make<MemoryCanvas>(*this, c, in);
}

}  // namespace ordalyn::test
