#include "toolkit/Basics.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

#include "base/Errors.h"
#include "support/toolkit/MemoryToolkit.h"
#include "toolkit/ScopedPointer.h"

namespace ordalyn::toolkit {
namespace {

using testing::ElementsAre;

TEST(Colors, ASystemColorHasTheTopBitSet) {
    EXPECT_EQ(static_cast<std::uint32_t>(kWindowText), 0x80000008U);
    EXPECT_EQ(static_cast<std::uint32_t>(kWindowBackground), 0x80000005U);
    EXPECT_EQ(static_cast<std::uint32_t>(kButtonFace), 0x8000000FU);
    EXPECT_EQ(static_cast<std::uint32_t>(kButtonText), 0x80000012U);
    EXPECT_LT(kWindowText, 0);
}

TEST(Event, HandlersRunInTheOrderOfSubscription) {
    Event<int> event;
    std::vector<int> seen;
    event.Subscribe([&](int n) { seen.push_back(n); });
    event.Subscribe([&](int n) { seen.push_back(n * 10); });
    event.Raise(3);
    EXPECT_THAT(seen, ElementsAre(3, 30));
}

TEST(Event, WithoutHandlersNothingHappens) {
    EXPECT_NO_THROW(Event<>().Raise());
}

TEST(Event, AHandlerMayChangeAnArgument) {
    Event<bool&> event;
    event.Subscribe([](bool& keep) { keep = true; });
    bool keep = false;
    event.Raise(keep);
    EXPECT_TRUE(keep);
}

// The list of handlers moves when it grows; the handler that runs must not move with it.
TEST(Event, AHandlerMaySubscribeOthers) {
    Event<> event;
    std::vector<int> seen;
    const std::string own = "a text that is too long to be kept inside of the string object";
    event.Subscribe([&event, &seen, own] {
        if (!seen.empty())
            return;
        for (int i = 1; i <= 20; ++i)
            event.Subscribe([&seen, i] { seen.push_back(i); });
        seen.push_back(static_cast<int>(own.size()));
    });
    event.Raise();
    ASSERT_EQ(seen.size(), 21U);
    EXPECT_EQ(seen[0], static_cast<int>(own.size()));
    EXPECT_EQ(seen[20], 20);
}

TEST(Event, AHandlerMayEndTheEvent) {
    auto event = std::make_unique<Event<int>>();
    std::vector<int> seen;
    const std::string own = "a text that is too long to be kept inside of the string object";
    event->Subscribe([&event, &seen, own](int n) {
        event.reset();
        seen.push_back(n + static_cast<int>(own.size()));
    });
    event->Subscribe([&seen](int n) { seen.push_back(n); });
    const auto size = static_cast<int>(own.size());
    event->Raise(5);
    EXPECT_THAT(seen, ElementsAre(5 + size, 5));
}

TEST(Event, AnErrorOfAHandlerReachesWhoRaisedIt) {
    Event<> event;
    int later = 0;
    event.Subscribe([] { throw TypeMismatch(); });
    event.Subscribe([&] { ++later; });
    EXPECT_THROW(event.Raise(), TypeMismatch);
    EXPECT_EQ(later, 0);
}

TEST(ScopedFlag, IsSetForAsLongAsItLives) {
    bool flag = false;
    {
        const ScopedFlag outer(flag);
        EXPECT_TRUE(flag);
        {
            const ScopedFlag inner(flag);
            EXPECT_TRUE(flag);
        }
        EXPECT_TRUE(flag);
    }
    EXPECT_FALSE(flag);
}

TEST(ScopedFlag, AnErrorClearsItToo) {
    bool flag = false;
    try {
        const ScopedFlag reading(flag);
        throw Overflow();
    } catch (const Overflow&) {
        EXPECT_FALSE(flag);
    }
    EXPECT_FALSE(flag);
}

TEST(ScopedPointer, TheNormalPointerComesBackWhateverHappens) {
    test::MemoryToolkit kit;
    try {
        const ScopedPointer busy(kit, Pointer::Hourglass);
        EXPECT_EQ(kit.pointer, Pointer::Hourglass);
        throw Overflow();
    } catch (const Overflow&) {
        EXPECT_EQ(kit.pointer, Pointer::Default);
    }
    EXPECT_THAT(kit.pointers, ElementsAre(Pointer::Hourglass, Pointer::Default));
}

TEST(Shortcut, IsTheSameOnlyWithTheSameModifiers) {
    const Shortcut plain{key::F3, {}};
    EXPECT_EQ(plain, (Shortcut{key::F3, {}}));
    EXPECT_FALSE(plain == (Shortcut{key::F3, {true, false, false}}));
    EXPECT_FALSE(plain == (Shortcut{key::F4, {}}));
}

}  // namespace
}  // namespace ordalyn::toolkit
