#include "base/Text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "base/CheckedMath.h"
#include "base/Errors.h"
#include "base/Utf8.h"

namespace ordalyn {

namespace {

struct FoldingRange {
    char32_t first, last;
    std::uint32_t step;
    std::int32_t delta;
};

constexpr FoldingRange kFoldingRanges[] = {
#include "base/CaseFolding.inc"
};

constexpr char32_t FoldAscii(char32_t c) {
    return c >= U'A' && c <= U'Z' ? c + 32 : c;
}

// What the characters of one and two bytes fold to: those of most alphabets, asked for most often.
constexpr std::size_t kTwoByteCharacters = 0x800;
constexpr std::array<char16_t, kTwoByteCharacters> kShortFolds = [] {
    std::array<char16_t, kTwoByteCharacters> folds{};
    for (char32_t c = 0; c < kTwoByteCharacters; ++c)
        folds[c] = static_cast<char16_t>(FoldAscii(c));
    for (const FoldingRange& range : kFoldingRanges) {
        for (char32_t c = range.first; c <= range.last && c < kTwoByteCharacters; c += range.step)
            folds[c] = static_cast<char16_t>(static_cast<std::int32_t>(c) + range.delta);
    }
    return folds;
}();

// Walks a text's folded characters.
class FoldedWalk {
  public:
    explicit FoldedWalk(std::string_view text) : text_(text) {}
    bool AtEnd() const { return at_ >= text_.size(); }
    char32_t Next() {
        const DecodedCharacter c = DecodeUtf8(text_, at_);
        // Invalid bytes differ from each other and from every character.
        const char32_t value =
            c.valid ? FoldCase(c.value) : 0x110000U + static_cast<unsigned char>(text_[at_]);
        at_ += c.valid ? c.length : 1;
        return value;
    }

  private:
    std::string_view text_;
    std::size_t at_ = 0;
};

// Bytes of the character at `at`: an invalid byte is a character of its own.
std::size_t CharacterLength(std::string_view text, std::size_t at) {
    const DecodedCharacter c = DecodeUtf8(text, at);
    return c.valid ? c.length : 1;
}

// Whether a number that no double can hold is too large rather than too small: whether its first
// significant digit stands left of the decimal point once the exponent has moved the point.
bool IsTooLarge(std::string_view number) {
    std::int64_t place = 0;
    bool significant = false;
    bool fraction = false;
    std::size_t at = 0;
    for (; at < number.size() && number[at] != 'e' && number[at] != 'E'; ++at) {
        const char c = number[at];
        if (c == '.')
            fraction = true;
        significant = significant || (c >= '1' && c <= '9');
        if (c < '0' || c > '9')
            continue;
        if (significant && !fraction)
            ++place;
        if (!significant && fraction)
            --place;
    }
    if (at == number.size())
        return place > 0;
    const bool negative = at + 1 < number.size() && number[at + 1] == '-';
    constexpr std::int64_t kBeyondEveryText = std::int64_t{1} << 62U;
    std::int64_t exponent = 0;
    for (++at; at < number.size(); ++at) {
        if (number[at] >= '0' && number[at] <= '9')
            exponent = exponent >= kBeyondEveryText / 16 ? kBeyondEveryText
                                                         : exponent * 10 + (number[at] - '0');
    }
    return place + (negative ? -exponent : exponent) > 0;
}

// The longest beginning of the text that reads as a decimal number, with its value.
struct NumberPrefix {
    std::size_t length;
    double value;
};

NumberPrefix ReadNumber(std::string_view text) {
    const std::size_t sign = !text.empty() && text.front() == '+' ? 1 : 0;
    const std::string_view number = text.substr(sign);
    if (sign == 1 && !number.empty() && number.front() == '-')
        return {0, 0};
    double value = 0;
    const std::from_chars_result result =
        std::from_chars(number.data(), number.data() + number.size(), value);
    const auto length = static_cast<std::size_t>(result.ptr - number.data());
    if (result.ec == std::errc::invalid_argument || length == 0)
        return {0, 0};
    const std::size_t first = number.front() == '-' ? 1 : 0;
    const char lead = first < number.size() ? number[first] : '\0';
    if (lead != '.' && (lead < '0' || lead > '9'))
        return {0, 0};  // "inf", "nan"
    if (result.ec == std::errc::result_out_of_range) {
        // Too small counts as 0, too large as beyond every whole number.
        const bool large = IsTooLarge(number.substr(first, length - first));
        value = !large ? 0.0 : (first == 1 ? -HUGE_VAL : HUGE_VAL);
    }
    return {sign + length, value};
}

}  // namespace

char32_t FoldCase(char32_t c) {
    if (c < kTwoByteCharacters)
        return kShortFolds[c];
    const auto* range =
        std::upper_bound(std::begin(kFoldingRanges), std::end(kFoldingRanges), c,
                         [](char32_t value, const FoldingRange& r) { return value < r.first; });
    if (range == std::begin(kFoldingRanges))
        return c;
    --range;
    if (c > range->last || (c - range->first) % range->step != 0)
        return c;
    return static_cast<char32_t>(static_cast<std::int32_t>(c) + range->delta);
}

std::vector<char32_t> CaseVariants(char32_t folded) {
    std::vector<char32_t> variants{folded};
    if (folded >= U'a' && folded <= U'z')
        variants.push_back(folded - 32);
    for (const FoldingRange& range : kFoldingRanges) {
        // A place before the range becomes a huge number.
        const auto c = static_cast<char32_t>(static_cast<std::int32_t>(folded) - range.delta);
        if (c - range.first <= range.last - range.first && (c - range.first) % range.step == 0)
            variants.push_back(c);
    }
    return variants;
}

std::string FoldCase(std::string_view text) {
    std::string folded;
    folded.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        const DecodedCharacter c = DecodeUtf8(text, at);
        if (c.valid)
            AppendUtf8(folded, FoldCase(c.value));
        else
            folded.append(text.substr(at, c.length));
        at += c.length;
    }
    return folded;
}

