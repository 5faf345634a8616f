#include "win32/controls/Window.h"

#include <string>
#include <unordered_map>

#include "base/Errors.h"
#include "win32/common/WideText.h"

namespace ordalyn::win32 {

using namespace toolkit;

namespace {

constexpr int kFirstControlId = 100;  // above those that the system gives a meaning to

Window& WindowOf(ControlPeer& container) {
    return dynamic_cast<Window&>(container);
}

// The objects of all windows, and what the windows' own classes do with messages. Kept here and not
// as properties of the windows, which would have to be asked for with every message. Only the
// thread that owns the windows looks at it.
struct Known {
    Window* object;  // null when only the window's end is still to come
    WNDPROC classProcedure;
};

std::unordered_map<HWND, Known>& KnownWindows() {
    // Never destroyed: windows may still get messages while the program's other statics go.
    static auto& known = *new std::unordered_map<HWND, Known>;
    return known;
}

// Each child window has an id of its own, for programs that operate this one from outside.
HMENU NextControlId() {
    static int last = kFirstControlId;
    last = last < 0x7FFF ? last + 1 : kFirstControlId;
    return reinterpret_cast<HMENU>(static_cast<INT_PTR>(last));
}

}  // namespace

Window::Window(Desktop& desktop, Control& control, const Look& look, ControlPeer* container)
    : desktop_(desktop),
      control_(control),
      scale_(container == nullptr ? std::make_shared<Scale>(look.scale)
                                  : WindowOf(*container).scale_) {
    const bool child = container != nullptr;
    const DWORD style = child ? look.style | WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS : look.style;
    handle_ = CreateWindowExW(look.extendedStyle, look.className, L"", style, look.place.x,
                              look.place.y, 0, 0, child ? WindowOf(*container).handle() : nullptr,
                              child ? NextControlId() : nullptr, desktop.program, nullptr);
    if (handle_ == nullptr)
        throw Error("Cannot create the window of " + control.Name() + " (error " +
                    std::to_string(GetLastError()) + ")");
    // Before the window hears of its new procedure, which looks for it.
    classProcedure_ = reinterpret_cast<WNDPROC>(GetWindowLongPtrW(handle_, GWLP_WNDPROC));
    KnownWindows()[handle_] = {this, classProcedure_};
    SetWindowLongPtrW(handle_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Procedure));
}

// The control may be half destroyed: it is not notified of the end of its window.
Window::~Window() {
    if (handle_ == nullptr)
        return;
    const HWND window = handle_;
    handle_ = nullptr;
    if (label_ != nullptr)
        DestroyWindow(label_);
    if (const auto known = KnownWindows().find(window); known != KnownWindows().end())
        known->second.object = nullptr;
    DestroyWindow(window);
}

Window* Window::Of(HWND handle) {
    const auto known = KnownWindows().find(handle);
    return known == KnownWindows().end() ? nullptr : known->second.object;
}

Window* Window::Containing(HWND handle) {
    while (handle != nullptr) {
        if (Window* const found = Of(handle))
            return found;
        // Of a top-level window this would be its owner, which does not contain it.
        if ((GetWindowLongPtrW(handle, GWL_STYLE) & WS_CHILD) == 0)
            return nullptr;
        handle = GetParent(handle);
    }
    return nullptr;
}

FormHost* Window::form() const {
    if (handle_ == nullptr)
        return nullptr;
    return dynamic_cast<FormHost*>(Of(GetAncestor(handle_, GA_ROOT)));
}

bool Window::CanTakeInput() const {
    return handle_ != nullptr && IsWindowVisible(handle_) && [this] {
        for (HWND h = handle_; h != nullptr && h != GetDesktopWindow();
             h = GetAncestor(h, GA_PARENT)) {
            if (!IsWindowEnabled(h))
                return false;
        }
        return true;
    }();
}

bool Window::HasFocus() const {
    const HWND focus = GetFocus();
    return handle_ != nullptr && focus != nullptr && (focus == handle_ || IsChild(handle_, focus));
}

LRESULT CALLBACK Window::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const auto found = KnownWindows().find(window);
    if (found == KnownWindows().end())
        return DefWindowProcW(window, message, wParam, lParam);
    const Known known = found->second;
    if (message == WM_NCDESTROY) {
        KnownWindows().erase(found);
        if (known.object != nullptr)
            known.object->handle_ = nullptr;
    } else if (known.object != nullptr) {
        return known.object->desktop_.lastHandler.Run<LRESULT>(
            0, [&] { return known.object->OnMessage(message, wParam, lParam); });
    }
    return CallWindowProcW(known.classProcedure, window, message, wParam, lParam);
}

