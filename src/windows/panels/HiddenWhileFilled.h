// HiddenWhileFilled: a panel that is not repainted while its rows change, and is shown again
// whatever happens.
#pragma once

#include "toolkit/Control.h"

namespace ordalyn {

class HiddenWhileFilled {
  public:
    explicit HiddenWhileFilled(toolkit::Control& panel) : panel_(panel) {
        panel_.SetVisible(false);
    }
    ~HiddenWhileFilled() { panel_.SetVisible(true); }
    HiddenWhileFilled(const HiddenWhileFilled&) = delete;
    HiddenWhileFilled& operator=(const HiddenWhileFilled&) = delete;

  private:
    toolkit::Control& panel_;
};

}  // namespace ordalyn
