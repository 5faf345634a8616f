#include "windows/common/WindowPlacement.h"

#include "settings/Placement.h"
#include "support/windows/FormFixture.h"

namespace ordalyn::test {
namespace {

using toolkit::Rect;
using toolkit::WindowState;

constexpr toolkit::FormDesign kMainDesign = {.name = "frmMain",
                                             .tag = "",
                                             .clientSize = {5000, 3000},
                                             .style = {.resizable = true, .maximiseBox = true},
                                             .controls = {}};
constexpr toolkit::FormDesign kFiltersDesign = {
    .name = "frmFilters", .tag = "", .clientSize = {8000, 600}, .style = {}, .controls = {}};

class RestorePosition : public FormFixture {
  protected:
    toolkit::Form form{toolkit, kMainDesign};
    toolkit::Form filters{toolkit, kFiltersDesign};
};
using SavePosition = RestorePosition;

TEST_F(RestorePosition, WithoutAnEntryTheDefaultCounts) {
    RestoreWindowPosition(settings, form, true);
    EXPECT_EQ(form.Bounds(), (Rect{0, 0, 12030, 8520}));
    EXPECT_EQ(form.State(), WindowState::Normal);
    RestoreWindowPosition(settings, filters, false);
    EXPECT_EQ(filters.Bounds(), (Rect{3495, 7740, 8910, 795}));
}

TEST_F(RestorePosition, WithoutAnEntryTheWindowFitsIntoTheWorkArea) {
    toolkit.workArea = {0, 300, 10000, 7000};
    RestoreWindowPosition(settings, form, true);
    EXPECT_EQ(form.Bounds(), (Rect{0, 300, 10000, 7000}));
    RestoreWindowPosition(settings, filters, false);
    EXPECT_EQ(filters.Bounds(), (Rect{1090, 6505, 8910, 795}));
}

TEST_F(RestorePosition, EachFormHasItsOwnEntries) {
    Put("Ordalyn", "MainPosition", "10,20,3000,4000");
    Put("Ordalyn", "FiltersPosition", "30,40,9000,800");
    RestoreWindowPosition(settings, form, true);
    RestoreWindowPosition(settings, filters, false);
    EXPECT_EQ(form.Bounds(), (Rect{10, 20, 3000, 4000}));
    EXPECT_EQ(filters.Bounds(), (Rect{30, 40, 9000, 800}));
}

// Its title bar decides: a window that cannot be taken cannot be brought back.
TEST_F(RestorePosition, APlacementWhoseTitleBarIsOnNoScreenIsNotUsed) {
    for (const char* lost : {"-90000,90000,3000,4000", "99999,99999,1,1", "19200,0,3000,4000",
                             "0,15000,3000,4000", "-2900,0,3000,4000", "100,-300,3000,4000",
                             "100,-4000,3000,6000", "100,14900,3000,4000", "19051,0,3000,4000"}) {
        Put("Ordalyn", "MainPosition", lost);
        RestoreWindowPosition(settings, form, true);
        EXPECT_EQ(form.Bounds(), (Rect{0, 0, 12030, 8520})) << lost;
    }
}

TEST_F(RestorePosition, APlacementThatCanBeTakenIsKept) {
    toolkit.otherWorkAreas = {{-15000, -300, 15000, 9000}};
    for (const Rect& kept :
         {Rect{-2000, 0, 3000, 4000}, Rect{18000, 14000, 3000, 4000}, Rect{100, -100, 3000, 4000},
          Rect{-14000, -300, 3000, 4000}, Rect{19050, 0, 3000, 4000}}) {
        Put("Ordalyn", "MainPosition",
            PlacementText({kept.left, kept.top, kept.width, kept.height}));
        RestoreWindowPosition(settings, form, true);
        EXPECT_EQ(form.Bounds(), kept);
    }
}

// So much of the title bar must be on a screen, and no less.
TEST_F(RestorePosition, ATitleBarCanBeTakenByASmallPartOfIt) {
    struct Place {
        const char* stored;
        bool kept;
    };
    constexpr Place kPlaces[] = {{"19050,0,3000,4000", true},   {"19051,0,3000,4000", false},
                                 {"-2850,0,3000,4000", true},   {"-2851,0,3000,4000", false},
                                 {"100,-150,3000,4000", true},  {"100,-151,3000,4000", false},
                                 {"100,14850,3000,4000", true}, {"100,14851,3000,4000", false}};
    for (const Place& place : kPlaces) {
        Put("Ordalyn", "MainPosition", place.stored);
        RestoreWindowPosition(settings, form, true);
        EXPECT_EQ(form.Width() == 3000, place.kept) << place.stored;
    }
}

// On a screen of twice the resolution a twip of a window's size is as wide as two between places.
TEST_F(RestorePosition, AWindowOnAScreenOfAnotherResolutionCountsWithItsSizeThere) {
    toolkit.otherWorkAreas = {{-30000, 0, 15000, 9000}, {30000, 0, 15000, 9000}};
    toolkit.finerFrom = 19200;
    toolkit.timesFiner = 2;
    struct Place {
        const char* stored;
        bool kept;
    };
    // Its right edge lies at 30300 or 30299, its grip is 300.
    constexpr Place kPlaces[] = {{"24300,0,3000,4000", true},    {"24299,0,3000,4000", false},
                                 {"44700,0,3000,4000", true},    {"44701,0,3000,4000", false},
                                 {"31000,-300,3000,4000", true}, {"31000,-301,3000,4000", false}};
    for (const Place& place : kPlaces) {
        Put("Ordalyn", "MainPosition", place.stored);
        RestoreWindowPosition(settings, form, true);
        EXPECT_EQ(form.Width() == 3000, place.kept) << place.stored;
    }
}

TEST_F(RestorePosition, TheDefaultLiesInsideAWorkAreaOfAnotherResolution) {
    toolkit.workArea = {600, 450, 9000, 7000};
    toolkit.finerFrom = 0;
    toolkit.timesFiner = 2;
    Put("Ordalyn", "MainPosition", "");
    Put("Ordalyn", "FiltersPosition", "");
    RestoreWindowPosition(settings, form, true);
    RestoreWindowPosition(settings, filters, false);
    EXPECT_EQ(form.Bounds(), (Rect{600, 450, 4500, 3500}));
    EXPECT_EQ(filters.Bounds(), (Rect{600, 5860, 4500, 795}));
}

TEST_F(RestorePosition, WithoutASizeTheDefaultCounts) {
    for (const char* nonsense : {"", "100", "100,200,3000", "100,200,0,4000", "10,20,-3000,4000",
                                 "10,20,3000,-1", "1e300,0,3000,4000", "a,b,c,d"}) {
        form.Move({1, 2, 3000, 4000});
        Put("Ordalyn", "MainPosition", nonsense);
        RestoreWindowPosition(settings, form, true);
        EXPECT_EQ(form.Bounds(), (Rect{0, 0, 12030, 8520})) << nonsense;
    }
}

TEST_F(RestorePosition, AWindowIsNotSmallerThanTheSystemsLeast) {
    Put("Ordalyn", "MainPosition", "100,200,1,1");
    RestoreWindowPosition(settings, form, true);
    EXPECT_EQ(form.Bounds(), (Rect{100, 200, 1800, 600}));
}

TEST_F(RestorePosition, TheDefaultLiesInsideTheWorkArea) {
    toolkit.workArea = {600, 450, 9000, 7000};
    Put("Ordalyn", "MainPosition", "");
    Put("Ordalyn", "FiltersPosition", "");
    RestoreWindowPosition(settings, form, true);
    RestoreWindowPosition(settings, filters, false);
    EXPECT_EQ(form.Bounds(), (Rect{600, 450, 9000, 7000}));
    EXPECT_EQ(filters.Bounds(), (Rect{690, 6655, 8910, 795}));
}

TEST_F(RestorePosition, TheDefaultIsNotSmallerThanTheSystemsLeast) {
    toolkit.workArea = {0, 0, 1000, 500};
    Put("Ordalyn", "MainPosition", "");
    RestoreWindowPosition(settings, form, true);
    EXPECT_EQ(form.Bounds(), (Rect{0, 0, 1800, 600}));
}

struct Parts {
    const char* stored;
    Rect expected;
};
constexpr Parts kParts[] = {
    {"150 ,60 twips, 3000x,4000", {150, 60, 3000, 4000}},
    {"left,top,3000,4000", {0, 0, 3000, 4000}},
    {",,3000,4000", {0, 0, 3000, 4000}},
    {"10,20,3000,4000,99", {10, 20, 3000, 4000}},
    {"1.5,2,3000,4000", {1.5F, 2, 3000, 4000}},
};

TEST_F(RestorePosition, PartsThatAreMissingOrNoNumbersAreZero) {
    for (const Parts& parts : kParts) {
        Put("Ordalyn", "MainPosition", parts.stored);
        RestoreWindowPosition(settings, form, false);
        EXPECT_EQ(form.Bounds(), parts.expected) << parts.stored;
    }
}

TEST_F(RestorePosition, TheStateIsSetWhateverThePlacement) {
    Put("Ordalyn", "MainWindowState", "2");
    for (const char* refused : {"10,20,-3000,4000", "1e300,0,3000,4000"}) {
        Put("Ordalyn", "MainPosition", refused);
        RestoreWindowPosition(settings, form, true);
        EXPECT_EQ(form.State(), WindowState::Maximised) << refused;
        form.SetState(WindowState::Normal);
        EXPECT_EQ(form.Bounds(), (Rect{0, 0, 12030, 8520})) << refused;
    }
}

struct State {
    const char* stored;
    WindowState expected;
};
constexpr State kStates[] = {
    {"0", WindowState::Normal},    {"1", WindowState::Normal},  // never starts minimised
    {"2", WindowState::Maximised}, {"2 maximised", WindowState::Maximised},
    {"", WindowState::Normal},     {"two", WindowState::Normal},
};

TEST_F(RestorePosition, TheStoredStateIsSetExceptMinimised) {
    for (const State& state : kStates) {
        form.SetState(state.expected == WindowState::Normal ? WindowState::Maximised
                                                            : WindowState::Normal);
        Put("Ordalyn", "MainWindowState", state.stored);
        RestoreWindowPosition(settings, form, true);
        EXPECT_EQ(form.State(), state.expected) << state.stored;
    }
}

TEST_F(RestorePosition, AStateThatDoesNotExistLeavesTheForm) {
    Put("Ordalyn", "MainWindowState", "7");
    RestoreWindowPosition(settings, form, true);
    EXPECT_EQ(form.State(), WindowState::Normal);
}

TEST_F(RestorePosition, WithoutTheFlagTheStateIsNotTouched) {
    Put("Ordalyn", "MainWindowState", "2");
    RestoreWindowPosition(settings, form, false);
    EXPECT_EQ(form.State(), WindowState::Normal);
}

TEST_F(SavePosition, WritesWholeTwipsAndTheState) {
    form.Move({-10.75F, 20.75F, 3000.5F, 4000});
    SaveWindowPosition(settings, form, true);
    EXPECT_EQ(Stored("Ordalyn", "MainPosition"), "-10,20,3000,4000");
    EXPECT_EQ(Stored("Ordalyn", "MainWindowState"), "0");
}

TEST_F(SavePosition, WithoutTheFlagOnlyThePlacementIsWritten) {
    filters.Move({1, 2, 9000, 800});
    SaveWindowPosition(settings, filters, false);
    EXPECT_EQ(Stored("Ordalyn", "FiltersPosition"), "1,2,9000,800");
    EXPECT_EQ(Stored("Ordalyn", "FiltersWindowState"), "(absent)");
}

TEST_F(SavePosition, AMaximisedFormKeepsItsStoredPlacement) {
    Put("Ordalyn", "MainPosition", "10,20,3000,4000");
    form.SetState(WindowState::Maximised);
    SaveWindowPosition(settings, form, true);
    EXPECT_EQ(Stored("Ordalyn", "MainPosition"), "10,20,3000,4000");
    EXPECT_EQ(Stored("Ordalyn", "MainWindowState"), "2");
}

TEST_F(SavePosition, AMinimisedFormKeepsItsStoredPlacement) {
    form.SetState(WindowState::Minimised);
    SaveWindowPosition(settings, form, true);
    EXPECT_EQ(Stored("Ordalyn", "MainPosition"), "(absent)");
    EXPECT_EQ(Stored("Ordalyn", "MainWindowState"), "1");
}

TEST_F(SavePosition, WhatIsSavedIsRestored) {
    form.Move({15, 30, 6000, 4500});
    SaveWindowPosition(settings, form, true);
    form.Move({0, 0, 1, 1});
    RestoreWindowPosition(settings, form, true);
    EXPECT_EQ(form.Bounds(), (Rect{15, 30, 6000, 4500}));
}

}  // namespace
}  // namespace ordalyn::test
