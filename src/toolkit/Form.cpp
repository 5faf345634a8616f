#include "toolkit/Form.h"

#include <algorithm>

namespace ordalyn::toolkit {

Form::Form(Toolkit& toolkit, const FormDesign& design)
    : Control(Kind::Form, design.name, -1),
      toolkit_(toolkit),
      style_(design.style),
      peer_(toolkit.CreateForm(*this, design.style)) {
    SetVisibleOnly(false);
    SetTag(design.tag);
    CreateMenus(design);
    InitialisePeer(peer_->OuterFor(design.clientSize));
    CreateControls(design);
}

// The window goes while all controls are there; then nothing is left that could ask them.
Form::~Form() {
    peer_->Close();
}

void Form::CreateMenus(const FormDesign& design) {
    std::vector<MenuItem*> path;  // the last item of each level
    for (const MenuDesign& row : design.menus) {
        path.resize(static_cast<std::size_t>(row.level));
        MenuItem* parent = path.empty() ? nullptr : path.back();
        MenuItem* item = nullptr;
        if (parent == nullptr) {
            menus_.push_back(std::make_unique<MenuItem>(*this, nullptr, row.name, row.caption));
            item = menus_.back().get();
        } else {
            item = &parent->AddItem(row.name, row.caption);
        }
        if (row.shortcut.key != 0)
            item->SetShortcut(row.shortcut);
        if (*row.keyHint != '\0')
            item->SetKeyHint(row.keyHint);
        item->SetVisible(row.visible);
        path.push_back(item);
    }
    if (!menus_.empty())
        peer_->RebuildMenus();
}

void Form::CreateControls(const FormDesign& design) {
    for (const ControlDesign& row : design.controls) {
        Control* container =
            *row.container == '\0' ? this : FindControl(row.container, row.containerIndex);
        if (container == nullptr)
            throw SubscriptOutOfRange();
        const auto make = [&]() -> std::unique_ptr<Control> {
            switch (row.kind) {
                case Kind::Label:
                    return std::make_unique<Label>(toolkit_, row.name, row.index, *container,
                                                   row.bounds);
                case Kind::Frame:
                    return std::make_unique<Frame>(toolkit_, row.name, row.index, *container,
                                                   row.bounds);
                case Kind::PictureBox:
                    return std::make_unique<PictureBox>(toolkit_, row.name, row.index, *container,
                                                        row.bounds);
                case Kind::CommandButton:
                    return std::make_unique<CommandButton>(toolkit_, row.name, row.index,
                                                           *container, row.bounds);
                case Kind::CheckBox:
                    return std::make_unique<CheckBox>(toolkit_, row.name, row.index, *container,
                                                      row.bounds);
                case Kind::OptionButton:
                    return std::make_unique<OptionButton>(toolkit_, row.name, row.index, *container,
                                                          row.bounds);
                case Kind::TextBox:
                    return std::make_unique<TextBox>(toolkit_, row.name, row.index, *container,
                                                     row.bounds);
                case Kind::ComboBox:
                    return std::make_unique<ComboBox>(toolkit_, row.editable, row.name, row.index,
                                                      *container, row.bounds);
                case Kind::ListView:
                    return std::make_unique<ListView>(toolkit_, row.name, row.index, *container,
                                                      row.bounds);
                case Kind::StatusBar:
                    return std::make_unique<StatusBar>(toolkit_, row.name, row.index, *container,
                                                       row.bounds);
                case Kind::ToolBar:
                    return std::make_unique<ToolBar>(toolkit_, row.name, row.index, *container,
                                                     row.bounds);
                case Kind::TabStrip:
                    return std::make_unique<TabStrip>(toolkit_, row.name, row.index, *container,
                                                      row.bounds);
                case Kind::ProgressBar:
                    return std::make_unique<ProgressBar>(toolkit_, row.name, row.index, *container,
                                                         row.bounds);
                case Kind::Form:
                    break;
            }
            throw InvalidPropertyValue("kind");
        };
        controls_.push_back(make());
        Control& control = *controls_.back();
        control.SetTag(row.tag);
        if (!row.visible)
            control.SetVisible(false);
        if (row.tabStop)
            control.peer().SetTabStop(*row.tabStop);
    }
    GroupOptions();
    ControlPeer* defaultButton = nullptr;
    ControlPeer* cancelButton = nullptr;
    for (const ControlDesign& row : design.controls) {
        if (row.isDefault)
            defaultButton = &FindControl(row.name, row.index)->peer();
        if (row.isCancel)
            cancelButton = &FindControl(row.name, row.index)->peer();
    }
    peer_->SetDialogButtons(defaultButton, cancelButton);
}

// Option buttons of one container exclude each other.
void Form::GroupOptions() {
    for (const auto& control : controls_) {
        if (control->ControlKind() != Kind::OptionButton)
            continue;
        std::vector<Toggle*> others;
        for (const auto& other : controls_) {
            if (other->ControlKind() == Kind::OptionButton && other != control &&
                other->Container() == control->Container())
                others.push_back(static_cast<Toggle*>(other.get()));
        }
        static_cast<Toggle&>(*control).SetGroup(std::move(others));
    }
}

Control* Form::FindControl(std::string_view name, int index) const {
    const auto found = std::find_if(controls_.begin(), controls_.end(), [&](const auto& control) {
        return control->Name() == name && control->Index() == index;
    });
    return found == controls_.end() ? nullptr : found->get();
}

std::vector<MenuItem*> Form::AllMenuItems() const {
    std::vector<MenuItem*> all;
    const auto collect = [&all](const auto& self,
                                const std::vector<std::unique_ptr<MenuItem>>& items) -> void {
        for (const auto& item : items) {
            all.push_back(item.get());
            self(self, item->Items());
        }
    };
    collect(collect, menus_);
    return all;
}

MenuItem& Form::Menu(std::string_view name) const {
    for (MenuItem* item : AllMenuItems()) {
        if (item->Name() == name)
            return *item;
    }
    throw SubscriptOutOfRange();
}

void Form::Move(const Rect& bounds) {
    if (!(bounds.width >= 0) || !(bounds.height >= 0))
        throw InvalidPropertyValue("size of " + Name());
    const Rect placed = peer_->Place(bounds);
    SystemChangedBounds(placed);
}

void Form::SetClientHeight(Twips height) {
    if (!(height >= 0))
        throw InvalidPropertyValue("height of " + Name());
    const Rect outer = peer_->OuterFor({ClientSize().width, height});
    Move({Left(), Top(), Width(), outer.height});
}

void Form::CentreOnScreen() {
    const Rect area = toolkit_.WorkArea();
    Move({area.left + (area.width - Width()) / 2, area.top + (area.height - Height()) / 2, Width(),
          Height()});
}

WindowState Form::State() const {
    return peer_->CurrentWindowState();
}

void Form::SetState(WindowState state) {
    peer_->SetWindowState(state);
}

void Form::Show(Form* owner) {
    SetVisibleOnly(true);
    peer_->Show(owner == nullptr ? nullptr : &owner->formPeer());
}

void Form::ShowModal(Form* owner) {
    SetVisibleOnly(true);
    modal_ = true;
    peer_->RunModal(owner == nullptr ? nullptr : &owner->formPeer());
    modal_ = false;
}

void Form::Hide() {
    SetVisibleOnly(false);
    if (modal_)
        peer_->EndModal();
    peer_->SetVisible(false);
}

void Form::SetVisible(bool visible) {
    if (visible)
        Show();
    else
        Hide();
}

bool Form::Unload() {
    if (unloaded_)
        return true;
    bool keep = false;
    QueryUnload.Raise(keep);
    if (keep)
        return false;
    Unloading.Raise();
    unloaded_ = true;
    Hide();
    peer_->Close();
    return true;
}

bool Form::UserKeyDown(int key, Modifiers modifiers) {
    KeyDown.Raise(key, modifiers);
    const Shortcut pressed{key, modifiers};
    for (MenuItem* item : AllMenuItems()) {
        if (item->Accelerator().key == 0 || !(item->Accelerator() == pressed))
            continue;
        item->Choose();
        return true;
    }
    return false;
}

void Form::UserClosed() {
    Unload();
}

void Form::SystemResized(const Rect& outer, WindowState state) {
    if (unloaded_ || state == WindowState::Minimised)
        return;  // there is nothing to lay out
    const bool sameSize = outer.width == Width() && outer.height == Height();
    SetBoundsOnly(outer);
    if (!sameSize)
        Resize.Raise();
}

}  // namespace ordalyn::toolkit
