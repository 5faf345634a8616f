#include "windows/about/frmAbout.h"

#include <cmath>

#include "base/TextIds.h"
#include "hostconfig/mAppCommon.h"
#include "windows/about/Publisher.h"
#include "windows/about/Version.h"

namespace ordalyn {

using toolkit::Kind;
using toolkit::Label;
using toolkit::Twips;

namespace {

constexpr int kFrameOffset = 7;   // pixels
constexpr int kButtonOffset = 6;  // pixels
constexpr Twips kFrameWidth = 5100;
constexpr Twips kFrameHeight = 2565;
constexpr Twips kLeft = 180;
constexpr Twips kSecondColumn = 1875;
constexpr Twips kLabelWidth = 1650;
constexpr Twips kValueWidth = kFrameWidth - kSecondColumn - kLeft;
constexpr Twips kLine = 225;
// The colour of selections reads well on dialogs in every theme; that of hot-tracked text does not.
constexpr toolkit::Color kLinkColor = toolkit::SystemColor(13);

constexpr toolkit::ControlDesign kControls[] = {
    // First, so that it has the focus when the box opens, and not the address.
    {.kind = Kind::CommandButton,
     .name = "cmdOK",
     .tag = text_id::kOk.tag,
     .bounds = {kFrameWidth + 105 - 1215, 2760, 1215, 375},
     .isDefault = true,
     .isCancel = true},
    {.kind = Kind::Frame, .name = "Frame1", .bounds = {105, 105, kFrameWidth, kFrameHeight}},
    {.kind = Kind::Label,
     .name = "lblProgrammedBy",
     .tag = text_id::kProgrammedBy.tag,
     .bounds = {kLeft, 270, kLabelWidth, kLine},
     .container = "Frame1"},
    {.kind = Kind::Label,
     .name = "lblAuthorName",
     .bounds = {kSecondColumn, 270, kValueWidth, kLine},
     .container = "Frame1"},
    {.kind = Kind::Label,
     .name = "lblVersion",
     .tag = text_id::kVersion.tag,
     .bounds = {kLeft, 585, kLabelWidth, kLine},
     .container = "Frame1"},
    {.kind = Kind::Label,
     .name = "lblVersionNo",
     .bounds = {kSecondColumn, 585, kValueWidth, kLine},
     .container = "Frame1"},
    {.kind = Kind::Label,
     .name = "Label4",
     .tag = text_id::kLatestInformation.tag,
     .bounds = {kLeft, 975, kFrameWidth - 2 * kLeft, 2 * kLine},
     .container = "Frame1"},
    {.kind = Kind::Label,
     .name = "lblWebAddress",
     .tag = text_id::kWebSite.tag,
     .bounds = {kLeft, 1620, kLabelWidth, kLine},
     .container = "Frame1"},
    {.kind = Kind::Label,
     .name = "lblURL",
     .tag = text_id::kVisitNow.tag,
     .bounds = {kSecondColumn, 1620, kValueWidth, kLine},
     .container = "Frame1",
     .tabStop = true},
    {.kind = Kind::Label,
     .name = "lblEmail",
     .tag = text_id::kEmail.tag,
     .bounds = {kLeft, 1935, kLabelWidth, kLine},
     .container = "Frame1"},
    {.kind = Kind::Label,
     .name = "lbleMialAddress",
     .bounds = {kSecondColumn, 1935, kValueWidth, kLine},
     .container = "Frame1"},
};

constexpr toolkit::FormDesign kDesign = {
    .name = "frmAbout",
    .tag = text_id::kAboutTitle.tag,
    .clientSize = {kFrameWidth + 2 * 105, kFrameHeight + 105 + 90 + 375 + 105},
    .style = {},
    .controls = kControls,
    .helpPage = "about",
};

}  // namespace

frmAbout::frmAbout(toolkit::Toolkit& toolkit, platform::Shell& shell, const Texts& texts)
    : Form(toolkit, kDesign) {
    texts.apply(*this);
    auto& Frame1 = Get<toolkit::Frame>("Frame1");
    auto& cmdOK = Get<toolkit::CommandButton>("cmdOK");
    const auto tpx = static_cast<Twips>(std::lround(toolkit.TwipsPerPixelX()));
    const auto tpy = static_cast<Twips>(std::lround(toolkit.TwipsPerPixelY()));
    Frame1.SetBorder(toolkit::BorderStyle::FixedSingle);
    Frame1.SetLeft(kFrameOffset * tpx);
    Frame1.SetTop(kFrameOffset * tpy);
    // As far from the other edges, where the button below it ends, too.
    const toolkit::Size inside = ClientSize();
    Frame1.SetWidth(inside.width - 2 * kFrameOffset * tpx);
    Frame1.SetHeight(inside.height - (2 * kFrameOffset + kButtonOffset) * tpy - cmdOK.Height());
    cmdOK.SetLeft(Frame1.Left() + Frame1.Width() - cmdOK.Width());
    cmdOK.SetTop(Frame1.Top() + Frame1.Height() + kButtonOffset * tpy);
    SetCaption(Caption() + " " + std::string(mAppCommon::kProgramTitle));
    CentreOnScreen();

    for (const char* data : {"lblAuthorName", "lblVersionNo", "lblURL", "lbleMialAddress"})
        Get<Label>(data).SetPlainText(true);
    const auto show = [this](const char* name, std::string_view text) {
        Get<Label>(name).SetCaption(text);
    };
    show("lblProgrammedBy", texts.text(text_id::kProgrammedBy));
    show("lblAuthorName", publisher::kMaker);
    show("lblVersion", texts.text(text_id::kVersion));
    show("lblVersionNo", GetVersionText(""));
    show("lblWebAddress", texts.text(text_id::kWebSite));
    show("lblEmail", texts.text(text_id::kEmail));
    show("lbleMialAddress", publisher::kMail);

    auto& lblURL = Get<Label>("lblURL");
    lblURL.SetToolTip(texts.text(text_id::kVisitNow));
    lblURL.SetCaption(publisher::kHomePage);
    lblURL.SetRightToLeft(false);  // an address is the same in every language
    lblURL.SetForeColor(kLinkColor);
    toolkit::Font underlined = lblURL.Font();
    underlined.underline = true;
    lblURL.SetFont(underlined);
    lblURL.SetMousePointer(toolkit::Pointer::Hand);
    lblURL.Click.Subscribe([this, &shell] {
        shell.Open(Handle(), platform::ShellTarget::Page(publisher::kHomePage));
    });
    cmdOK.Click.Subscribe([this] { Unload(); });
}

}  // namespace ordalyn
