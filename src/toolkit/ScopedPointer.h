// ScopedPointer shows a mouse pointer over all of the program's windows for as long as it lives;
// the normal one comes back afterwards, whatever happens.
#pragma once

#include "toolkit/Toolkit.h"

namespace ordalyn::toolkit {

class ScopedPointer {
  public:
    ScopedPointer(Toolkit& toolkit, Pointer pointer) : toolkit_(toolkit) {
        toolkit_.SetPointer(pointer);
    }
    ~ScopedPointer() { toolkit_.SetPointer(Pointer::Default); }
    ScopedPointer(const ScopedPointer&) = delete;
    ScopedPointer& operator=(const ScopedPointer&) = delete;

  private:
    Toolkit& toolkit_;
};

}  // namespace ordalyn::toolkit
