#include "win32/forms/Win32Toolkit.h"

#include <utility>

#include "win32/common/WideText.h"
#include "win32/controls/Areas.h"
#include "win32/controls/Bars.h"
#include "win32/controls/Buttons.h"
#include "win32/controls/CanvasWindow.h"
#include "win32/controls/ComboBoxWindow.h"
#include "win32/controls/ListViewWindow.h"
#include "win32/controls/TextBoxWindow.h"
#include "win32/controls/ToolBarWindow.h"
#include "win32/controls/WindowClasses.h"
#include "win32/forms/FormTimer.h"
#include "win32/forms/FormWindow.h"
#include "win32/forms/FormsBlocked.h"
#include "win32/forms/MessageLoop.h"

namespace ordalyn::win32 {

using namespace toolkit;

Win32Toolkit::Win32Toolkit(HINSTANCE program, const Scale& system)
    : Win32Toolkit(program, system, [system](const RECT&) { return system; }) {}

Win32Toolkit::Win32Toolkit(HINSTANCE program, const Scale& system, ScaleAt screens)
    : desktop_(program, system, std::move(screens)) {
    INITCOMMONCONTROLSEX classes = {};
    classes.dwSize = sizeof classes;
    classes.dwICC = ICC_STANDARD_CLASSES | ICC_LISTVIEW_CLASSES | ICC_BAR_CLASSES |
                    ICC_TAB_CLASSES | ICC_PROGRESS_CLASS;
    InitCommonControlsEx(&classes);
    RegisterWindowClasses(program);
}

std::unique_ptr<FormPeer> Win32Toolkit::CreateForm(Form& form, const FormStyle& style) {
    return std::make_unique<FormWindow>(desktop_, form, style);
}

std::unique_ptr<LabelPeer> Win32Toolkit::CreateLabel(Label& control, ControlPeer& container) {
    return std::make_unique<LabelWindow>(desktop_, control, container);
}

std::unique_ptr<ControlPeer> Win32Toolkit::CreateFrame(Control& control, ControlPeer& container) {
    return std::make_unique<FrameWindow>(desktop_, control, container);
}

std::unique_ptr<ControlPeer> Win32Toolkit::CreatePictureBox(Control& control,
                                                            ControlPeer& container) {
    return std::make_unique<PictureBoxWindow>(desktop_, control, container);
}

std::unique_ptr<ControlPeer> Win32Toolkit::CreateCommandButton(Control& control,
                                                               ControlPeer& container) {
    return std::make_unique<CommandButtonWindow>(desktop_, control, container);
}

std::unique_ptr<TogglePeer> Win32Toolkit::CreateCheckBox(Toggle& control, ControlPeer& container) {
    return std::make_unique<ToggleWindow>(desktop_, control, false, container);
}

std::unique_ptr<TogglePeer> Win32Toolkit::CreateOptionButton(Toggle& control,
                                                             ControlPeer& container) {
    return std::make_unique<ToggleWindow>(desktop_, control, true, container);
}

std::unique_ptr<TextPeer> Win32Toolkit::CreateTextBox(TextBox& control, ControlPeer& container) {
    return std::make_unique<TextBoxWindow>(desktop_, control, container);
}

std::unique_ptr<ComboBoxPeer> Win32Toolkit::CreateComboBox(ComboBox& control, bool editable,
                                                           ControlPeer& container) {
    return std::make_unique<ComboBoxWindow>(desktop_, control, editable, container);
}

std::unique_ptr<ListViewPeer> Win32Toolkit::CreateListView(ListView& control,
                                                           ControlPeer& container) {
    return std::make_unique<ListViewWindow>(desktop_, control, container);
}

std::unique_ptr<StatusBarPeer> Win32Toolkit::CreateStatusBar(StatusBar& control,
                                                             ControlPeer& container) {
    return std::make_unique<StatusBarWindow>(desktop_, control, container);
}

std::unique_ptr<ProgressBarPeer> Win32Toolkit::CreateProgressBar(ProgressBar& control,
                                                                 ControlPeer& container) {
    return std::make_unique<ProgressBarWindow>(desktop_, control, container);
}

std::unique_ptr<TabStripPeer> Win32Toolkit::CreateTabStrip(TabStrip& control,
                                                           ControlPeer& container) {
    return std::make_unique<TabStripWindow>(desktop_, control, container);
}

std::unique_ptr<ToolBarPeer> Win32Toolkit::CreateToolBar(ToolBar& control, ControlPeer& container) {
    return std::make_unique<ToolBarWindow>(desktop_, control, container);
}

std::unique_ptr<TimerPeer> Win32Toolkit::CreateTimer(Timer& timer, FormPeer& form) {
    return std::make_unique<FormTimer>(desktop_, timer, dynamic_cast<FormWindow&>(form));
}

std::unique_ptr<CanvasPeer> Win32Toolkit::CreateCanvas(Canvas& control, ControlPeer& container) {
    return std::make_unique<CanvasWindow>(desktop_, control, container);
}

Rect Win32Toolkit::WorkArea() {
    RECT area = {};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
    return desktop_.scale.Twips(area);
}

namespace {

struct Screens {
    const Scale& scale;
    std::vector<Rect>& areas;
};

BOOL CALLBACK AddOtherScreen(HMONITOR monitor, HDC, RECT*, LPARAM parameter) {
    const Screens& found = *reinterpret_cast<Screens*>(parameter);
    MONITORINFO about = {};
    about.cbSize = sizeof about;
    if (GetMonitorInfoW(monitor, &about) && (about.dwFlags & MONITORINFOF_PRIMARY) == 0)
        found.areas.push_back(found.scale.Twips(about.rcWork));
    return TRUE;
}

}  // namespace

std::vector<Rect> Win32Toolkit::WorkAreas() {
    std::vector<Rect> areas = {WorkArea()};
    Screens screens{desktop_.scale, areas};
    EnumDisplayMonitors(nullptr, nullptr, AddOtherScreen, reinterpret_cast<LPARAM>(&screens));
    return areas;
}

double Win32Toolkit::ScreenTwips(const Rect& outer) {
    const Scale scale = FormWindow::ScaleOfPlace(desktop_, outer);
    return desktop_.scale.TwipsPerPixelX() / scale.TwipsPerPixelX();
}

Size Win32Toolkit::LeastFormSize() {
    return {desktop_.scale.TwipsX(GetSystemMetrics(SM_CXMINTRACK)),
            desktop_.scale.TwipsY(GetSystemMetrics(SM_CYMINTRACK))};
}

void Win32Toolkit::Beep() {
    MessageBeep(MB_OK);
}

Answer Win32Toolkit::ShowMessage(Form* owner, std::string_view text, std::string_view title,
                                 MessageIcon icon, MessageButtons buttons, Answer defaultAnswer) {
    UINT look = buttons == MessageButtons::YesNo ? MB_YESNO : MB_OK;
    if (buttons == MessageButtons::YesNo && defaultAnswer == Answer::No)
        look |= MB_DEFBUTTON2;
    switch (icon) {
        case MessageIcon::Critical:
            look |= MB_ICONERROR;
            break;
        case MessageIcon::Question:
            look |= MB_ICONQUESTION;
            break;
        case MessageIcon::Exclamation:
            look |= MB_ICONWARNING;
            break;
        case MessageIcon::Information:
            look |= MB_ICONINFORMATION;
            break;
        case MessageIcon::None:
            break;
    }
    HWND window = owner == nullptr ? GetActiveWindow() : reinterpret_cast<HWND>(owner->Handle());
    // A form that is not on the screen cannot own a box that is.
    if (window != nullptr && !IsWindowVisible(window))
        window = nullptr;
    const auto* const form = dynamic_cast<FormWindow*>(Window::Of(window));
    if (form != nullptr && form->control().RightToLeft())
        look |= MB_RTLREADING | MB_RIGHT;
    ReleaseCapture();
    // The box keeps its owner from taking input, and nobody else.
    FormsBlocked others(desktop_, form);
    const std::wstring shown = WideForDisplay(text);
    const std::wstring caption = WideForDisplay(title);
    // When the box goes, its owner comes to the front, if it can. One that waits for a read cannot,
    // and another program's window would come instead.
    const bool waiting = window != nullptr && !IsWindowEnabled(window);
    if (waiting)
        EnableWindow(window, TRUE);
    ++desktop_.messageBoxes;
    const int answer = MessageBoxW(window, shown.c_str(), caption.c_str(), look);
    --desktop_.messageBoxes;
    if (waiting)
        EnableWindow(window, FALSE);
    if (buttons == MessageButtons::Ok)
        return Answer::Ok;
    return answer == IDYES ? Answer::Yes : Answer::No;
}

void Win32Toolkit::DoEvents() {
    MessageLoop(desktop_).RunWaiting();
}

void Win32Toolkit::Run() {
    MessageLoop(desktop_).Run();
}

void Win32Toolkit::Quit() {
    PostQuitMessage(0);
}

}  // namespace ordalyn::win32
