// ProgressWindow shows the progress window for the reader: loaded when a read begins, unloaded when
// it ends.
#pragma once

#include <functional>
#include <memory>

#include "log/LogFileReading.h"
#include "ui/frmProgress.h"

namespace ordalyn {

class ProgressWindow : public ReadingProgress {
  public:
    // `owner` is the main window; `cancelled` is run when the user presses Cancel.
    ProgressWindow(toolkit::Toolkit& toolkit, toolkit::Form& owner, Texts texts,
                   std::function<void()> cancelled);

    void PrepareCompact() override;
    void PrepareTall(std::string_view fileName) override;
    void ShowProgress(std::string_view caption, std::int32_t max) override;
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
    std::unique_ptr<frmProgress> window_;
};

}  // namespace ordalyn
