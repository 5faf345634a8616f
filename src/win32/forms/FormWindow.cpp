#include "win32/forms/FormWindow.h"

#include <algorithm>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "toolkit/FormKeyboard.h"
#include "win32/common/Resolution.h"
#include "win32/common/WideText.h"
#include "win32/controls/Buttons.h"
#include "win32/controls/WindowClasses.h"
#include "win32/forms/FormsBlocked.h"
#include "win32/forms/MessageLoop.h"

namespace ordalyn::win32 {

using namespace toolkit;

namespace {

constexpr UINT kActivated = WM_APP + 1;
constexpr UINT kMenusChanged = WM_APP + 2;
constexpr UINT kHelpWanted = WM_APP + 3;

BOOL CALLBACK ForwardToChild(HWND child, LPARAM parameter) {
    const MSG& forwarded = *reinterpret_cast<const MSG*>(parameter);
    SendMessageW(child, forwarded.message, forwarded.wParam, forwarded.lParam);
    return TRUE;
}

}  // namespace

FormWindow::FormWindow(Desktop& desktop, toolkit::Form& form, const FormStyle& style)
    : Peer(desktop, form, LookOf(desktop, style), nullptr),
      form_(form),
      style_(style),
      menus_(form) {
    desktop.forms.push_back(this);
    desktop.ShowFrameOf(handle());
    ShowIcons();
    if (style.takesDroppedFiles)
        DragAcceptFiles(handle(), TRUE);
}

FormWindow::~FormWindow() {
    EndModal();
    std::erase(desktop().forms, this);
}

Window::Look FormWindow::LookOf(const Desktop& desktop, const FormStyle& style) {
    DWORD look = WS_POPUP | WS_CAPTION | WS_CLIPCHILDREN;
    DWORD extended = WS_EX_CONTROLPARENT;
    if (style.closeBox)
        look |= WS_SYSMENU;
    if (style.resizable)
        look |= WS_THICKFRAME;
    if (style.minimiseBox)
        look |= WS_MINIMIZEBOX | WS_SYSMENU;
    if (style.maximiseBox)
        look |= WS_MAXIMIZEBOX | WS_SYSMENU;
    if (style.toolWindow)
        extended |= WS_EX_TOOLWINDOW;
    else if (!style.resizable && !style.minimiseBox && !style.maximiseBox)
        extended |= WS_EX_DLGMODALFRAME;  // a dialog, without an icon in its caption
    const Birthplace birthplace = BirthplaceOf(desktop);
    return {kFormClass, look, extended, birthplace.scale, birthplace.corner};
}

// Looks.

Rect FormWindow::SetFont(const toolkit::Font& font) {
    ShowFont(font);
    return CurrentBounds();
}

void FormWindow::SetReadingOrder(bool rightToLeft, Alignment) {
    ShowReadingOrder(rightToLeft);
    RebuildMenus();
    SetWindowPos(handle(), nullptr, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
}

void FormWindow::SetToolTipOf(HWND window, std::string_view text) {
    if (toolTips_ == nullptr)
        toolTips_ = CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr,
                                    WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, 0, 0, 0, 0, handle(),
                                    nullptr, desktop().program, nullptr);
    std::wstring shown = WideForDisplay(text);
    TTTOOLINFOW tool = {};
    tool.cbSize = sizeof tool;
    tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
    tool.hwnd = handle();
    tool.uId = reinterpret_cast<UINT_PTR>(window);
    SendMessageW(toolTips_, TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
    if (shown.empty())
        return;
    tool.lpszText = shown.data();
    SendMessageW(toolTips_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

// Only top-level windows are notified of new system colours; common controls need the message, too.
void FormWindow::SystemColorsChanged(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_SYSCOLORCHANGE) {
        const MSG forwarded = {handle(), message, wParam, lParam, 0, {}};
        EnumChildWindows(handle(), ForwardToChild, reinterpret_cast<LPARAM>(&forwarded));
    }
    RedrawWindow(handle(), nullptr, nullptr,
                 RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
}

// Menus.

void FormWindow::RebuildMenus() {
    menus_.Rebuild();
    FlushMenusLater();
}

void FormWindow::UpdateMenuItem(MenuItem& item) {
    menus_.Update(handle(), item);
    FlushMenusLater();
}

// For message loops that are not the toolkit's own (message boxes, menus). Texts and states change
// many at a time.
void FormWindow::FlushMenusLater() {
    if (handle() != nullptr && !menusPosted_)
        menusPosted_ = PostMessageW(handle(), kMenusChanged, 0, 0) != FALSE;
}

void FormWindow::PopUp(MenuItem& item, const Rect* below) {
    if (handle() == nullptr)
        return;
    const std::weak_ptr<const void> alive = Lifetime();
    std::optional<RECT> place;
    if (below != nullptr)
        place = desktop().scale.Pixels(*below);
    MenuItem* const chosen = menus_.PopUp(handle(), item, place);
    if (chosen == nullptr || alive.expired())
        return;
    // Messages were handled meanwhile: the item may have gone.
    const std::vector<MenuItem*> items = form_.AllMenuItems();
    if (std::find(items.begin(), items.end(), chosen) != items.end())
        chosen->Choose();
}

LRESULT FormWindow::CommandChosen(UINT message, WPARAM wParam, LPARAM lParam) {
    if (lParam != 0 || HIWORD(wParam) != 0)
        return Window::OnMessage(message, wParam, lParam);
    FlushMenus();
    if (MenuItem* const item = menus_.Find(LOWORD(wParam)))
        item->Choose();
    return 0;
}

// Showing.

void FormWindow::SetVisible(bool visible) {
    if (visible)
        Show(nullptr);
    else if (handle() != nullptr)
        ShowWindow(handle(), SW_HIDE);
}

void FormWindow::Show(FormPeer* owner) {
    if (handle() == nullptr)
        return;
    FlushMenus();
    if (owner != nullptr && owner != this)
        SetWindowLongPtrW(handle(), GWLP_HWNDPARENT, static_cast<LONG_PTR>(owner->Handle()));
    if (IsWindowVisible(handle())) {
        if (IsIconic(handle()))
            ShowWindow(handle(), SW_RESTORE);
        SetForegroundWindow(handle());
        return;
    }
    int how = SW_SHOW;
    if (stateWhenShown_ == WindowState::Maximised)
        how = SW_SHOWMAXIMIZED;
    else if (stateWhenShown_ == WindowState::Minimised)
        how = SW_SHOWMINIMIZED;
    stateWhenShown_ = WindowState::Normal;
    // Focus marks and access keys show when the keyboard is used, as the user has set it.
    Send(WM_CHANGEUISTATE, MAKEWPARAM(UIS_INITIALIZE, 0));
    ShowWindow(handle(), how);
}

void FormWindow::RunModal(FormPeer* owner) {
    if (handle() == nullptr)
        return;
    FormsBlocked blocked(desktop(), this);
    ModalRun run{&blocked};
    modal_ = &run;
    // Without an owner it could get lost behind the forms that wait for it.
    auto* const active = dynamic_cast<FormWindow*>(Of(GetActiveWindow()));
    Show(owner != nullptr ? owner : active);
    MessageLoop(desktop()).RunUntil(run.ended);
    // The form itself may have gone; when it has not and the program ends, it is still modal.
    if (!run.ended)
        EndModal();
}

// The others come back before this form is hidden, so that its owner becomes the active one.
void FormWindow::EndModal() {
    if (modal_ == nullptr)
        return;
    modal_->blocked->Release();
    modal_->ended = true;
    modal_ = nullptr;
}

void FormWindow::SetWindowState(WindowState state) {
    if (handle() == nullptr)
        return;
    if (!IsWindowVisible(handle())) {
        stateWhenShown_ = state;
        return;
    }
    if (state == CurrentWindowState())
        return;
    int how = SW_RESTORE;
    if (state == WindowState::Maximised)
        how = SW_MAXIMIZE;
    else if (state == WindowState::Minimised)
        how = SW_MINIMIZE;
    ShowWindow(handle(), how);
    // From minimised, restoring may lead to maximised first.
    if (state == WindowState::Normal && IsZoomed(handle()))
        ShowWindow(handle(), SW_RESTORE);
}

WindowState FormWindow::CurrentWindowState() {
    if (handle() == nullptr || !IsWindowVisible(handle())) {
        if (stateWhenShown_ != WindowState::Normal || handle() == nullptr)
            return stateWhenShown_;
    }
    if (IsIconic(handle()))
        return WindowState::Minimised;
    return IsZoomed(handle()) ? WindowState::Maximised : WindowState::Normal;
}

void FormWindow::Close() {
    EndModal();
    if (handle() == nullptr)
        return;
    stateWhenShown_ = CurrentWindowState();
    closing_ = true;
    // The forms that it owns would go with it.
    for (const FormWindow* other : desktop().forms) {
        if (other->handle() != nullptr && GetWindow(other->handle(), GW_OWNER) == handle())
            SetWindowLongPtrW(other->handle(), GWLP_HWNDPARENT, 0);
    }
    DestroyWindow(handle());
}

// Focus.

void FormWindow::TakeFocus() {
    if (handle() == nullptr || !IsWindowVisible(handle()))
        return;
    if (IsIconic(handle()))
        ShowWindow(handle(), SW_RESTORE);
    SetForegroundWindow(handle());
}

void FormWindow::RestoreFocus() {
    const Window* const control = Window::Containing(focus_);
    if (control != nullptr && control != this && IsChild(handle(), focus_) &&
        control->CanTakeInput())
        SetFocus(focus_);
    else
        FocusFirstTabStop();
}

void FormWindow::FocusFirstTabStop() {
    if (toolkit::Control* const first = FormKeyboard(form_).FirstTabStop())
        first->SetFocus();
}

void FormWindow::FocusWasLost() {
    if (handle() == nullptr)
        return;
    if (toolkit::Control* const first = FormKeyboard(form_).FirstTabStop())
        first->SetFocus();
    else
        SetFocus(handle());
}

void FormWindow::ActivationChanged(bool active, bool minimised) {
    const bool byClickOnControl = std::exchange(pressedFromOutside_, false) && active;
    if (!active) {
        const HWND focus = GetFocus();
        if (focus != nullptr && IsChild(handle(), focus))
            focus_ = focus;
        return;
    }
    if (minimised || activationPosted_)
        return;
    // The event comes when the form is on the screen, and never inside the call that shows it.
    activationPosted_ = true;
    PostMessageW(handle(), kActivated, byClickOnControl ? TRUE : FALSE, 0);
}

void FormWindow::SetDefaultButton(ControlPeer* button) {
    defaultButton_ = dynamic_cast<CommandButtonWindow*>(button);
    ShowDefaultButton(nullptr);
}

void FormWindow::ShowKeyboardCues(WORD cues) {
    Send(WM_CHANGEUISTATE, MAKEWPARAM(UIS_CLEAR, cues));
}

void FormWindow::ShowDefaultButton(CommandButtonWindow* button) {
    for (const auto& control : form_.Controls()) {
        if (control->ControlKind() != Kind::CommandButton)
            continue;
        auto* const other = dynamic_cast<CommandButtonWindow*>(&control->peer());
        other->ShowAsDefault(other == (button != nullptr ? button : defaultButton_));
    }
}

void FormWindow::TakeDroppedFiles(DroppedFiles dropped) {
    const HDROP drop = dropped.Get();
    std::vector<std::string> files;
    const UINT count = DragQueryFileW(drop, 0xFFFFFFFF, nullptr, 0);
    for (UINT i = 0; i < count; ++i) {
        std::wstring path(DragQueryFileW(drop, i, nullptr, 0) + std::size_t{1}, L'\0');
        path.resize(DragQueryFileW(drop, i, path.data(), static_cast<UINT>(path.size())));
        files.push_back(FromWide(path));
    }
    dropped.Reset();
    // A form that waits for a modal one takes nothing from the user.
    if (!IsWindowEnabled(handle()))
        return;
    form_.FilesDropped.Raise(files);
}

// A message box has a message loop of its own, in which the owner is asked for help, by its button
// and by the box itself: twice for one key.
void FormWindow::AskForHelpOnMessage() {
    if (!std::exchange(helpWanted_, true))
        PostMessageW(handle(), kHelpWanted, 0, 0);
}

LRESULT FormWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    // A form that is being closed raises nothing more: who subscribed may be gone.
    if (closing_)
        return Default(message, wParam, lParam);
    if (const std::optional<LRESULT> caption = CaptionAsked(message, wParam, lParam))
        return *caption;
    switch (message) {
        case kActivated:
            activationPosted_ = false;
            if (IsWindowVisible(handle()))
                form_.SystemActivated(wParam != FALSE);
            return 0;
        case kMenusChanged:
            menusPosted_ = false;
            FlushMenus();
            return 0;
        case WM_COMMAND:
            return CommandChosen(message, wParam, lParam);
        case WM_ERASEBKGND:
        case WM_PRINTCLIENT:
            EraseBackground(reinterpret_cast<HDC>(wParam));
            return TRUE;
        case WM_ACTIVATE:
            ActivationChanged(LOWORD(wParam) != WA_INACTIVE, HIWORD(wParam) != 0);
            break;
        case WM_SETFOCUS:
            RestoreFocus();
            return 0;
        case WM_SIZE:
            FitCaption();
            for (HWND child = GetWindow(handle(), GW_CHILD); child != nullptr;
                 child = GetWindow(child, GW_HWNDNEXT)) {
                if (Window* const control = Of(child))
                    control->OnContainerResized();
            }
            break;
        case WM_WINDOWPOSCHANGED: {
            const std::weak_ptr<const void> alive = Lifetime();
            const LRESULT answer = Default(message, wParam, lParam);
            const UINT flags = reinterpret_cast<const WINDOWPOS*>(lParam)->flags;
            if (!alive.expired() &&
                (flags & (SWP_NOSIZE | SWP_NOMOVE)) != (SWP_NOSIZE | SWP_NOMOVE))
                ReportBounds();
            return answer;
        }
        case kResolutionChanged:
            ResolutionChanged({LOWORD(wParam), HIWORD(wParam)},
                              *reinterpret_cast<const RECT*>(lParam));
            return 0;
        case WM_GETMINMAXINFO:
            Default(message, wParam, lParam);
            LimitSize(*reinterpret_cast<MINMAXINFO*>(lParam));
            return 0;
        case WM_CLOSE:
            if (style_.closeBox)
                form_.UserClosed();
            return 0;
        case WM_ENDSESSION:
            if (wParam != FALSE)
                form_.SessionEnded();
            return 0;
        case WM_HELP:
            if (desktop().messageBoxes == 0)
                break;  // F1 in a form is one of its keys (toolkit/FormKeyboard)
            AskForHelpOnMessage();
            return TRUE;
        case kHelpWanted:
            helpWanted_ = false;
            form_.toolkit().AskForHelp(form_, Toolkit::kHelpPageOfMessages);
            return 0;
        case WM_DROPFILES:
            TakeDroppedFiles(DroppedFiles(reinterpret_cast<HDROP>(wParam)));
            return 0;
        case WM_SYSCOLORCHANGE:
        case WM_THEMECHANGED:
            SystemColorsChanged(message, wParam, lParam);
            break;
        default:
            break;
    }
    return Window::OnMessage(message, wParam, lParam);
}

}  // namespace ordalyn::win32
