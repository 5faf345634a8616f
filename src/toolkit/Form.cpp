#include "toolkit/Form.h"

#include <algorithm>
#include <map>

namespace ordalyn::toolkit {

namespace {

using Creator = std::unique_ptr<Control> (*)(Toolkit& toolkit, const ControlDesign& row,
                                             Control& container);

template <typename T>
std::unique_ptr<Control> Create(Toolkit& toolkit, const ControlDesign& row, Control& container) {
    return std::make_unique<T>(toolkit, row.name, row.index, container, row.bounds);
}

template <>
std::unique_ptr<Control> Create<ComboBox>(Toolkit& toolkit, const ControlDesign& row,
                                          Control& container) {
    return std::make_unique<ComboBox>(toolkit, row.editable, row.name, row.index, container,
                                      row.bounds);
}

// One for each kind that stands on a form.
constexpr std::pair<Kind, Creator> kCreators[] = {
    {Kind::Label, Create<Label>},
    {Kind::Frame, Create<Frame>},
    {Kind::PictureBox, Create<PictureBox>},
    {Kind::CommandButton, Create<CommandButton>},
    {Kind::CheckBox, Create<CheckBox>},
    {Kind::OptionButton, Create<OptionButton>},
    {Kind::TextBox, Create<TextBox>},
    {Kind::ComboBox, Create<ComboBox>},
    {Kind::ListView, Create<ListView>},
    {Kind::StatusBar, Create<StatusBar>},
    {Kind::ToolBar, Create<ToolBar>},
    {Kind::TabStrip, Create<TabStrip>},
    {Kind::ProgressBar, Create<ProgressBar>},
    {Kind::Canvas, Create<Canvas>},
};

std::unique_ptr<Control> CreateControl(Toolkit& toolkit, const ControlDesign& row,
                                       Control& container) {
    for (const auto& [kind, create] : kCreators) {
        if (kind == row.kind)
            return create(toolkit, row, container);
    }
    throw InvalidPropertyValue("kind");
}

}  // namespace

Form::Form(Toolkit& toolkit, const FormDesign& design)
    : Control(Kind::Form, design.name, -1),
      toolkit_(toolkit),
      style_(design.style),
      helpPage_(design.helpPage),
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

Control& Form::ContainerOf(const ControlDesign& row) {
    if (*row.container == '\0')
        return *this;
    Control* const container = FindControl(row.container, row.containerIndex);
    if (container == nullptr)
        throw SubscriptOutOfRange();
    return *container;
}

void Form::CreateControls(const FormDesign& design) {
    for (const ControlDesign& row : design.controls) {
        controls_.push_back(CreateControl(toolkit_, row, ContainerOf(row)));
        Control& control = *controls_.back();
        control.SetTag(row.tag);
        control.SetNameTag(row.nameTag);
        if (!row.visible)
            control.SetVisible(false);
        if (row.tabStop)
            control.SetTabStop(*row.tabStop);
    }
    GroupOptions();
    SetDialogButtons(design);
}

void Form::SetDialogButtons(const FormDesign& design) {
    for (const ControlDesign& row : design.controls) {
        if (row.isDefault)
            defaultButton_ = FindControl(row.name, row.index);
        if (row.isCancel)
            cancelButton_ = FindControl(row.name, row.index);
    }
    peer_->SetDefaultButton(defaultButton_ == nullptr ? nullptr : &defaultButton_->peer());
}

// Option buttons of one container exclude each other.
void Form::GroupOptions() {
    std::map<const Control*, std::vector<Toggle*>> groups;  // by container
    for (const auto& control : controls_) {
        if (control->ControlKind() == Kind::OptionButton)
            groups[control->Container()].push_back(dynamic_cast<Toggle*>(control.get()));
    }
    for (const auto& [container, group] : groups) {
        for (Toggle* option : group)
            option->SetGroup(group);
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

void Form::SetCaptionWithPath(std::string_view words, std::string_view path) {
    peer_->ShortenCaptionFrom(words.size());
    SetCaption(std::string(words).append(path));
}

void Form::SetClientHeight(Twips height) {
    if (!(height >= 0))
        throw InvalidPropertyValue("height of " + Name());
    const Rect outer = peer_->OuterFor({ClientSize().width, height});
    Move({Left(), Top(), Width(), outer.height});
}

void Form::CentreOnScreen() {
    const Rect area = peer_->WorkArea();
    const auto twips =
        static_cast<Twips>(toolkit_.ScreenTwips({area.left, area.top, Width(), Height()}));
    Move({area.left + (area.width - Width() * twips) / 2,
          area.top + (area.height - Height() * twips) / 2, Width(), Height()});
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
    peer_->RunModal(owner == nullptr ? nullptr : &owner->formPeer());
}

void Form::Hide() {
    SetVisibleOnly(false);
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

bool Form::UserAskedForHelp() {
    if (helpPage_.empty())
        return false;
    // The page may be another one when the help has been shown.
    toolkit_.AskForHelp(*this, std::string(helpPage_));
    return true;
}

void Form::UserClosed() {
    Unload();
}

void Form::SessionEnded() {
    sessionEnds_ = true;
    Unload();
}

void Form::SystemActivated(bool byClickOnControl) {
    activatedByClickOnControl_ = byClickOnControl;
    Activate.Raise();
}

void Form::SystemResized(const Rect& outer, WindowState state) {
    if (unloaded_ || state == WindowState::Minimised)
        return;  // there is nothing to lay out
    const bool sameSize = outer.width == Width() && outer.height == Height();
    SetBoundsOnly(outer);
    if (!sameSize)
        Resize.Raise();
}

void Form::SystemRescaled(const Rect& outer) {
    if (unloaded_)
        return;
    SetBoundsOnly(outer);
    Resize.Raise();
}

}  // namespace ordalyn::toolkit
