#include "history/PathTails.h"

#include <algorithm>
#include <string>

#include "base/Text.h"
#include "base/Utf8.h"
#include "history/PathNames.h"

namespace ordalyn {

namespace {

// What the last character beyond ASCII looks like in a tail, whichever it is.
constexpr char kStranger = '\xFF';

// The bytes that the text has at least, in whatever case its letters are.
std::size_t LeastSize(std::string_view key) {
    std::size_t size = 0;
    for (std::size_t at = 0; at < key.size();) {
        const DecodedCharacter c = DecodeUtf8(key, at);
        std::size_t least = c.length;
        if (c.valid && c.value >= 0x80) {
            for (const char32_t variant : CaseVariants(c.value)) {
                std::string text;
                AppendUtf8(text, variant);
                least = std::min(least, text.size());
            }
        }
        size += least;
        at += c.length;
    }
    return size;
}

}  // namespace

void PathTails::Clear() {
    tails_.fill(0);
    ends_.fill(0);
    hasShort_ = false;
}

void PathTails::AddWithFolders(std::string_view key) {
    for (; !key.empty(); key = key.substr(0, FolderEnd(key)))
        Add(key.substr(0, Stripped(key)));
}

// A letter to which one beyond ASCII folds can be that one in the log: then it, and what is before
// it, looks like any other of these.
void PathTails::Add(std::string_view key) {
    const std::size_t least = LeastSize(key);
    if (least < kShort)
        return;  // the root of a drive
    const std::size_t length = least >= kLong ? kLong : (least >= kMiddle ? kMiddle : kShort);
    AddTail(key, length);
    const std::size_t first = key.size() - std::min(key.size(), length);
    for (std::size_t at = key.size(); at > first; --at) {
        const char c = key[at - 1];
        if ((static_cast<unsigned char>(c) & 0x80U) != 0)
            break;
        if (c == 'k' || c == 's')
            AddTail(std::string(1, kStranger).append(key.substr(at)), length);
    }
}

void PathTails::AddTail(std::string_view tail, std::size_t length) {
    std::string bytes(kLong, kStranger);
    bytes.append(tail);
    const char* const end = bytes.data() + bytes.size();
    if (length == kShort) {
        hasShort_ = true;
        Set(tails_, Word<std::uint32_t>(end));
        return;
    }
    const std::uint64_t last = Word<std::uint64_t>(end);
    Set(ends_, last);
    Set(tails_, length == kMiddle ? last : Both(last, end));
}

}  // namespace ordalyn
