// Timer: says again and again that some time has passed, as long as the user leaves the program
// room for it.
#pragma once

#include <memory>

#include "toolkit/Form.h"

namespace ordalyn::toolkit {

class Timer {
  public:
    // Of a form, which lives longer.
    explicit Timer(Form& form);
    ~Timer();
    Timer(const Timer&) = delete;
    Timer& operator=(const Timer&) = delete;

    // From now on about every so many milliseconds; nothing is made up for when that was missed.
    void Start(int milliseconds);
    void Stop();
    bool Running() const { return running_; }

    // Raised by the message loop, never inside another one of it, and only while the form can be
    // used and is not minimised: not while it waits for a message box, a modal form or a read, nor
    // while a menu is open or the mouse holds something.
    Event<> Elapsed;

    // For the peer.
    void SystemElapsed();

  private:
    Form& form_;
    std::unique_ptr<TimerPeer> peer_;
    bool running_ = false;
    bool raising_ = false;
};

}  // namespace ordalyn::toolkit