int CompareIgnoreCase(std::string_view a, std::string_view b) {
    FoldedWalk left(a);
    FoldedWalk right(b);
    while (!left.AtEnd() && !right.AtEnd()) {
        const char32_t l = left.Next();
        const char32_t r = right.Next();
        if (l != r)
            return l < r ? -1 : 1;
    }
    if (left.AtEnd() && right.AtEnd())
        return 0;
    return left.AtEnd() ? -1 : 1;
}

bool EqualsIgnoreCase(std::string_view a, std::string_view b) {
    return CompareIgnoreCase(a, b) == 0;
}

bool StartsWithIgnoreCase(std::string_view text, std::string_view prefix) {
    FoldedWalk left(text);
    FoldedWalk right(prefix);
    while (!right.AtEnd()) {
        if (left.AtEnd() || left.Next() != right.Next())
            return false;
    }
    return true;
}

std::size_t CharacterCount(std::string_view text) {
    std::size_t count = 0;
    for (std::size_t at = 0; at < text.size(); at += CharacterLength(text, at))
        ++count;
    return count;
}

std::string_view FirstCharacters(std::string_view text, std::size_t count) {
    std::size_t at = 0;
    for (; count > 0 && at < text.size(); --count)
        at += CharacterLength(text, at);
    return text.substr(0, at);
}

std::string_view LastCharacters(std::string_view text, std::size_t count) {
    std::size_t at = text.size();
    for (; count > 0 && at > 0; --count)
        at = PreviousCharacter(text, at);
    return text.substr(at);
}

std::string_view WithoutFirstCharacter(std::string_view text) {
    return text.empty() ? text : text.substr(CharacterLength(text, 0));
}

std::string_view WithoutLastCharacter(std::string_view text) {
    return text.empty() ? text : text.substr(0, PreviousCharacter(text, text.size()));
}

std::string_view TrimBlanks(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::vector<std::string> Split(std::string_view text, char separator) {
    std::vector<std::string> parts;
    if (text.empty())
        return parts;
    std::size_t start = 0;
    for (;;) {
        const std::size_t end = text.find(separator, start);
        parts.emplace_back(text.substr(start, end - start));
        if (end == std::string_view::npos)
            return parts;
        start = end + 1;
    }
}

std::string Join(const std::vector<std::string>& parts, std::string_view separator) {
    std::string joined;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        if (i > 0)
            joined += separator;
        joined += parts[i];
    }
    return joined;
}

