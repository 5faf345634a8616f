#include "log/ByteScan.h"

#include <algorithm>
#include <cstring>

#include "base/Text.h"

namespace ordalyn::bytescan {

namespace portable {

std::size_t FindLineEnds(const char* at, const char* end, std::uint32_t* places) {
    std::size_t count = 0;
    for (const char* const begin = at; at != end; ++at)
        if (*at == '\r' || *at == '\n')
            places[count++] = static_cast<std::uint32_t>(at - begin);
    return count;
}

std::size_t CountLineEnds(const char* at, const char* end, bool afterCr) {
    std::size_t count = 0;
    for (; at != end; ++at) {
        if (*at == '\r' || (*at == '\n' && !afterCr))
            ++count;
        afterCr = *at == '\r';
    }
    return count;
}

bool IsUtf8(const char* at, const char* end) {
    return IsValidUtf8({at, static_cast<std::size_t>(end - at)});
}

}  // namespace portable

#ifdef ORDALYN_SSE2

std::size_t FindLineEnds(const char* at, const char* end, std::uint32_t* places) {
    const __m128i lf = _mm_set1_epi8('\n');
    const __m128i cr = _mm_set1_epi8('\r');
    const auto isEnd = [lf, cr](const char* from) {
        const __m128i bytes = Load(from);
        return _mm_or_si128(_mm_cmpeq_epi8(bytes, lf), _mm_cmpeq_epi8(bytes, cr));
    };
    std::size_t count = 0;
    std::uint32_t distance = 0;
    for (; end - at >= 64; at += 64, distance += 64) {
        const std::uint64_t ends = Bits(isEnd(at), isEnd(at + 16), isEnd(at + 32), isEnd(at + 48));
        const auto note = [&](std::uint64_t bits) {
            places[count] = distance + static_cast<std::uint32_t>(LowestBit(bits));
            count += bits != 0 ? 1 : 0;
        };
        // A CR LF pair or nothing, nobody can guess which, and a wrong guess takes longer than
        // noting two places that are not there.
        note(ends);
        const std::uint64_t behindFirst = ends & (ends - 1);
        note(behindFirst);
        for (std::uint64_t more = behindFirst & (behindFirst - 1); more != 0; more &= more - 1)
            note(more);
    }
    for (; at != end; ++at, ++distance)
        if (*at == '\r' || *at == '\n')
            places[count++] = distance;
    return count;
}

std::size_t CountLineEnds(const char* at, const char* end, bool afterCr) {
    if (at == end)
        return 0;
    // The first byte alone, so that every other byte has one before it.
    std::size_t count = portable::CountLineEnds(at, at + 1, afterCr);
    ++at;
    const __m128i lf = _mm_set1_epi8('\n');
    const __m128i cr = _mm_set1_epi8('\r');
    const __m128i zero = _mm_setzero_si128();
    while (end - at >= 64) {
        // Each byte of `sums` counts up by at most four a round, so 63 rounds cannot overflow it.
        __m128i sums = zero;
        for (int round = 0; round < 63 && end - at >= 64; ++round, at += 64) {
            for (int place = 0; place < 64; place += 16) {
                const __m128i bytes = Load(at + place);
                const __m128i behindCr = _mm_cmpeq_epi8(Load(at + place - 1), cr);
                sums = _mm_sub_epi8(sums, _mm_cmpeq_epi8(bytes, cr));
                sums = _mm_sub_epi8(sums, _mm_andnot_si128(behindCr, _mm_cmpeq_epi8(bytes, lf)));
            }
        }
        const __m128i halves = _mm_sad_epu8(sums, zero);
        count += static_cast<std::size_t>(_mm_cvtsi128_si32(halves)) +
                 static_cast<std::size_t>(_mm_cvtsi128_si32(_mm_srli_si128(halves, 8)));
    }
    return count + portable::CountLineEnds(at, end, at[-1] == '\r');
}

namespace {

// Judges bytes as UTF-8 with characters of at most so many bytes (2 to 4), sixteen at a time and
// without any jump: whether trail bytes stand behind lead bytes and nowhere else, and whether they
// are those that the lead byte allows.
template <int kLongest>
class Characters {
  public:
    // So many bytes in front of those that are looked at have to be there.
    static constexpr std::ptrdiff_t kBefore = kLongest - 1;

