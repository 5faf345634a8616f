// Font handles, shared by everything that shows the same font and freed when nothing does.
#pragma once

#include <memory>
#include <utility>
#include <vector>

#include "toolkit/Basics.h"
#include "win32/common/Win32.h"

namespace ordalyn::win32 {

class FontHandle {
  public:
    explicit FontHandle(const LOGFONTW& description) : handle_(CreateFontIndirectW(&description)) {}
    ~FontHandle() { DeleteObject(handle_); }
    FontHandle(const FontHandle&) = delete;
    FontHandle& operator=(const FontHandle&) = delete;
    HFONT get() const { return handle_; }

  private:
    HFONT handle_;
};

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
