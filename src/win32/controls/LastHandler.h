// The end of the road for errors that nobody caught: tells the user and keeps the program running.
// Every call from the system into the program goes through Run.
#pragma once

#include <utility>

namespace ordalyn::win32 {

class LastHandler {
  public:
    // Answers what `work` answers, or `otherwise` when it threw.
    template <typename Result, typename Work>
    Result Run(Result otherwise, Work&& work) noexcept {
        try {
            return std::forward<Work>(work)();
        } catch (...) {
            Tell();
            return otherwise;
        }
    }

  private:
    // Shows a message box about the exception being handled. Errors of events that are handled
    // while the box is open are not shown on top of it: one that comes with every repaint would
    // never end.
    void Tell() noexcept;
    bool telling_ = false;
};

}  // namespace ordalyn::win32
