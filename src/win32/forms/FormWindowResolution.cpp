// A form on screens of different resolutions: it has that of the screen that it is on, keeps its
// size in twips when it comes to another one, and so does all that is on it.
#include <algorithm>
#include <cstdlib>
#include <utility>

#include "win32/common/Resolution.h"
#include "win32/forms/FormWindow.h"

namespace ordalyn::win32 {

using namespace toolkit;

namespace {

constexpr int kIconResource = 1;

RECT PixelsOf(const Scale& places, const Rect& outer, const Scale& size) {
    const int left = places.PixelsX(outer.left);
    const int top = places.PixelsY(outer.top);
    return {left, top, left + size.PixelsX(outer.width), top + size.PixelsY(outer.height)};
}

// What the system proposes is rounded, and frames do not grow quite as the resolution does: there
// and back again, a form would have another size. Only a proposal that means more counts.
RECT WithSizeOf(const RECT& own, RECT proposed) {
    constexpr LONG kRounding = 4;
    const auto choose = [](LONG start, LONG& end, LONG size) {
        if (std::abs(end - start - size) <= kRounding)
            end = start + size;
    };
    choose(proposed.left, proposed.right, own.right - own.left);
    choose(proposed.top, proposed.bottom, own.bottom - own.top);
    return proposed;
}

}  // namespace

bool FormWindow::CanBeSeen() const {
    return handle() != nullptr && IsWindowVisible(handle()) && !IsIconic(handle()) &&
           MonitorFromWindow(handle(), MONITOR_DEFAULTTONULL) != nullptr;
}

// The one that the user works with: a new form is about to be shown for it.
const FormWindow* FormWindow::FormInFront(const Desktop& desktop) {
    const HWND active = GetActiveWindow();
    const FormWindow* last = nullptr;
    for (const FormWindow* form : desktop.forms) {
        if (!form->CanBeSeen())
            continue;
        if (form->handle() == active)
            return form;
        last = form;
    }
    return last;
}

// What a form was told of the screen that it is on counts for all that come to the same place: a
// dialog opens like its owner.
Scale FormWindow::ScaleOfPlace(const Desktop& desktop, const Rect& outer,
                               const FormWindow* itself) {
    // How large it is there is not known before.
    const Scale first = desktop.scaleAt(PixelsOf(desktop.scale, outer, desktop.scale));
    const Scale said = desktop.scaleAt(PixelsOf(desktop.scale, outer, first));
    for (const FormWindow* form : {itself, FormInFront(desktop)}) {
        RECT place = {};
        if (form != nullptr && form->CanBeSeen() && GetWindowRect(form->handle(), &place) &&
            desktop.scaleAt(place) == said)
            return form->scale();
    }
    return said;
}

// On the screen of the form in front: its frame is made for that one, too.
FormWindow::Birthplace FormWindow::BirthplaceOf(const Desktop& desktop) {
    const Scale main = desktop.scaleAt({});
    const FormWindow* const front = FormInFront(desktop);
    RECT place = {};
    if (front == nullptr || front->scale() == main || !GetWindowRect(front->handle(), &place))
        return {main, {}};
    return {front->scale(), {place.left, place.top}};
}

Rect FormWindow::WorkArea() {
    const FormWindow* const there = CanBeSeen() ? this : FormInFront(desktop());
    MONITORINFO screen = {};
    screen.cbSize = sizeof screen;
    constexpr POINT kMainScreen = {};
    const HMONITOR monitor = there == nullptr
                                 ? MonitorFromPoint(kMainScreen, MONITOR_DEFAULTTOPRIMARY)
                                 : MonitorFromWindow(there->handle(), MONITOR_DEFAULTTONEAREST);
    GetMonitorInfoW(monitor, &screen);
    return desktop().scale.Twips(screen.rcWork);
}

void FormWindow::ShowIcons() {
    // A frame that can be dragged has room for one in its caption, and gets the system's otherwise.
    if (!style_.minimiseBox && !style_.maximiseBox && !style_.resizable)
        return;
    // The window lets go of the ones before when it gets the new ones.
    const auto show = [&](WPARAM which, int widthMetric, int heightMetric) {
        const int width = MetricAt(widthMetric, scale().DpiX());
        const int height = MetricAt(heightMetric, scale().DpiY());
        Icon icon(static_cast<HICON>(LoadImageW(desktop().program, MAKEINTRESOURCEW(kIconResource),
                                                IMAGE_ICON, width, height, LR_DEFAULTCOLOR)));
        Send(WM_SETICON, which, reinterpret_cast<LPARAM>(icon.Get()));
        icons_[which] = std::move(icon);
    };
    show(ICON_BIG, SM_CXICON, SM_CYICON);
    show(ICON_SMALL, SM_CXSMICON, SM_CYSMICON);
}

void FormWindow::TakeScale(const Scale& scale) {
    for (const auto& control : form_.Controls())
        dynamic_cast<Window&>(control->peer()).KeepBeforeRescaling();
    ChangeScale(scale);
    ShowIcons();
}

// Containers stand before what is in them.
void FormWindow::ShowRescaledAll() {
    ShowRescaled();
    const std::weak_ptr<const void> alive = Lifetime();
    for (const auto& control : form_.Controls()) {
        // Whoever lays the form out again may raise anything.
        control->SystemChangedBounds(dynamic_cast<Window&>(control->peer()).ShowRescaled());
        if (alive.expired())
            return;
    }
}

void FormWindow::ResolutionChanged(const Scale& now, const RECT& proposed) {
    if (following_ || (placing_ && now == scale()))
        return;
    const ScopedFlag following(following_);
    const std::weak_ptr<const void> alive = Lifetime();
    const Rect before = CurrentBounds();
    const bool byCode = placing_;
    TakeScale(now);
    if (byCode || IsIconic(handle()) || IsZoomed(handle()))
        placedWindow_ = WindowRectFor(placed_);
    {
        const ScopedFlag placing(placing_);
        const RECT place = byCode ? placedWindow_ : WithSizeOf(WindowRectFor(before), proposed);
        if (IsIconic(handle()))
            PlaceWhenNormal(placedWindow_);
        else
            SetWindowPos(handle(), nullptr, place.left, place.top, place.right - place.left,
                         place.bottom - place.top, SWP_NOZORDER | SWP_NOACTIVATE);
    }
    if (!byCode)
        KeepTwips(before);
    ShowRescaledAll();
    if (alive.expired() || handle() == nullptr)
        return;
    FitCaption();
    rescaled_ = true;
    ReportBounds();
    if (!alive.expired() && handle() != nullptr)
        RedrawWindow(handle(), nullptr, nullptr,
                     RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
}

// What has the pixels that its twips have in the new resolution keeps them.
void FormWindow::KeepTwips(const Rect& before) {
    RECT window = {};
    if (IsIconic(handle()) || IsZoomed(handle()) || !GetWindowRect(handle(), &window))
        return;
    placed_ = TwipsOf(window, before, WindowRectFor(before));
    placedWindow_ = window;
}

}  // namespace ordalyn::win32
