#include "base/Attempt.h"

#include <gtest/gtest.h>

#include <new>
#include <stdexcept>

namespace ordalyn {
namespace {

TEST(Attempt, AStepThatSucceedsAnswersTrue) {
    int runs = 0;
    EXPECT_TRUE(Attempt([&] { ++runs; }));
    EXPECT_EQ(runs, 1);
}

TEST(Attempt, AnErrorEndsTheStepButNotTheCaller) {
    int before = 0;
    int after = 0;
    EXPECT_FALSE(Attempt([&] {
        ++before;
        throw SubscriptOutOfRange();
        ++after;
    }));
    EXPECT_EQ(before, 1);
    EXPECT_EQ(after, 0);
}

TEST(Attempt, EveryErrorOfTheProgramIsOne) {
    EXPECT_FALSE(Attempt([] { throw SubscriptOutOfRange(); }));
    EXPECT_FALSE(Attempt([] { throw TypeMismatch(); }));
    EXPECT_FALSE(Attempt([] { throw Overflow(); }));
    EXPECT_FALSE(Attempt([] { throw InvalidPropertyValue("x"); }));
    EXPECT_FALSE(Attempt([] { throw MalformedText("x"); }));
    EXPECT_FALSE(Attempt([] { throw FileError("x", 2); }));
}

TEST(Attempt, WhatIsNoErrorOfTheProgramPassesThrough) {
    EXPECT_THROW(Attempt([] { throw std::bad_alloc(); }), std::bad_alloc);
    EXPECT_THROW(Attempt([] { throw std::logic_error("broken"); }), std::logic_error);
}

}  // namespace
}  // namespace ordalyn
