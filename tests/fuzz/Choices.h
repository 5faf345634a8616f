// Choices: the input of a fuzz target as a sequence of decisions. When it is used up all of them
// are 0.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace ordalyn::fuzz {

class Choices {
  public:
    Choices(const std::uint8_t* data, std::size_t size)
        : rest_(reinterpret_cast<const char*>(data), size) {}

    bool Left() const { return !rest_.empty(); }
    // A number from 0 to count - 1.
    int Of(int count) { return static_cast<int>(Byte()) % count; }
    // What has not been used.
    std::string_view Rest() const { return rest_; }

  private:
    unsigned char Byte() {
        if (rest_.empty())
            return 0;
        const char first = rest_.front();
        rest_.remove_prefix(1);
        return static_cast<unsigned char>(first);
    }

    std::string_view rest_;
};

}  // namespace ordalyn::fuzz
