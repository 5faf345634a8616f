#include "search/TextSearcher.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <optional>

#include "base/Text.h"
#include "base/Utf8.h"

namespace ordalyn {

namespace {

// What is no character of Unicode: an invalid byte equals only itself.
constexpr char32_t kInvalidBytes = 0x110000;

// The letters to which a character outside ASCII folds: the Kelvin sign and the long s.
constexpr std::string_view kLettersWithStrangers = "ks";

struct FoldedCharacter {
    char32_t value;
    std::size_t length;
};

FoldedCharacter FoldedAt(std::string_view text, std::size_t at) {
    const auto byte = static_cast<unsigned char>(text[at]);
    if (byte < 0x80)
        return {byte >= 'A' && byte <= 'Z' ? byte + U' ' : byte, 1};
    const DecodedCharacter c = DecodeUtf8(text, at);
    if (!c.valid)
        return {kInvalidBytes + byte, 1};
    return {FoldCase(c.value), c.length};
}

char LowerAscii(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ' ') : c;
}

ByteChoice BothCases(char lower) {
    const auto value = static_cast<unsigned char>(lower);
    const bool letter = lower >= 'a' && lower <= 'z';
    return {value, static_cast<unsigned char>(letter ? value - ' ' : value)};
}

// How often a byte is met in logs, roughly: only the order of the numbers counts. The rarest bytes
// of what is looked for are the best to look for first.
int Frequency(unsigned char byte) {
    constexpr std::string_view kCommon = "\\:. eoasnrticlpuh";
    constexpr std::string_view kUsual = "dmyfgbwv-0123456789";
    if (byte >= 0x80)
        return byte >= 0xC0 ? 40 : 12;  // the first byte tells the script, the others the letter
    const char c = LowerAscii(static_cast<char>(byte));
    if (const std::size_t place = kCommon.find(c); place != std::string_view::npos)
        return 100 - static_cast<int>(place);
    if (const std::size_t place = kUsual.find(c); place != std::string_view::npos)
        return 50 - static_cast<int>(place);
    return c >= 'a' && c <= 'z' ? 10 : 5;
}

int Frequency(const ByteChoice& choice) {
    return std::max(Frequency(choice.first), Frequency(choice.second));
}

// A byte of the needle of which is known what it may be and how far it is from the other bytes of
// its segment.
struct KnownByte {
    ByteChoice choice;
    std::size_t place;      // in the segment
    std::size_t segment;    // bytes of different segments have no fixed distance
    std::size_t character;  // of the needle
    std::size_t offset;     // in the character
};

struct Anchor {
    KnownByte near;
    KnownByte far;
};

// The two rarest bytes of one segment, the one before the other; twice the same byte where there is
// only one.
std::optional<Anchor> RarestPair(const std::vector<KnownByte>& bytes) {
    std::optional<Anchor> best;
    int bestFrequency = 0;
    const auto consider = [&](const KnownByte& near, const KnownByte& far, int frequency) {
        if (best && frequency >= bestFrequency)
            return;
        best = Anchor{near, far};
        bestFrequency = frequency;
    };
    constexpr int kNothingElse = 200;  // a pair is always better than a single byte
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        consider(bytes[i], bytes[i], Frequency(bytes[i].choice) * kNothingElse);
        for (std::size_t j = i + 1; j < bytes.size() && bytes[j].segment == bytes[i].segment; ++j)
            consider(bytes[i], bytes[j], Frequency(bytes[i].choice) * Frequency(bytes[j].choice));
    }
    return best;
}

// The values that one byte of a character's variants has; nothing when there are more than two.
std::optional<ByteChoice> ChoiceAt(const std::vector<std::string>& variants, std::size_t offset) {
    const auto first = static_cast<unsigned char>(variants.front()[offset]);
    ByteChoice choice{first, first};
    for (const std::string& variant : variants) {
        const auto value = static_cast<unsigned char>(variant[offset]);
        if (choice.Fits(variant[offset]))
            continue;
        if (choice.second != choice.first)
            return std::nullopt;
        choice.second = value;
    }
    return choice;
}

std::vector<std::string> EncodedVariants(char32_t folded) {
    std::vector<std::string> encoded;
    for (const char32_t variant : CaseVariants(folded))
        AppendUtf8(encoded.emplace_back(), variant);
    return encoded;
}

