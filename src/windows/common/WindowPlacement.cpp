#include "windows/common/WindowPlacement.h"

#include <algorithm>
#include <optional>
#include <string>
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

// A window's size is in twips of its screen. How many of those that places are in is one of them?
Twips TwipsAt(toolkit::Toolkit& toolkit, const Rect& window) {
    return static_cast<Twips>(toolkit.ScreenTwips(window));
}

bool CanBeTaken(const Rect& window, Twips twips, const std::vector<Rect>& screens) {
    const Twips right = window.left + window.width * twips;
    const Twips bottom = window.top + kTitleBarHeight * twips;
    const Twips grip = kGrip * twips;
    return std::any_of(screens.begin(), screens.end(), [&](const Rect& screen) {
        const Twips width =
            std::min(right, screen.left + screen.width) - std::max(window.left, screen.left);
        const Twips height =
            std::min(bottom, screen.top + screen.height) - std::max(window.top, screen.top);
        return width >= grip && height >= grip;
    });
}

Rect Inside(const Rect& area, Twips twips, Rect window) {
    window.width = std::min(window.width, area.width / twips);
    window.height = std::min(window.height, area.height / twips);
    window.left = std::clamp(window.left, area.left, area.left + area.width - window.width * twips);
    window.top = std::clamp(window.top, area.top, area.top + area.height - window.height * twips);
    return window;
}

Rect AtLeast(const toolkit::Size& least, Rect window) {
    window.width = std::max(window.width, least.width);
    window.height = std::max(window.height, least.height);
    return window;
}

// What a form has that was never placed.
Rect DefaultPlacement(toolkit::Toolkit& toolkit, std::string_view fallback) {
    const Rect area = toolkit.WorkArea();
    return AtLeast(toolkit.LeastFormSize(),
                   Inside(area, TwipsAt(toolkit, area), RectOf(ParsePlacement(fallback))));
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
    if (!CanBeTaken(window, TwipsAt(toolkit, window), toolkit.WorkAreas()))
        return std::nullopt;
    return window;
}

}  // namespace

void RestoreWindowPosition(const mAppSpecific& settings, toolkit::Form& form, bool restoreState) {
    Attempt([&] {
        toolkit::Toolkit& toolkit = form.toolkit();
        const OtherEntry& entry = PlacementEntry(form.Name());
        // Nobody has chosen the default place, which may be larger than the screen.
        const std::string text = settings.ReadEntry(entry);
        const std::optional<Rect> stored =
            text == entry.fallback ? std::nullopt : UsablePlacement(toolkit, text);
        form.Move(stored ? *stored : DefaultPlacement(toolkit, entry.fallback));
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
