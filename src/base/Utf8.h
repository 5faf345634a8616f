// Decoding of UTF-8, one code point at a time.
#pragma once

#include <cstddef>
#include <string_view>

namespace ordalyn {

struct DecodedCharacter {
    char32_t value;      // U+FFFD for an invalid part
    std::size_t length;  // bytes taken, at least 1
    bool valid;
};

// Decodes the character that begins at `at`, which must be inside the text. An invalid sequence is
// taken up to the byte at which it becomes invalid, as the Unicode standard recommends.
inline DecodedCharacter DecodeUtf8(std::string_view text, std::size_t at) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned char lead = byte(at);
    if (lead < 0x80)
        return {lead, 1, true};
    std::size_t more = 0;
    char32_t value = 0;
    unsigned char low = 0x80;
    unsigned char high = 0xBF;
    if (lead >= 0xC2 && lead <= 0xDF) {
        more = 1;
        value = lead & 0x1FU;
    } else if (lead >= 0xE0 && lead <= 0xEF) {
        more = 2;
        value = lead & 0x0FU;
        if (lead == 0xE0)
            low = 0xA0;
        if (lead == 0xED)
            high = 0x9F;  // no surrogates
    } else if (lead >= 0xF0 && lead <= 0xF4) {
        more = 3;
        value = lead & 0x07U;
        if (lead == 0xF0)
            low = 0x90;
        if (lead == 0xF4)
            high = 0x8F;
    } else {
        return {0xFFFD, 1, false};
    }
    std::size_t length = 1;
    for (; more > 0; --more, ++length) {
        if (at + length >= text.size())
            return {0xFFFD, length, false};
        const unsigned char next = byte(at + length);
        if (next < low || next > high)
            return {0xFFFD, length, false};
        value = (value << 6U) | (next & 0x3FU);
        low = 0x80;
        high = 0xBF;
    }
    return {value, length, true};
}

// Where the character that ends right before `end` begins (end > 0). An invalid byte is a
// character.
inline std::size_t PreviousCharacter(std::string_view text, std::size_t end) {
    std::size_t start = end - 1;
    for (std::size_t back = 1; back <= 4 && back <= end; ++back) {
        const std::size_t candidate = end - back;
        if ((static_cast<unsigned char>(text[candidate]) & 0xC0U) == 0x80U)
            continue;
        const DecodedCharacter c = DecodeUtf8(text, candidate);
        if (c.valid && c.length == back)
            start = candidate;
        break;
    }
    return start;
}

}  // namespace ordalyn