// A needle longer than this is told from others by its beginning.
constexpr std::size_t kAnchorCharacters = 64;

std::vector<KnownByte> KnownBytes(const std::vector<char32_t>& needle) {
    std::vector<KnownByte> bytes;
    std::size_t segment = 0;
    std::size_t place = 0;
    const std::size_t count = std::min(needle.size(), kAnchorCharacters);
    for (std::size_t character = 0; character < count; ++character) {
        const std::vector<std::string> variants = EncodedVariants(needle[character]);
        const std::size_t length = variants.front().size();
        const bool sameLength = std::all_of(variants.begin(), variants.end(),
                                            [&](const auto& v) { return v.size() == length; });
        if (!sameLength) {
            // What comes behind stands in different places.
            ++segment;
            continue;
        }
        for (std::size_t offset = 0; offset < length; ++offset, ++place) {
            if (const std::optional<ByteChoice> choice = ChoiceAt(variants, offset))
                bytes.push_back({*choice, place, segment, character, offset});
        }
    }
    return bytes;
}

}  // namespace

TextSearcher::TextSearcher(std::string_view needle) {
    for (std::size_t at = 0; at < needle.size();) {
        const FoldedCharacter c = FoldedAt(needle, at);
        needle_.push_back(c.value);
        at += c.length;
    }
    if (needle.empty())
        way_ = Way::Always;
    else if (IsAscii(needle))
        PrepareAscii();
    else
        way_ = PrepareCharacters(false) ? Way::Characters : Way::Walking;
}

void TextSearcher::PrepareAscii() {
    std::vector<KnownByte> bytes;
    for (const char32_t c : needle_)
        ascii_.push_back(static_cast<char>(c));
    for (std::size_t i = 0; i < std::min(ascii_.size(), kAnchorCharacters); ++i)
        bytes.push_back({BothCases(ascii_[i]), i, 0, i, 0});
    const Anchor anchor = *RarestPair(bytes);
    anchor_ = BytePair(anchor.near.choice, anchor.far.choice, anchor.far.place - anchor.near.place);
    anchorOffset_ = anchor.near.place;
    if (ascii_.find_first_of(kLettersWithStrangers) == std::string::npos)
        way_ = Way::Ascii;
    else if (PrepareCharacters(true))
        way_ = Way::Characters;
    else
        way_ = Way::AsciiWithStrangers;
}

// Returns false for a needle that has no byte to look for, or, with pairOnly, no two at a fixed
// distance; nothing has changed then. Invalid bytes are left to walking: seen alone, a byte in the
// middle of a character looks like one.
bool TextSearcher::PrepareCharacters(bool pairOnly) {
    const bool valid =
        std::all_of(needle_.begin(), needle_.end(), [](char32_t c) { return c < kInvalidBytes; });
    if (!valid)
        return false;
    const std::optional<Anchor> anchor = RarestPair(KnownBytes(needle_));
    if (!anchor || (pairOnly && anchor->near.place == anchor->far.place))
        return false;
    anchor_ =
        BytePair(anchor->near.choice, anchor->far.choice, anchor->far.place - anchor->near.place);
    anchorCharacter_ = anchor->near.character;
    anchorOffset_ = anchor->near.offset;
    for (const char32_t c : needle_) {
        const std::vector<char32_t> variants = CaseVariants(c);
        auto& forms = forms_.emplace_back();
        for (std::size_t i = 0; i < kForms; ++i)
            forms[i] = Encode(variants[i < variants.size() ? i : 0]);
    }
    return true;
}

TextSearcher::Encoded TextSearcher::Encode(char32_t character) {
    std::string text;
    AppendUtf8(text, character);
    Encoded encoded;
    encoded.length = text.size();
    std::memcpy(&encoded.bytes, text.data(), text.size());
    std::memset(&encoded.mask, 0xFF, text.size());
    return encoded;
}

std::optional<TextSearcher::Place> TextSearcher::FindIn(std::string_view text,
                                                        std::size_t from) const {
    if (way_ == Way::Ascii || way_ == Way::AsciiWithStrangers)
        return FindAsAscii(text, from);
    if (way_ == Way::Characters)
        return FindByCharacters(text, from);
    return std::nullopt;
}

