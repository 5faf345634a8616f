// Timers.
#include "contract/toolkit/ToolkitContract.h"
#include "toolkit/Timer.h"

namespace ordalyn::contract {

namespace {

using toolkit::Timer;
using toolkit::WindowState;

// A system need not tell of shorter times than these.
constexpr int kInterval = 20;
constexpr int kLong = 10 * kInterval;
constexpr int kNever = 1'000'000;

class Timers : public ToolkitContract {
  protected:
    // How often the timer went off within a time in which it does so when it can.
    int Take() {
        count_.Take();
        User().PassTime(kLong);
        return count_.Take();
    }

    Timer timer_{Form()};
    Counter count_{timer_.Elapsed};
};

}  // namespace

TEST_P(Timers, GoOffAgainAndAgainUntilTheyAreStopped) {
    Show();
    EXPECT_FALSE(timer_.Running());
    EXPECT_EQ(Take(), 0);
    timer_.Start(kInterval);
    EXPECT_TRUE(timer_.Running());
    EXPECT_GT(Take(), 1);
    EXPECT_GT(Take(), 1);
    timer_.Stop();
    EXPECT_FALSE(timer_.Running());
    EXPECT_EQ(Take(), 0);
    timer_.Start(kInterval);
    EXPECT_GT(Take(), 1);
}

TEST_P(Timers, TakeTheLastIntervalThatWasSet) {
    Show();
    timer_.Start(kInterval);
    timer_.Start(kNever);
    EXPECT_EQ(Take(), 0);
    EXPECT_THROW(timer_.Start(0), InvalidPropertyValue);
    EXPECT_TRUE(timer_.Running());
}

TEST_P(Timers, RestWhileTheFormCannotBeUsed) {
    timer_.Start(kInterval);
    EXPECT_EQ(Take(), 0) << "it is not shown yet";
    Show();
    EXPECT_GT(Take(), 1);
    Form().SetEnabled(false);
    EXPECT_EQ(Take(), 0) << "disabled";
    Form().SetEnabled(true);
    EXPECT_GT(Take(), 1);
    Form().SetState(WindowState::Minimised);
    Settle();
    EXPECT_EQ(Take(), 0) << "minimised";
    Form().SetState(WindowState::Normal);
    Settle();
    EXPECT_GT(Take(), 1);
    Form().Hide();
    EXPECT_EQ(Take(), 0) << "hidden";
}

TEST_P(Timers, RestWhileTheFormWaitsForAnother) {
    Show();
    timer_.Start(kInterval);
    auto dialog = NewForm();
    User().RunModal(*dialog, &Form(), [&] {
        EXPECT_EQ(Take(), 0) << "a modal form";
        dialog->Hide();
    });
    EXPECT_GT(Take(), 1);
    User().AnswerBoxes([&](const BoxSeen&) {
        EXPECT_EQ(Take(), 0) << "a message box";
        return toolkit::Answer::Ok;
    });
    Kit().ShowMessage(&Form(), "text", "title");
    EXPECT_GT(Take(), 1);
}

TEST_P(Timers, DoNotGoOffInsideOfThemselves) {
    Show();
    int inside = 0;
    timer_.Elapsed.Subscribe([&] {
        timer_.Start(kInterval);
        if (++inside == 1)
            User().PassTime(kLong);
        EXPECT_EQ(inside, 1);
        timer_.Stop();
    });
    timer_.Start(kInterval);
    User().PassTime(kLong);
    EXPECT_EQ(inside, 1);
}

TEST_P(Timers, EndWithTheirObject) {
    Show();
    int count = 0;
    {
        Timer other(Form());
        other.Elapsed.Subscribe([&] { ++count; });
        other.Start(kInterval);
        User().PassTime(kLong);
        EXPECT_GT(count, 1);
    }
    count = 0;
    User().PassTime(kLong);
    EXPECT_EQ(count, 0);
}

TEST_P(Timers, EndWithTheirForm) {
    Show();
    timer_.Start(kInterval);
    Form().Unload();
    EXPECT_EQ(Take(), 0);
    timer_.Start(kInterval);
    EXPECT_EQ(Take(), 0);
}

INSTANTIATE_TEST_SUITE_P(, Timers, AllRealisations(), RealisationName);

}  // namespace ordalyn::contract
