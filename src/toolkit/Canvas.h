// Canvas: an area that the code of its form draws itself. Nothing on it has a window of its own, so
// that it can hold hundreds of parts.
#pragma once

#include <string_view>

#include "toolkit/Control.h"
#include "toolkit/TextColors.h"

namespace ordalyn::toolkit {

enum class TextPlace { Left, Centre, Right };

// What a canvas is drawn with for as long as its Paint runs. Places are in twips from its top left
// corner; an edge comes to lie on the nearest pixel.
class Painter {
  public:
    virtual ~Painter() = default;
    virtual void Fill(const Rect& area, Color color) = 0;
    // One line in the canvas's font, in the middle of the area's height. Ends in "..." where there
    // is no room for all of it.
    virtual void Text(const Rect& area, std::string_view text, Color color, TextPlace place) = 0;
    // The dotted frame of the part that keys are for, seen on that colour. Only those who work with
    // the keyboard are shown it, and only while the canvas has the focus.
    virtual void MarkFocus(const Rect& area, Color background) = 0;
};

class Canvas : public Control {
  public:
    Canvas(Toolkit& toolkit, std::string_view name, int index, Control& container,
           const Rect& bounds);
    ControlPeer& peer() const override { return *peer_; }

    // Draws all of it. What was drawn before is gone. May not handle messages, and change nothing
    // of the canvas; a picture that is not complete yet may be invalidated, and is drawn again when
    // nothing else waits to be done.
    Event<Painter&> Paint;
    // What Paint draws has changed: it is raised again once the system gets to it, and once only,
    // however often this was called before.
    void Invalidate() { peer_->Invalidate(); }

    // How large a line of text is in the canvas's font.
    Size Measure(std::string_view text) const { return peer_->Measure(text); }
    // The nearest length of whole pixels, at least one: multiples of it look alike wherever they
    // begin.
    Twips WholePixels(Twips length) const { return peer_->WholePixels(length); }
    // The fore and back colour as they are seen: no colours of the system's, which may not be
    // mixed, and readable with high contrast.
    TextColors ShownColors() const { return peer_->ShownColors(); }

    // The pointer has left the canvas.
    Event<> MouseLeave;
    // The mouse wheel was turned by so many notches, away from the person when positive.
    Event<int> Wheel;
    // A key that the form would use otherwise (the arrows, Enter); set the argument to true when it
    // is used up.
    Event<int, bool&> KeyOffered;

    // For the peer: a notch is 120; finer wheels report less at a time.
    void UserTurnedWheel(int delta);
    bool UserPressedKey(int key, bool held) override;

  private:
    std::unique_ptr<CanvasPeer> peer_;
    int turned_ = 0;  // of the notch that is not complete
};

}  // namespace ordalyn::toolkit
