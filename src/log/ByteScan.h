// ByteScan: the few searches through bytes that reading a log consists of. Sixteen bytes at a time
// where the processor can (the C library's own searches are slow on some systems), one at a time
// elsewhere; both ways give the same results.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "base/Utf8.h"

#if defined(__SSE2__) || defined(_M_X64)
#define ORDALYN_SSE2 1
#include <emmintrin.h>
#endif

namespace ordalyn::bytescan {

struct LineEnd {
    const char* at;  // the first CR or LF, or the end of the bytes
    bool ascii;      // no byte before it is above 127
};

// A line's first blank and the first "->" behind it; the end of the bytes when there is none.
struct Marks {
    const char* blank;
    const char* arrow;
};

// IsUtf8 may look at (not judge) that many bytes behind the end; they must be there.
inline constexpr std::size_t kSlack = 64;

namespace portable {

inline LineEnd FindLineEnd(const char* at, const char* end) {
    unsigned all = 0;
    for (; at != end && *at != '\n' && *at != '\r'; ++at)
        all |= static_cast<unsigned char>(*at);
    return {at, all < 0x80};
}

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

// Lines that end in these bytes. A CR LF pair is one end, also when the CR was the last byte before
// these (`afterCr`).
inline std::size_t CountLineEnds(const char* at, const char* end, bool afterCr) {
    std::size_t count = 0;
    for (; at != end; ++at) {
        if (*at == '\r' || (*at == '\n' && !afterCr))
            ++count;
        afterCr = *at == '\r';
    }
    return count;
}

// Strict UTF-8: no overlong forms, no surrogates, nothing above U+10FFFF.
inline bool IsUtf8(const char* at, const char* end) {
    const std::string_view bytes(at, static_cast<std::size_t>(end - at));
    for (std::size_t i = 0; i < bytes.size();) {
        const DecodedCharacter c = DecodeUtf8(bytes, i);
        if (!c.valid)
            return false;
        i += c.length;
    }
    return true;
}

}  // namespace portable

#ifdef ORDALYN_SSE2

inline __m128i Load(const char* at) {
    return _mm_loadu_si128(reinterpret_cast<const __m128i*>(at));
}

// One bit for each byte that equals the wanted one.
inline unsigned Equal(__m128i bytes, char wanted) {
    return static_cast<unsigned>(_mm_movemask_epi8(_mm_cmpeq_epi8(bytes, _mm_set1_epi8(wanted))));
}

// The bits of four vectors, the first vector's lowest.
inline std::uint64_t Bits(__m128i a, __m128i b, __m128i c, __m128i d) {
    const auto bits = [](__m128i bytes) {
        return std::uint64_t{static_cast<std::uint16_t>(_mm_movemask_epi8(bytes))};
    };
    return bits(a) | (bits(b) << 16U) | (bits(c) << 32U) | (bits(d) << 48U);
}

inline LineEnd FindLineEnd(const char* at, const char* end) {
    const __m128i lf = _mm_set1_epi8('\n');
    const __m128i cr = _mm_set1_epi8('\r');
    const auto ends = [lf, cr](__m128i bytes) {
        return _mm_or_si128(_mm_cmpeq_epi8(bytes, lf), _mm_cmpeq_epi8(bytes, cr));
    };
    __m128i high = _mm_setzero_si128();
    // Most lines end in the first or second 64 bytes: few branches, and those guessed well.
    for (; end - at >= 64; at += 64) {
        const __m128i a = Load(at);
        const __m128i b = Load(at + 16);
        const __m128i c = Load(at + 32);
        const __m128i d = Load(at + 48);
        const __m128i before = high;
        high = _mm_or_si128(high, _mm_or_si128(_mm_or_si128(a, b), _mm_or_si128(c, d)));
        const std::uint64_t found = Bits(ends(a), ends(b), ends(c), ends(d));
        if (found == 0)
            continue;
        if (_mm_movemask_epi8(high) == 0)
            return {at + std::countr_zero(found), true};
        // Only what stands before the end counts.
        const std::uint64_t lineHigh = Bits(a, b, c, d) & (found - 1) & ~found;
        return {at + std::countr_zero(found), lineHigh == 0 && _mm_movemask_epi8(before) == 0};
    }
    const LineEnd rest = portable::FindLineEnd(at, end);
    return {rest.at, rest.ascii && _mm_movemask_epi8(high) == 0};
}

inline const char* FindByte(const char* at, const char* end, char wanted) {
    for (; end - at >= 16; at += 16)
        if (const unsigned found = Equal(Load(at), wanted); found != 0)
            return at + std::countr_zero(found);
    return portable::FindByte(at, end, wanted);
}

inline const char* FindArrow(const char* at, const char* end) {
    for (; end - at >= 17; at += 16) {
        // Dashes are rare, so they alone are looked for first.
        for (unsigned dashes = Equal(Load(at), '-'); dashes != 0; dashes &= dashes - 1) {
            const char* dash = at + std::countr_zero(dashes);
            if (dash[1] == '>')
                return dash;
        }
    }
    return portable::FindArrow(at, end);
}

inline Marks FindMarks(const char* at, const char* end) {
    const char* blank = FindByte(at, end, ' ');
    return {blank, blank == end ? end : FindArrow(blank + 1, end)};
}

inline std::size_t CountLineEnds(const char* at, const char* end, bool afterCr) {
    if (end - at < 17)
        return portable::CountLineEnds(at, end, afterCr);
    // The first byte alone, so that every other byte has one before it.
    std::size_t count = portable::CountLineEnds(at, at + 1, afterCr);
    ++at;
    const __m128i lf = _mm_set1_epi8('\n');
    const __m128i cr = _mm_set1_epi8('\r');
    const __m128i zero = _mm_setzero_si128();
    while (end - at >= 16) {
        // Each byte of `sums` counts down by at most one a round, so 255 rounds cannot overflow it.
        __m128i sums = zero;
        for (int round = 0; round < 255 && end - at >= 16; ++round, at += 16) {
            const __m128i bytes = Load(at);
            const __m128i isLf = _mm_cmpeq_epi8(bytes, lf);
            const __m128i behindCr = _mm_cmpeq_epi8(Load(at - 1), cr);
            const __m128i ends =
                _mm_or_si128(_mm_cmpeq_epi8(bytes, cr), _mm_andnot_si128(behindCr, isLf));
            sums = _mm_sub_epi8(sums, ends);
        }
        const __m128i halves = _mm_sad_epu8(sums, zero);
        count += static_cast<std::size_t>(_mm_cvtsi128_si32(halves)) +
                 static_cast<std::size_t>(_mm_cvtsi128_si32(_mm_srli_si128(halves, 8)));
    }
    return count + portable::CountLineEnds(at, end, at[-1] == '\r');
}

// Sixty-four bytes at a time: in valid UTF-8 the trail bytes stand exactly where the lead bytes
// want them. The few lead bytes that also restrict the value of their first trail byte (E0, ED, F0
// and above) and those that are never valid are left to the decoder.
inline bool IsUtf8(const char* at, const char* end) {
    const char* const start = at;
    std::uint64_t wanted = 0;  // trail bytes that the bytes before want at the start of these
    for (; at < end; at += 64) {
        const __m128i v[] = {Load(at), Load(at + 16), Load(at + 32), Load(at + 48)};
        const std::uint64_t inside =
            end - at >= 64 ? ~std::uint64_t{0} : (std::uint64_t{1} << (end - at)) - 1;
        const std::uint64_t high = Bits(v[0], v[1], v[2], v[3]) & inside;
        // Bytes are compared as signed numbers: 80 to BF are the smallest, then the lead bytes.
        const auto above = [&v](unsigned char limit) {
            const __m128i limits = _mm_set1_epi8(static_cast<char>(limit));
            return Bits(_mm_cmpgt_epi8(v[0], limits), _mm_cmpgt_epi8(v[1], limits),
                        _mm_cmpgt_epi8(v[2], limits), _mm_cmpgt_epi8(v[3], limits));
        };
        // Whether any byte, one behind the end included, has these values in these bits.
        const auto any = [&v](unsigned char mask, unsigned char value) {
            const __m128i masks = _mm_set1_epi8(static_cast<char>(mask));
            const __m128i values = _mm_set1_epi8(static_cast<char>(value));
            __m128i found = _mm_setzero_si128();
            for (const __m128i bytes : v)
                found = _mm_or_si128(found, _mm_cmpeq_epi8(_mm_and_si128(bytes, masks), values));
            return _mm_movemask_epi8(found) != 0;
        };
        const std::uint64_t leads = high & above(0xBF);
        const std::uint64_t leadsOfTwoTrails = high & above(0xDF);
        if (any(0xFE, 0xC0) ||
            (leadsOfTwoTrails != 0 && (any(0xFF, 0xE0) || any(0xFF, 0xED) || any(0xF0, 0xF0))))
            return portable::IsUtf8(start, end);
        const std::uint64_t trails = high & ~leads;
        const std::uint64_t wantedHere = (leads << 1U) | (leadsOfTwoTrails << 2U) | wanted;
        // Trail bytes that are wanted behind the end make the last character incomplete.
        if (trails != wantedHere)
            return false;
        wanted = (leads >> 63U) | (leadsOfTwoTrails >> 62U);
    }
    return wanted == 0;
}

#else

using portable::CountLineEnds;
using portable::FindArrow;
using portable::FindByte;
using portable::FindLineEnd;
using portable::FindMarks;
using portable::IsUtf8;

#endif

}  // namespace ordalyn::bytescan
