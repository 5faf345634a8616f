// ProgressWindow shows the progress window for the reader: loaded when a read begins, unloaded when
// it ends.
#pragma once

#include <chrono>
#include <functional>
#include <memory>

#include "windows/progress/ReadingProgress.h"
#include "windows/progress/frmProgress.h"

namespace ordalyn {

class ProgressWindow : public ReadingProgress {
  public:
    using Clock = std::function<std::chrono::steady_clock::time_point()>;

    // `owner` is the main window; `cancelled` is run when the user presses Cancel.
    ProgressWindow(toolkit::Toolkit& toolkit, toolkit::Form& owner, Texts texts,
                   std::function<void()> cancelled, Clock clock = std::chrono::steady_clock::now);

    void PrepareCompact() override;
    void PrepareTall(std::string_view fileName) override;
    void ShowProgress(std::string_view caption, std::int32_t max) override;
    // Values that follow one another faster than eyes are left out: the bar paints each one at
    // once, which took longer than all the reading. Throws InvalidPropertyValue for a value above
    // the maximum.
    void SetValue(std::int32_t value) override;
    void HideProgress() override;

    // The window while it is loaded; null otherwise.
    frmProgress* Window() const { return window_.get(); }

  private:
    frmProgress& Loaded();

    toolkit::Toolkit& toolkit_;
    toolkit::Form& owner_;
    Texts texts_;
    std::function<void()> cancelled_;
    Clock clock_;
    std::chrono::steady_clock::time_point nextPainting_;
    std::unique_ptr<frmProgress> window_;
};

}  // namespace ordalyn
