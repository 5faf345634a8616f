// PathTails tells fields of the log that may end in one of some paths, or in a folder above one of
// them, from those that cannot: by their last bytes, in a few instructions. A path is the last
// thing in its field, so a scan of the whole log looks at the end of each field and at nothing
// else.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace ordalyn {

class PathTails {
  public:
    // A path as PathKey returns it.
    void AddWithFolders(std::string_view key);
    void Clear();

    // False for a field that ends in none of the paths, letter case, blanks and backslashes at its
    // end ignored. True for all others, and for a few more.
    bool MayEnd(std::string_view field) const {
        const char* const end = field.data() + Stripped(field);
        const auto size = static_cast<std::size_t>(end - field.data());
        if (hasShort_ && size >= kShort && Has(tails_, Word<std::uint32_t>(end)))
            return true;
        if (size < kMiddle)
            return false;
        const std::uint64_t last = Word<std::uint64_t>(end);
        if (!Has(ends_, last)) [[likely]]
            return false;
        return Has(tails_, last) || (size >= kLong && Has(tails_, Both(last, end)));
    }

  private:
    // How many last bytes are looked at: as many as a path has for certain.
    static constexpr std::size_t kShort = 4, kMiddle = 8, kLong = 16;
    static constexpr unsigned kBits = 16;

    static_assert(std::endian::native == std::endian::little);

    static std::size_t Stripped(std::string_view field) {
        std::size_t size = field.size();
        // A source before an arrow ends in one blank, others in none: without a jump that nobody
        // can foresee.
        size -= size > 0 && field[size - 1] == ' ' ? 1 : 0;
        while (size > 0 && (field[size - 1] == ' ' || field[size - 1] == '\\'))
            [[unlikely]]-- size;
        return size;
    }

    // The last bytes with letters of ASCII in one case. Other letters differ in too much: the last
    // of them stands for itself and for all that is before it.
    template <typename Number>
    static Number Word(const char* end) {
        Number bytes = 0;
        std::memcpy(&bytes, end - sizeof bytes, sizeof bytes);
        constexpr Number kEach = static_cast<Number>(~Number{0}) / 0xFF;
        const Number strangers = bytes & static_cast<Number>(kEach * 0x80);
        bytes |= static_cast<Number>(kEach * 0x20);
        if (strangers == 0)
            return bytes;
        const int behind = std::countl_zero(strangers) / 8;  // bytes behind the last stranger
        const auto mark = static_cast<Number>(Number{0xFF} << (8 * (sizeof bytes - 1)));
        if (behind == 0)
            return mark;
        const auto kept =
            static_cast<Number>(~Number{0} << (8 * (sizeof bytes - static_cast<unsigned>(behind))));
        return (bytes & kept) | static_cast<Number>(mark >> (8 * behind));
    }
    static bool HasStranger(std::uint64_t word) { return (word & 0x8080808080808080U) != 0; }
    static std::uint64_t Both(std::uint64_t last, const char* end) {
        const std::uint64_t before = HasStranger(last) ? 0 : Word<std::uint64_t>(end - kMiddle);
        return last + std::rotl(before, 23) * 0xD6E8FEB86659FD93U + 1;
    }
    static std::size_t Bit(std::uint64_t word) {
        return static_cast<std::size_t>((word * 0x9E3779B97F4A7C15U) >> (64 - kBits));
    }
    using Bits = std::array<std::uint64_t, (std::size_t{1} << kBits) / 64>;
    static bool Has(const Bits& bits, std::uint64_t word) {
        const std::size_t bit = Bit(word);
        return (bits[bit / 64] >> (bit % 64) & 1U) != 0;
    }
    static void Set(Bits& bits, std::uint64_t word) {
        const std::size_t bit = Bit(word);
        bits[bit / 64] |= std::uint64_t{1} << (bit % 64);
    }
    void Add(std::string_view key);
    void AddTail(std::string_view tail, std::size_t length);

    Bits tails_{};
    Bits ends_{};  // of all but short tails the last part, which is looked at first
    bool hasShort_ = false;
};

}  // namespace ordalyn
