// The base of everything that has a window handle: owns it, receives its messages, lets no
// exception out, and raises the events that all controls have. Containers pass the
// notifications of their child windows (WM_COMMAND, WM_NOTIFY, colours, drawing) on to those
// windows.
#pragma once

#include <memory>
#include <optional>
#include <string_view>

#include "toolkit/Control.h"
#include "win32/common/Win32.h"
#include "win32/controls/Desktop.h"
#include "win32/controls/FormHost.h"
#include "win32/drawing/Colors.h"

namespace ordalyn::win32 {

class Window {
  public:
    virtual ~Window();
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;

    // Null once the system has taken the window away (its form was closed).
    HWND handle() const { return handle_; }
    toolkit::Control& control() const { return control_; }
    Desktop& desktop() const { return desktop_; }
    // The form's.
    const Scale& scale() const { return *scale_; }
    // Expires with the object: whoever raises an event looks before touching it again.
    std::weak_ptr<const void> Lifetime() const { return lifetime_; }

    static Window* Of(HWND handle);          // null when the window is not one of these
    static Window* Containing(HWND handle);  // itself or the nearest around it
    FormHost* form() const;                  // null when there is none
    // Whether it and everything around it are visible and enabled.
    bool CanTakeInput() const;
    bool HasFocus() const;

    // From the container.
    virtual void OnCommand(int /*code*/, int /*id*/) {}
    virtual std::optional<LRESULT> OnNotify(NMHDR& /*header*/) { return std::nullopt; }
    virtual void OnDrawItem(const DRAWITEMSTRUCT& /*item*/) {}
    virtual HBRUSH OnColor(HDC dc);
    virtual void OnContainerResized() {}

    // The form is about to have another resolution: what only the window knows in pixels is kept.
    virtual void KeepBeforeRescaling() {}
    // The form has another resolution. Returns the bounds that the control has with it.
    virtual toolkit::Rect ShowRescaled() = 0;

    // What the peers of all kinds do.
    toolkit::Rect PlaceWindow(const toolkit::Rect& wanted);
    toolkit::Rect ShowFont(const toolkit::Font& font);
    void MoveInto(toolkit::ControlPeer& container);
    void ShowWindowIf(bool visible);
    void EnableWindowIf(bool enabled);
    void ShowCaption(std::string_view caption);
    void ShowBorder(toolkit::BorderStyle border, toolkit::Appearance appearance);
    void ShowReadingOrder(bool rightToLeft);
    void ShowPointer();
    void ShowToolTip(std::string_view text);
    void ShowTabStop(bool tabStop);
    void ShowAccessibleName(std::string_view name);
    void RaiseToTop();
    void Focus();
    void RepaintNow();

  protected:
    struct Look {
        const wchar_t* className;
        DWORD style;
        DWORD extendedStyle = 0;
        Scale scale = Scale(USER_DEFAULT_SCREEN_DPI, USER_DEFAULT_SCREEN_DPI);  // of a form
        POINT place = {};                                                       // of a form
    };
    // A child window when there is a container, otherwise a top-level one.
    Window(Desktop& desktop, toolkit::Control& control, const Look& look,
           toolkit::ControlPeer* container);

    // Handles the message; events that it raises may have ended the object (see Lifetime).
    virtual LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam);
    // What the window's own class does with the message.
    LRESULT Default(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return SendMessageW(handle_, message, wParam, lParam);
    }
    void ChangeStyle(int which, DWORD clear, DWORD set);
    const toolkit::Rect& Wanted() const { return wanted_; }
    void Remember(const toolkit::Rect& wanted) { wanted_ = wanted; }
    // For the form: all that is on it has the same.
    void ChangeScale(const Scale& scale) { *scale_ = scale; }
    ResolvedColors TextColors() const {
        return ResolveText(control_.ForeColor(), control_.BackColor());
    }
    HBRUSH BackBrush() { return brush_.For(TextColors().background); }
    // For what shows a colour and no text.
    HBRUSH BrushOfBackColor() { return brush_.For(Resolve(control_.BackColor())); }
    void EraseBackground(HDC dc);
    // Kinds whose window class does not deal with the mouse by itself: the mouse is captured while
    // a button is down, and letting the left one go inside is a click.
    void HandleMouseItself() { handlesMouse_ = true; }
    // Kinds that report their focus by a notification instead of WM_SETFOCUS.
    void FocusComesByNotification() { focusByNotification_ = true; }

  private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    std::optional<LRESULT> Reflect(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT MousePressed(int button, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT MouseReleased(int button, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT MouseMoved(UINT message, WPARAM wParam, LPARAM lParam);
    void RaiseRelease(int button, POINT at);
    bool ChoosePointer(LPARAM lParam) const;
    void PutLabelBeforeControl();

    Desktop& desktop_;
    toolkit::Control& control_;
    std::shared_ptr<Scale> scale_;
    HWND handle_ = nullptr;
    WNDPROC classProcedure_ = nullptr;  // of the window's own class
    HWND label_ = nullptr;              // says what the control is called; see ShowAccessibleName
    std::shared_ptr<const int> lifetime_ = std::make_shared<const int>(0);
    toolkit::Rect wanted_;
    std::shared_ptr<FontHandle> font_;
    ColorBrush brush_;
    int pressed_ = 0;  // mouse buttons
    bool handlesMouse_ = false;
    bool focusByNotification_ = false;
};

// The toolkit's modifiers and mouse buttons as the system reports them now.
toolkit::Modifiers CurrentModifiers();

// Realises what all peers have by a Window; kinds override what they do otherwise.
template <typename Interface>
class Peer : public Interface, public Window {
  public:
    using Window::Window;
    toolkit::Rect Place(const toolkit::Rect& wanted) override { return PlaceWindow(wanted); }
    void SetContainer(toolkit::ControlPeer& container) override { MoveInto(container); }
    void SetVisible(bool visible) override { ShowWindowIf(visible); }
    void SetEnabled(bool enabled) override { EnableWindowIf(enabled); }
    void SetCaption(std::string_view caption) override { ShowCaption(caption); }
    toolkit::Rect SetFont(const toolkit::Font& font) override { return ShowFont(font); }
    // Colours are read from the control whenever something is drawn.
    void SetColors(toolkit::Color, toolkit::Color) override {
        if (handle() != nullptr)
            InvalidateRect(handle(), nullptr, TRUE);
    }
    void SetBorder(toolkit::BorderStyle border, toolkit::Appearance appearance) override {
        ShowBorder(border, appearance);
    }
    void SetReadingOrder(bool rightToLeft, toolkit::Alignment) override {
        ShowReadingOrder(rightToLeft);
    }
    void SetPointer(toolkit::Pointer) override { ShowPointer(); }
    void SetToolTip(std::string_view text) override { ShowToolTip(text); }
    void SetTabStop(bool tabStop) override { ShowTabStop(tabStop); }
    void SetAccessibleName(std::string_view name) override { ShowAccessibleName(name); }
    void BringToFront() override { RaiseToTop(); }
    void TakeFocus() override { Focus(); }
    bool CanTakeInput() const override { return Window::CanTakeInput(); }
    bool HasFocus() const override { return Window::HasFocus(); }
    void Refresh() override { RepaintNow(); }

    toolkit::Rect ShowRescaled() override {
        this->SetFont(control().Font());
        return this->Place(Wanted());
    }
};

}  // namespace ordalyn::win32