    void Look(const char* at) {
        const __m128i bytes = Load(at);
        const __m128i before = Load(at - 1);
        __m128i wanted = _mm_subs_epu8(before, Each(0xBF));
        if constexpr (kLongest > 2)
            wanted = _mm_or_si128(wanted, _mm_subs_epu8(Load(at - 2), Each(0xDF)));
        if constexpr (kLongest > 3)
            wanted = _mm_or_si128(wanted, _mm_subs_epu8(Load(at - 3), Each(0xEF)));
        const __m128i noTrailWanted = _mm_cmpeq_epi8(wanted, _mm_setzero_si128());
        // As signed numbers the trail bytes are the smallest.
        const __m128i isTrail = _mm_cmplt_epi8(bytes, Each(0xC0));
        paired_ = _mm_and_si128(paired_, _mm_xor_si128(noTrailWanted, isTrail));
        // Overlong forms, surrogates, what is above U+10FFFF.
        if constexpr (kLongest > 2)
            Restrict(before, bytes, 0xE0, 0xED, 0xA0);
        if constexpr (kLongest > 3)
            Restrict(before, bytes, 0xF0, 0xF4, 0x90);
        highest_ = _mm_max_epu8(highest_, bytes);
        lowestLead_ = _mm_min_epu8(lowestLead_, _mm_sub_epi8(bytes, Each(0xC0)));
    }
    // The same for up to 16 bytes at the start or end of a text, which begins at `text`; what
    // follows them counts as a byte that is no trail.
    void LookAtEdge(const char* text, const char* at, std::size_t count) {
        char edge[kBefore + 16] = {};
        const std::ptrdiff_t before = std::min(kBefore, at - text);
        std::memcpy(edge + kBefore - before, at - before, static_cast<std::size_t>(before) + count);
        Look(edge + kBefore);
    }
    // Whether there is a lead byte of longer characters, about which Valid says nothing.
    bool LongerOnes() const {
        constexpr unsigned char kLonger[] = {0xE0, 0xF0, 0xF5};
        return Any(_mm_max_epu8(highest_, Each(kLonger[kLongest - 2])), highest_);
    }
    // C0 and C1 would begin overlong forms.
    bool Valid() const {
        return _mm_movemask_epi8(paired_) == 0xFFFF && _mm_movemask_epi8(wrong_) == 0 &&
               !Any(_mm_min_epu8(lowestLead_, Each(1)), lowestLead_);
    }

  private:
    static __m128i Each(unsigned char byte) { return _mm_set1_epi8(static_cast<char>(byte)); }
    static bool Any(__m128i a, __m128i b) { return _mm_movemask_epi8(_mm_cmpeq_epi8(a, b)) != 0; }

    // Behind `lowest` trail bytes begin at the limit, behind `highest` they end before it.
    void Restrict(__m128i before, __m128i bytes, unsigned char lowest, unsigned char highest,
                  unsigned char limit) {
        const __m128i below = _mm_cmplt_epi8(bytes, Each(limit));
        wrong_ = _mm_or_si128(wrong_, _mm_and_si128(below, _mm_cmpeq_epi8(before, Each(lowest))));
        wrong_ =
            _mm_or_si128(wrong_, _mm_andnot_si128(below, _mm_cmpeq_epi8(before, Each(highest))));
    }

    __m128i paired_ = Each(0xFF);
    __m128i wrong_ = Each(0);
    __m128i highest_ = Each(0);
    __m128i lowestLead_ = Each(0xFF);  // less C0, so that lead bytes are the lowest
};

// Judges the bytes from `at` on, in front of which those from `text` on have been judged: with the
// shortest characters that do, as these take the least time. Texts keep to one script, so a longer
// one is followed by others.
template <int kLongest>
bool AreCharactersUpTo(const char* text, const char* at, const char* end) {
    constexpr std::ptrdiff_t kPiece = 2048;  // a multiple of 16
    Characters<kLongest> judged;
    while (true) {
        Characters<kLongest> characters = judged;
        const char* const stop = end - at > kPiece ? at + kPiece : end;
        const char* next = at;
        if (at == text) {
            characters.LookAtEdge(text, at, 16);
            next += 16;
        }
        for (; stop - next >= 16; next += 16)
            characters.Look(next);
        if (stop == end)
            characters.LookAtEdge(text, next, static_cast<std::size_t>(end - next));
        if (characters.LongerOnes()) {
            if constexpr (kLongest < 4)
                return judged.Valid() && AreCharactersUpTo<kLongest + 1>(text, at, end);
            else
                return false;
        }
        if (stop == end)
            return characters.Valid();
        judged = characters;
        at = stop;
    }
}

// Judges characters of any length, sixty-four bytes at a time: in valid UTF-8 the trail bytes stand
// exactly where the lead bytes want them. The few lead bytes that also restrict the value of their
// first trail byte (E0, ED, F0 and above) and those that are never valid are left to the decoder.
bool AreCharacters(const char* at, const char* end) {
    const char* const start = at;
    std::uint64_t wanted = 0;  // trail bytes that the bytes before want at the start of these
    for (; at < end; at += 64) {
        const __m128i v[] = {Load(at), Load(at + 16), Load(at + 32), Load(at + 48)};
        const std::uint64_t inside =
            end - at >= 64 ? ~std::uint64_t{0} : (std::uint64_t{1} << (end - at)) - 1;
        const std::uint64_t high = Bits(v[0], v[1], v[2], v[3]) & inside;
        if ((high | wanted) == 0)
            continue;  // ASCII
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

}  // namespace

bool IsUtf8(const char* at, const char* end) {
    // The few bytes of a line are judged at once, many with what is right for most logs first.
    constexpr std::ptrdiff_t kMany = 512;
    return end - at < kMany ? AreCharacters(at, end) : AreCharactersUpTo<2>(at, at, end);
}

#endif

}  // namespace ordalyn::bytescan
