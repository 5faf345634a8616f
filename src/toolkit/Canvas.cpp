#include "toolkit/Canvas.h"

namespace ordalyn::toolkit {

namespace {

constexpr int kNotch = 120;

}  // namespace

Canvas::Canvas(Toolkit& toolkit, std::string_view name, int index, Control& container,
               const Rect& bounds)
    : Control(Kind::Canvas, name, index), peer_(toolkit.CreateCanvas(*this, container.peer())) {
    SetContainerReference(&container);
    InitialisePeer(bounds);
}

// Who turns the other way begins a notch anew.
void Canvas::UserTurnedWheel(int delta) {
    if ((delta > 0) != (turned_ > 0))
        turned_ = 0;
    turned_ += delta;
    const int notches = turned_ / kNotch;
    turned_ -= notches * kNotch;
    if (notches != 0)
        Wheel.Raise(notches);
}

bool Canvas::UserPressedKey(int key, bool /*held*/) {
    bool used = false;
    KeyOffered.Raise(key, used);
    return used;
}

}  // namespace ordalyn::toolkit
