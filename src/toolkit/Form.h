// Form: a window with its controls and menus, made from a design. A form object is a loaded form:
// constructing it loads it (hidden), Unload ends it. It must not be destroyed inside one of its own
// event handlers.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "base/Errors.h"
#include "toolkit/Canvas.h"
#include "toolkit/ComboBox.h"
#include "toolkit/Controls.h"
#include "toolkit/FormDesign.h"
#include "toolkit/ListView.h"
#include "toolkit/MenuItem.h"
#include "toolkit/ToolBar.h"

namespace ordalyn::toolkit {

class Form : public Control {
  public:
    Form(Toolkit& toolkit, const FormDesign& design);
    ~Form() override;
    ControlPeer& peer() const override { return *peer_; }
    FormPeer& formPeer() const { return *peer_; }
    Toolkit& toolkit() const { return toolkit_; }
    const FormStyle& Style() const { return style_; }

    // Controls and menus, in design order. Access by name and kind throws SubscriptOutOfRange when
    // the form has none such.
    const std::vector<std::unique_ptr<Control>>& Controls() const { return controls_; }
    template <typename T>
    T& Get(std::string_view name, int index = -1) const {
        T* found = dynamic_cast<T*>(FindControl(name, index));
        if (found == nullptr)
            throw SubscriptOutOfRange();
        return *found;
    }
    MenuItem& Menu(std::string_view name) const;
    const std::vector<std::unique_ptr<MenuItem>>& Menus() const { return menus_; }  // level 0
    std::vector<MenuItem*> AllMenuItems() const;  // in design order, sub-items after their item

    // A caption that ends with a path, which loses its middle where the title bar has no room for
    // all of it.
    void SetCaptionWithPath(std::string_view words, std::string_view path);

    // Outer bounds are Control's; the inside is here, in twips.
    Size ClientSize() const { return peer_->ClientSize(); }
    void SetClientHeight(Twips height);
    void Move(const Rect& bounds) override;
    void CentreOnScreen();
    // Setting a state has no effect on the bounds that the form has when normal.
    WindowState State() const;
    void SetState(WindowState state);

    // Shows the form, not modal; raises Activate (from the message loop) when it becomes active.
    void Show(Form* owner = nullptr);
    // Shows the form and returns when it is hidden or unloaded. Messages are handled meanwhile:
    // whatever events can change may have changed on return.
    void ShowModal(Form* owner);
    void Hide();
    void SetVisible(bool visible) override;
    // Asks QueryUnload, then raises Unload and takes the window away. Returns whether it did.
    bool Unload();
    bool Unloaded() const { return unloaded_; }
    // Whether the system closes the form because it ends: it does not wait for modal windows.
    bool SessionEnds() const { return sessionEnds_; }
    std::uintptr_t Handle() const { return peer_->Handle(); }
    // Expires with the form: whoever raises an event looks before touching the form again.
    std::weak_ptr<const void> Lifetime() const { return lifetime_; }

    // The command buttons that Enter and Escape press; null: none.
    Control* DefaultButton() const { return defaultButton_; }
    Control* CancelButton() const { return cancelButton_; }

    // At the mouse pointer, or below a part of the screen.
    void PopUpMenu(MenuItem& item) { peer_->PopUp(item, nullptr); }
    void PopUpMenuBelow(MenuItem& item, const Rect& place) { peer_->PopUp(item, &place); }

    Event<> Activate;
    // Whether a click on one of its controls made the form the active one the last time. The user
    // has said then what is to be used: a handler that took the focus elsewhere would do so while
    // the button is still down, and the click would be lost.
    bool ActivatedByClickOnControl() const { return activatedByClickOnControl_; }
    Event<bool&> QueryUnload;  // set the argument to true to keep the form
    Event<> Unloading;
    Event<const std::vector<std::string>&> FilesDropped;  // full paths

    // The page of the help that tells of this form, and opens with F1; empty: none.
    const std::string& HelpPage() const { return helpPage_; }
    void SetHelpPage(std::string_view page) { helpPage_ = page; }

    // For FormKeyboard. Keys are reported before the control that has the focus sees them;
    // UserKeyDown returns whether the form used the key up (a menu shortcut), so that the control
    // never gets it.
    bool UserKeyDown(int key, Modifiers modifiers);
    // Whether there was help to ask for.
    bool UserAskedForHelp();
    void UserKeyUp(int key, Modifiers modifiers) { KeyUp.Raise(key, modifiers); }
    // For the peer.
    void UserClosed();  // close box, Alt+F4
    void SessionEnded();
    void SystemActivated(bool byClickOnControl = false);
    void SystemResized(const Rect& outer, WindowState state);
    // It has another resolution: the same twips are other pixels, and its frame, and what decides
    // on its own height, take other twips than before.
    void SystemRescaled(const Rect& outer);

  private:
    void CreateControls(const FormDesign& design);
    Control& ContainerOf(const ControlDesign& row);
    void SetDialogButtons(const FormDesign& design);
    void CreateMenus(const FormDesign& design);
    void GroupOptions();
    Control* FindControl(std::string_view name, int index) const;

    Toolkit& toolkit_;
    FormStyle style_;
    std::string helpPage_;
    std::unique_ptr<FormPeer> peer_;
    std::vector<std::unique_ptr<Control>> controls_;
    std::vector<std::unique_ptr<MenuItem>> menus_;
    Control* defaultButton_ = nullptr;
    Control* cancelButton_ = nullptr;
    std::shared_ptr<const int> lifetime_ = std::make_shared<const int>(0);
    bool activatedByClickOnControl_ = false;
    bool unloaded_ = false;
    bool sessionEnds_ = false;
};

}  // namespace ordalyn::toolkit
