// How messages are handled, in the program's main loop and in those inside of it. Keys go to the
// rules of the form's keyboard (toolkit/FormKeyboard.h) first; what those leave goes to the window.
#pragma once

#include "win32/controls/Desktop.h"

namespace ordalyn::win32 {

class MessageLoop {
  public:
    explicit MessageLoop(Desktop& desktop) : desktop_(desktop) {}
    // Until the flag is set, or the program is to end (which whoever runs the outer loop sees too).
    void RunUntil(const bool& ended);
    // Until the program is to end.
    void Run();
    // What waits now.
    void RunWaiting();

  private:
    void Handle(const MSG& message);
    // Returns whether the message was used up.
    static bool HandleKey(const MSG& message);
    Desktop& desktop_;
};

}  // namespace ordalyn::win32
