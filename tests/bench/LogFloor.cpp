#include "bench/LogFloor.h"

#include <cstring>
#include <memory>

namespace ordalyn::bench {

namespace {

const char* FindArrow(const char* at, const char* end) {
    while ((at = static_cast<const char*>(
                std::memchr(at, '-', static_cast<std::size_t>(end - at)))) != nullptr) {
        if (at + 1 < end && at[1] == '>')
            return at;
        if (++at == end)
            break;
    }
    return end;
}

}  // namespace

void FindLines(platform::Files& files, const std::string& path, std::vector<LineOffsets>& lines) {
    constexpr std::size_t kBlock = std::size_t{1024} * 1024;
    const auto buffer = std::make_unique_for_overwrite<char[]>(2 * kBlock);
    const auto file = files.OpenForReading(path);
    std::size_t before = 0;  // bytes of the file before the buffer
    std::size_t left = 0;    // bytes of an unfinished line at the start of the buffer
    lines.clear();
    while (const std::size_t count = file->Read(buffer.get() + left, kBlock)) {
        const char* start = buffer.get();
        const char* end = start + left + count;
        for (;;) {
            const auto size = static_cast<std::size_t>(end - start);
            const auto* feed = static_cast<const char*>(std::memchr(start, '\n', size));
            if (feed == nullptr)
                break;
            const auto* blank = static_cast<const char*>(
                std::memchr(start, ' ', static_cast<std::size_t>(feed - start)));
            const char* arrow = blank == nullptr ? feed : FindArrow(blank, feed);
            const auto offset = [&](const char* at) {
                return static_cast<std::uint32_t>(before +
                                                  static_cast<std::size_t>(at - buffer.get()));
            };
            lines.push_back({offset(feed), offset(blank == nullptr ? feed : blank), offset(arrow)});
            start = feed + 1;
        }
        before += static_cast<std::size_t>(start - buffer.get());
        left = static_cast<std::size_t>(end - start);
        std::memmove(buffer.get(), start, left);
    }
}

}  // namespace ordalyn::bench
