#include "windows/main/frmMainDesign.h"

namespace ordalyn {

namespace {

using toolkit::Kind;
using toolkit::Modifiers;
namespace key = toolkit::key;

constexpr toolkit::Twips kComboWidth = 3000;
constexpr toolkit::Twips kComboTop = 30;
constexpr toolkit::Twips kEdge = 15;

// In tab order. The combo boxes decide on their own heights, the status bar on its place, and the
// layout places the rest.
constexpr toolkit::ControlDesign kControls[] = {
    {.kind = Kind::ComboBox, .name = "cboDate", .bounds = {kEdge, kComboTop, kComboWidth, 315}},
    {.kind = Kind::ComboBox,
     .name = "cboFiles",
     .bounds = {kEdge + kComboWidth + 90, kComboTop, kComboWidth, 315},
     .visible = false},
    {.kind = Kind::PictureBox, .name = "picSpliterContainer", .bounds = {kEdge, 405, 11880, 6600}},
    {.kind = Kind::ListView,
     .name = "SourceListView",
     .bounds = {0, 0, 11880, 4000},
     .container = "picSpliterContainer"},
    {.kind = Kind::Frame,
     .name = "Frame1",
     .bounds = {0, 4000, 11880, 45},
     .container = "picSpliterContainer"},
    {.kind = Kind::ListView,
     .name = "TargetListView",
     .bounds = {0, 4045, 11880, 2555},
     .container = "picSpliterContainer"},
    {.kind = Kind::StatusBar, .name = "StatusBar1", .bounds = {0, 7000, 11880, 330}},
};

constexpr Modifiers kControl{.control = true};

// Captions are string ids until the interface language has given the texts.
constexpr toolkit::MenuDesign kMenus[] = {
    {0, "mnuFile", "101"},
    {1, "mnuFileOpen", "103", {'O', kControl}},
    {1, "mnuFileRecentGroup", "107"},
    {2, "mnuFileRecentFiles", "108"},
    {1, "mnuFileSeparator", "-"},
    {1, "mnuFileExit", "110", {}, "Alt+F4"},
    {0, "mnuSearch", "250"},
    {1, "mnuSearchFind", "251", {'F', kControl}},
    {1, "mnuSearchFindNext", "252", {key::F3, {}}},
    {1, "mnuSearchSeparator", "-"},
    {1, "mnuSearchFilter", "4030", {'L', kControl}},
    {0, "mnuView", "141"},
    {1, "mnuViewStatusBar", "143"},
    {1, "mnuViewTwoPanels", "4021"},
    {1, "mnuViewVerticalPanels", "145"},
    {1, "mnuViewSeparator", "-"},
    {1, "mnuViewRefresh", "4020", {key::F5, {}}},
    {1, "mnuViewOptionsSeparator", "-"},
    {1, "mnuViewOptions", "150"},
    {0, "mnuHelp", "161"},
    {1, "mnuHelpHelpTopics", "162", {key::F1, {}}},
    {1, "mnuHelpSeparator", "-"},
    {1, "mnuHelpAbout", "163"},
    // These keys are handled when they are released, so they are hints and no shortcuts.
    {0, "mnuContext", "", {}, "", false},
    {1, "mnuContextCopySource", "4022", {}, "Ctrl+C"},
    {1, "mnuContextCopyTarget", "4023", {}, "Ctrl+Alt+C"},
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
};

}  // namespace ordalyn
