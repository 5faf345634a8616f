#include "lists/ReadyBlocks.h"

#include <algorithm>
#include <new>
#include <system_error>
#include <utility>

namespace ordalyn {

ReadyBlocks::ReadyBlocks(std::size_t blockSize, Means means)
    : blockSize_(blockSize), means_(std::move(means)), alone_(means_.processors < 2) {}

ReadyBlocks::~ReadyBlocks() {
    if (!worker_.joinable())
        return;
    {
        const std::lock_guard lock(mutex_);
        stop_ = true;
    }
    changed_.notify_one();
    worker_.join();
}

void ReadyBlocks::Expect(std::size_t bytes) {
    expected_ += bytes;
    AllocateAhead();
}

ReadyBlocks::Block ReadyBlocks::Take() {
    Block block;
    if (ahead_ != 0) {
        const std::lock_guard lock(mutex_);
        std::vector<Block>& from = ready_.empty() ? waiting_ : ready_;
        // Neither has one when the only block is the one that the worker is at.
        if (!from.empty()) {
            block = std::move(from.back());
            from.pop_back();
            --ahead_;
        }
    }
    if (!block) {
        block = std::make_unique_for_overwrite<char[]>(blockSize_);
        expected_ -= std::min(expected_, blockSize_);
    }
    AllocateAhead();
    return block;
}

void ReadyBlocks::AllocateAhead() {
    while (ahead_ < kMostAhead && expected_ >= blockSize_ && HasWorker()) {
        Block block = means_.allocate(blockSize_);
        if (!block)
            return;
        expected_ -= blockSize_;
        ++ahead_;
        bool wake = false;
        {
            const std::lock_guard lock(mutex_);
            waiting_.push_back(std::move(block));
            wake = std::exchange(idle_, false);
        }
        if (wake)
            changed_.notify_one();
    }
}

// Starts it when it is worthwhile.
bool ReadyBlocks::HasWorker() {
    if (worker_.joinable())
        return true;
    if (alone_ || expected_ < kWorthwhile * blockSize_)
        return false;
    try {
        waiting_.reserve(kMostAhead);
        ready_.reserve(kMostAhead);
        worker_ = means_.start([this] { Work(); });
        return true;
    } catch (const std::bad_alloc&) {
        alone_ = true;
    } catch (const std::system_error&) {
        alone_ = true;
    }
    return false;
}

void ReadyBlocks::Work() {
    std::unique_lock lock(mutex_);
    while (true) {
        idle_ = waiting_.empty();
        changed_.wait(lock, [this] { return stop_ || !waiting_.empty(); });
        if (stop_)
            return;
        Block block = std::move(waiting_.back());
        waiting_.pop_back();
        lock.unlock();
        means_.touch(block.get(), blockSize_);
        lock.lock();
        ready_.push_back(std::move(block));
    }
}

ReadyBlocks::Block ReadyBlocks::AllocateIfPossible(std::size_t size) {
    return Block(new (std::nothrow) char[size]);
}

void ReadyBlocks::TouchPages(char* block, std::size_t size) {
    constexpr std::size_t kPage = 4096;
    volatile char* pages = block;
    for (std::size_t at = 0; at < size; at += kPage)
        pages[at] = 0;
}

std::thread ReadyBlocks::StartThread(std::function<void()> work) {
    return std::thread(std::move(work));
}

}  // namespace ordalyn
