// The toolkit's plain types: geometry, fonts, colours, keys, events.
//
// All geometry above win32 is in twips (1/1440 inch at the screen's nominal resolution).
// It is kept exactly as it was set; only the realisation knows pixels.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace ordalyn::toolkit {

using Twips = float;

struct Rect {
    Twips left = 0, top = 0, width = 0, height = 0;
    bool operator==(const Rect&) const = default;
};

struct Size {
    Twips width = 0, height = 0;
    bool operator==(const Size&) const = default;
};

// A colour as settings files hold it: 0x00BBGGRR, or, with the top bit set, the index of a system
// colour, which is looked up each time something is drawn.
using Color = std::int32_t;
inline constexpr Color SystemColor(std::uint32_t index) {
    return static_cast<Color>(0x80000000U | index);
}
inline constexpr Color kWindowBackground = SystemColor(5);
inline constexpr Color kWindowText = SystemColor(8);
inline constexpr Color kButtonFace = SystemColor(15);
inline constexpr Color kButtonText = SystemColor(18);
// No index of the system's: what the pages of a tab strip are painted with.
inline constexpr Color kTabInterior = SystemColor(0x80);

struct Font {
    std::string name;  // empty: the system's dialog font
    double size = 8;   // points
    std::int32_t characterSet = 1;
    bool bold = false, italic = false, strikethrough = false, underline = false;
    bool operator==(const Font&) const = default;
};

enum class BorderStyle { None = 0, FixedSingle = 1 };
enum class Appearance { Flat = 0, ThreeDimensional = 1 };
enum class Alignment { Left = 0, Right = 1 };
enum class Bevel { None = 0, Inset = 1 };
enum class Pointer { Default, Hourglass, SizeEastWest, SizeNorthSouth, Hand };
enum class WindowState { Normal = 0, Minimised = 1, Maximised = 2 };

// Keys by the system's virtual key codes; letters and digits are their upper-case ASCII codes.
namespace key {
inline constexpr int Backspace = 8, Tab = 9, Enter = 13, Escape = 27, Space = 32, PageUp = 33,
                     PageDown = 34, End = 35, Home = 36, Left = 37, Up = 38, Right = 39, Down = 40,
                     Insert = 45, Delete = 46, ContextMenu = 93, F1 = 112, F3 = 114, F4 = 115,
                     F10 = 121, F5 = 116, F24 = 135;
}  // namespace key

struct Modifiers {
    bool shift = false, control = false, alt = false;
    bool operator==(const Modifiers&) const = default;
};

struct Shortcut {
    int key = 0;  // 0: none
    Modifiers modifiers;
    bool operator==(const Shortcut&) const = default;
};

// Mouse buttons as a bit set: what is held down while the pointer moves.
enum MouseButtons : int { kLeftButton = 1, kRightButton = 2, kMiddleButton = 4 };

// An event that handlers subscribe to. Handlers run in the order of subscription. A handler may not
// destroy the object that raises the event, menu items apart: choosing a recent file, say, changes
// the list of recent files.
template <typename... Args>
class Event {
  public:
    using Handler = std::function<void(Args...)>;
    void Subscribe(Handler handler) {
        if (handlers_ == nullptr)
            handlers_ = std::make_shared<Handlers>();
        handlers_->push_back(std::make_shared<const Handler>(std::move(handler)));
    }
    // Whether anybody listens.
    explicit operator bool() const { return handlers_ != nullptr; }
    void Raise(Args... args) const {
        // Holding the list and the handler that runs, and by index: a handler may subscribe another
        // one, which moves the list's elements, or end this event.
        const std::shared_ptr<const Handlers> handlers = handlers_;
        for (std::size_t i = 0; handlers != nullptr && i < handlers->size(); ++i) {
            const std::shared_ptr<const Handler> handler = (*handlers)[i];
            (*handler)(args...);
        }
    }

  private:
    using Handlers = std::vector<std::shared_ptr<const Handler>>;
    std::shared_ptr<Handlers> handlers_;
};

// Sets a flag for as long as it lives ("ignore this event", "reading now").
class ScopedFlag {
  public:
    explicit ScopedFlag(bool& flag) : flag_(flag), before_(flag) { flag_ = true; }
    ~ScopedFlag() { flag_ = before_; }
    ScopedFlag(const ScopedFlag&) = delete;
    ScopedFlag& operator=(const ScopedFlag&) = delete;

  private:
    bool& flag_;
    bool before_;
};

}  // namespace ordalyn::toolkit
