// ByteScan: the few searches through bytes that reading a log consists of. Sixteen bytes at a time
// where the processor can (under Wine the C library's own searches are slow: docs/performance.md),
// one at a time elsewhere; both ways give the same results.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>

#include "base/Sse2.h"

namespace ordalyn::bytescan {

// A line's first blank and the first "->" behind it; the end of the bytes when there is none.
struct Marks {
    const char* blank;
    const char* arrow;
};

// FindArrow, FindMarks and IsUtf8 may look at (not judge) that many bytes behind the end; they must
// be there.
inline constexpr std::size_t kSlack = 128;

namespace portable {

inline const char* FindByte(const char* at, const char* end, char wanted) {
    while (at != end && *at != wanted)
        ++at;
    return at;
}

inline const char* FindArrow(const char* at, const char* end) {
    for (; end - at >= 2; ++at)
        if (at[0] == '-' && at[1] == '>')
            return at;
    return end;
}

inline Marks FindMarks(const char* at, const char* end) {
    const char* blank = FindByte(at, end, ' ');
    return {blank, blank == end ? end : FindArrow(blank + 1, end)};
}

// Notes where the bytes hold a CR or LF, as distances from the first byte, and returns how many
// there are. `places` must have room for as many as there are bytes.
std::size_t FindLineEnds(const char* at, const char* end, std::uint32_t* places);

// Lines that end in these bytes. A CR LF pair is one end, also when the CR was the last byte before
// these (`afterCr`).
std::size_t CountLineEnds(const char* at, const char* end, bool afterCr);

// Strict UTF-8: no overlong forms, no surrogates, nothing above U+10FFFF.
bool IsUtf8(const char* at, const char* end);

}  // namespace portable

#ifdef ORDALYN_SSE2

inline __m128i Load(const char* at) {
    return _mm_loadu_si128(reinterpret_cast<const __m128i*>(at));
}

// One bit for each byte that equals the wanted one.
inline unsigned Equal(__m128i bytes, char wanted) {
    return static_cast<unsigned>(_mm_movemask_epi8(_mm_cmpeq_epi8(bytes, _mm_set1_epi8(wanted))));
}

// The highest bits of the bytes of four vectors, the first vector's lowest.
inline std::uint64_t Bits(__m128i a, __m128i b, __m128i c, __m128i d) {
    const auto bits = [](__m128i bytes) { return static_cast<unsigned>(_mm_movemask_epi8(bytes)); };
    return std::uint64_t{bits(a) | (bits(b) << 16U)} |
           (std::uint64_t{bits(c) | (bits(d) << 16U)} << 32U);
}

// Where the lowest bit stands; anything for no bits. The library's function returns 64 for these,
// for which compilers may jump, and such a jump is guessed wrong half the time.
inline int LowestBit(std::uint64_t bits) {
    return std::countr_zero(bits | (std::uint64_t{1} << 63U));
}

inline const char* FindByte(const char* at, const char* end, char wanted) {
    for (; end - at >= 16; at += 16)
        if (const unsigned found = Equal(Load(at), wanted); found != 0)
            return at + std::countr_zero(found);
    return portable::FindByte(at, end, wanted);
}

inline const char* FindArrow(const char* at, const char* end) {
    const __m128i head = _mm_set1_epi8('>');
    const auto heads = [head](const char* from) {
        return Bits(_mm_cmpeq_epi8(Load(from), head), _mm_cmpeq_epi8(Load(from + 16), head),
                    _mm_cmpeq_epi8(Load(from + 32), head), _mm_cmpeq_epi8(Load(from + 48), head));
    };
    // Nearly all arrows stand in the first 128 bytes. No path holds a ">", so a head that is none
    // of an arrow may be searched behind slowly.
    for (; end - at >= 2; at += 128) {
        const std::uint64_t first = heads(at + 1);
        const std::uint64_t second = heads(at + 65);
        if ((first | second) == 0)
            continue;
        const std::uint64_t inSecond = first == 0 ? ~std::uint64_t{0} : 0;
        const char* found = at + 1 + (inSecond & 64U) + LowestBit(first | (second & inSecond));
        if (found >= end)
            return end;
        return found[-1] == '-' ? found - 1 : portable::FindArrow(found, end);
    }
    return end;
}

inline Marks FindMarks(const char* at, const char* end) {
    // Both searches begin at once: one that waited for the other would hold up all that follows.
    const char* blank = FindByte(at, end, ' ');
    const char* arrow = FindArrow(at, end);
    if (arrow <= blank) [[unlikely]]
        arrow = blank == end ? end : FindArrow(blank + 1, end);
    return {blank, arrow};
}

std::size_t FindLineEnds(const char* at, const char* end, std::uint32_t* places);
std::size_t CountLineEnds(const char* at, const char* end, bool afterCr);
bool IsUtf8(const char* at, const char* end);

#else

using portable::CountLineEnds;
using portable::FindArrow;
using portable::FindByte;
using portable::FindLineEnds;
using portable::FindMarks;
using portable::IsUtf8;

#endif

}  // namespace ordalyn::bytescan