std::string ReplaceIgnoreCase(std::string_view text, std::string_view what, std::string_view with) {
    if (what.empty())
        return std::string(text);
    const std::size_t characters = CharacterCount(what);
    std::string result;
    for (std::size_t at = 0; at < text.size();) {
        const std::string_view candidate = FirstCharacters(text.substr(at), characters);
        if (EqualsIgnoreCase(candidate, what)) {
            result += with;
            at += candidate.size();
        } else {
            const std::size_t length = CharacterLength(text, at);
            result += text.substr(at, length);
            at += length;
        }
    }
    return result;
}

std::int32_t ToLong(std::string_view text) {
    const std::string_view trimmed = TrimBlanks(text);
    const NumberPrefix number = ReadNumber(trimmed);
    if (number.length == 0 || number.length != trimmed.size())
        throw TypeMismatch();
    return RoundToLong(number.value);
}

double LeadingNumber(std::string_view text) {
    return ReadNumber(text.substr(std::min(text.find_first_not_of(' '), text.size()))).value;
}

bool IsAscii(std::string_view text) {
    return std::none_of(text.begin(), text.end(),
                        [](char c) { return (static_cast<unsigned char>(c) & 0x80U) != 0; });
}

bool IsValidUtf8(std::string_view bytes) {
    for (std::size_t at = 0; at < bytes.size();) {
        const DecodedCharacter c = DecodeUtf8(bytes, at);
        if (!c.valid)
            return false;
        at += c.length;
    }
    return true;
}

bool IsUtf8BeyondAscii(std::string_view bytes) {
    const bool ascii =
        std::all_of(bytes.begin(), bytes.end(), [](char c) { return (c & 0x80) == 0; });
    return !ascii && IsValidUtf8(bytes);
}

std::string ToValidUtf8(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size());
    for (std::size_t at = 0; at < bytes.size();) {
        const DecodedCharacter c = DecodeUtf8(bytes, at);
        if (c.valid)
            text += bytes.substr(at, c.length);
        else
            AppendUtf8(text, c.value);
        at += c.length;
    }
    return text;
}

std::u16string Utf8ToUtf16(std::string_view text) {
    std::u16string wide;
    wide.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        const DecodedCharacter c = DecodeUtf8(text, at);
        if (c.value >= 0x10000) {
            const char32_t rest = c.value - 0x10000;
            wide += static_cast<char16_t>(0xD800U + (rest >> 10U));
            wide += static_cast<char16_t>(0xDC00U + (rest & 0x3FFU));
        } else {
            wide += static_cast<char16_t>(c.value);
        }
        at += c.length;
    }
    return wide;
}

std::string Utf16ToUtf8(std::u16string_view text) {
    std::string utf8;
    utf8.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        char32_t c = text[i];
        if (c >= 0xD800 && c <= 0xDFFF) {
            const bool pair = c <= 0xDBFF && i + 1 < text.size() && text[i + 1] >= 0xDC00 &&
                              text[i + 1] <= 0xDFFF;
            c = pair ? 0x10000 + ((c - 0xD800) << 10U) + (text[++i] - 0xDC00U) : 0xFFFD;
        }
        AppendUtf8(utf8, c);
    }
    return utf8;
}

void AppendUtf8(std::string& text, char32_t c) {
    if (c < 0x80) {
        text += static_cast<char>(c);
        return;
    }
    const auto trail = [](char32_t bits) { return static_cast<char>(0x80U | (bits & 0x3FU)); };
    if (c < 0x800) {
        text += static_cast<char>(0xC0U | (c >> 6U));
    } else if (c < 0x10000) {
        text += static_cast<char>(0xE0U | (c >> 12U));
        text += trail(c >> 6U);
    } else {
        text += static_cast<char>(0xF0U | (c >> 18U));
        text += trail(c >> 12U);
        text += trail(c >> 6U);
    }
    text += trail(c);
}

}  // namespace ordalyn
