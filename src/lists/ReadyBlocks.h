// ReadyBlocks: memory that is new to the process, made ready while something else is done. The
// system clears each page when it is touched for the first time, and for a large log that takes
// nearly as long as reading it; a worker touches the pages of blocks that are certain to be needed
// soon.
//
// The worker touches and does nothing else. Blocks are allocated and freed by the thread that asks
// for them, so memory that cannot be had is an error where it would be one without a worker. There
// is none for few blocks, nor where one processor would have to do the work of both.
#pragma once

#include <condition_variable>
#include <cstddef>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

namespace ordalyn {

class ReadyBlocks {
  public:
    using Block = std::unique_ptr<char[]>;

    // Fewer blocks are not worth a thread.
    static constexpr std::size_t kWorthwhile = 32;
    // Blocks that are there before they are asked for, at most.
    static constexpr std::size_t kMostAhead = 64;

    // What it works with.
    struct Means {
        unsigned processors = std::thread::hardware_concurrency();
        // Null when there is no memory.
        std::function<Block(std::size_t)> allocate = AllocateIfPossible;
        std::function<void(char*, std::size_t)> touch = TouchPages;
        // Throws std::system_error.
        std::function<std::thread(std::function<void()>)> start = StartThread;
    };

    explicit ReadyBlocks(std::size_t blockSize) : ReadyBlocks(blockSize, Means()) {}
    ReadyBlocks(std::size_t blockSize, Means means);
    // Gives back what was not taken. Waits for the worker, which finishes the block it is at.
    ~ReadyBlocks();
    ReadyBlocks(const ReadyBlocks&) = delete;
    ReadyBlocks& operator=(const ReadyBlocks&) = delete;

    // Says that memory for so many more bytes will be needed, and allocates whole blocks of it.
    // Memory that cannot be had is no error yet.
    void Expect(std::size_t bytes);
    // A block, ready if there is such a one; never waits for it. Throws std::bad_alloc.
    Block Take();

  private:
    static Block AllocateIfPossible(std::size_t size);
    static void TouchPages(char* block, std::size_t size);
    static std::thread StartThread(std::function<void()> work);

    void AllocateAhead();
    bool HasWorker();
    void Work();

    const std::size_t blockSize_;
    const Means means_;
    std::size_t expected_ = 0;  // bytes that no block has been allocated for
    std::size_t ahead_ = 0;     // blocks that have been allocated and not been taken
    bool alone_;                // whether there cannot be a worker
    std::thread worker_;

    std::mutex mutex_;  // for all that follows
    std::condition_variable changed_;
    // Have room for all blocks ahead: adding to them needs no memory.
    std::vector<Block> waiting_;  // not yet touched
    std::vector<Block> ready_;
    bool idle_ = false;  // whether the worker waits for blocks
    bool stop_ = false;
};

}  // namespace ordalyn
