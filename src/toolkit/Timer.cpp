#include "toolkit/Timer.h"

#include "base/Errors.h"

namespace ordalyn::toolkit {

Timer::Timer(Form& form) : form_(form), peer_(form.toolkit().CreateTimer(*this, form.formPeer())) {}

Timer::~Timer() {
    Stop();
}

void Timer::Start(int milliseconds) {
    if (milliseconds <= 0)
        throw InvalidPropertyValue("interval of a timer");
    running_ = true;
    peer_->Start(milliseconds);
}

void Timer::Stop() {
    if (!running_)
        return;
    running_ = false;
    peer_->Stop();
}

void Timer::SystemElapsed() {
    if (!running_ || raising_ || form_.Unloaded() || !form_.CanTakeInput() ||
        form_.State() == WindowState::Minimised)
        return;
    const ScopedFlag raising(raising_);
    Elapsed.Raise();
}

}  // namespace ordalyn::toolkit
