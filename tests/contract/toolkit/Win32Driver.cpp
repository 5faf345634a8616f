// The hands of a user on Windows: sends what mouse and keyboard would.
#include <algorithm>
#include <cmath>
#include <utility>

#include "contract/toolkit/Win32Sight.h"
#include "contract/toolkit/Win32Watch.h"
#include "contract/toolkit/Win32Windows.h"
#include "win32/common/WideText.h"
// after windows.h
#include <shellapi.h>
#include <shlobj.h>

namespace ordalyn::contract {

using namespace toolkit;

namespace {

// Whether a person could use the window: everything around it is shown and enabled.
bool CanReach(HWND window) {
    if (window == nullptr || !IsWindowVisible(window))
        return false;
    for (HWND at = window; at != nullptr && at != GetDesktopWindow();
         at = GetAncestor(at, GA_PARENT)) {
        if (!IsWindowEnabled(at))
            return false;
    }
    return true;
}

LPARAM At(POINT point) {
    return MAKELPARAM(point.x, point.y);
}

POINT Middle(const RECT& rect) {
    return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
}

// Keys and buttons that are held down, as the messages' receivers look them up.
class Held {
  public:
    explicit Held(const std::vector<int>& keys) {
        GetKeyboardState(before_);
        BYTE now[256] = {};
        for (const int key : keys)
            now[key] = 0x80;
        SetKeyboardState(now);
    }
    ~Held() { SetKeyboardState(before_); }
    Held(const Held&) = delete;
    Held& operator=(const Held&) = delete;

