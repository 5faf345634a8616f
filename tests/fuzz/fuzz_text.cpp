// Any bytes as text: the operations of base/Text keep their promises to each other.
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "Require.h"
#include "base/Errors.h"
#include "base/Text.h"

using namespace ordalyn;
using fuzz::Require;

namespace {

void CheckCharacters(std::string_view text, std::size_t count) {
    const std::string_view first = FirstCharacters(text, count);
    Require(text.starts_with(first), "the first characters begin the text");
    Require(text.ends_with(LastCharacters(text, count)), "the last characters end the text");
    Require(CharacterCount(text) <= text.size(), "a character is at least a byte");
    if (!text.empty()) {
        Require(WithoutFirstCharacter(text).size() < text.size(), "the first character goes");
        Require(WithoutLastCharacter(text).size() < text.size(), "the last character goes");
    }
}

void CheckCase(std::string_view text, std::string_view other) {
    Require(EqualsIgnoreCase(text, text), "a text equals itself");
    Require(StartsWithIgnoreCase(text, text), "a text starts with itself");
    Require(CompareIgnoreCase(text, other) == 0 == EqualsIgnoreCase(text, other),
            "equal means that neither comes first");
    const int order = CompareIgnoreCase(text, other);
    const int reverse = CompareIgnoreCase(other, text);
    Require((order < 0) == (reverse > 0) && (order > 0) == (reverse < 0), "one order both ways");
    Require(FoldCase(FoldCase(text)) == FoldCase(text), "folding twice is folding once");
}

void CheckEncodings(std::string_view text) {
    const std::string valid = ToValidUtf8(text);
    Require(IsValidUtf8(valid), "made valid");
    if (IsValidUtf8(text)) {
        Require(valid == text, "what is valid stays");
        Require(Utf16ToUtf8(Utf8ToUtf16(text)) == text, "to UTF-16 and back");
    }
}

void CheckNumbers(std::string_view text) {
    LeadingNumber(text);
    try {
        const std::int32_t number = ToLong(text);
        const double leading = LeadingNumber(text);
        Require(number - leading <= 0.5 && leading - number <= 0.5, "both ways to read a number");
    } catch (const Error&) {
        // Most texts are no numbers, and saying so is right.
        return;
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const std::size_t middle = size > 0 ? data[0] % size : 0;
    CheckCharacters(text, middle);
    CheckCase(text.substr(0, middle), text.substr(middle));
    CheckEncodings(text);
    CheckNumbers(text);
    Require(Join(Split(text, ','), ",") == text, "split and joined");
    const std::string_view what = text.substr(0, middle);
    if (!what.empty())
        Require(ReplaceIgnoreCase(text, what, what).size() <= text.size() * 4, "replaced");
    return 0;
}
