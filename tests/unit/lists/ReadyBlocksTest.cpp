#include "lists/ReadyBlocks.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <set>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

namespace ordalyn {
namespace {

constexpr std::size_t kSize = 8192;
constexpr std::size_t kMany = ReadyBlocks::kWorthwhile * 4;
constexpr std::size_t kAhead = ReadyBlocks::kMostAhead;

// Steps of one thread that another one waits for.
class Steps {
  public:
    void Add() {
        const std::lock_guard lock(mutex_);
        ++count_;
        changed_.notify_all();
    }
    void WaitFor(std::size_t count) {
        std::unique_lock lock(mutex_);
        changed_.wait(lock, [&] { return count_ >= count; });
    }

  private:
    std::mutex mutex_;
    std::condition_variable changed_;
    std::size_t count_ = 0;
};

// Two processors, and a worker that can be held up at its first block.
class ReadyBlocksTest : public testing::Test {
  protected:
    ReadyBlocks::Means Means() {
        return {.processors = processors,
                .allocate =
                    [this](std::size_t size) {
                        if (++allocated > most)
                            return ReadyBlocks::Block();
                        auto block = std::make_unique_for_overwrite<char[]>(size);
                        ahead.insert(block.get());
                        return block;
                    },
                .touch =
                    [this](char* block, std::size_t size) {
                        EXPECT_NE(std::this_thread::get_id(), user);
                        EXPECT_EQ(size, kSize);
                        block[size - 1] = 't';
                        ++touched;
                        if (holdsUp)
                            goesOn.WaitFor(1);
                        touches.Add();
                    },
                .start =
                    [this](std::function<void()> work) {
                        ++started;
                        if (noThread)
                            throw std::system_error(
                                std::make_error_code(std::errc::resource_unavailable_try_again));
                        return std::thread(std::move(work));
                    }};
    }
    // Takes so many blocks, writes to each, and keeps them.
    void TakeAll(ReadyBlocks& ready, std::size_t count) {
        for (std::size_t i = 0; i < count; ++i) {
            taken.push_back(ready.Take());
            taken.back()[0] = 'x';
        }
    }
    std::size_t TakenFromAhead() const {
        return static_cast<std::size_t>(
            std::count_if(taken.begin(), taken.end(),
                          [this](const auto& block) { return ahead.count(block.get()) != 0; }));
    }
    bool AllAreDifferent() const {
        std::set<const char*> places;
        for (const auto& block : taken)
            places.insert(block.get());
        return places.size() == taken.size();
    }

