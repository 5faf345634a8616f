// PaddedLine: a line with the bytes behind it that searching may look at. They would make a
// difference if they were taken for a part of the line.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "log/ByteScan.h"

namespace ordalyn::test {

class PaddedLine {
  public:
    explicit PaddedLine(std::string_view line, std::string_view behind = " ->\n\r\x80\xC3\xFF")
        : size_(line.size()) {
        // No more than is promised, so that the address checks see a look at more.
        bytes_.reserve(size_ + bytescan::kSlack);
        bytes_.assign(line.begin(), line.end());
        for (std::size_t i = 0; i < bytescan::kSlack; ++i)
            bytes_.push_back(behind[i % behind.size()]);
    }
    operator std::string_view() const { return {bytes_.data(), size_}; }
    const char* begin() const { return bytes_.data(); }
    const char* end() const { return bytes_.data() + size_; }

  private:
    std::vector<char> bytes_;
    std::size_t size_;
};

}  // namespace ordalyn::test