LRESULT Window::Default(UINT message, WPARAM wParam, LPARAM lParam) {
    return handle_ == nullptr ? 0
                              : CallWindowProcW(classProcedure_, handle_, message, wParam, lParam);
}

LRESULT Window::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (const std::optional<LRESULT> answer = Reflect(message, wParam, lParam))
        return *answer;
    switch (message) {
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
            return MousePressed(kLeftButton, message, wParam, lParam);
        case WM_RBUTTONDOWN:
        case WM_RBUTTONDBLCLK:
            return MousePressed(kRightButton, message, wParam, lParam);
        case WM_MBUTTONDOWN:
        case WM_MBUTTONDBLCLK:
            return MousePressed(kMiddleButton, message, wParam, lParam);
        case WM_LBUTTONUP:
            return MouseReleased(kLeftButton, message, wParam, lParam);
        case WM_RBUTTONUP:
            return MouseReleased(kRightButton, message, wParam, lParam);
        case WM_MBUTTONUP:
            return MouseReleased(kMiddleButton, message, wParam, lParam);
        case WM_MOUSEMOVE:
            return MouseMoved(message, wParam, lParam);
        case WM_CAPTURECHANGED:
            // Another window took the mouse during a drag: it ends here.
            if (handlesMouse_ && pressed_ != 0) {
                POINT at = {};
                GetCursorPos(&at);
                ScreenToClient(handle_, &at);
                RaiseRelease(pressed_, at);
                return 0;
            }
            break;
        case WM_SETCURSOR:
            if (ChoosePointer(lParam))
                return TRUE;
            break;
        case WM_MOUSEACTIVATE: {
            FormHost* const around = form();
            if (around != nullptr && around->FormHandle() != handle_)
                around->ControlIsPressed();
            break;
        }
        case WM_SETFOCUS: {
            const std::weak_ptr<const void> alive = Lifetime();
            const LRESULT answer = Default(message, wParam, lParam);
            if (!alive.expired() && !focusByNotification_)
                control_.GotFocus.Raise();
            return answer;
        }
        default:
            break;
    }
    return Default(message, wParam, lParam);
}

// Notifications that a child window sends to its container are handled by the child's own object.
std::optional<LRESULT> Window::Reflect(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_COMMAND:
            if (Window* const child = Of(reinterpret_cast<HWND>(lParam))) {
                child->OnCommand(HIWORD(wParam), LOWORD(wParam));
                return 0;
            }
            break;
        case WM_NOTIFY: {
            NMHDR& header = *reinterpret_cast<NMHDR*>(lParam);
            if (Window* const child = Of(header.hwndFrom))
                return child->OnNotify(header);
            break;
        }
        case WM_DRAWITEM: {
            const auto& item = *reinterpret_cast<const DRAWITEMSTRUCT*>(lParam);
            if (Window* const child = Of(item.hwndItem)) {
                child->OnDrawItem(item);
                return TRUE;
            }
            break;
        }
        case WM_CTLCOLOREDIT:
        case WM_CTLCOLORLISTBOX:
        case WM_CTLCOLORBTN:
        case WM_CTLCOLORSTATIC:
            if (Window* const child = Of(reinterpret_cast<HWND>(lParam)))
                return reinterpret_cast<LRESULT>(child->OnColor(reinterpret_cast<HDC>(wParam)));
            break;
        default:
            break;
    }
    return std::nullopt;
}

HBRUSH Window::OnColor(HDC dc) {
    const ResolvedColors colors = TextColors();
    SetTextColor(dc, colors.text);
    SetBkColor(dc, colors.background);
    // Wine's controls do not draw in their own reading order; those of Windows do.
    if (control_.RightToLeft())
        SetTextAlign(dc, GetTextAlign(dc) | TA_RTLREADING);
    return BackBrush();
}

void Window::EraseBackground(HDC dc) {
    RECT area = {};
    GetClientRect(handle_, &area);
    FillRect(dc, &area, BackBrush());
}

// What the peers of all kinds do. Nothing happens once the system has taken the window away; some
// of these calls would otherwise mean another window.

