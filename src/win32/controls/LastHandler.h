// Where an exception goes that nobody else has caught: the user is notified and the program goes
// on. Every call from the system into the program goes through Run.
#pragma once

#include <utility>

namespace ordalyn::win32 {

class LastHandler {
  public:
    // Returns what `work` returns, or `otherwise` when it threw.
    template <typename Result, typename Work>
    Result Run(Result otherwise, Work&& work) noexcept {
        try {
            return std::forward<Work>(work)();
        } catch (...) {
            Report();
            return otherwise;
        }
    }

  private:
    // Shows a message box about the exception being handled. Errors of events that are handled
    // while the box is open are not shown on top of it: one that comes with every repaint would
    // never end.
    void Report() noexcept;
    bool reporting_ = false;
};

}  // namespace ordalyn::win32
