#include "windows/common/WindowPlacement.h"

#include "base/Attempt.h"
#include "settings/Placement.h"
#include "settings/mAppSpecific.h"

namespace ordalyn {

using toolkit::Twips;
using toolkit::WindowState;

void RestoreWindowPosition(const mAppSpecific& settings, toolkit::Form& form, bool restoreState) {
    Attempt([&] {
        const Placement stored = ParsePlacement(settings.ReadEntry(PlacementEntry(form.Name())));
        form.Move({static_cast<Twips>(stored.left), static_cast<Twips>(stored.top),
                   static_cast<Twips>(stored.width), static_cast<Twips>(stored.height)});
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
