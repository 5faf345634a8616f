#include "windows/common/WindowPlacement.h"

#include <algorithm>
#include <optional>
#include <vector>

#include "base/Attempt.h"
#include "settings/Placement.h"
#include "settings/mAppSpecific.h"
#include "toolkit/Toolkit.h"

namespace ordalyn {

using toolkit::Rect;
using toolkit::Twips;
using toolkit::WindowState;

namespace {

// In twips, of every title bar alike: how high it is, and how much of it must be on a screen to be
// taken by the mouse.
constexpr Twips kTitleBarHeight = 300;
constexpr Twips kGrip = 150;

Rect RectOf(const Placement& placement) {
    return {static_cast<Twips>(placement.left), static_cast<Twips>(placement.top),
            static_cast<Twips>(placement.width), static_cast<Twips>(placement.height)};
}

bool CanBeTaken(const Rect& window, const std::vector<Rect>& screens) {
    return std::any_of(screens.begin(), screens.end(), [&](const Rect& screen) {
        const Twips width = std::min(window.left + window.width, screen.left + screen.width) -
                            std::max(window.left, screen.left);
        const Twips height = std::min(window.top + kTitleBarHeight, screen.top + screen.height) -
                             std::max(window.top, screen.top);
        return width >= kGrip && height >= kGrip;
    });
}

Rect Inside(const Rect& area, Rect window) {
    window.width = std::min(window.width, area.width);
    window.height = std::min(window.height, area.height);
    window.left = std::clamp(window.left, area.left, area.left + area.width - window.width);
    window.top = std::clamp(window.top, area.top, area.top + area.height - window.height);
    return window;
}

Rect AtLeast(const toolkit::Size& least, Rect window) {
    window.width = std::max(window.width, least.width);
    window.height = std::max(window.height, least.height);
    return window;
}

// The stored placement where it is one.
std::optional<Rect> UsablePlacement(toolkit::Toolkit& toolkit, std::string_view stored) {
    Rect window;
    // A number beyond all bounds is an error.
    if (!Attempt([&] { window = RectOf(ParsePlacement(stored)); }))
        return std::nullopt;
    if (!(window.width > 0) || !(window.height > 0))
        return std::nullopt;
    window = AtLeast(toolkit.LeastFormSize(), window);
    if (!CanBeTaken(window, toolkit.WorkAreas()))
        return std::nullopt;
    return window;
}

}  // namespace

void RestoreWindowPosition(const mAppSpecific& settings, toolkit::Form& form, bool restoreState) {
    Attempt([&] {
        toolkit::Toolkit& toolkit = form.toolkit();
        const OtherEntry& entry = PlacementEntry(form.Name());
        const std::optional<Rect> stored = UsablePlacement(toolkit, settings.ReadEntry(entry));
        form.Move(
            stored ? *stored
                   : AtLeast(toolkit.LeastFormSize(),
                             Inside(toolkit.WorkArea(), RectOf(ParsePlacement(entry.fallback)))));
    });
    if (!restoreState)
        return;
    Attempt([&] {
        form.SetState(static_cast<WindowState>(
            ParseStartState(settings.ReadEntry(WindowStateEntry(form.Name())))));
    });
}

void SaveWindowPosition(mAppSpecific& settings, const toolkit::Form& form, bool saveState) {
    const WindowState state = form.State();
    if (state == WindowState::Normal)
        settings.WriteEntry(PlacementEntry(form.Name()), PlacementText({.left = form.Left(),
                                                                        .top = form.Top(),
                                                                        .width = form.Width(),
                                                                        .height = form.Height()}));
    if (saveState)
        settings.WriteEntry(WindowStateEntry(form.Name()), std::to_string(static_cast<int>(state)));
}

}  // namespace ordalyn
