#include "support/platform/MemoryCodePages.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "base/Text.h"
#include "base/Utf8.h"

namespace ordalyn::test {

namespace {

struct SingleByte {
    unsigned codePage;
    std::array<char16_t, 128> upperHalf;
};

const SingleByte kSingleByte[] = {
#include "support/platform/SingleByteCodePages.inc"
};

const SingleByte* FindSingleByte(unsigned codePage) {
    const auto* found = std::find_if(std::begin(kSingleByte), std::end(kSingleByte),
                                     [&](const SingleByte& s) { return s.codePage == codePage; });
    return found == std::end(kSingleByte) ? nullptr : found;
}

// Ranges of code page 932, in the order of its codes.
struct DoubleByteRange {
    unsigned first, last;
    char32_t character;
};

constexpr DoubleByteRange kJapanese[] = {
    {0x829F, 0x82F1, 0x3041},  // hiragana
    {0x8340, 0x837E, 0x30A1},  // katakana, up to the code that is not used
    {0x8380, 0x8396, 0x30E0},  // katakana, the rest; 0x835C ends in a backslash
    {0x8CEA, 0x8CEA, 0x8A9E}, {0x93FA, 0x93FA, 0x65E5}, {0x945C, 0x945C, 0x80FD},
    {0x955C, 0x955C, 0x8868}, {0x967B, 0x967B, 0x672C},
};

bool IsJapaneseLead(unsigned byte) {
    return (byte >= 0x81 && byte <= 0x9F) || (byte >= 0xE0 && byte <= 0xFC);
}

std::string JapaneseToUtf8(std::string_view bytes) {
    std::string text;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const unsigned byte = static_cast<unsigned char>(bytes[i]);
        if (byte >= 0xA1 && byte <= 0xDF) {
            AppendUtf8(text, 0xFF61 + byte - 0xA1);
        } else if (IsJapaneseLead(byte) && i + 1 < bytes.size()) {
            const unsigned code = byte << 8U | static_cast<unsigned char>(bytes[++i]);
            const auto* range = std::find_if(
                std::begin(kJapanese), std::end(kJapanese),
                [&](const DoubleByteRange& r) { return code >= r.first && code <= r.last; });
            AppendUtf8(text, range == std::end(kJapanese) ? U'\u30FB'
                                                          : range->character + code - range->first);
        } else {
            AppendUtf8(text, IsJapaneseLead(byte) ? U'\u30FB' : byte);
        }
    }
    return text;
}

// The bytes of one character above ASCII; empty when the code page lacks it.
std::string JapaneseBytes(char32_t c) {
    if (c >= 0xFF61 && c <= 0xFF9F)
        return {static_cast<char>(c - 0xFF61 + 0xA1)};
    for (const DoubleByteRange& range : kJapanese) {
        const char32_t end = range.character + range.last - range.first;
        if (c < range.character || c > end)
            continue;
        const unsigned code = range.first + static_cast<unsigned>(c - range.character);
        return {static_cast<char>(code >> 8U), static_cast<char>(code & 0xFFU)};
    }
    return {};
}

std::string SingleByteBytes(const SingleByte& page, char32_t c) {
    const auto* at = std::find(page.upperHalf.begin(), page.upperHalf.end(), c);
    if (at == page.upperHalf.end())
        return {};
    return {static_cast<char>(128 + (at - page.upperHalf.begin()))};
}

// The text in a code page other than UTF-8; `lost` is told of every character that has no bytes.
template <typename Lost>
std::string Encode(std::string_view text, unsigned codePage, Lost&& lost) {
    const SingleByte* page = FindSingleByte(codePage);
    std::string bytes;
    for (std::size_t at = 0; at < text.size();) {
        const DecodedCharacter c = DecodeUtf8(text, at);
        at += c.length;
        if (c.valid && c.value < 0x80) {
            bytes += static_cast<char>(c.value);
            continue;
        }
        const std::string encoded = page != nullptr ? SingleByteBytes(*page, c.value)  //
                                                    : JapaneseBytes(c.value);
        if (encoded.empty())
            lost(bytes);
        bytes += encoded;
    }
    return bytes;
}

}  // namespace

unsigned MemoryCodePages::Resolve(unsigned codePage) const {
    const bool known = codePage == 65001 || codePage == 932 || FindSingleByte(codePage) != nullptr;
    return known ? codePage : systemCodePage;
}

std::string MemoryCodePages::ToUtf8(std::string_view bytes, unsigned codePage) {
    codePage = Resolve(codePage);
    if (codePage == 65001)
        return ToValidUtf8(bytes);
    const SingleByte* page = FindSingleByte(codePage);
    if (page == nullptr)
        return JapaneseToUtf8(bytes);
    std::string text;
    for (const char byte : bytes) {
        const auto value = static_cast<unsigned char>(byte);
        AppendUtf8(text, value < 128 ? char32_t{value} : page->upperHalf.at(value - 128U));
    }
    return text;
}

std::optional<std::string> MemoryCodePages::FromUtf8(std::string_view text, unsigned codePage) {
    codePage = Resolve(codePage);
    if (!IsValidUtf8(text))
        return std::nullopt;
    if (codePage == 65001)
        return std::string(text);
    bool lossless = true;
    std::string bytes = Encode(text, codePage, [&](std::string&) { lossless = false; });
    if (!lossless)
        return std::nullopt;
    return bytes;
}

std::string MemoryCodePages::FromUtf8Lossy(std::string_view text, unsigned codePage) const {
    codePage = Resolve(codePage);
    if (codePage == 65001)
        return ToValidUtf8(text);
    return Encode(text, codePage, [](std::string& bytes) { bytes += '?'; });
}

unsigned MemoryCodePages::OfCharacterSet(std::int32_t characterSet) {
    struct Pair {
        std::int32_t characterSet;
        unsigned codePage;
    };
    static constexpr Pair kPairs[] = {
        {0, 1252},   {128, 932},  {129, 949},  {134, 936},  {136, 950},  {161, 1253}, {162, 1254},
        {163, 1258}, {177, 1255}, {178, 1256}, {186, 1257}, {204, 1251}, {222, 874},  {238, 1250}};
    const auto* found = std::find_if(std::begin(kPairs), std::end(kPairs), [&](const Pair& pair) {
        return pair.characterSet == characterSet;
    });
    return found == std::end(kPairs) ? kSystem : found->codePage;
}

}  // namespace ordalyn::test
