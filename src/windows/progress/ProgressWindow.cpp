#include "windows/progress/ProgressWindow.h"

#include <string>
#include <utility>

namespace ordalyn {

namespace {

constexpr std::chrono::milliseconds kBetweenPaintings{50};

}  // namespace

ProgressWindow::ProgressWindow(toolkit::Toolkit& toolkit, toolkit::Form& owner, Texts texts,
                               std::function<void()> cancelled, Clock clock)
    : toolkit_(toolkit),
      owner_(owner),
      texts_(std::move(texts)),
      cancelled_(std::move(cancelled)),
      clock_(std::move(clock)) {}

frmProgress& ProgressWindow::Loaded() {
    if (window_ == nullptr)
        window_ = std::make_unique<frmProgress>(toolkit_, texts_, [this] { cancelled_(); });
    return *window_;
}

void ProgressWindow::PrepareCompact() {
    Loaded().MakeCompact();
}

void ProgressWindow::PrepareTall(std::string_view fileName) {
    Loaded().MakeTall(fileName);
}

void ProgressWindow::ShowProgress(std::string_view caption, std::int32_t max) {
    frmProgress& window = Loaded();
    toolkit_.SetPointer(toolkit::Pointer::Hourglass);
    window.SetCaption("  " + std::string(caption));
    if (!window.Visible())
        window.Show(&owner_);
    window.ProgressBar1.SetMaximum(max);
    window.ProgressBar1.SetValue(1);
    nextPainting_ = {};
    toolkit_.DoEvents();
}

void ProgressWindow::SetValue(std::int32_t value) {
    toolkit::ProgressBar& bar = Loaded().ProgressBar1;
    const auto now = clock_();
    if (now < nextPainting_ && value <= bar.Maximum())
        return;
    bar.SetValue(value);
    nextPainting_ = now + kBetweenPaintings;
}

void ProgressWindow::HideProgress() {
    if (window_ != nullptr) {
        // The next active window is the owner when it can be; otherwise it would be one of another
        // program.
        const bool ownerEnabled = owner_.Enabled();
        owner_.SetEnabled(true);
        window_->Hide();
        window_->Unload();
        window_.reset();
        owner_.SetEnabled(ownerEnabled);
    }
    toolkit_.SetPointer(toolkit::Pointer::Default);
}

}  // namespace ordalyn