Rect Window::PlaceWindow(const Rect& wanted) {
    wanted_ = wanted;
    const RECT pixels = scale().Pixels(wanted);
    SetWindowPos(handle_, nullptr, pixels.left, pixels.top, pixels.right - pixels.left,
                 pixels.bottom - pixels.top, SWP_NOZORDER | SWP_NOACTIVATE);
    return wanted;
}

Rect Window::ShowFont(const toolkit::Font& font) {
    // The old font must outlive the message.
    const std::shared_ptr<FontHandle> before =
        std::exchange(font_, desktop_.fonts.Get(font, scale().DpiY()));
    Send(WM_SETFONT, reinterpret_cast<WPARAM>(font_->Get()), TRUE);
    return wanted_;
}

void Window::MoveInto(ControlPeer& container) {
    if (handle_ == nullptr)
        return;
    const HWND parent = WindowOf(container).handle();
    if (parent == nullptr || GetAncestor(handle_, GA_PARENT) == parent)
        return;
    SetParent(handle_, parent);
    if (label_ != nullptr)
        SetParent(label_, parent);
    PlaceWindow(wanted_);
    RaiseToTop();
}

void Window::ShowWindowIf(bool visible) {
    if (handle_ == nullptr)
        return;
    FormHost* const around = form();
    const bool focused = HasFocus();
    ShowWindow(handle_, visible ? SW_SHOWNA : SW_HIDE);
    if (!visible && focused && around != nullptr)
        around->FocusWasLost();
}

void Window::EnableWindowIf(bool enabled) {
    if (handle_ == nullptr)
        return;
    FormHost* const around = form();
    const bool focused = HasFocus();
    EnableWindow(handle_, enabled ? TRUE : FALSE);
    if (!enabled && focused && around != nullptr)
        around->FocusWasLost();
}

void Window::ShowCaption(std::string_view caption) {
    const std::wstring text = WideForDisplay(caption);
    if (handle_ != nullptr)
        SetWindowTextW(handle_, text.c_str());
}

void Window::ShowBorder(BorderStyle border, Appearance appearance) {
    const bool any = border != BorderStyle::None;
    const bool deep = any && appearance == Appearance::ThreeDimensional;
    ChangeStyle(GWL_STYLE, WS_BORDER, any && !deep ? WS_BORDER : 0);
    ChangeStyle(GWL_EXSTYLE, WS_EX_CLIENTEDGE, deep ? WS_EX_CLIENTEDGE : 0);
    SetWindowPos(handle_, nullptr, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
}

void Window::ShowReadingOrder(bool rightToLeft) {
    ChangeStyle(GWL_EXSTYLE, WS_EX_RTLREADING, rightToLeft ? WS_EX_RTLREADING : 0);
    if (handle_ != nullptr)
        InvalidateRect(handle_, nullptr, TRUE);
}

void Window::ShowPointer() {
    POINT at = {};
    if (handle_ == nullptr || !GetCursorPos(&at))
        return;
    if (GetCapture() == handle_ || WindowFromPoint(at) == handle_)
        RefreshPointer();
}

void Window::ShowToolTip(std::string_view text) {
    if (FormHost* const around = form())
        around->SetToolTipOf(handle_, text);
}

void Window::ShowTabStop(bool tabStop) {
    ChangeStyle(GWL_STYLE, WS_TABSTOP, tabStop ? WS_TABSTOP : 0);
}

void Window::RaiseToTop() {
    SetWindowPos(handle_, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    PutLabelBeforeControl();
}

void Window::Focus() {
    FormHost* const around = form();
    if (around == nullptr)
        return;
    // A form that is not shown, or waits for a modal one, gives the focus when its turn comes.
    if (IsWindowVisible(around->FormHandle()) && IsWindowEnabled(around->FormHandle()) &&
        CanTakeInput())
        SetFocus(handle_);
    else
        around->RememberFocus(handle_);
}

void Window::RepaintNow() {
    if (handle_ != nullptr)
        RedrawWindow(handle_, nullptr, nullptr,
                     RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
}

void Window::ChangeStyle(int which, DWORD clear, DWORD set) {
    const auto before = static_cast<DWORD>(GetWindowLongPtrW(handle_, which));
    const DWORD after = (before & ~clear) | set;
    if (after != before)
        SetWindowLongPtrW(handle_, which, static_cast<LONG_PTR>(after));
}

}  // namespace ordalyn::win32
