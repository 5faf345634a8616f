// The progress window.
#include "windows/progress/ProgressWindow.h"

#include <gmock/gmock.h>

#include <chrono>

#include "base/Errors.h"
#include "support/settings/DesignIds.h"
#include "support/toolkit/MemoryToolkit.h"
#include "support/windows/TestTexts.h"

namespace ordalyn {
namespace {

using test::MemoryToolkit;
using testing::ElementsAre;

class Progress : public testing::Test {
  protected:
    MemoryToolkit tools;
    toolkit::Form owner{tools, test::kOwnerDesign};
    int cancelled = 0;
    std::chrono::steady_clock::time_point now = std::chrono::steady_clock::now();
    ProgressWindow progress{tools, owner, test::TestTexts(), [this] { ++cancelled; },
                            [this] { return now; }};
};

TEST_F(Progress, TheBarHasAName) {
    progress.PrepareCompact();
    EXPECT_EQ(progress.Window()->ProgressBar1.NameTag(), "3250");
}

TEST_F(Progress, TheCompactFormHasTheBarAlone) {
    progress.PrepareCompact();
    progress.ShowProgress("Reading", 40);
    frmProgress& window = *progress.Window();
    EXPECT_EQ(window.Height(), 870);
    EXPECT_FALSE(window.lblFileName.Visible());
    EXPECT_FALSE(window.cmdCancel.Visible());
    EXPECT_EQ(window.Caption(), "  Reading");
    EXPECT_TRUE(window.Visible());
    EXPECT_EQ(window.ProgressBar1.Value(), 1);
    EXPECT_EQ(window.ProgressBar1.Maximum(), 40);
    EXPECT_EQ(tools.pointer, toolkit::Pointer::Hourglass);
    // Whatever the frame takes, the bar is inside.
    EXPECT_GE(window.ProgressBar1.Top(), 0);
    EXPECT_LE(window.ProgressBar1.Top() + window.ProgressBar1.Height(), window.ClientSize().height);
}

TEST_F(Progress, TheTallFormNamesTheFileAndCanBeCancelled) {
    progress.PrepareTall("x.1.log");
    progress.ShowProgress("Reading", 2);
    frmProgress& window = *progress.Window();
    EXPECT_EQ(window.Height(), 1425);
    EXPECT_TRUE(window.lblFileName.Visible());
    EXPECT_EQ(window.lblFileName.Caption(), "x.1.log");
    EXPECT_TRUE(window.lblFileName.PlainText()) << "an \"&\" in the name is shown";
    EXPECT_EQ(window.cmdCancel.Caption(), "text 1009");
    EXPECT_LE(window.cmdCancel.Top() + window.cmdCancel.Height(), window.ClientSize().height);
    EXPECT_LE(window.ProgressBar1.Top() + window.ProgressBar1.Height(), window.cmdCancel.Top());
    window.cmdCancel.UserClicked();
    EXPECT_EQ(cancelled, 1);
    EXPECT_TRUE(window.Visible());  // nothing else happens
}

TEST_F(Progress, AWindowOfAnotherSizeIsLaidOutAnew) {
    progress.PrepareTall("x.1.log");
    progress.ShowProgress("Reading", 2);
    frmProgress& window = *progress.Window();
    window.Move({0, 0, 4000, 1200});
    EXPECT_LE(window.cmdCancel.Top() + window.cmdCancel.Height(), window.ClientSize().height);
    EXPECT_LE(window.ProgressBar1.Left() + window.ProgressBar1.Width(), window.ClientSize().width);
}

TEST_F(Progress, CarriesTheIdsOfItsTexts) {
    progress.PrepareTall("a");
    EXPECT_THAT(test::DesignIdFaults(*progress.Window()), testing::IsEmpty());
}

TEST_F(Progress, IsCentredAndHandlesMessagesOnceWhenShown) {
    int events = 0;
    tools.onDoEvents = [&] { ++events; };
    progress.PrepareCompact();
    const frmProgress& window = *progress.Window();
    EXPECT_FLOAT_EQ(window.Left() + window.Width() / 2, tools.workArea.width / 2);
    progress.ShowProgress("Reading", 2);
    EXPECT_EQ(events, 1);
    progress.SetValue(2);
    EXPECT_EQ(events, 1);  // nobody may do anything to the log while it is read
}

TEST_F(Progress, AValueBeyondTheMaximumIsAnError) {
    progress.PrepareCompact();
    progress.ShowProgress("Reading", 3);
    progress.SetValue(3);
    EXPECT_THROW(progress.SetValue(4), InvalidPropertyValue);
}

TEST_F(Progress, ValuesThatFollowFasterThanEyesAreLeftOut) {
    progress.PrepareCompact();
    progress.ShowProgress("Reading", 100);
    const toolkit::ProgressBar& bar = progress.Window()->ProgressBar1;
    progress.SetValue(10);
    EXPECT_EQ(bar.Value(), 10);
    now += std::chrono::milliseconds(49);
    progress.SetValue(20);
    EXPECT_EQ(bar.Value(), 10);
    now += std::chrono::milliseconds(1);
    progress.SetValue(30);
    EXPECT_EQ(bar.Value(), 30);
    progress.ShowProgress("Reading", 100);  // the next file
    progress.SetValue(2);
    EXPECT_EQ(bar.Value(), 2);
}

TEST_F(Progress, TheBarBeginsAnewForTheNextFile) {
    const auto show = [&](const char* name, std::int32_t lines) -> const toolkit::ProgressBar& {
        progress.PrepareTall(name);
        progress.ShowProgress("Reading", lines);
        return progress.Window()->ProgressBar1;
    };
    show("a", 40);
    progress.SetValue(40);
    const toolkit::ProgressBar& bar = show("b", 7);
    EXPECT_EQ(bar.Value(), 1);
    EXPECT_EQ(bar.Maximum(), 7);
    now += std::chrono::seconds(1);
    progress.SetValue(7);
    show("c", 300);
    EXPECT_EQ(bar.Value(), 1);
    EXPECT_EQ(bar.Maximum(), 300);
    EXPECT_EQ(progress.Window()->lblFileName.Caption(), "c");
}

TEST_F(Progress, HidingUnloadsTheWindowAndRestoresThePointer) {
    progress.PrepareTall("a");
    progress.ShowProgress("Reading", 3);
    progress.HideProgress();
    EXPECT_EQ(progress.Window(), nullptr);
    EXPECT_EQ(tools.pointer, toolkit::Pointer::Default);
    tools.pointer = toolkit::Pointer::Hourglass;
    progress.HideProgress();  // also without a window
    EXPECT_EQ(tools.pointer, toolkit::Pointer::Default);
}

TEST_F(Progress, CannotBeClosedWhileItShows) {
    progress.PrepareCompact();
    progress.ShowProgress("Reading", 3);
    progress.Window()->UserClosed();
    EXPECT_FALSE(progress.Window()->Unloaded());
    EXPECT_TRUE(progress.Window()->Visible());
}

}  // namespace
}  // namespace ordalyn
