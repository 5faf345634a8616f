#include "toolkit/ShortText.h"

#include <algorithm>
#include <cstddef>
#include <vector>

#include "base/Utf8.h"

namespace ordalyn::toolkit {

namespace {

constexpr std::string_view kDots = "\xE2\x80\xA6";
// So much of each end of a text is looked at: far more than any screen shows.
constexpr std::size_t kBytesLookedAt = 4096;
constexpr char32_t kZeroWidthJoiner = 0x200D;

struct Range {
    char32_t first, last;
};
// Characters that are shown on or with the one in front of them.
constexpr Range kMarks[] = {
    {0x0300, 0x036F},   {0x0483, 0x0489},  {0x0591, 0x05BD}, {0x05BF, 0x05BF}, {0x05C1, 0x05C2},
    {0x05C4, 0x05C5},   {0x05C7, 0x05C7},  {0x0610, 0x061A}, {0x064B, 0x065F}, {0x0670, 0x0670},
    {0x06D6, 0x06DC},   {0x06DF, 0x06E4},  {0x0900, 0x0903}, {0x093A, 0x094F}, {0x0E31, 0x0E31},
    {0x0E34, 0x0E3A},   {0x0E47, 0x0E4E},  {0x1AB0, 0x1AFF}, {0x1DC0, 0x1DFF}, {0x200C, 0x200D},
    {0x20D0, 0x20FF},   {0x3099, 0x309A},  {0xFE00, 0xFE0F}, {0xFE20, 0xFE2F}, {0x1F3FB, 0x1F3FF},
    {0xE0020, 0xE007F}, {0xE0100, 0xE01EF}};

bool IsMark(char32_t c) {
    return std::any_of(std::begin(kMarks), std::end(kMarks),
                       [c](const Range& range) { return c >= range.first && c <= range.last; });
}

// Where the text can be cut, its beginning and end among them.
std::vector<std::size_t> Cuts(std::string_view text) {
    std::vector<std::size_t> cuts;
    bool joined = false;
    for (std::size_t at = 0; at < text.size();) {
        const DecodedCharacter c = DecodeUtf8(text, at);
        if (at == 0 || !(joined || (c.valid && IsMark(c.value))))
            cuts.push_back(at);
        joined = c.valid && c.value == kZeroWidthJoiner;
        at += c.valid ? c.length : 1;
    }
    cuts.push_back(text.size());
    return cuts;
}

std::string WithDots(std::string_view head, std::string_view tail) {
    return std::string(head).append(kDots).append(tail);
}

// The largest number up to `most` for which `fits` is true, as it is for all smaller ones; -1 when
// it is for none.
template <typename Question>
std::ptrdiff_t Largest(std::size_t most, const Question& fits) {
    std::ptrdiff_t good = -1;
    auto bad = static_cast<std::ptrdiff_t>(most) + 1;
    while (bad - good > 1) {
        const std::ptrdiff_t middle = good + (bad - good) / 2;
        (fits(static_cast<std::size_t>(middle)) ? good : bad) = middle;
    }
    return good;
}

// As much of both ends as fits, of which the end has the half that is left over.
std::string WithoutMiddle(std::string_view text, int width, const TextWidth& widthOf) {
    const std::vector<std::size_t> cuts = Cuts(text);
    const std::size_t characters = cuts.size() - 1;
    const auto shown = [&](std::size_t count) {
        const std::size_t tail = (count + 1) / 2;
        return WithDots(text.substr(0, cuts[count - tail]), text.substr(cuts[characters - tail]));
    };
    const std::ptrdiff_t count =
        Largest(characters > 0 ? characters - 1 : 0,
                [&](std::size_t wanted) { return widthOf(shown(wanted)) <= width; });
    return count < 0 ? std::string(kDots) : shown(static_cast<std::size_t>(count));
}

// Where the file name at the end begins, with the separator in front of it; 0 without one. A
// separator behind the name belongs to it.
std::size_t NameStart(std::string_view text) {
    constexpr std::string_view kSeparators = "\\/";
    const std::size_t end = text.find_last_not_of(kSeparators);
    if (end == std::string_view::npos)
        return 0;
    const std::size_t separator = text.substr(0, end).find_last_of(kSeparators);
    return separator == std::string_view::npos ? 0 : separator;
}

}  // namespace

std::string ShortenMiddle(std::string_view text, int width, const TextWidth& widthOf) {
    std::string ends;
    if (text.size() > 2 * kBytesLookedAt) {
        // Both pieces begin and end with a whole character.
        std::size_t head = kBytesLookedAt;
        std::size_t tail = text.size() - kBytesLookedAt;
        const auto inside = [&](std::size_t at) {
            return (static_cast<unsigned char>(text[at]) & 0xC0U) == 0x80U;
        };
        while (head > 0 && inside(head))
            --head;
        while (tail < text.size() - 1 && inside(tail))
            ++tail;
        ends = WithDots(text.substr(0, head), text.substr(tail));
        text = ends;
    }
    if (widthOf(text) <= width)
        return std::string(text);
    if (const std::size_t nameStart = NameStart(text); nameStart > 0) {
        const std::string_view name = text.substr(nameStart);
        const std::string_view before = text.substr(0, nameStart);
        const std::vector<std::size_t> cuts = Cuts(before);
        const std::ptrdiff_t count = Largest(cuts.size() - 1, [&](std::size_t wanted) {
            return widthOf(WithDots(before.substr(0, cuts[wanted]), name)) <= width;
        });
        // All of the beginning fits with the dots and not without them only in fonts that draw
        // together what stands side by side.
        if (count >= 0)
            return WithDots(before.substr(0, cuts[static_cast<std::size_t>(count)]), name);
        text = text.substr(nameStart + 1);
    }
    return WithoutMiddle(text, width, widthOf);
}

std::string ShortenPathBehind(std::string_view words, std::string_view path, int width,
                              const TextWidth& widthOf) {
    const auto behind = [&](std::string_view part) { return std::string(words).append(part); };
    return behind(
        ShortenMiddle(path, width, [&](std::string_view part) { return widthOf(behind(part)); }));
}

std::string ShortenLine(std::string_view line, int width, const TextWidth& widthOf) {
    const std::string_view words = line.substr(0, line.find_last_not_of(' ') + 1);
    if (widthOf(words) <= width)
        return std::string(line);
    if (words.find('\\') != std::string_view::npos)
        return ShortenMiddle(words, width, widthOf);
    const std::vector<std::size_t> cuts = Cuts(words);
    const std::ptrdiff_t count = Largest(cuts.size() - 1, [&](std::size_t wanted) {
        return widthOf(WithDots(words.substr(0, cuts[wanted]), {})) <= width;
    });
    return WithDots(words.substr(0, count < 0 ? 0 : cuts[static_cast<std::size_t>(count)]), {});
}

}  // namespace ordalyn::toolkit
