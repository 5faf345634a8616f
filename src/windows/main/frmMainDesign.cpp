#include "windows/main/frmMainDesign.h"

#include "base/TextIds.h"

namespace ordalyn {

namespace {

using toolkit::Kind;
using toolkit::Modifiers;
namespace key = toolkit::key;

constexpr toolkit::Twips kComboWidth = 3000;
constexpr toolkit::Twips kComboTop = 30;
constexpr toolkit::Twips kEdge = 15;
// FirstSteps says how large they are.
constexpr toolkit::Twips kTextWidth = 7200, kTextHeight = 300;
constexpr toolkit::Twips kButtonWidth = 2550, kButtonHeight = 375;

// In tab order. The combo boxes decide on their own heights, the status bar on its place, and the
// layout places the rest.
constexpr toolkit::ControlDesign kControls[] = {
    {.kind = Kind::ComboBox,
     .name = "cboDate",
     .bounds = {kEdge, kComboTop, kComboWidth, 315},
     .nameTag = text_id::kDateName.tag},
    {.kind = Kind::ComboBox,
     .name = "cboFiles",
     .bounds = {kEdge + kComboWidth + 90, kComboTop, kComboWidth, 315},
     .visible = false,
     .nameTag = text_id::kLogFileName.tag},
    // What stands in the place of the panels while no log is shown.
    {.kind = Kind::PictureBox,
     .name = "picFirstSteps",
     .bounds = {kEdge, 405, 11880, 6600},
     .visible = false},
    {.kind = Kind::Label,
     .name = "lblHeadline",
     .bounds = {0, 0, kTextWidth, kTextHeight},
     .container = "picFirstSteps",
     .visible = false},
    {.kind = Kind::Label,
     .name = "lblLogPath",
     .bounds = {0, 0, kTextWidth, kTextHeight},
     .container = "picFirstSteps",
     .visible = false},
    {.kind = Kind::Label,
     .name = "lblAdvice",
     .bounds = {0, 0, kTextWidth, kTextHeight},
     .container = "picFirstSteps",
     .visible = false},
    {.kind = Kind::CommandButton,
     .name = "cmdChooseSettings",
     .tag = text_id::kChooseSettings.tag,
     .bounds = {0, 0, kButtonWidth, kButtonHeight},
     .container = "picFirstSteps",
     .visible = false},
    {.kind = Kind::CommandButton,
     .name = "cmdLookAgain",
     .tag = text_id::kLookAgain.tag,
     .bounds = {0, 0, kButtonWidth, kButtonHeight},
     .container = "picFirstSteps",
     .visible = false},
    {.kind = Kind::CommandButton,
     .name = "cmdOpenLog",
     .tag = text_id::kOpenLogFile.tag,
     .bounds = {0, 0, kButtonWidth, kButtonHeight},
     .container = "picFirstSteps",
     .visible = false},
    {.kind = Kind::CommandButton,
     .name = "cmdFollowLog",
     .tag = text_id::kFollowThisLog.tag,
     .bounds = {0, 0, kButtonWidth, kButtonHeight},
     .container = "picFirstSteps",
     .visible = false},
    {.kind = Kind::PictureBox, .name = "picSpliterContainer", .bounds = {kEdge, 405, 11880, 6600}},
    {.kind = Kind::ListView,
     .name = "SourceListView",
     .bounds = {0, 0, 11880, 4000},
     .container = "picSpliterContainer",
     .nameTag = text_id::kSource.tag},
    {.kind = Kind::Frame,
     .name = "Frame1",
     .bounds = {0, 4000, 11880, 45},
     .container = "picSpliterContainer"},
    {.kind = Kind::ListView,
     .name = "TargetListView",
     .bounds = {0, 4045, 11880, 2555},
     .container = "picSpliterContainer",
     .nameTag = text_id::kTarget.tag},
    {.kind = Kind::StatusBar,
     .name = "StatusBar1",
     .bounds = {0, 7000, 11880, 330},
     .nameTag = text_id::kStatusBar.tag},
};

constexpr Modifiers kControl{.control = true};
constexpr Modifiers kControlShift{.shift = true, .control = true};

// Captions are string ids until the interface language has given the texts.
constexpr toolkit::MenuDesign kMenus[] = {
    {0, "mnuFile", text_id::kFileMenu.tag},
    {1, "mnuFileOpen", text_id::kOpenFile.tag, {'O', kControl}},
    {1, "mnuFileRecentGroup", text_id::kRecentFiles.tag},
    {2, "mnuFileRecentFiles", text_id::kNoRecentFiles.tag},
    {1, "mnuFileSeparator", "-"},
    {1, "mnuFileExit", text_id::kExit.tag, {}, "Alt+F4"},
    {1, "mnuFileAnswersSeparator", "-"},
    {1, "mnuFileSaveRows", text_id::kSaveRows.tag, {'S', kControl}},
    {0, "mnuSearch", text_id::kSearchMenu.tag},
    {1, "mnuSearchFind", text_id::kFind.tag, {'F', kControl}},
    {1, "mnuSearchFindNext", text_id::kFindNext.tag, {key::F3, {}}},
    {1, "mnuSearchSeparator", "-"},
    {1, "mnuSearchFilter", text_id::kFilterItem.tag, {'L', kControl}},
    {1, "mnuSearchAnswersSeparator", "-"},
    {1, "mnuSearchHistory", text_id::kHistoryItem.tag, {'H', kControl}},
    {0, "mnuView", text_id::kViewMenu.tag},
    {1, "mnuViewStatusBar", text_id::kStatusBar.tag},
    {1, "mnuViewTwoPanels", text_id::kTwoPanels.tag},
    {1, "mnuViewVerticalPanels", text_id::kVerticalPanels.tag},
    {1, "mnuViewSeparator", "-"},
    {1, "mnuViewRefresh", text_id::kRefresh.tag, {key::F5, {}}},
    {1, "mnuViewOptionsSeparator", "-"},
    {1, "mnuViewOptions", text_id::kOptionsItem.tag},
    {1, "mnuViewAnswersSeparator", "-"},
    {1, "mnuViewFailedOnly", text_id::kFailedOnly.tag, {'E', kControl}},
    {1, "mnuViewCalendar", text_id::kCalendarItem.tag, {'K', kControl}},
    {1, "mnuViewFollow", text_id::kFollowLog.tag},
    {0, "mnuHelp", text_id::kHelpMenu.tag},
    // The key opens the help at the page on the window that it is pressed in.
    {1, "mnuHelpHelpTopics", text_id::kHelpTopics.tag, {}, "F1"},
    {1, "mnuHelpSeparator", "-"},
    {1, "mnuHelpAbout", text_id::kAboutItem.tag},
    // These keys are handled when they are released, so they are hints and no shortcuts.
    {0, "mnuContext", "", {}, "", false},
    {1, "mnuContextCopySource", text_id::kCopySource.tag, {}, "Ctrl+C"},
    {1, "mnuContextCopyTarget", text_id::kCopyTarget.tag, {}, "Ctrl+Alt+C"},
    {1, "mnuContextAnswersSeparator", "-"},
    {1, "mnuContextCopyRows", text_id::kCopyRows.tag, {'R', kControlShift}},
    {1, "mnuContextHistorySource", text_id::kHistoryOfSource.tag},
    {1, "mnuContextHistoryTarget", text_id::kHistoryOfTarget.tag},
    {1, "mnuContextShowSource", text_id::kShowSource.tag, {}},
    {1, "mnuContextShowTarget", text_id::kShowTarget.tag, {}},
};

}  // namespace

const toolkit::FormDesign kMainDesign = {
    .name = "frmMain",
    .tag = "",  // the title is the program's, not a text of the language
    .clientSize = {11910, 7815},
    .style = {.resizable = true,
              .minimiseBox = true,
              .maximiseBox = true,
              .takesDroppedFiles = true},
    .controls = kControls,
    .menus = kMenus,
    .helpPage = "window",
};

}  // namespace ordalyn
