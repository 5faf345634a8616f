// BytePair: looks for two bytes that stand at a fixed distance from each other, each of which may
// be one of two values (a letter in both cases). Where both fit, the caller looks closer. Sixteen
// places at a time where the processor can, one at a time elsewhere.
#pragma once

#include <bit>
#include <cstddef>

#include "base/Sse2.h"

namespace ordalyn {

// The values that a byte may have; the same one twice when there is only one.
struct ByteChoice {
    unsigned char first;
    unsigned char second;
    bool Fits(char byte) const {
        const auto value = static_cast<unsigned char>(byte);
        return value == first || value == second;
    }
};

class BytePair {
  public:
    BytePair() : BytePair({0, 0}, {0, 0}, 0) {}
    BytePair(ByteChoice near, ByteChoice far, std::size_t distance)
        : near_(near), far_(far), distance_(distance) {}

    std::size_t Distance() const { return distance_; }

    // The first of the places from `at` up to (without) `end` where the pair fits and `look` says
    // yes; null when there is none. The bytes up to end + Distance() must be readable. A place to
    // which `look` has said no may be asked for again.
    template <typename Look>
    const char* Find(const char* at, const char* end, const Look& look) const {
#ifdef ORDALYN_SSE2
        if (end - at >= kBlock)
            return FindInBlocks(at, end, look);
#endif
        return FindOneByOne(at, end, look);
    }

    // The same in the plain way, whatever the processor can.
    template <typename Look>
    const char* FindOneByOne(const char* at, const char* end, const Look& look) const {
        for (; at < end; ++at)
            if (near_.Fits(*at) && far_.Fits(at[distance_]) && look(at))
                return at;
        return nullptr;
    }

  private:
    static constexpr std::ptrdiff_t kBlock = 16;

#ifdef ORDALYN_SSE2
    // One of two values differs from the other in some bits, mostly in one. With those bits set
    // both look alike, and hardly anything else does.
    struct Alike {
        explicit Alike(ByteChoice choice)
            : bits(_mm_set1_epi8(static_cast<char>(choice.first ^ choice.second))),
              wanted(_mm_set1_epi8(static_cast<char>(choice.first | choice.second))) {}
        __m128i Fit(const char* at) const {
            const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(at));
            return _mm_cmpeq_epi8(_mm_or_si128(bytes, bits), wanted);
        }
        __m128i bits;
        __m128i wanted;
    };

    template <typename Look>
    const char* FindInBlocks(const char* at, const char* end, const Look& look) const {
        const Alike near(near_);
        const Alike far(far_);
        const auto fit = [&](const char* block) {
            return _mm_and_si128(near.Fit(block), far.Fit(block + distance_));
        };
        const auto lookAt = [&](const char* block, __m128i fits) -> const char* {
            auto places = static_cast<unsigned>(_mm_movemask_epi8(fits));
            for (; places != 0; places &= places - 1) {
                const char* const place = block + std::countr_zero(places);
                if (near_.Fits(*place) && far_.Fits(place[distance_]) && look(place))
                    return place;
            }
            return nullptr;
        };
        for (; end - at >= 4 * kBlock; at += 4 * kBlock) {
            const __m128i fits[] = {fit(at), fit(at + kBlock), fit(at + 2 * kBlock),
                                    fit(at + 3 * kBlock)};
            const __m128i any =
                _mm_or_si128(_mm_or_si128(fits[0], fits[1]), _mm_or_si128(fits[2], fits[3]));
            if (_mm_movemask_epi8(any) == 0)
                continue;
            for (std::ptrdiff_t block = 0; block < 4; ++block)
                if (const char* place = lookAt(at + block * kBlock, fits[block]))
                    return place;
        }
        for (; end - at >= kBlock; at += kBlock)
            if (const char* place = lookAt(at, fit(at)))
                return place;
        // The last block overlaps the one before, so that no byte behind the end is read.
        return at == end ? nullptr : lookAt(end - kBlock, fit(end - kBlock));
    }
#endif

    ByteChoice near_;
    ByteChoice far_;
    std::size_t distance_;
};

}  // namespace ordalyn
