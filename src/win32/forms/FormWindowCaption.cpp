// The caption of a form, which may end with a path: Windows would cut its end, the file name, where
// the title bar has no room for it.
#include <algorithm>
#include <string>
#include <utility>

#include "toolkit/ShortText.h"
#include "win32/common/Resolution.h"
#include "win32/common/WideText.h"
#include "win32/controls/TextMeasure.h"
#include "win32/forms/FormWindow.h"

namespace ordalyn::win32 {

using namespace toolkit;

namespace {

// Between icon, caption and buttons, on both sides.
constexpr int kBesideCaption = 12;

// The title bar's, in the resolution of the window.
FontHandle CaptionFont(const Scale& system, const Scale& window) {
    NONCLIENTMETRICSW metrics = {};
    metrics.cbSize = sizeof metrics;
    if (!SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0))
        return {};
    LOGFONTW& font = metrics.lfCaptionFont;
    font.lfHeight = MulDiv(font.lfHeight, window.DpiY(), system.DpiY());
    font.lfWidth = 0;
    return FontHandle(CreateFontIndirectW(&font));
}

}  // namespace

void FormWindow::SetCaption(std::string_view caption) {
    caption_ = caption;
    if (pathInCaption_ == std::string::npos)
        ShowCaption(caption);
    else
        FitCaption();
}

// What the frame, the icon and the buttons leave. Windows says where the buttons are; where it does
// not, each is as wide as those of older frames.
int FormWindow::RoomForCaption() const {
    RECT window = {};
    GetWindowRect(handle(), &window);
    const int dpi = scale().DpiX();
    const int frame = MetricAt(SM_CXFRAME, dpi) + MetricAt(SM_CXPADDEDBORDER, dpi);
    constexpr int kButtons = 3;
    LONG right = window.right - frame - kButtons * MetricAt(SM_CXSIZE, dpi);
    TITLEBARINFOEX bar = {};
    bar.cbSize = sizeof bar;
    SendMessageW(handle(), WM_GETTITLEBARINFOEX, 0, reinterpret_cast<LPARAM>(&bar));
    for (const int button : {2, 3, 5}) {  // to minimise, to maximise, to close
        const RECT& place = bar.rgrect[button];
        if (place.left > window.left && place.right > place.left)
            right = std::min(right, place.left);
    }
    return right - window.left - frame - MetricAt(SM_CXSMICON, dpi) -
           scale().Nominal(kBesideCaption);
}

// Nothing is painted anew unless the caption on the screen is another one.
void FormWindow::FitCaption() {
    if (handle() == nullptr || pathInCaption_ > caption_.size() || IsIconic(handle()))
        return;
    const FontHandle font = CaptionFont(desktop().scale, scale());
    const TextMeasure measure(handle(), font.Get());
    const std::string_view caption = caption_;
    std::wstring fitting = WideForDisplay(ShortenPathBehind(
        caption.substr(0, pathInCaption_), caption.substr(pathInCaption_), RoomForCaption(),
        [&](std::string_view text) { return measure.WidthOf(text); }));
    if (fitting == captionOnScreen_)
        return;
    captionOnScreen_ = std::move(fitting);
    SetWindowTextW(handle(), captionOnScreen_.c_str());
}

// Whoever asks gets the whole caption, apart from the frame: Wine asks when it paints it.
std::optional<LRESULT> FormWindow::CaptionAsked(UINT message, WPARAM wParam, LPARAM lParam) {
    if (pathInCaption_ > caption_.size() || paintingFrame_)
        return std::nullopt;
    if (message == WM_NCPAINT || message == WM_NCACTIVATE || message == WM_SETTEXT) {
        const ScopedFlag painting(paintingFrame_);
        return Default(message, wParam, lParam);
    }
    if (message != WM_GETTEXT && message != WM_GETTEXTLENGTH)
        return std::nullopt;
    std::wstring whole = WideForDisplay(caption_);
    if (message == WM_GETTEXT) {
        if (wParam == 0)
            return 0;
        whole.resize(std::min<std::size_t>(whole.size(), wParam - 1));
        auto* const to = reinterpret_cast<wchar_t*>(lParam);
        to[whole.copy(to, whole.size())] = L'\0';
    }
    return static_cast<LRESULT>(whole.size());
}

}  // namespace ordalyn::win32