    const std::thread::id user = std::this_thread::get_id();
    unsigned processors = 2;
    std::size_t most = 100'000;
    bool noThread = false;
    bool holdsUp = false;
    Steps goesOn;
    std::size_t allocated = 0;
    std::set<const char*> ahead;  // what was allocated so
    int started = 0;
    std::atomic<std::size_t> touched = 0;
    Steps touches;
    std::vector<ReadyBlocks::Block> taken;
};

TEST_F(ReadyBlocksTest, AWorkerTouchesWhatIsExpected) {
    ReadyBlocks ready(kSize, Means());
    ready.Expect(kMany * kSize);
    touches.WaitFor(kAhead);
    TakeAll(ready, 1);
    EXPECT_EQ(taken[0][kSize - 1], 't');
    touches.WaitFor(kAhead + 1);  // the one that was allocated in its place
    TakeAll(ready, kMany - 1);
    EXPECT_TRUE(AllAreDifferent());
    EXPECT_EQ(started, 1);
}

TEST_F(ReadyBlocksTest, NoMoreIsAllocatedAheadThanAllowed) {
    ReadyBlocks ready(kSize, Means());
    ready.Expect(kMany * kSize);
    EXPECT_EQ(allocated, kAhead);
    TakeAll(ready, 1);
    EXPECT_LE(allocated, kAhead + 1);
}

TEST_F(ReadyBlocksTest, NoMoreIsAllocatedThanExpected) {
    ReadyBlocks ready(kSize, Means());
    for (std::size_t i = 0; i < kAhead - 1; ++i)
        ready.Expect(kSize);
    ready.Expect(kSize - 1);
    EXPECT_EQ(allocated, kAhead - 1);
    ready.Expect(1);
    EXPECT_EQ(allocated, kAhead);
    TakeAll(ready, kAhead + 5);
    // A block that the worker was at when it was asked for may be left.
    EXPECT_LE(allocated, kAhead);
    EXPECT_TRUE(AllAreDifferent());
}

TEST_F(ReadyBlocksTest, WhatWasNotReadyIsExpectedNoMore) {
    holdsUp = true;
    most = 1;
    ReadyBlocks ready(kSize, Means());
    ready.Expect(ReadyBlocks::kWorthwhile * kSize);
    while (touched == 0)
        std::this_thread::yield();
    TakeAll(ready, ReadyBlocks::kWorthwhile);  // the worker has the only one
    most = 100'000;
    allocated = 0;
    ready.Expect(0);
    EXPECT_EQ(allocated, 0U);
    goesOn.Add();
}

TEST_F(ReadyBlocksTest, FewBlocksAreNotWorthAThread) {
    ReadyBlocks ready(kSize, Means());
    ready.Expect(ReadyBlocks::kWorthwhile * kSize - 1);
    TakeAll(ready, ReadyBlocks::kWorthwhile);
    EXPECT_EQ(started, 0);
    EXPECT_EQ(allocated, 0U);
}

TEST_F(ReadyBlocksTest, ASingleProcessorHasNoWorker) {
    for (const unsigned few : {0U, 1U}) {
        processors = few;
        ReadyBlocks ready(kSize, Means());
        ready.Expect(kMany * kSize);
        TakeAll(ready, kMany);
        EXPECT_EQ(started, 0);
        EXPECT_EQ(allocated, 0U);
    }
}

TEST_F(ReadyBlocksTest, TakingNeverWaitsForTheWorker) {
    holdsUp = true;
    ReadyBlocks ready(kSize, Means());
    ready.Expect(ReadyBlocks::kWorthwhile * kSize);
    while (touched == 0)
        std::this_thread::yield();
    TakeAll(ready, ReadyBlocks::kWorthwhile);
    EXPECT_TRUE(AllAreDifferent());
    // What the worker has not come to is taken as it is; the last one is made for the asking.
    EXPECT_EQ(TakenFromAhead(), ReadyBlocks::kWorthwhile - 1);
    goesOn.Add();
}

TEST_F(ReadyBlocksTest, AtItsEndTheWorkerFinishesItsBlockOnly) {
    // All blocks together would take most of a second.
    static constexpr std::chrono::milliseconds kForABlock{10};
    auto means = Means();
    means.touch = [this](char*, std::size_t) {
        std::this_thread::sleep_for(kForABlock);
        ++touched;
    };
    {
        ReadyBlocks ready(kSize, std::move(means));
        ready.Expect(kMany * kSize);
        while (touched == 0)
            std::this_thread::yield();
    }
    EXPECT_LT(touched, kAhead);
}

TEST_F(ReadyBlocksTest, MemoryThatCannotBeHadAheadIsNoError) {
    most = 3;
    ReadyBlocks ready(kSize, Means());
    ready.Expect(kMany * kSize);
    TakeAll(ready, kMany);
    EXPECT_TRUE(AllAreDifferent());
}

TEST_F(ReadyBlocksTest, AThreadThatCannotBeStartedIsNoError) {
    noThread = true;
    ReadyBlocks ready(kSize, Means());
    ready.Expect(kMany * kSize);
    TakeAll(ready, kMany);
    EXPECT_EQ(started, 1) << "tried once";
    EXPECT_EQ(allocated, 0U);
    EXPECT_TRUE(AllAreDifferent());
}

TEST_F(ReadyBlocksTest, WithItsOwnMeansItMakesBlocksToo) {
    ReadyBlocks ready(kSize);
    ready.Expect(kMany * kSize);
    TakeAll(ready, kMany + 1);
    EXPECT_TRUE(AllAreDifferent());
}

TEST_F(ReadyBlocksTest, GivesBackWhatNobodyTook) {
    ReadyBlocks ready(kSize);
    ready.Expect(kMany * kSize);
}

}  // namespace
}  // namespace ordalyn