std::optional<TextSearcher::Place> TextSearcher::FindAsAscii(std::string_view text,
                                                             std::size_t from) const {
    if (text.size() < from || text.size() - from < ascii_.size())
        return std::nullopt;
    const char* const first = text.data() + anchorOffset_;
    const char* const end = first + (text.size() - ascii_.size()) + 1;
    const char* const found = anchor_.Find(
        first + from, end, [this](const char* at) { return FitsAsAscii(at - anchorOffset_); });
    if (found == nullptr)
        return std::nullopt;
    const auto start = static_cast<std::size_t>(found - first);
    return Place{start, start + ascii_.size()};
}

bool TextSearcher::FitsAsAscii(const char* start) const {
    for (const char c : ascii_)
        if (LowerAscii(*start++) != c)
            return false;
    return true;
}

// Whether a text may hold one of the two characters beyond ASCII whose other case is an ASCII
// letter, the long s and the Kelvin sign. Hardly any text does. Only their first two bytes are
// looked for, both characters in one pass; a yes for another character that begins alike costs
// time, no more.
bool TextSearcher::MayHoldStranger(std::string_view text) {
    static const BytePair strangers({0xC5, 0xE2}, {0xBF, 0x84}, 1);
    if (text.size() < 2)
        return false;
    return strangers.Find(text.data(), text.data() + text.size() - 1,
                          [](const char*) { return true; }) != nullptr;
}

std::optional<TextSearcher::Place> TextSearcher::FindByCharacters(std::string_view text,
                                                                  std::size_t from) const {
    const std::size_t least = anchorOffset_ + anchor_.Distance() + 1;
    if (text.size() < from || text.size() - from < least)
        return std::nullopt;
    const char* const first = text.data() + anchorOffset_;
    std::optional<Place> place;
    anchor_.Find(first + from, first + (text.size() - least) + 1, [&](const char* at) {
        const auto character = static_cast<std::size_t>(at - first);
        const std::optional<std::size_t> end = EndFrom(text, character, anchorCharacter_);
        if (!end)
            return false;
        const std::optional<std::size_t> start = StartBefore(text, character, anchorCharacter_);
        if (!start || *start < from)
            return false;
        place = Place{*start, *end};
        return true;
    });
    return place;
}

// How many bytes of a text from this one on are the needle's character in one of its usual
// forms; 0 for what only decoding can tell.
std::size_t TextSearcher::LengthAt(std::string_view text, std::size_t at,
                                   std::size_t character) const {
    std::uint32_t bytes = 0;
    if (forms_.empty() || text.size() < sizeof bytes || at > text.size() - sizeof bytes)
        return 0;
    std::memcpy(&bytes, text.data() + at, sizeof bytes);
    for (const Encoded& form : forms_[character])
        if ((bytes & form.mask) == form.bytes)
            return form.length;
    return 0;
}

// Where the needle's characters from this one on end if they begin here.
std::optional<std::size_t> TextSearcher::EndFrom(std::string_view text, std::size_t at,
                                                 std::size_t character) const {
    for (; character < needle_.size(); ++character) {
        if (const std::size_t length = LengthAt(text, at, character); length != 0) {
            at += length;
            continue;
        }
        if (at >= text.size())
            return std::nullopt;
        const FoldedCharacter c = FoldedAt(text, at);
        if (c.value != needle_[character])
            return std::nullopt;
        at += c.length;
    }
    return at;
}

// Where so many of the needle's first characters begin if they end here.
std::optional<std::size_t> TextSearcher::StartBefore(std::string_view text, std::size_t end,
                                                     std::size_t characters) const {
    while (characters > 0) {
        if (end == 0)
            return std::nullopt;
        const std::size_t start = PreviousCharacter(text, end);
        --characters;
        if (LengthAt(text, start, characters) != end - start &&
            FoldedAt(text, start).value != needle_[characters])
            return std::nullopt;
        end = start;
    }
    return end;
}

bool TextSearcher::FoundByWalking(std::string_view text) const {
    for (std::size_t at = 0; at < text.size(); at += FoldedAt(text, at).length)
        if (EndFrom(text, at, 0))
            return true;
    return false;
}

}  // namespace ordalyn
