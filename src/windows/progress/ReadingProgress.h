// ReadingProgress: the window that shows how far a read has come, as the reader of logs needs it.
#pragma once

#include <cstdint>
#include <string_view>

namespace ordalyn {

class ReadingProgress {
  public:
    virtual ~ReadingProgress() = default;
    // A read that starts a new list has the compact form; one of several files has the tall form,
    // with the file's name and a Cancel button.
    virtual void PrepareCompact() = 0;
    virtual void PrepareTall(std::string_view fileName) = 0;
    // Shows the hourglass pointer and the window, with the bar at 1 of `max`, and handles waiting
    // messages once so that it is painted.
    virtual void ShowProgress(std::string_view caption, std::int32_t max) = 0;
    // Throws InvalidPropertyValue beyond `max`.
    virtual void SetValue(std::int32_t value) = 0;
    // Takes the window away and restores the normal pointer. Nothing happens when there is none.
    virtual void HideProgress() = 0;
};

}  // namespace ordalyn