  private:
    BYTE before_[256] = {};
};

struct MouseMessages {
    int button;
    int key;
    UINT down, up;
    WPARAM held;
};

const MouseMessages& MessagesOf(int button) {
    static constexpr MouseMessages kAll[] = {
        {kLeftButton, VK_LBUTTON, WM_LBUTTONDOWN, WM_LBUTTONUP, MK_LBUTTON},
        {kRightButton, VK_RBUTTON, WM_RBUTTONDOWN, WM_RBUTTONUP, MK_RBUTTON},
        {kMiddleButton, VK_MBUTTON, WM_MBUTTONDOWN, WM_MBUTTONUP, MK_MBUTTON}};
    return *std::find_if(std::begin(kAll), std::end(kAll),
                         [button](const MouseMessages& m) { return m.button == button; });
}

class Win32Driver : public Win32Sight {
  public:
    void Choose(ComboBox& box, int index) override {
        const HWND window = HandleOf(box);
        if (!CanReach(window))
            return;
        SetFocus(window);
        Ask(window, CB_SHOWDROPDOWN, TRUE);
        const HWND list = PartsOf(box).hwndList;
        Ask(list, LB_SETTOPINDEX, static_cast<WPARAM>(index));
        RECT item = {};
        Ask(list, LB_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&item));
        // A list below a closed box looks where the mouse is.
        POINT at = Middle(item);
        Ask(list, WM_MOUSEMOVE, 0, At(at));
        Click(list, at);
        Settle();
    }
    void Type(TextBox& box, std::string_view text) override {
        if (!CanReach(HandleOf(box)))
            return;
        box.SetFocus();
        TypeInto(HandleOf(box), text);
    }
    void Type(ComboBox& box, std::string_view text) override {
        if (!CanReach(HandleOf(box)) || !box.Editable())
            return;
        box.SetFocus();
        TypeInto(PartsOf(box).hwndItem, text);
    }
    void Press(Control& button) override {
        const HWND window = HandleOf(button);
        if (!CanReach(window))
            return;
        RECT inside = {};
        GetClientRect(window, &inside);
        Click(window, Middle(inside));
        Settle();
    }
    // The system asks the window under the pointer and activates the form before it hands over the
    // press; what the form posts to itself comes before the release.
    void PressFromOutside(Control& button) override {
        const HWND window = HandleOf(button);
        if (!CanReach(window))
            return;
        const HWND form = GetAncestor(window, GA_ROOT);
        RECT inside = {};
        GetClientRect(window, &inside);
        Ask(window, WM_MOUSEACTIVATE, reinterpret_cast<WPARAM>(form),
            MAKELPARAM(HTCLIENT, WM_LBUTTONDOWN));
        SetActiveWindow(form);
        {
            const Held held({VK_LBUTTON});
            Ask(window, WM_LBUTTONDOWN, MK_LBUTTON, At(Middle(inside)));
            Settle();
        }
        if (IsWindow(window))
            Ask(window, WM_LBUTTONUP, 0, At(Middle(inside)));
        Settle();
    }
    void PressTwice(Control& button) override {
        const HWND window = HandleOf(button);
        Press(button);
        if (!CanReach(window))
            return;
        RECT inside = {};
        GetClientRect(window, &inside);
        Click(window, Middle(inside), WM_LBUTTONDBLCLK);
        Settle();
    }
    void PressKey(Form& form, int key, Modifiers modifiers) override {
        const HWND window = HandleOf(form);
        if (!CanReach(window))
            return;
        HWND target = GetFocus();
        if (target != window && !IsChild(window, target))
            target = window;
        std::vector<int> keys{key};
        if (modifiers.shift)
            keys.push_back(VK_SHIFT);
        if (modifiers.control)
            keys.push_back(VK_CONTROL);
        if (modifiers.alt)
            keys.push_back(VK_MENU);
        const bool system = modifiers.alt && !modifiers.control;
        const LPARAM alt = system ? LPARAM{0x20000000} : LPARAM{0};
        // What makes a character of a key looks at its place on the keyboard, too.
        const LPARAM place = MAKELPARAM(0, MapVirtualKeyW(static_cast<UINT>(key), MAPVK_VK_TO_VSC));
        {
            const Held held(keys);
            PostMessageW(target, system ? WM_SYSKEYDOWN : WM_KEYDOWN, static_cast<WPARAM>(key),
                         1 | place | alt);
            Settle();
        }
        if (!IsWindow(target))
            return;
        keys.erase(keys.begin());
        const Held held(keys);
        PostMessageW(target, system ? WM_SYSKEYUP : WM_KEYUP, static_cast<WPARAM>(key),
                     static_cast<LPARAM>(0xC0000001) | place | alt);
        Settle();
    }
    void ClickRow(ListView& list, int row, Modifiers modifiers) override {
        std::vector<int> keys;
        if (modifiers.shift)
            keys.push_back(VK_SHIFT);
        if (modifiers.control)
            keys.push_back(VK_CONTROL);
        const Held held(keys);
        ClickList(list, InRow(list, row), WM_LBUTTONDOWN,
                  static_cast<WPARAM>((modifiers.shift ? MK_SHIFT : 0) |
                                      (modifiers.control ? MK_CONTROL : 0)));
    }
    void DoubleClickRow(ListView& list, int row) override {
        ClickRow(list, row, {});
        ClickList(list, InRow(list, row), WM_LBUTTONDBLCLK);
    }
    void RightClickRow(ListView& list, int row) override {
        const HWND window = HandleOf(list);
        if (!CanReach(window))
            return;
        const POINT at = InRow(list, row);
        PostMessageW(window, WM_RBUTTONDOWN, MK_RBUTTON, At(at));
        PostMessageW(window, WM_RBUTTONUP, 0, At(at));
        Settle();
    }
    void ClickBelowRows(ListView& list) override {
        RECT inside = {};
        GetClientRect(HandleOf(list), &inside);
        ClickList(list, {20, inside.bottom - 3});
    }
    void DragDivider(ListView& list, int column, int pixels) override {
        const HWND header = HeaderOf(list);
        if (!CanReach(header))
            return;
        RECT item = {};
        Ask(header, HDM_GETITEMRECT, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&item));
        const LONG y = (item.top + item.bottom) / 2;
        Drag(header, kLeftButton, {{item.right - 1, y}, {item.right - 1 + pixels, y}});
    }
    void DragHeader(ListView& list, int column, int position) override {
        const HWND header = HeaderOf(list);
        if (!CanReach(header))
            return;
        RECT from = {};
        Ask(header, HDM_GETITEMRECT, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&from));
        const auto there =
            static_cast<WPARAM>(Ask(header, HDM_ORDERTOINDEX, static_cast<WPARAM>(position)));
        RECT to = {};
        Ask(header, HDM_GETITEMRECT, there, reinterpret_cast<LPARAM>(&to));
        const LONG y = (from.top + from.bottom) / 2;
        const bool rightwards = to.left > from.left;
        const LONG target = rightwards ? to.right - 4 : to.left + 4;
        const LONG start = (from.left + from.right) / 2;
        Drag(header, kLeftButton, {{start, y}, {(start + target) / 2, y}, {target, y}});
    }
    void ClickPanel(StatusBar& bar, int number) override {
        RECT panel = {};
        Ask(HandleOf(bar), SB_GETRECT, static_cast<WPARAM>(number - 1),
            reinterpret_cast<LPARAM>(&panel));
        if (CanReach(HandleOf(bar)))
            Click(HandleOf(bar), Middle(panel));
        Settle();
    }
    void ClickTab(TabStrip& strip, int number) override {
        RECT tab = {};
        Ask(HandleOf(strip), TCM_GETITEMRECT, static_cast<WPARAM>(number - 1),
            reinterpret_cast<LPARAM>(&tab));
        if (CanReach(HandleOf(strip)))
            Click(HandleOf(strip), Middle(tab));
        Settle();
    }
    void ClickToolButton(ToolBar& bar, int number) override {
        const RECT button = ToolButton(bar, number);
        if (CanReach(HandleOf(bar)))
            Click(HandleOf(bar), {button.left + 4, (button.top + button.bottom) / 2});
        Settle();
    }
    void ChooseToolMenuEntry(ToolBar& bar, int number, int entry) override {
        if (!CanReach(HandleOf(bar)) || bar.ButtonAt(number).menu.empty())
            return;
        watch_.ExpectMenu(StepsTo(bar, number, entry));
        const RECT button = ToolButton(bar, number);
        Click(HandleOf(bar), {button.right - 3, (button.top + button.bottom) / 2});
        Settle();
    }
    void ChooseToolMenuEntryByKeys(ToolBar& bar, int number, int entry) override {
        watch_.ExpectMenu(StepsTo(bar, number, entry));
        PressKey(dynamic_cast<Form&>(*bar.Container()), key::Down, {});
    }
    void ChooseMenu(Form& form, const std::vector<int>& path) override {
        const HWND window = HandleOf(form);
        Settle();
        if (!CanReach(window))
            return;
        HMENU menu = GetMenu(window);
        UINT id = 0;
        for (const int position : path) {
            const UINT state = GetMenuState(menu, static_cast<UINT>(position), MF_BYPOSITION);
            if ((state & (MF_GRAYED | MF_DISABLED | MF_SEPARATOR)) != 0 &&
                GetSubMenu(menu, position) == nullptr)
                return;
            if (GetSubMenu(menu, position) != nullptr &&
                (state & 0xFFU & (MF_GRAYED | MF_DISABLED)) != 0)
                return;
            id = GetMenuItemID(menu, position);
            menu = GetSubMenu(menu, position);
        }
        PostMessageW(window, WM_COMMAND, id, 0);
        Settle();
    }
    void PopUpAndChoose(Form& form, MenuItem& menu, int position) override {
        int selectable = 0;
        for (int i = 0; i <= position; ++i)
            selectable += menu.Items()[static_cast<std::size_t>(i)]->IsSeparator() ? 0 : 1;
        watch_.ExpectMenu(selectable);
        Later([&] { form.PopUpMenu(menu); });
        Settle();
    }
    Rect PopUpBelow(Form& form, MenuItem& menu, const Rect& place) override {
        watch_.ExpectMenu(0);
        Later([&] { form.PopUpMenuBelow(menu, place); });
        Settle();
        const RECT& seen = watch_.LastMenu();
        const double x = Kit().TwipsPerPixelX();
        const double y = Kit().TwipsPerPixelY();
        return {static_cast<Twips>(seen.left * x), static_cast<Twips>(seen.top * y),
                static_cast<Twips>((seen.right - seen.left) * x),
                static_cast<Twips>((seen.bottom - seen.top) * y)};
    }
    void Close(Form& form) override {
        if (!CanReach(HandleOf(form)))
            return;
        PostMessageW(HandleOf(form), WM_SYSCOMMAND, SC_CLOSE, 0);
        Settle();
    }
    void ResizeTo(Form& form, Pixels size) override {
        RECT window = {};
        GetWindowRect(HandleOf(form), &window);
        const Rect visible = BoundsOf(form);
        const int width = window.right - window.left + size.x -
                          static_cast<int>(std::lround(visible.width / Kit().TwipsPerPixelX()));
        const int height = window.bottom - window.top + size.y -
                           static_cast<int>(std::lround(visible.height / Kit().TwipsPerPixelY()));
        SetWindowPos(HandleOf(form), nullptr, 0, 0, width, height,
                     SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
        Settle();
    }
    void MoveTo(Form& form, Pixels place) override {
        SetWindowPos(HandleOf(form), nullptr, place.x, place.y, 0, 0,
                     SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
        Settle();
    }
    void DropFiles(Form& form, const std::vector<std::string>& paths) override {
        const HWND window = HandleOf(form);
        if (!CanReach(window) || (GetWindowLongPtrW(window, GWL_EXSTYLE) & WS_EX_ACCEPTFILES) == 0)
            return;
        std::wstring names;
        for (const std::string& path : paths)
            names += win32::ToWide(path) + L'\0';
        names += L'\0';
        const SIZE_T size = sizeof(DROPFILES) + names.size() * sizeof(wchar_t);
        const HGLOBAL memory = GlobalAlloc(GHND, size);
        auto* const drop = static_cast<DROPFILES*>(GlobalLock(memory));
        drop->pFiles = sizeof *drop;
        drop->fWide = TRUE;
        std::copy(names.begin(), names.end(), reinterpret_cast<wchar_t*>(drop + 1));
        GlobalUnlock(memory);
        PostMessageW(window, WM_DROPFILES, reinterpret_cast<WPARAM>(memory), 0);
        Settle();
    }
    void DragMouse(Control& control, int button, const std::vector<Pixels>& points) override {
        if (!CanReach(HandleOf(control)))
            return;
        std::vector<POINT> path;
        for (const Pixels& p : points)
            path.push_back({p.x, p.y});
        Drag(HandleOf(control), button, path);
    }
    void MoveMouse(Control& control, Pixels to) override {
        if (CanReach(HandleOf(control)))
            Ask(HandleOf(control), WM_MOUSEMOVE, 0, At({to.x, to.y}));
        Settle();
    }
    void LeaveWithMouse(Canvas& canvas) override {
        if (CanReach(HandleOf(canvas)))
            Ask(HandleOf(canvas), WM_MOUSELEAVE);
        Settle();
    }
    void TurnWheel(Canvas& canvas, int delta) override {
        if (CanReach(HandleOf(canvas)))
            Ask(HandleOf(canvas), WM_MOUSEWHEEL,
                static_cast<WPARAM>(MAKELONG(0, static_cast<WORD>(delta))));
        Settle();
    }
    void RunModal(Form& form, Form* owner, std::function<void()> meanwhile) override {
        Later(std::move(meanwhile));
        form.ShowModal(owner);
    }
    void AnswerBoxes(std::function<Answer(const BoxSeen&)> answer) override {
        watch_.AnswerBoxes(std::move(answer));
    }

  private:
    // How often Down is pressed until the entry is selected.
    static int StepsTo(const ToolBar& bar, int number, int entry) {
        int steps = 0;
        for (int i = 0; i <= entry; ++i) {
            const auto& e = bar.ButtonAt(number).menu[static_cast<std::size_t>(i)];
            steps += e.IsSeparator() ? 0 : 1;
        }
        return steps;
    }
    static void Click(HWND window, POINT at, UINT press = WM_LBUTTONDOWN) {
        {
            const Held held({VK_LBUTTON});
            Ask(window, press, MK_LBUTTON, At(at));
        }
        if (IsWindow(window))
            Ask(window, WM_LBUTTONUP, 0, At(at));
    }
    static POINT InRow(const ListView& list, int row) {
        RECT cell = {};
        cell.left = LVIR_LABEL;
        Ask(HandleOf(list), LVM_GETITEMRECT, static_cast<WPARAM>(row),
            reinterpret_cast<LPARAM>(&cell));
        return {cell.left + 4, (cell.top + cell.bottom) / 2};
    }
    // A list waits for the release inside of the press to tell a click from a drag.
    void ClickList(ListView& list, POINT at, UINT down = WM_LBUTTONDOWN, WPARAM keys = 0) {
        const HWND window = HandleOf(list);
        if (!CanReach(window))
            return;
        PostMessageW(window, down, MK_LBUTTON | keys, At(at));
        PostMessageW(window, WM_LBUTTONUP, keys, At(at));
        Settle();
    }
    void Drag(HWND window, int button, const std::vector<POINT>& points) {
        const MouseMessages& messages = MessagesOf(button);
        {
            const Held held({messages.key});
            Ask(window, messages.down, messages.held, At(points.front()));
            for (std::size_t i = 1; i < points.size(); ++i)
                Ask(window, WM_MOUSEMOVE, messages.held, At(points[i]));
        }
        if (IsWindow(window))
            Ask(window, messages.up, 0, At(points.back()));
        Settle();
    }
    void TypeInto(HWND edit, std::string_view text) {
        Ask(edit, EM_SETSEL, 0, -1);
        if (text.empty())
            PostMessageW(edit, WM_CHAR, VK_BACK, 1);
        for (const wchar_t unit : win32::ToWide(text))
            PostMessageW(edit, WM_CHAR, unit, 1);
        Settle();
    }
    static COMBOBOXINFO PartsOf(const ComboBox& box) {
        COMBOBOXINFO info = {};
        info.cbSize = sizeof info;
        GetComboBoxInfo(HandleOf(box), &info);
        return info;
    }
    static HWND HeaderOf(const ListView& list) {
        return reinterpret_cast<HWND>(Ask(HandleOf(list), LVM_GETHEADER));
    }
    static RECT ToolButton(const ToolBar& bar, int number) {
        RECT button = {};
        Ask(HandleOf(bar), TB_GETITEMRECT, static_cast<WPARAM>(number - 1),
            reinterpret_cast<LPARAM>(&button));
        return button;
    }

    Win32Watch watch_{boxes};
};

}  // namespace

std::unique_ptr<ToolkitDriver> MakeWin32Driver() {
    return std::make_unique<Win32Driver>();
}

}  // namespace ordalyn::contract
