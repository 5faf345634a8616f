// Font handles, shared by everything that shows the same font and freed when nothing does.
#pragma once

#include <memory>
#include <utility>
#include <vector>

#include "toolkit/Basics.h"
#include "win32/common/Handles.h"

namespace ordalyn::win32 {

class Fonts {
  public:
    explicit Fonts(int dpi) : dpi_(dpi) {}
    // A font without a name is the system's dialog font.
    std::shared_ptr<FontHandle> Get(const toolkit::Font& font);

  private:
    int dpi_;
    std::vector<std::pair<toolkit::Font, std::weak_ptr<FontHandle>>> made_;
};

}  // namespace ordalyn::win32
