// Font handles, shared by everything that shows the same font and freed when nothing does.
#pragma once

#include <memory>
#include <vector>

#include "toolkit/Basics.h"
#include "win32/common/Handles.h"

namespace ordalyn::win32 {

class Fonts {
  public:
    // For a window of a resolution. A font without a name is the system's dialog font.
    std::shared_ptr<FontHandle> Get(const toolkit::Font& font, int dpi);

  private:
    struct Made {
        toolkit::Font font;
        int dpi;
        std::weak_ptr<FontHandle> handle;
    };
    std::vector<Made> made_;
};

}  // namespace ordalyn::win32
