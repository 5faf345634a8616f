#include "log/LogMark.h"

#include <algorithm>

namespace ordalyn {

void FileTrace::Add(const char* bytes, std::size_t count) {
    head_.append(bytes, std::min(count, kKept - head_.size()));
    if (count >= kKept) {
        tail_.assign(bytes + count - kKept, kKept);
    } else {
        tail_.append(bytes, count);
        if (tail_.size() > kKept)
            tail_.erase(0, tail_.size() - kKept);
    }
    size_ += count;
}

}  // namespace ordalyn
