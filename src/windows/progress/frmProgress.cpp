#include "windows/progress/frmProgress.h"

#include "base/TextIds.h"

#include <algorithm>
#include <utility>

namespace ordalyn {

using toolkit::Kind;
using toolkit::Twips;

namespace {

constexpr Twips kMargin = 90;
constexpr Twips kBarHeight = 255;
constexpr Twips kButtonWidth = 1215;
constexpr Twips kButtonHeight = 345;
constexpr Twips kTextHeight = 225;
constexpr Twips kWidth = 5400;

constexpr toolkit::ControlDesign kControls[] = {
    {.kind = Kind::ProgressBar,
     .name = "ProgressBar1",
     .bounds = {kMargin, kMargin, kWidth - 2 * kMargin, kBarHeight},
     .nameTag = text_id::kReading.tag},
    {.kind = Kind::Label,
     .name = "lblFileName",
     .bounds = {kMargin, 480, kWidth - 3 * kMargin - kButtonWidth, kTextHeight}},
    {.kind = Kind::CommandButton,
     .name = "cmdCancel",
     .tag = text_id::kCancel.tag,
     .bounds = {kWidth - kMargin - kButtonWidth, 420, kButtonWidth, kButtonHeight},
     .isCancel = true},
};

constexpr toolkit::FormDesign kDesign = {
    .name = "frmProgress",
    .tag = "",
    .clientSize = {kWidth, 885},
    .style = {.closeBox = false},  // closing would leave a read without its window
    .controls = kControls,
    .helpPage = "progress",
};

}  // namespace

frmProgress::frmProgress(toolkit::Toolkit& toolkit, const Texts& texts,
                         std::function<void()> cancelled)
    : Form(toolkit, kDesign),
      ProgressBar1(Get<toolkit::ProgressBar>("ProgressBar1")),
      lblFileName(Get<toolkit::Label>("lblFileName")),
      cmdCancel(Get<toolkit::CommandButton>("cmdCancel")) {
    lblFileName.SetPlainText(true);
    CentreOnScreen();
    texts.apply(*this);
    cmdCancel.Click.Subscribe(std::move(cancelled));
    Resize.Subscribe([this] { LayOut(); });
    // A read cannot be left by closing its window.
    QueryUnload.Subscribe([this](bool& keep) { keep = Visible(); });
}

void frmProgress::MakeCompact() {
    SetOuterHeight(kCompactHeight);
    lblFileName.SetVisible(false);
    cmdCancel.SetVisible(false);
    LayOut();
}

void frmProgress::MakeTall(std::string_view fileName) {
    SetOuterHeight(kTallHeight);
    lblFileName.SetVisible(true);
    cmdCancel.SetVisible(true);
    lblFileName.SetCaption(fileName);
    LayOut();
}

void frmProgress::SetOuterHeight(Twips height) {
    Move({Left(), Top(), Width(), height});
}

// The outer heights are fixed, but how much of them the frame takes differs between systems: the
// rows share what is left.
void frmProgress::LayOut() {
    const toolkit::Size inside = ClientSize();
    const Twips bottomRow = cmdCancel.Visible() ? kButtonHeight + kMargin : 0;
    const Twips space = std::max<Twips>(0, inside.height - bottomRow);
    const Twips barHeight = std::min(kBarHeight, space);
    ProgressBar1.Move({kMargin, (space - barHeight) / 2,
                       std::max<Twips>(0, inside.width - 2 * kMargin), barHeight});
    lblFileName.SetTop(space + (kButtonHeight - kTextHeight) / 2);
    cmdCancel.SetTop(space);
}

}  // namespace ordalyn
